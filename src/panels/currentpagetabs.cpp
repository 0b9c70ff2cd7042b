#include "panels/currentpagetabs.h"

#include <QTabBar>

#include <algorithm>

namespace {

// The pane's frame around the page, top and bottom.
constexpr int kFrame = 4;

} // namespace

CurrentPageTabs::CurrentPageTabs(QWidget *parent) : QTabWidget(parent)
{
    connect(this, &QTabWidget::currentChanged, this, [this] { updateGeometry(); });
}

QSize CurrentPageTabs::withTabBar(QSize page) const
{
    const QSize bar = tabBar()->sizeHint();
    return QSize(std::max(page.width(), bar.width()) + kFrame, page.height() + bar.height() + kFrame);
}

QSize CurrentPageTabs::sizeHint() const
{
    return withTabBar(currentWidget() ? currentWidget()->sizeHint() : QSize());
}

QSize CurrentPageTabs::minimumSizeHint() const
{
    return withTabBar(currentWidget() ? currentWidget()->minimumSizeHint() : QSize());
}
