#include "panels/gpsgrouprow.h"

#include "panels/clearbutton.h"
#include "style/moxstyle.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

QString colourSpan(const QColor &colour, const QString &text)
{
    return QStringLiteral("<span style='color:%1;'>%2</span>").arg(colour.name(), text);
}

} // namespace

GpsGroupRow::GpsGroupRow(const MoxStyle &style, const GpsPanelGroup &group, QWidget *parent)
    : QWidget(parent), m_style(&style), m_group(group)
{
    setObjectName(QStringLiteral("gpsRow"));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 2, 0, 4);
    layout->setHorizontalSpacing(6);
    layout->setVerticalSpacing(2);
    m_dot = new QLabel(this);
    m_dot->setTextFormat(Qt::RichText);
    m_caption = new QLabel(this);
    m_caption->setTextFormat(Qt::RichText);
    m_path = new QLineEdit(this);
    m_path->setClearButtonEnabled(true);
    m_browse = new QToolButton(this);
    m_infoLabel = new QLabel(this);
    m_infoLabel->setWordWrap(true);
    m_caption->setBuddy(m_path);
    layout->addWidget(m_dot, 0, 0);
    layout->addWidget(m_caption, 0, 1, 1, 2);
    layout->addWidget(m_path, 1, 1);
    layout->addWidget(m_browse, 1, 2);
    layout->addWidget(m_infoLabel, 2, 1, 1, 2);
    layout->setColumnStretch(1, 1);

    connect(m_path, &QLineEdit::textEdited, this, &GpsGroupRow::pathEdited);
    connect(m_browse, &QToolButton::clicked, this, &GpsGroupRow::onBrowse);
    retranslateUi();
}

QString GpsGroupRow::path() const
{
    return m_path->text();
}

void GpsGroupRow::setPath(const QString &path)
{
    m_path->setText(path);
}

void GpsGroupRow::setInfo(const GpsRowInfo &info)
{
    m_info = info;
    retranslateUi();
}

void GpsGroupRow::retranslateUi()
{
    const QString caption = m_group.caption;
    const QString note = m_group.hasDrawablePixels ? tr("expects %1 universe(s)").arg(m_group.expectedUniverses)
                                                   : tr("no drawable pixels");
    const QColor noteColour =
        m_style->roleColour(m_group.hasDrawablePixels ? MoxStyle::Muted : MoxStyle::WarningRole);
    m_caption->setText(QStringLiteral("<b>%1</b>").arg(caption.toHtmlEscaped())
                       + QStringLiteral("  <span style='color:%1;'>%2</span>").arg(noteColour.name(), note));
    m_caption->setAccessibleName(caption + QStringLiteral(", ") + note);
    m_path->setPlaceholderText(tr("Recording for \"%1\"").arg(caption));
    m_path->setAccessibleName(m_path->placeholderText());
    nameClearButton(m_path, tr("Clear"));
    m_browse->setText(tr("..."));
    m_browse->setToolTip(tr("Browse for the recording of \"%1\"").arg(caption));
    m_browse->setAccessibleName(m_browse->toolTip());

    MoxStyle::LabelRole verdict = MoxStyle::Muted;
    QString verdictName = tr("not verified");
    switch (m_info.state) {
    case GpsRowInfo::NotLoaded:
        m_infoLabel->clear();
        MoxStyle::setLabelRole(m_infoLabel, MoxStyle::Normal);
        break;
    case GpsRowInfo::Usable: {
        QString line = tr("%1 - %2 frames - %3 universe(s)/frame - %4 B/frame")
                           .arg(m_info.fileName)
                           .arg(m_info.frames)
                           .arg(m_info.universesPerFrame)
                           .arg(m_info.bytesPerFrame);
        const bool differs = m_info.universesPerFrame != m_group.expectedUniverses;
        if (differs)
            line += tr(" (patch expects %1)").arg(m_group.expectedUniverses);
        m_infoLabel->setText(line);
        verdict = differs ? MoxStyle::WarningRole : MoxStyle::Success;
        verdictName = differs ? tr("file differs from the patch") : tr("file usable");
        MoxStyle::setLabelRole(m_infoLabel, differs ? MoxStyle::WarningRole : MoxStyle::Normal);
        break;
    }
    case GpsRowInfo::Unusable:
        m_infoLabel->setText(m_info.error.text());
        verdict = MoxStyle::ErrorRole;
        verdictName = tr("file unusable");
        MoxStyle::setLabelRole(m_infoLabel, MoxStyle::ErrorRole);
        break;
    }
    m_dot->setText(colourSpan(m_style->roleColour(verdict), QStringLiteral("&#9679;")) + QStringLiteral(" "));
    m_dot->setProperty("verdictRole", MoxStyle::labelRoleName(verdict));
    m_dot->setAccessibleName(verdictName);
}

void GpsGroupRow::onBrowse()
{
    const QString current = m_path->text().trimmed();
    const QString startFolder = current.isEmpty() ? QString() : QFileInfo(current).absolutePath();
    const QString picked = QFileDialog::getOpenFileName(this, tr("Recording for group"), startFolder,
                                                        tr("Torvane Recording (*.tpx);;All Files (*)"));
    if (picked.isEmpty())
        return;
    m_path->setText(picked);
    emit pathEdited();
}
