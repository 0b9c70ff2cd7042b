#pragma once

#include <QStackedWidget>

// A stacked widget as tall as its current page, for the same reason as
// CurrentPageTabs: the live page is tall, the playback page short.
// GUI thread only.
class CurrentPageStack : public QStackedWidget
{
    Q_OBJECT
public:
    explicit CurrentPageStack(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // No height-for-width: the layout above would cache the tallest page's
    // answer across page changes. The pages' size hints are enough.
    bool hasHeightForWidth() const override { return false; }
};
