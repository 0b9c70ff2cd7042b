#include "panels/gpsplaybackpanel.h"

#include "panels/gpsgrouprow.h"
#include "panels/playbacktransport.h"
#include "panels/statuslabel.h"
#include "recording/gpspatchexpectation.h"
#include "recording/gpssetmember.h"
#include "style/moxstyle.h"

#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

QVector<GpsPanelGroup> GpsPanelGroup::fromExpectation(const GpsPatchExpectation &expectation)
{
    QVector<GpsPanelGroup> groups;
    groups.reserve(expectation.groups.size());
    for (const GpsGroupExpectation &g : expectation.groups)
        groups.append({g.name, g.recordCount(), g.hasDrawablePixels});
    return groups;
}

GpsRowInfo GpsRowInfo::fromMember(const GpsSetMember &member)
{
    GpsRowInfo info;
    if (member.path.isEmpty())
        return info;
    info.fileName = member.fileName();
    if (!member.isReadable()) {
        info.state = Unusable;
        info.error = member.loadResult.error;
        return info;
    }
    info.state = Usable;
    info.frames = member.frameCount;
    info.universesPerFrame = member.recording->recordsPerFrame();
    info.bytesPerFrame = member.measuredFrameBytes;
    return info;
}

GpsPlaybackPanel::GpsPlaybackPanel(const MoxStyle &style, QWidget *parent) : QWidget(parent), m_style(&style)
{
    setObjectName(QStringLiteral("GpsPlaybackPanel"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    m_header = new QLabel(this);
    m_header->setObjectName(QStringLiteral("gpsHeader"));
    m_header->setWordWrap(true);
    layout->addWidget(m_header);
    m_emptyState = new QLabel(this);
    m_emptyState->setObjectName(QStringLiteral("gpsEmptyState"));
    m_emptyState->setWordWrap(true);
    MoxStyle::setLabelRole(m_emptyState, MoxStyle::Muted);
    layout->addWidget(m_emptyState);

    m_rowArea = new QScrollArea(this);
    m_rowArea->setObjectName(QStringLiteral("gpsRows"));
    m_rowArea->setWidgetResizable(true);
    m_rowArea->setFrameShape(QFrame::NoFrame);
    m_rowArea->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    m_rowArea->setMinimumHeight(72);
    m_rowArea->hide();
    layout->addWidget(m_rowArea, 2);

    auto *setButtons = new QHBoxLayout;
    setButtons->setSpacing(6);
    m_autoFill = new QPushButton(this);
    m_autoFill->setObjectName(QStringLiteral("autoFillButton"));
    m_loadSet = new QPushButton(this);
    m_loadSet->setObjectName(QStringLiteral("loadSetButton"));
    setButtons->addWidget(m_autoFill, 1);
    setButtons->addWidget(m_loadSet);
    layout->addLayout(setButtons);

    m_message = new StatusLabel(this);
    m_message->setObjectName(QStringLiteral("gpsMessage"));
    layout->addWidget(m_message);
    m_setInformation = new QLabel(this);
    m_setInformation->setObjectName(QStringLiteral("gpsSetInformation"));
    m_setInformation->setWordWrap(true);
    layout->addWidget(m_setInformation);
    m_reportTitle = new QLabel(this);
    layout->addWidget(m_reportTitle);
    m_report = new QTextBrowser(this);
    m_report->setObjectName(QStringLiteral("gpsReport"));
    m_report->setMinimumHeight(72);
    layout->addWidget(m_report, 1);

    m_transport = new PlaybackTransport(this);
    m_transport->setLoop(true);
    layout->addWidget(m_transport);

    connect(m_autoFill, &QPushButton::clicked, this, &GpsPlaybackPanel::onAutoFill);
    connect(m_loadSet, &QPushButton::clicked, this, &GpsPlaybackPanel::loadAllRequested);
    connect(m_transport, &PlaybackTransport::playPauseRequested, this, &GpsPlaybackPanel::playPauseRequested);
    connect(m_transport, &PlaybackTransport::stopRequested, this, &GpsPlaybackPanel::stopRequested);
    connect(m_transport, &PlaybackTransport::seekRequested, this, &GpsPlaybackPanel::seekRequested);
    connect(m_transport, &PlaybackTransport::fpsChanged, this, &GpsPlaybackPanel::fpsChanged);
    connect(m_transport, &PlaybackTransport::loopChanged, this, &GpsPlaybackPanel::loopChanged);
    connect(m_transport, &PlaybackTransport::frameShown, this, &GpsPlaybackPanel::showFrameLine);
    connect(m_style, &MoxStyle::themeChanged, this, &GpsPlaybackPanel::retranslateUi);
    retranslateUi();
}

GpsPlaybackPanel::~GpsPlaybackPanel() = default;

QSize GpsPlaybackPanel::sizeHint() const
{
    // Room for about two more group rows than the minimum shows.
    constexpr int kExtraHeight = 120;
    const QSize natural = QWidget::sizeHint();
    return QSize(natural.width(), std::min(natural.height(), minimumSizeHint().height() + kExtraHeight));
}

void GpsPlaybackPanel::retranslateUi()
{
    m_header->setText(tr("One recording per group, all driven from one clock."));
    m_header->setToolTip(
        tr("MOX writes a GPS-Sync recording as one file per group, named <name>_<Group>.tpx.\n"
           "In the field each device plays its own group's file while the GPS pulse keeps them all on the same "
           "frame index.\nThis tab does the same: one clock drives frame n of every file at the same instant."));
    m_emptyState->setText(tr("Load a patch first - the group list comes from it."));
    m_autoFill->setText(tr("Auto-fill from folder..."));
    m_autoFill->setToolTip(tr("Pick the folder the recording was saved into.\n\nMOX names GPS-Sync files "
                              "<name>_<Group>.tpx, so every group can be matched by name. When a folder holds "
                              "several sessions, the one that covers the most groups is chosen."));
    m_loadSet->setText(tr("Load set"));
    m_loadSet->setToolTip(tr("Open every file, verify structure and sync, then arm playback."));
    m_reportTitle->setText(tr("Structure & sync report"));
    m_report->setAccessibleName(tr("Structure & sync report"));
    m_transport->setTexts(tr("Stop and return every file to its first frame"),
                          tr("All files are presented at exactly this rate.\nThe timestamp stored in the files is "
                             "used to verify sync, not to pace playback."),
                          tr("Loop the whole set (1 -> end -> 1)"),
                          tr("Play the set end to end, over and over.\nEvery file wraps on the same frame, so a set "
                             "that drifts shows it within a few passes."));
    for (GpsGroupRow *row : std::as_const(m_rows))
        row->retranslateUi();
    showSetInformation();
    showReport();
    showFrameLine();
}

void GpsPlaybackPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void GpsPlaybackPanel::setGroups(const QVector<GpsPanelGroup> &groups)
{
    // One new container for all rows: the old rows go with the old container,
    // and the scroll area lays the new one out once.
    auto *container = new QWidget;
    auto *rows = new QVBoxLayout(container);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    m_rows.clear();
    m_rows.reserve(groups.size());
    for (const GpsPanelGroup &group : groups) {
        auto *row = new GpsGroupRow(*m_style, group, container);
        connect(row, &GpsGroupRow::pathEdited, this, &GpsPlaybackPanel::pathsChanged);
        rows->addWidget(row);
        m_rows.append(row);
    }
    rows->addStretch(1);
    m_rowArea->setWidget(container); // deletes the previous container and its rows
    m_rowArea->setVisible(!groups.isEmpty());
    m_emptyState->setVisible(groups.isEmpty());
}

void GpsPlaybackPanel::setPaths(const QStringList &paths)
{
    bool changed = false;
    for (int i = 0; i < m_rows.size(); ++i) {
        changed = changed || m_rows[i]->path() != paths.value(i);
        m_rows[i]->setPath(paths.value(i));
    }
    if (changed)
        emit pathsChanged(); // once for the whole list
}

QStringList GpsPlaybackPanel::paths() const
{
    QStringList out;
    out.reserve(m_rows.size());
    for (const GpsGroupRow *row : m_rows)
        out << row->path().trimmed();
    return out;
}

void GpsPlaybackPanel::setRowInfo(int group, const GpsRowInfo &info)
{
    if (GpsGroupRow *row = m_rows.value(group))
        row->setInfo(info);
}

void GpsPlaybackPanel::clearRowInfo()
{
    for (GpsGroupRow *row : std::as_const(m_rows))
        row->setInfo(GpsRowInfo());
}

void GpsPlaybackPanel::setReport(const GpsVerification &verification)
{
    m_verification = verification;
    m_hasReport = true;
    showReport();
}

void GpsPlaybackPanel::clearReport()
{
    m_verification = GpsVerification();
    m_hasReport = false;
    showReport();
}

void GpsPlaybackPanel::showReport()
{
    if (!m_hasReport) {
        m_report->clear();
        return;
    }
    const auto verdictColour = [this](GpsCheck::Verdict v) {
        return m_style->roleColour(v == GpsCheck::Fail   ? MoxStyle::ErrorRole
                                   : v == GpsCheck::Warn ? MoxStyle::WarningRole
                                                         : MoxStyle::Success);
    };
    const QColor muted = m_style->roleColour(MoxStyle::Muted);
    QString html;
    for (const GpsCheck &check : std::as_const(m_verification.checks)) {
        html += QStringLiteral("<p style='margin:0 0 4px 0;'><b style='color:%1;'><tt>%2</tt></b>&nbsp;&nbsp;%3")
                    .arg(verdictColour(check.verdict).name(), GpsCheck::verdictWord(check.verdict),
                         check.titleText().toHtmlEscaped());
        const QString detail = check.detailText();
        if (!detail.isEmpty()) {
            html += QStringLiteral("<br><span style='color:%1;'>%2</span>")
                        .arg(muted.name(), detail.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")));
        }
        html += QStringLiteral("</p>");
    }
    const QString summary = m_verification.summary.text();
    if (!summary.isEmpty())
        html += QStringLiteral("<p><b style='color:%1;'>%2</b></p>")
                    .arg(verdictColour(m_verification.worst()).name(), summary.toHtmlEscaped());
    m_report->setHtml(html);
}

void GpsPlaybackPanel::setSetInformation(bool loaded, qint64 frameCount, int groupCount)
{
    m_setLoaded = loaded;
    m_setFrames = loaded ? frameCount : 0;
    m_setGroups = loaded ? groupCount : 0;
    m_timestampDifference = 0;
    m_transport->setFrameCount(m_setFrames);
    showSetInformation();
    m_transport->setFrame(0);
}

void GpsPlaybackPanel::showSetInformation()
{
    m_setInformation->setText(m_setLoaded ? tr("Set loaded: %1 recording(s), %2 frames each.")
                                                .arg(m_setGroups)
                                                .arg(m_setFrames)
                                          : tr("No set loaded."));
}

void GpsPlaybackPanel::setFrame(qint64 frame, int timestampDifferenceSeconds)
{
    m_timestampDifference = timestampDifferenceSeconds;
    m_transport->setFrame(frame);
}

void GpsPlaybackPanel::showFrameLine()
{
    QLabel *label = m_transport->frameLabel();
    if (!m_setLoaded) {
        label->setText(tr("Frame %1 / %2").arg(0).arg(0));
        MoxStyle::setLabelRole(label, MoxStyle::Normal);
        return;
    }
    const QString separator = QStringLiteral("  -  ");
    const bool inStep = m_timestampDifference == 0;
    label->setText(tr("Frame %1 / %2").arg(m_transport->frame()).arg(m_setFrames) + separator
                   + tr("%1 file(s) driven together").arg(m_setGroups) + separator
                   + (inStep ? tr("timestamps in step") : tr("timestamps %1 s apart").arg(m_timestampDifference)));
    MoxStyle::setLabelRole(label, inStep ? MoxStyle::Normal : MoxStyle::ErrorRole);
}

int GpsPlaybackPanel::fps() const
{
    return m_transport->fps();
}

void GpsPlaybackPanel::setFps(int fps)
{
    m_transport->setFps(fps);
}

bool GpsPlaybackPanel::loop() const
{
    return m_transport->loop();
}

void GpsPlaybackPanel::setLoop(bool loop)
{
    m_transport->setLoop(loop);
}

void GpsPlaybackPanel::setPlaying(bool playing)
{
    m_transport->setPlaying(playing);
}

bool GpsPlaybackPanel::isPlaying() const
{
    return m_transport->isPlaying();
}

void GpsPlaybackPanel::setMessage(std::function<QString()> producer, int level)
{
    m_message->showMessage(std::move(producer), level);
}

void GpsPlaybackPanel::setPerformance(double measuredFps, qint64 droppedFrames, double msPerFrame)
{
    m_transport->setPerformance(measuredFps, droppedFrames, msPerFrame);
}

void GpsPlaybackPanel::onAutoFill()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder holding the GPS-Sync recordings"), QString());
    if (!folder.isEmpty())
        emit autoFillRequested(folder);
}
