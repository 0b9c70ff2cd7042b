#include "app/startup.h"

std::optional<QStringList> updateHandOverArguments(const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(QStringLiteral("--apply-update"));
    if (at < 0 || arguments.size() - at - 1 < 2)
        return std::nullopt;
    return arguments.mid(at + 1);
}

QStringList argumentsForNormalStart(const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(QStringLiteral("--apply-update"));
    return at < 0 ? arguments : arguments.mid(0, at);
}
