#include "packetlog/widgets/packetlogwindow.h"

#include "packetlog/artnetfields.h"
#include "packetlog/packetjournal.h"
#include "packetlog/widgets/filterbar.h"
#include "packetlog/widgets/packetlistmodel.h"
#include "style/moxstyle.h"

#include <QComboBox>
#include <QEvent>
#include <QHideEvent>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QTextBlock>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int kHexBytesPerLine = 16;

// The hex dump: "0000  41 72 74 2d ...  Art-..." lines of 16 bytes.
QString hexDump(QByteArrayView bytes)
{
    QString text;
    for (qsizetype line = 0; line < bytes.size(); line += kHexBytesPerLine) {
        QString hex, ascii;
        for (int i = 0; i < kHexBytesPerLine; ++i) {
            if (line + i < bytes.size()) {
                const auto b = quint8(bytes[line + i]);
                hex += QStringLiteral("%1 ").arg(b, 2, 16, QLatin1Char('0'));
                ascii += b >= 0x20 && b < 0x7F ? QChar(b) : QLatin1Char('.');
            } else {
                hex += QStringLiteral("   ");
            }
        }
        text += QStringLiteral("%1  %2 %3\n").arg(line, 4, 16, QLatin1Char('0')).arg(hex, ascii);
    }
    return text;
}

// Where byte `offset` of the dump sits in its text: "0000  " then three
// characters a byte, then the text column and the line break.
int hexPosition(int offset)
{
    const int lineLength = 6 + 3 * kHexBytesPerLine + 1 + kHexBytesPerLine + 1;
    return (offset / kHexBytesPerLine) * lineLength + 6 + 3 * (offset % kHexBytesPerLine);
}

} // namespace

PacketLogWindow::PacketLogWindow(const MoxStyle &style, QWidget *parent)
    : QWidget(parent, Qt::Window), m_style(style)
{
    setObjectName(QStringLiteral("PacketLogWindow"));
    resize(1100, 700);
    m_model = new PacketListModel(this);
    m_filterBar = new FilterBar(style, this);
    m_pauseButton = new QPushButton(this);
    m_pauseButton->setCheckable(true);
    m_clearButton = new QPushButton(this);
    m_view = new QTableView(this);
    m_view->setObjectName(QStringLiteral("packetList"));
    m_view->setModel(m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(m_view->fontMetrics().height() + 4);
    // One height for every row: the header then keeps no per-row sizes, and a
    // batch of thousands of rows costs it nothing to take in.
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->setWordWrap(false);
    // Widths from the widest text each column shows, so nothing is cut short
    // (sizing to the contents would read every row).
    const QFontMetrics metrics = m_view->fontMetrics();
    const std::pair<int, const char *> samples[] = {
        {PacketListModel::NumberColumn, "00000000"},
        {PacketListModel::TimeColumn, "2026-12-31 23:59:59.999999 "},
        {PacketListModel::DirectionColumn, "out  "},
        {PacketListModel::SourceColumn, "255.255.255.255:65535 "},
        {PacketListModel::DestinationColumn, "255.255.255.255:65535 "},
        {PacketListModel::LengthColumn, "Length  "},
        {PacketListModel::OpCodeColumn, "ArtPollReply  "},
        {PacketListModel::UniverseColumn, "Universe  "},
        {PacketListModel::SequenceColumn, "Seq  "},
        {PacketListModel::OutcomeColumn, "not sent  "},
    };
    for (const auto &[column, sample] : samples)
        m_view->horizontalHeader()->resizeSection(column,
                                                  metrics.horizontalAdvance(QLatin1String(sample)) + 12);
    m_fields = new QTreeWidget(this);
    m_fields->setObjectName(QStringLiteral("packetFields"));
    m_fields->setColumnCount(2);
    m_fields->setRootIsDecorated(false);
    m_hex = new QPlainTextEdit(this);
    m_hex->setObjectName(QStringLiteral("packetHex"));
    m_hex->setReadOnly(true);
    m_hex->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_hex->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("packetLogStatus"));
    m_loadProgress = new QProgressBar(this);
    m_loadProgress->setRange(0, 1000);
    m_loadProgress->hide();
    m_cancelLoadButton = new QPushButton(this);
    m_cancelLoadButton->hide();

    m_captureBar = new QWidget(this);
    m_adapterLabel = new QLabel(m_captureBar);
    m_adapterBox = new QComboBox(m_captureBar);
    m_adapterBox->setObjectName(QStringLiteral("captureAdapter"));
    m_adapterBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_adapterLabel->setBuddy(m_adapterBox);
    m_captureButton = new QPushButton(m_captureBar);
    m_captureButton->setObjectName(QStringLiteral("captureButton"));
    m_captureStatus = new QLabel(m_captureBar);
    m_captureStatus->setObjectName(QStringLiteral("captureStatus"));
    auto *captureRow = new QHBoxLayout(m_captureBar);
    captureRow->setContentsMargins(0, 0, 0, 0);
    captureRow->addWidget(m_adapterLabel);
    captureRow->addWidget(m_adapterBox);
    captureRow->addWidget(m_captureButton);
    captureRow->addWidget(m_captureStatus, 1);
    m_captureBar->hide();

    auto *top = new QHBoxLayout;
    top->addWidget(m_filterBar, 1);
    top->addWidget(m_pauseButton);
    top->addWidget(m_clearButton);
    auto *detail = new QSplitter(Qt::Horizontal);
    detail->addWidget(m_fields);
    detail->addWidget(m_hex);
    auto *split = new QSplitter(Qt::Vertical);
    split->addWidget(m_view);
    split->addWidget(detail);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 1);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(m_loadProgress);
    bottom->addWidget(m_cancelLoadButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_captureBar);
    layout->addWidget(split, 1);
    layout->addLayout(bottom);

    connect(m_filterBar, &FilterBar::filterApplied, this, [this](auto filter, const QString &) {
        m_model->setFilter(std::move(filter));
        updateStatus();
    });
    connect(m_pauseButton, &QPushButton::toggled, this, [this](bool paused) {
        if (!paused)
            poll();
        retranslateUi();
    });
    connect(m_clearButton, &QPushButton::clicked, this, [this] {
        m_model->setRecords({});
        m_dropped = 0;
        m_fields->clear();
        m_hex->clear();
        updateStatus();
    });
    connect(m_captureButton, &QPushButton::clicked, this, [this] {
        if (m_capturing)
            emit captureStopRequested();
        else if (m_adapterBox->currentIndex() >= 0)
            emit captureRequested(selectedAdapter());
    });
    connect(m_cancelLoadButton, &QPushButton::clicked, this, &PacketLogWindow::loadCancelRequested);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &PacketLogWindow::showSelected);
    connect(m_fields, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        // Mark the selected field's bytes in the dump.
        QList<QTextEdit::ExtraSelection> marks;
        if (item) {
            const int offset = item->data(0, Qt::UserRole).toInt();
            const int length = item->data(0, Qt::UserRole + 1).toInt();
            const QString dump = m_hex->toPlainText();
            for (int i = 0; i < length; ++i) {
                QTextEdit::ExtraSelection mark;
                mark.cursor = QTextCursor(m_hex->document());
                const int at = hexPosition(offset + i);
                if (at + 2 > dump.size())
                    break;
                mark.cursor.setPosition(at);
                mark.cursor.setPosition(at + 2, QTextCursor::KeepAnchor);
                mark.format.setBackground(m_style.colour(QStringLiteral("highlight")));
                mark.format.setForeground(m_style.colour(QStringLiteral("highlightedText")));
                marks << mark;
            }
        }
        m_hex->setExtraSelections(marks);
    });
    connect(&m_style, &MoxStyle::themeChanged, this, &PacketLogWindow::applyTheme);
    m_pollTimer.setInterval(kPollMs);
    connect(&m_pollTimer, &QTimer::timeout, this, &PacketLogWindow::poll);
    applyTheme();
    retranslateUi();
}

PacketLogWindow::~PacketLogWindow() = default;

void PacketLogWindow::setJournal(PacketLog::PacketJournal *journal)
{
    m_journal = journal;
    m_fileName.clear();
    m_captureBar->setVisible(journal != nullptr);
    m_model->setRecordLimit(PacketListModel::kMaxRecords);
    m_seenAppended = journal ? journal->counters().appended : 0;
    // What the journal holds already (the node may have run for a while) comes first.
    m_model->setRecords(journal ? journal->records() : std::vector<PacketLog::PacketRecord>());
    if (journal)
        m_pollTimer.start();
    else
        m_pollTimer.stop();
    retranslateUi();
}

void PacketLogWindow::showFile(const QString &path, std::vector<PacketLog::PacketRecord> records,
                               const QStringList &warnings)
{
    m_journal = nullptr;
    m_pollTimer.stop();
    m_fileName = QFileInfo(path).fileName();
    m_warnings = warnings;
    m_dropped = 0;
    m_captureBar->hide();
    m_model->setRecordLimit(0);
    m_model->setRecords(std::move(records));
    retranslateUi();
}

void PacketLogWindow::beginFile(const QString &path)
{
    showFile(path, {}, {});
    m_loadProgress->setValue(0);
    m_loadProgress->show();
    m_cancelLoadButton->show();
    m_cancelLoadButton->setEnabled(true);
    updateStatus();
}

void PacketLogWindow::addFileRecords(const std::vector<PacketLog::PacketRecord> &records, qint64 bytesRead,
                                     qint64 bytesTotal)
{
    m_model->appendRecords(records);
    m_loadProgress->setValue(bytesTotal > 0 ? int(bytesRead * 1000 / bytesTotal) : 0);
    updateStatus();
}

void PacketLogWindow::endFile(const QStringList &warnings, bool cancelled)
{
    m_warnings = warnings;
    if (cancelled)
        m_warnings.prepend(tr("Reading stopped; the records read until then are shown."));
    m_loadProgress->hide();
    m_cancelLoadButton->hide();
    updateStatus();
}

bool PacketLogWindow::isLoading() const
{
    return !m_loadProgress->isHidden();
}

void PacketLogWindow::setCaptureAdapters(const QVector<PacketLog::CaptureAdapter> &adapters,
                                         const QString &unavailable)
{
    const QString current = selectedAdapter();
    m_adapterBox->clear();
    for (const PacketLog::CaptureAdapter &a : adapters) {
        const QString addresses = a.addresses.join(QStringLiteral(", "));
        m_adapterBox->addItem(addresses.isEmpty() ? a.name : QStringLiteral("%1 (%2)").arg(a.name, addresses),
                              a.name);
        m_adapterBox->setItemData(m_adapterBox->count() - 1, a.description, Qt::ToolTipRole);
    }
    if (const int i = m_adapterBox->findData(current); i >= 0)
        m_adapterBox->setCurrentIndex(i);
    m_captureUnavailable = unavailable;
    retranslateUi();
}

void PacketLogWindow::setCaptureSession(PacketLog::CaptureSession *session)
{
    m_capture = session;
}

void PacketLogWindow::setCaptureState(bool capturing, const QString &text)
{
    m_capturing = capturing;
    m_captureStatus->setText(text);
    retranslateUi();
}

QString PacketLogWindow::selectedAdapter() const
{
    return m_adapterBox->currentData().toString();
}

void PacketLogWindow::poll()
{
    const bool taking = !m_pauseButton->isChecked() && isVisible();
    std::vector<PacketLog::PacketRecord> batch;
    if (m_capture) {
        // The capture does not wait: what arrives while paused or closed is counted as dropped.
        batch = m_capture->takeRecords();
        if (!taking) {
            m_dropped += qint64(batch.size());
            batch.clear();
        }
    }
    // Hidden (closed) or paused: the journal keeps its ring; what it overwrites
    // meanwhile is counted as dropped at the next look.
    const qint64 appended = m_journal && taking ? m_journal->counters().appended : m_seenAppended;
    if (const qint64 fresh = appended - m_seenAppended; fresh > 0) {
        m_seenAppended = appended;
        // The ring holds the newest records; what it overwrote before we looked is lost to the list.
        const int size = m_journal->size();
        const qint64 available = std::min<qint64>(fresh, size);
        m_dropped += fresh - available;
        const bool both = !batch.empty();
        batch.reserve(batch.size() + size_t(available));
        for (int i = size - int(available); i < size; ++i)
            batch.push_back(m_journal->at(i));
        // The node's records and the adapter's, in the order they happened.
        if (both)
            std::stable_sort(batch.begin(), batch.end(),
                             [](const auto &a, const auto &b) { return a.timeNs < b.timeNs; });
    }
    if (!batch.empty())
        appendBatch(batch);
}

void PacketLogWindow::appendBatch(const std::vector<PacketLog::PacketRecord> &batch)
{
    QScrollBar *bar = m_view->verticalScrollBar();
    const bool following = bar->value() >= bar->maximum();
    m_model->appendRecords(batch);
    if (following)
        m_view->scrollToBottom();
    updateStatus();
}

void PacketLogWindow::showSelected()
{
    m_fields->clear();
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid()) {
        m_hex->clear();
        return;
    }
    const PacketLog::PacketRecord &record = m_model->recordAt(current.row());
    const QByteArrayView bytes = record.headBytes();
    m_hex->setPlainText(hexDump(bytes));
    for (const PacketLog::DecodedField &field : PacketLog::decodeArtNetFields(bytes)) {
        auto *item = new QTreeWidgetItem(m_fields, {field.name, field.value});
        item->setData(0, Qt::UserRole, field.offset);
        item->setData(0, Qt::UserRole + 1, field.length);
    }
    m_fields->resizeColumnToContents(0);
}

void PacketLogWindow::hideEvent(QHideEvent *event)
{
    // Nobody watches a capture in a closed window (minimising is not closing).
    if (m_capturing && !event->spontaneous())
        emit captureStopRequested();
    QWidget::hideEvent(event);
}

QString PacketLogWindow::statusText() const
{
    return tr("%1 records · %2 shown · %3 dropped")
        .arg(m_model->recordCount())
        .arg(m_model->rowCount())
        .arg(m_dropped + m_model->trimmedCount());
}

void PacketLogWindow::updateStatus()
{
    QString text = statusText();
    if (!m_warnings.isEmpty())
        text += QStringLiteral(" · ") + m_warnings.join(QStringLiteral(" · "));
    m_status->setText(text);
}

void PacketLogWindow::applyTheme()
{
    m_model->setMarkColours(m_style.roleColour(MoxStyle::ErrorRole),
                            m_style.roleColour(MoxStyle::WarningRole), m_style.roleColour(MoxStyle::Accent));
}

void PacketLogWindow::retranslateUi()
{
    setWindowTitle(m_fileName.isEmpty() ? tr("Network Log")
                                        : tr("Network Log - %1 (read-only)").arg(m_fileName));
    m_pauseButton->setText(m_pauseButton->isChecked() ? tr("Resume") : tr("Pause"));
    m_pauseButton->setToolTip(tr("Stop adding new packets to the list; the node goes on receiving."));
    m_pauseButton->setEnabled(m_journal != nullptr);
    m_clearButton->setText(tr("Clear"));
    m_clearButton->setEnabled(m_journal != nullptr);
    m_view->setAccessibleName(tr("Packets"));
    m_fields->setHeaderLabels({tr("Field"), tr("Value")});
    m_fields->setAccessibleName(tr("Packet fields"));
    m_hex->setAccessibleName(tr("Packet bytes"));
    m_adapterLabel->setText(tr("Capture on:"));
    m_adapterBox->setAccessibleName(tr("Capture adapter"));
    m_adapterBox->setToolTip(m_captureUnavailable.isEmpty()
                                 ? tr("The network adapter to capture Art-Net from, as a packet analyser does.")
                                 : m_captureUnavailable);
    m_adapterBox->setEnabled(!m_capturing && m_adapterBox->count() > 0);
    m_captureButton->setText(m_capturing ? tr("Stop Capture") : tr("Start Capture"));
    m_captureButton->setToolTip(
        tr("Capture every Art-Net packet on the adapter, also those not meant for this node."));
    m_captureButton->setEnabled(m_capturing || m_adapterBox->count() > 0);
    if (!m_capturing && m_captureStatus->text().isEmpty() && !m_captureUnavailable.isEmpty())
        m_captureStatus->setText(m_captureUnavailable);
    m_captureStatus->setAccessibleName(tr("Capture state"));
    m_loadProgress->setAccessibleName(tr("Reading the file"));
    m_cancelLoadButton->setText(tr("Cancel"));
    m_cancelLoadButton->setToolTip(tr("Stop reading the file and keep the records read so far."));
    updateStatus();
}

void PacketLogWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        emit activated();
    QWidget::changeEvent(event);
}
