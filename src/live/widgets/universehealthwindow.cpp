#include "live/widgets/universehealthwindow.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

UniverseHealthWindow::UniverseHealthWindow(QWidget *parent) : QWidget(parent, Qt::Window)
{
    setObjectName(QStringLiteral("UniverseHealthWindow"));
    resize(1180, 560);
    m_source = new QLabel(this);
    m_source->setObjectName(QStringLiteral("healthSource"));
    m_sync = new QLabel(this);
    m_sync->setObjectName(QStringLiteral("healthSync"));
    m_resetButton = new QPushButton(this);
    m_resetButton->setObjectName(QStringLiteral("healthReset"));
    m_exportButton = new QPushButton(this);
    m_exportButton->setObjectName(QStringLiteral("healthExport"));
    m_model = new UniverseHealthModel(this);
    m_table = new QTreeView(this);
    m_table->setObjectName(QStringLiteral("healthTable"));
    m_table->setModel(m_model);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(UniverseHealthModel::UniverseColumn, Qt::AscendingOrder);
    // Columns fit their contents when the rows change, not at every refresh:
    // measuring thousands of rows twice a second would stall the live node.
    m_table->header()->setSectionResizeMode(QHeaderView::Interactive);
    m_summary = new QLabel(this);
    m_summary->setObjectName(QStringLiteral("healthSummary"));
    m_summary->setWordWrap(true);

    auto *top = new QHBoxLayout;
    top->addWidget(m_source, 1);
    top->addWidget(m_sync);
    top->addWidget(m_resetButton);
    top->addWidget(m_exportButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_summary);

    // The senders a user opened stay open when a new universe or sender resets the model.
    connect(m_table, &QTreeView::expanded, this,
            [this](const QModelIndex &i) { m_expanded.insert(m_model->universeAt(i.row()).portAddress); });
    connect(m_table, &QTreeView::collapsed, this,
            [this](const QModelIndex &i) { m_expanded.remove(m_model->universeAt(i.row()).portAddress); });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        m_table->header()->resizeSections(QHeaderView::ResizeToContents);
        for (int row = 0; row < m_model->rowCount(); ++row)
            if (m_expanded.contains(m_model->universeAt(row).portAddress))
                m_table->expand(m_model->index(row, 0));
    });
    connect(m_resetButton, &QPushButton::clicked, this, &UniverseHealthWindow::resetRequested);
    connect(m_exportButton, &QPushButton::clicked, this, &UniverseHealthWindow::exportRequested);
    retranslateUi();
}

void UniverseHealthWindow::showHealth(const QVector<Health::UniverseHealth> &universes,
                                      const Health::SyncHealth &sync, const QString &source, bool resettable)
{
    m_universes = universes;
    m_syncHealth = sync;
    m_source->setText(source);
    m_resetButton->setEnabled(resettable);
    m_model->setUniverses(universes, m_expanded);
    showSummary();
}

void UniverseHealthWindow::showSummary()
{
    if (m_syncHealth.seen)
        m_sync->setText(tr("ArtSync: %1 per second, %n packet(s)", nullptr, int(m_syncHealth.packets))
                            .arg(m_syncHealth.fps, 0, 'f', 1));
    else
        m_sync->setText(tr("No ArtSync seen."));
    if (m_universes.isEmpty()) {
        m_summary->setText(tr("No universe yet: nothing received and no patch loaded."));
        return;
    }
    int counts[Health::kStateCount] = {};
    for (const Health::UniverseHealth &u : m_universes)
        ++counts[int(Health::stateOf(u.state))];
    QStringList parts;
    // Worst first, as a lighting engineer reads them.
    for (const char *word : {"never", "stale", "conflict", "unstable", "ok"}) {
        const int n = counts[int(Health::stateOf(QLatin1String(word)))];
        if (n > 0)
            parts << tr("%1 %2", "a count, then a state").arg(n).arg(Health::stateDisplayName(QLatin1String(word)));
    }
    m_summary->setText(tr("%n universe(s): %1", nullptr, int(m_universes.size())).arg(parts.join(QStringLiteral(" · "))));
}

void UniverseHealthWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void UniverseHealthWindow::retranslateUi()
{
    setWindowTitle(tr("Universe Health"));
    m_resetButton->setText(tr("Reset"));
    m_resetButton->setToolTip(tr("Start every counter again from zero."));
    m_exportButton->setText(tr("Export CSV..."));
    m_exportButton->setAccessibleName(tr("Export the health table as CSV"));
    m_table->setAccessibleName(tr("Universe health"));
    m_model->retranslate();
    showSummary();
}
