#pragma once

#include "live/universehealthmodel.h"

#include <QSet>
#include <QWidget>

class QLabel;
class QPushButton;
class QTreeView;

// "Universe health": the health table of the live node or of the loaded
// recording or capture, with what it follows, ArtSync, a count per state, a
// reset and CSV export. Thin: it shows what it is given and asks; MainWindow
// runs the analysis. GUI thread only.
class UniverseHealthWindow : public QWidget
{
    Q_OBJECT
public:
    explicit UniverseHealthWindow(QWidget *parent = nullptr);

    // source: what the figures come from, as the user reads it; resettable: whether a reset applies (live).
    void showHealth(const QVector<Health::UniverseHealth> &universes, const Health::SyncHealth &sync,
                    const QString &source, bool resettable);
    void setStatePalette(const Health::StatePalette &palette) { m_model->setPalette(palette); }
    UniverseHealthModel *model() const { return m_model; }
    QTreeView *table() const { return m_table; }

signals:
    void resetRequested();
    void exportRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();
    void showSummary();

    QLabel *m_source = nullptr;
    QLabel *m_sync = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_resetButton = nullptr;
    QPushButton *m_exportButton = nullptr;
    QTreeView *m_table = nullptr;
    UniverseHealthModel *m_model = nullptr;
    QSet<quint16> m_expanded; // kept across a reset of the model
    QVector<Health::UniverseHealth> m_universes;
    Health::SyncHealth m_syncHealth;
};
