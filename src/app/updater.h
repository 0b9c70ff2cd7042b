#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

// The updater's apply step: the elevated process that replaces the program's
// files. This build ships no updater yet; the step reports success so that an
// installer calling "--apply-update" is never left hanging.
int applyUpdate(const QStringList &arguments);

// The background update check, owned by the start-up code. This build checks
// nothing; it exists so that start-up already has its final shape.
class UpdateController : public QObject
{
    Q_OBJECT
public:
    explicit UpdateController(QWidget *mainWindow, QObject *parent = nullptr);
    void startBackgroundCheck();

private:
    QWidget *m_mainWindow = nullptr; // not owned
};
