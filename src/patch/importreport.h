#pragma once

#include "patch/patchloadresult.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace TPatch {

// What a report request did: the folder written (or reused), or why it failed.
struct ImportReportResult
{
    bool ok = false;
    bool reused = false; // a folder with the same fingerprint already held this load
    QString folder;
    QString error;
};

// The folder that collects import reports: "logs" beside the program when it
// can be created and written to (checked with a probe file), otherwise "logs"
// in the per-user application data folder. Empty arguments take those two
// defaults; tests pass their own. Returns an empty text when neither works.
// GUI thread or any thread; touches only the file system.
QString importLogsFolder(const QString &besideProgram = QString(), const QString &perUser = QString());

// The result block of a report: "Error:" with the error when the load failed,
// "Warnings:" with the numbered warnings when there are any. translated picks
// the interface language; the untranslated block keys the fingerprint.
QString importResultBlock(const PatchLoadResult &result, bool translated);

// SHA-256 over the file bytes followed by the UTF-8 untranslated result block, lower-case hex.
QString importFingerprint(const QByteArray &fileBytes, const PatchLoadResult &result);

// Writes (or finds) the report folder for one load of sourcePath inside
// logsFolder: a folder named by the local time ("yyyy-MM-dd_HH-mm-ss", then
// "_2", "_3", ... when taken) holding report.txt and a copy of the source
// under its own file name. A folder whose report carries the same fingerprint
// is reused and nothing is written. language names the interface language.
// Never throws.
ImportReportResult writeImportReport(const QString &logsFolder, const QString &sourcePath,
                                     const PatchLoadResult &result, const QString &language,
                                     const QDateTime &now = QDateTime::currentDateTime());

} // namespace TPatch
