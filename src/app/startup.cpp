#include "app/startup.h"

std::optional<QStringList> updateHandOverArguments(const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(QStringLiteral("--apply-update"));
    if (at < 0 || arguments.size() - at - 1 < 2)
        return std::nullopt;
    return arguments.mid(at + 1);
}
