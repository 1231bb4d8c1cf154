#include "workbench/bench/safe_name.h"

namespace Rotavue::Workbench {

QString safeName(const QString& name) {
    constexpr qsizetype Longest = 80;
    QString text = name.simplified();
    for (QChar& character : text)
        if (QStringLiteral("/\\:*?\"<>|").contains(character)) character = u'-';
    return text.left(Longest);
}

}  // namespace Rotavue::Workbench
