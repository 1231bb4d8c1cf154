#include "workbench/files/import_memory.h"

#include <QCryptographicHash>
#include <QSettings>

#include "workbench/recording/machine_file.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

const QString Group = QStringLiteral("import");

// A key of the settings may not hold what a shape may.
QString keyOf(const std::string& shape, const QString& item) {
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(shape), QCryptographicHash::Sha256);
    return Group + u'/' + QString::fromLatin1(hash.toHex().left(32)) + u'/' + item;
}

const QString OptionsItem = QStringLiteral("options");
const QString AskItem = QStringLiteral("ask");

}  // namespace

std::optional<RememberedImport> ImportMemory::find(const std::string& shape) const {
    const QString text = settings_.value(keyOf(shape, OptionsItem)).toString();
    if (text.isEmpty()) return std::nullopt;
    try {
        return RememberedImport{readMachineText("settings", text.toStdString()),
                                settings_.value(keyOf(shape, AskItem), true).toBool()};
    } catch (const RecordingError&) {
        return std::nullopt;
    }
}

void ImportMemory::remember(const std::string& shape, const RememberedImport& import) {
    settings_.setValue(keyOf(shape, OptionsItem),
                       QString::fromStdString(machineText(import.options)));
    settings_.setValue(keyOf(shape, AskItem), import.askAgain);
}

bool ImportMemory::isEmpty() const {
    settings_.beginGroup(Group);
    const bool empty = settings_.childGroups().isEmpty();
    settings_.endGroup();
    return empty;
}

void ImportMemory::clear() {
    settings_.remove(Group);
}

}  // namespace Rotavue::Workbench
