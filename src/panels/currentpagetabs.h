#pragma once

#include <QTabWidget>

// A tab widget as tall as its current page. QTabWidget asks for the tallest
// of all its pages, so a short page would stand in the height of a tall
// hidden one, and the left column's side tabs below would lose it.
// GUI thread only.
class CurrentPageTabs : public QTabWidget
{
    Q_OBJECT
public:
    explicit CurrentPageTabs(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // No height-for-width: the layout above would cache the tallest page's
    // answer across page changes. The pages' size hints are enough.
    bool hasHeightForWidth() const override { return false; }

private:
    QSize withTabBar(QSize page) const;
};
