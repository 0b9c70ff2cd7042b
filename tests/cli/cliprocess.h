#pragma once

// talu-cli in the background while a test feeds it packets, and a wait for what it says on stderr.
#include <QByteArray>
#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>

namespace TestCli {

inline void start(QProcess &process, const QStringList &arguments)
{
    process.setReadChannel(QProcess::StandardError);
    process.start(QStringLiteral(TALU_CLI_PATH), arguments);
}

// Reads stderr into *said until it holds text; false when the process ends or 15 s pass first.
inline bool waitForText(QProcess &process, const QByteArray &text, QByteArray *said)
{
    QElapsedTimer t;
    t.start();
    while (!said->contains(text) && t.elapsed() < 15000 && process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(200);
        *said += process.readAllStandardError();
    }
    return said->contains(text);
}

} // namespace TestCli
