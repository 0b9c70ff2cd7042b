#include "app/updater.h"

int applyUpdate(const QStringList &arguments)
{
    Q_UNUSED(arguments);
    return 0;
}

UpdateController::UpdateController(QWidget *mainWindow, QObject *parent) : QObject(parent), m_mainWindow(mainWindow) {}

void UpdateController::startBackgroundCheck() {}
