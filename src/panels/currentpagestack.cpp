#include "panels/currentpagestack.h"

CurrentPageStack::CurrentPageStack(QWidget *parent) : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, [this] { updateGeometry(); });
}

QSize CurrentPageStack::sizeHint() const
{
    return currentWidget() ? currentWidget()->sizeHint() : QSize();
}

QSize CurrentPageStack::minimumSizeHint() const
{
    return currentWidget() ? currentWidget()->minimumSizeHint() : QSize();
}
