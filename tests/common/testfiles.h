#pragma once

// Files the tests make and read back whole.
#include <QByteArray>
#include <QFile>
#include <QString>

namespace TestFiles {

// Writes bytes to path, replacing what was there; the path, or empty when it could not be written.
inline QString write(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        return {};
    return path;
}

// The whole file, or empty when it cannot be read.
inline QByteArray read(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace TestFiles
