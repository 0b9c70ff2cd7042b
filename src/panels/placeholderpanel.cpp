#include "panels/placeholderpanel.h"

#include <QLabel>
#include <QVBoxLayout>

PlaceholderPanel::PlaceholderPanel(const QString &objectName, const QString &title, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(objectName);
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(title, this);
    label->setAlignment(Qt::AlignCenter);
    label->setEnabled(false);
    layout->addWidget(label);
    setMinimumHeight(80);
}
