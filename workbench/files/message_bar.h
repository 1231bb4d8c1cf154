#pragma once

#include "workbench/files/sign_row.h"

#include <QStringList>

#include <cstddef>
#include <functional>
#include <vector>

namespace Rotavue::Workbench {

/// What can be done about what a line tells: a button behind it, which takes the line with it.
struct MessageRemedy {
    QString name = {};
    std::function<void()> run = {};
};

/// Tells what went wrong, line by line, above what is shown, and stands in nobody's way: it takes
/// no focus, and is gone with a click or when it is cleared. Hidden while there is nothing to tell.
class MessageBar : public SignRow {
    Q_OBJECT

public:
    /// Lines that are told at once; of more, the newest.
    static constexpr std::size_t MostLines = 5;

    explicit MessageBar(QWidget* parent = nullptr);

    /// Adds a line, or moves one that is there to the end.
    void tell(const QString& line, MessageRemedy remedy = {});

    void clear();

    QStringList lines() const;

private:
    struct Message {
        QString line;
        MessageRemedy remedy;
    };
    void drop(const QString& line);
    void show();
    QWidget* makeRow(const Message& message);

    std::vector<Message> messages_;
};

}  // namespace Rotavue::Workbench
