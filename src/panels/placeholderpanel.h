#pragma once

#include <QWidget>

// Marks the place in the main window where a panel or view that is still to
// be built will sit, so the frame shows its final shape meanwhile.
class PlaceholderPanel : public QWidget
{
    Q_OBJECT
public:
    PlaceholderPanel(const QString &objectName, const QString &title, QWidget *parent = nullptr);
};
