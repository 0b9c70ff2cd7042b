#pragma once

// talu-cli run as a process, the way scripts on show machines run it: the exit
// code and both streams. Tests get TALU_CLI_PATH by linking talu_test_cli.
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

namespace TestCli {

struct Run
{
    int exitCode = -1; // -1: crashed or did not finish in time
    QByteArray out;
    QByteArray err;

    QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
};

inline Run run(const QStringList &arguments, int timeoutMs = 120000)
{
    QProcess p;
    p.start(QStringLiteral(TALU_CLI_PATH), arguments);
    Run r;
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished();
        return r;
    }
    if (p.exitStatus() == QProcess::NormalExit)
        r.exitCode = p.exitCode();
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

inline QString example(const QString &name)
{
    return QStringLiteral(TALU_SOURCE_DIR "/examples/") + name;
}

} // namespace TestCli
