#include "panels/patchsummarypanel.h"

#include "patch/patchkeys.h"
#include "style/moxstyle.h"

#include <QEvent>
#include <QLabel>
#include <QStringList>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <climits>

namespace {

// DMX has 512 slots per universe whatever the patch's own limit says.
constexpr int kDmxSlots = 512;

bool isWhite(quint8 role)
{
    return role == TPatch::RoleWhite || role == TPatch::RoleCoolWhite || role == TPatch::RoleWarmWhite;
}

// The zero-based channel of a pixel's last used slot; -1 when it uses none.
int lastUsedSlot(const TPatch::LedRecord &led)
{
    for (int i = TPatch::kSlotCount - 1; i >= 0; --i) {
        if (led.roles[size_t(i)] != TPatch::RoleNone)
            return i;
    }
    return -1;
}

} // namespace

PatchSummaryPanel::Summary PatchSummaryPanel::summarise(const TPatch::PatchData &patch,
                                                        const TPatch::PixelLayout &layout,
                                                        const QVector<TPatch::PatchMessage> &warnings)
{
    Summary s;
    s.projectName = patch.projectName;
    s.device = patch.device;
    s.selectedChLimit = patch.selectedChLimit;
    s.formatLabel = patch.formatLabel;
    s.importedFrom = patch.importedFrom;
    s.sourceKind = patch.sourceKind;
    s.counts = TPatch::countPatch(patch);
    s.drawablePixels = layout.drawablePixelCount();
    s.warnings = warnings;
    // White use is counted on the drawn pixels, as the colour evaluation sees them.
    for (const TPatch::LayoutPixel &px : layout.pixels) {
        if (px.isKinetic)
            continue;
        bool any = false;
        for (const quint8 role : px.roles) {
            s.whiteSlots += role == TPatch::RoleWhite;
            s.coolWhiteSlots += role == TPatch::RoleCoolWhite;
            s.warmWhiteSlots += role == TPatch::RoleWarmWhite;
            any = any || isWhite(role);
        }
        s.pixelsWithWhite += any;
    }
    for (const TPatch::PatchGroup &group : patch.groups) {
        for (const TPatch::Torvoverse &tv : group.torvoverses) {
            UniverseTableModel::Row row;
            row.portAddress = TPatch::portAddress(tv);
            row.net = tv.Net;
            row.subNet = tv.subNet;
            row.universe = tv.universe;
            row.targetIp = TPatch::targetIpText(tv);
            int first = INT_MAX;
            int last = -1;
            const auto use = [&](int from, int to) {
                first = std::min(first, from);
                last = std::max(last, to);
            };
            for (const TPatch::PatchFixture &fixture : tv.fixtures) {
                row.pixels += fixture.leds.size();
                for (const TPatch::LedRecord &led : fixture.leds) {
                    const int slot = lastUsedSlot(led);
                    if (slot >= 0)
                        use(led.address, led.address + slot);
                }
                for (const TPatch::LedRecord &kinetic : fixture.kinetics) {
                    const TPatch::KineticChannel kc = TPatch::kineticChannel(kinetic);
                    if (kc.hasChannel)
                        use(kinetic.address + kc.channel, kinetic.address + kc.channel + (kc.is16Bit ? 1 : 0));
                }
            }
            if (last >= 0) {
                row.firstChannel = first + 1;
                row.lastChannel = last + 1;
            }
            s.universes.append(row);
        }
    }
    return s;
}

int PatchSummaryPanel::Summary::channelLimit() const
{
    return std::min(selectedChLimit > 0 ? selectedChLimit : kDmxSlots, kDmxSlots);
}

PatchSummaryPanel::PatchSummaryPanel(const MoxStyle &style, QWidget *parent) : QWidget(parent), m_style(&style)
{
    setObjectName(QStringLiteral("PatchSummaryPanel"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_title = new QLabel(this);
    layout->addWidget(m_title);
    m_state = new QLabel(this);
    m_state->setObjectName(QStringLiteral("summaryState"));
    layout->addWidget(m_state);
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("summaryText"));
    m_text->setTextFormat(Qt::RichText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(m_text);

    m_tableTitle = new QLabel(this);
    m_tableTitle->setObjectName(QStringLiteral("universesTitle"));
    MoxStyle::setLabelRole(m_tableTitle, MoxStyle::Accent);
    layout->addWidget(m_tableTitle);
    m_model = new UniverseTableModel(this);
    m_sorted = new QSortFilterProxyModel(this);
    m_sorted->setSourceModel(m_model);
    m_sorted->setSortRole(UniverseTableModel::SortRole);
    m_table = new QTableView(this);
    m_table->setObjectName(QStringLiteral("universeTable"));
    m_table->setModel(m_sorted);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(-1, Qt::AscendingOrder); // patch order until the user sorts
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 4);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    // Rows are alike; a sample is enough to size the columns.
    m_table->horizontalHeader()->setResizeContentsPrecision(64);
    m_table->setMinimumHeight(160);
    layout->addWidget(m_table, 1);
    connect(m_style, &MoxStyle::themeChanged, this, &PatchSummaryPanel::retranslateUi);
    retranslateUi();
}

void PatchSummaryPanel::setPatch(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout,
                                 const QVector<TPatch::PatchMessage> &warnings)
{
    m_summary = summarise(patch, layout, warnings);
    m_hasPatch = true;
    m_model->setRows(m_summary.universes, m_summary.channelLimit());
    retranslateUi();
}

void PatchSummaryPanel::clear()
{
    m_summary = Summary();
    m_hasPatch = false;
    m_model->setRows({}, m_summary.channelLimit());
    retranslateUi();
}

void PatchSummaryPanel::retranslateUi()
{
    m_title->setText(tr("Patch Summary"));
    m_state->setText(m_hasPatch ? QString() : tr("No patch loaded."));
    m_state->setVisible(!m_hasPatch);
    m_html = buildHtml();
    m_text->setText(m_html);
    m_tableTitle->setText(QStringLiteral("<b>%1</b>").arg(tr("Universes")));
    m_tableTitle->setVisible(m_hasPatch);
    m_table->setAccessibleName(tr("Universes"));
    m_table->setVisible(m_hasPatch);
    m_model->setWarningColour(m_style->roleColour(MoxStyle::WarningRole));
    m_model->retranslate();
}

void PatchSummaryPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

QString PatchSummaryPanel::buildHtml() const
{
    const QString muted = m_style->roleColour(MoxStyle::Muted).name();
    if (!m_hasPatch) {
        return QStringLiteral("<p style='color:%1'>%2</p>")
            .arg(muted, tr("Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to see its structure, universe list "
                           "and channel ranges."));
    }
    const Summary &s = m_summary;
    const QString accent = m_style->roleColour(MoxStyle::Accent).name();
    const QString warning = m_style->roleColour(MoxStyle::WarningRole).name();
    const QString dot = QStringLiteral(" &nbsp;·&nbsp; ");

    QStringList details;
    details << (s.device >= 0 && s.device < 8 ? tr("device %1").arg(TPatch::deviceName(s.device))
                                              : tr("Device #%1").arg(s.device));
    details << tr("format %1").arg(s.formatLabel.toHtmlEscaped());
    if (!s.importedFrom.isEmpty())
        details << tr("imported from %1").arg(s.importedFrom.toHtmlEscaped());
    const QString project = s.projectName.isEmpty() ? tr("(unnamed project)") : s.projectName.toHtmlEscaped();
    QString html = QStringLiteral("<p><b style='color:%1'>%2</b><br>%3 &nbsp;·&nbsp; %4</p>")
                       .arg(accent, project, details.join(dot), tr("%1 ch limit").arg(s.selectedChLimit));

    const QString white = s.pixelsWithWhite == 0 ? tr("no white channels")
                                                 : tr("%1 px with white (W %2 · CW %3 · WW %4)")
                                                       .arg(s.pixelsWithWhite)
                                                       .arg(s.whiteSlots)
                                                       .arg(s.coolWhiteSlots)
                                                       .arg(s.warmWhiteSlots);
    html += QStringLiteral("<p>%1<br>%2<br>%3</p>")
                .arg(tr("%1 groups · %2 universes · %3 fixtures")
                         .arg(s.counts.groups)
                         .arg(s.counts.torvoverses)
                         .arg(s.counts.fixtures),
                     tr("%1 pixels (%2 drawable) · %3 kinetics")
                         .arg(s.counts.pixels)
                         .arg(s.drawablePixels)
                         .arg(s.counts.kinetics),
                     white);

    QString hint;
    if (s.sourceKind == TPatch::SourceKind::Madrix)
        hint = tr("Art-Net: MADRIX universe N arrives here as Port-Address N-1. In the MADRIX Device Manager, set "
                  "the Universe of this tester's \"BindIdx N\" row to N.");
    else if (s.sourceKind == TPatch::SourceKind::Elm)
        hint = tr("Art-Net: the universes are taken from the ELM project as they are (ELM universe = "
                  "Port-Address).");
    if (!hint.isEmpty())
        html += QStringLiteral("<p style='color:%1'>%2</p>").arg(muted, hint.toHtmlEscaped());

    if (!s.warnings.isEmpty()) {
        html += QStringLiteral("<p><b style='color:%1'>%2</b><br>").arg(warning, tr("Warnings"));
        for (const TPatch::PatchMessage &w : s.warnings)
            html += QStringLiteral("&bull; %1<br>").arg(w.text().toHtmlEscaped());
        html += QStringLiteral("</p>");
    }

    return html;
}
