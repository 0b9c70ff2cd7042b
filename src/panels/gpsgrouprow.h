#pragma once

#include "panels/gpsplaybackpanel.h"

#include <QWidget>

class MoxStyle;
class QLabel;
class QLineEdit;
class QToolButton;

// One group's row of the GPS playback panel: caption with what the patch
// expects, a verdict dot, the path field with its "..." button and the file's
// information line. GUI thread only.
class GpsGroupRow : public QWidget
{
    Q_OBJECT
public:
    GpsGroupRow(const MoxStyle &style, const GpsPanelGroup &group, QWidget *parent = nullptr);

    QString path() const;
    void setPath(const QString &path); // emits nothing
    void setInfo(const GpsRowInfo &info);
    const GpsRowInfo &info() const { return m_info; }
    QLabel *captionLabel() const { return m_caption; }
    QLabel *dotLabel() const { return m_dot; }
    QLabel *infoLabel() const { return m_infoLabel; }
    QLineEdit *pathEdit() const { return m_path; }
    QToolButton *browseButton() const { return m_browse; }
    void retranslateUi();

signals:
    void pathEdited();

public slots:
    void onBrowse();

private:
    const MoxStyle *m_style = nullptr;
    GpsPanelGroup m_group;
    GpsRowInfo m_info;
    QLabel *m_dot = nullptr;
    QLabel *m_caption = nullptr;
    QLineEdit *m_path = nullptr;
    QToolButton *m_browse = nullptr;
    QLabel *m_infoLabel = nullptr;
};
