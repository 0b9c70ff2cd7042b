#pragma once

#include "monitor/view2dcamera.h"
#include "patch/patchdata.h"
#include "patch/pixellayout.h"

#include <QGraphicsView>
#include <QImage>
#include <QRgb>

class LedCanvasItem;
class QGraphicsScene;

// The 2D monitor: a graphics view whose scene holds one LedCanvasItem. Zoom
// (wheel, about the cursor), pan (left or middle button), hover with a
// rich-text tooltip and Fit to view; the maths lives in View2DCamera and
// PixelScene2D, this class forwards events to them. GUI thread only.
class LedMonitorView : public QGraphicsView
{
    Q_OBJECT
public:
    explicit LedMonitorView(QWidget *parent = nullptr);

    // Rebuilds after a patch load. The patch and layout are not owned; they
    // must stay alive until the next call (the main window keeps both).
    void setPatch(const TPatch::PatchData *patch, const TPatch::PixelLayout *layout);
    // Points the canvas at the colour buffer's list (not owned) and repaints.
    void setColours(const QVector<QRgb> *colours);
    // Repaints the canvas after the colour list changed in place.
    void refresh();

    // The group filter's inputs.
    void setAllVisible(bool visible);
    void setGroupVisible(int group, bool visible);
    void setTorvoverseVisible(int group, int torvoverse, bool visible);
    void setVisibleZ(int z);
    void setHighlight(int group, int torvoverse);

    void fitToView();
    // The current picture as an image of the viewport's size.
    QImage snapshot();

    const View2DCamera &camera() const { return m_camera; }
    LedCanvasItem *canvas() const { return m_canvas; }
    int hoveredPixel() const { return m_hovered; }
    // The tooltip of a pixel (rich text), empty for an unknown one.
    QString pixelToolTip(int pixelNumber) const;

signals:
    void cellHovered(int pixelNumber);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void applyCamera();
    void setHovered(int pixelNumber);

    QGraphicsScene *m_scene = nullptr;
    LedCanvasItem *m_canvas = nullptr;
    View2DCamera m_camera;
    const TPatch::PatchData *m_patch = nullptr;
    const TPatch::PixelLayout *m_layout = nullptr;
    bool m_panning = false;
    QPoint m_lastPos;
    int m_hovered = -1;
    bool m_keepFitted = false; // refit on resize until the user zooms or pans
};
