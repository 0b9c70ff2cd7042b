#include "patch/importreport.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace TPatch {

namespace {

const QLatin1StringView kReportName("report.txt");
const QLatin1StringView kFingerprintLabel("Fingerprint: ");
const char *const kApplicationName = "Torvane TALU";
const char *const kApplicationVersion = "1.0.0";

bool usableFolder(const QString &path)
{
    if (path.isEmpty() || !QDir().mkpath(path))
        return false;
    QTemporaryFile probe(QDir(path).filePath(QStringLiteral("probe-XXXXXX")));
    return probe.open(); // opens read-write; removed again when it goes out of scope
}

QString heading(const char *text, bool translated)
{
    return translated ? QCoreApplication::translate("TPatch", text) : QString::fromLatin1(text);
}

// Reads report.txt lines until the fingerprint line; a missing or foreign file never matches.
QString fingerprintOf(const QString &folder)
{
    QFile file(QDir(folder).filePath(kReportName));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    while (!file.atEnd()) {
        QString line = QString::fromUtf8(file.readLine(4096));
        if (line.startsWith(QChar(0xFEFF)))
            line.remove(0, 1);
        if (line.startsWith(kFingerprintLabel))
            return line.mid(kFingerprintLabel.size()).trimmed();
    }
    return {};
}

// The copy keeps only the source's own file name, so nothing in a path can
// steer it out of the report folder, and it never replaces the report itself.
QString copyName(const QString &sourcePath)
{
    QString name = QFileInfo(sourcePath).fileName();
    if (name.isEmpty() || name == QLatin1StringView(".") || name == QLatin1StringView(".."))
        name = QStringLiteral("source");
    if (name.compare(kReportName, Qt::CaseInsensitive) == 0)
        name.prepend(QStringLiteral("source-"));
    return name;
}

} // namespace

QString importLogsFolder(const QString &besideProgram, const QString &perUser)
{
    const QString first = besideProgram.isEmpty()
                              ? QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("logs"))
                              : besideProgram;
    if (usableFolder(first))
        return QDir::cleanPath(first);
    const QString second = perUser.isEmpty()
                               ? QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
                                     .filePath(QStringLiteral("logs"))
                               : perUser;
    if (usableFolder(second))
        return QDir::cleanPath(second);
    return {};
}

QString importResultBlock(const PatchLoadResult &result, bool translated)
{
    QString block;
    if (!result.ok)
        block += heading(QT_TRANSLATE_NOOP("TPatch", "Error:"), translated) +
                 QStringLiteral("\n  %1\n")
                     .arg(translated ? result.error.text() : result.error.untranslatedText());
    if (!result.warnings.isEmpty()) {
        block += heading(QT_TRANSLATE_NOOP("TPatch", "Warnings:"), translated) + u'\n';
        for (qsizetype i = 0; i < result.warnings.size(); ++i) {
            const PatchMessage &w = result.warnings.at(i);
            block +=
                QStringLiteral("  %1. %2\n").arg(i + 1).arg(translated ? w.text() : w.untranslatedText());
        }
    }
    return block;
}

QString importFingerprint(const QByteArray &fileBytes, const PatchLoadResult &result)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(fileBytes);
    hash.addData(importResultBlock(result, false).toUtf8());
    return QString::fromLatin1(hash.result().toHex());
}

ImportReportResult writeImportReport(const QString &logsFolder, const QString &sourcePath,
                                     const PatchLoadResult &result, const QString &language,
                                     const QDateTime &now)
{
    ImportReportResult out;
    QByteArray bytes;
    QString readError;
    {
        QFile source(sourcePath);
        if (QFileInfo(sourcePath).isDir())
            readError = QStringLiteral("it is a folder, not a file");
        else if (!source.open(QIODevice::ReadOnly))
            readError = source.errorString();
        else
            bytes = source.readAll();
    }
    const bool readable = readError.isEmpty();
    const QString fingerprint = importFingerprint(bytes, result);

    const QDir logs(logsFolder);
    const QStringList existing = logs.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : existing) {
        if (fingerprintOf(logs.filePath(name)) == fingerprint) {
            out.ok = true;
            out.reused = true;
            out.folder = logs.filePath(name);
            return out;
        }
    }

    const QString stamp = now.toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
    QString folderName = stamp;
    for (int counter = 2; logs.exists(folderName); ++counter)
        folderName = QStringLiteral("%1_%2").arg(stamp).arg(counter);
    const QString folder = logs.filePath(folderName);
    if (!QDir().mkpath(folder)) {
        out.error = QStringLiteral("could not create %1").arg(QDir::toNativeSeparators(folder));
        return out;
    }
    out.folder = folder;

    QString copyField;
    if (!readable) {
        copyField = QStringLiteral("not saved - the source could not be read: %1").arg(readError);
    } else {
        const QString name = copyName(sourcePath);
        QFile copy(QDir(folder).filePath(name));
        if (!copy.open(QIODevice::WriteOnly))
            copyField = QStringLiteral("not saved - %1").arg(copy.errorString());
        else if (copy.write(bytes) != bytes.size())
            copyField = QStringLiteral("not saved - %1").arg(copy.errorString());
        else
            copyField = name;
    }

    QString text;
    text += QStringLiteral("%1 %2 - patch import report\n")
                .arg(QString::fromLatin1(kApplicationName), QString::fromLatin1(kApplicationVersion));
    text += kFingerprintLabel + fingerprint + u'\n';
    text += u'\n';
    text += QStringLiteral("Time:      %1\n").arg(now.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    text += QStringLiteral("Source:    %1\n").arg(QDir::toNativeSeparators(sourcePath));
    text += QStringLiteral("Format:    %1\n").arg(result.patch.formatLabel);
    text += QStringLiteral("Size:      %1 bytes\n")
                .arg(readable ? qint64(bytes.size()) : QFileInfo(sourcePath).size());
    text += QStringLiteral("SHA-256:   %1\n")
                .arg(readable ? QString::fromLatin1(
                                    QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex())
                              : QStringLiteral("-"));
    text += QStringLiteral("Copy:      %1\n").arg(copyField);
    text += QStringLiteral("Result:    %1\n")
                .arg(result.ok ? QStringLiteral("loaded with %1 warning(s)").arg(result.warnings.size())
                               : QStringLiteral("not loaded"));
    text += QStringLiteral("Language:  %1\n").arg(language);
    text += importResultBlock(result, false);
    text += QStringLiteral("\n--- In the interface language (%1) ---\n\n").arg(language);
    text += importResultBlock(result, true);

    QFile report(QDir(folder).filePath(kReportName));
    const QByteArray reportBytes = QByteArray("\xEF\xBB\xBF") + text.toUtf8();
    if (!report.open(QIODevice::WriteOnly) || report.write(reportBytes) != reportBytes.size()) {
        out.error = QStringLiteral("could not write %1: %2")
                        .arg(QDir::toNativeSeparators(report.fileName()), report.errorString());
        return out;
    }
    out.ok = true;
    return out;
}

} // namespace TPatch
