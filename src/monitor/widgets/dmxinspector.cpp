#include "monitor/widgets/dmxinspector.h"

#include "monitor/pixeltexts.h"
#include "monitor/widgets/dmxchannelgrid.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

DmxInspector::DmxInspector(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    auto *bar = new QHBoxLayout;
    m_universeBox = new QComboBox(this);
    m_formatBox = new QComboBox(this);
    m_formatBox->addItems({QString(), QString(), QString()});
    // Its texts arrive with retranslate(), after the box first measured itself empty.
    m_formatBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_formatBox->setMinimumContentsLength(9); // "Decimal" and the style sheet's padding
    // Linked labels: a screen reader names a combo box by its label, not by its value.
    m_universeLabel = new QLabel(this);
    m_universeLabel->setBuddy(m_universeBox);
    m_formatLabel = new QLabel(this);
    m_formatLabel->setBuddy(m_formatBox);
    bar->addWidget(m_universeLabel);
    bar->addWidget(m_universeBox, 1);
    bar->addWidget(m_formatLabel);
    bar->addWidget(m_formatBox);
    layout->addLayout(bar);
    m_grid = new DmxChannelGrid(this);
    layout->addWidget(m_grid);
    m_hoverLabel = new QLabel(this);
    m_hoverLabel->setWordWrap(true);
    m_hoverLabel->setTextFormat(Qt::PlainText);
    layout->addWidget(m_hoverLabel);
    layout->addStretch(1);

    connect(m_universeBox, &QComboBox::currentIndexChanged, this, &DmxInspector::onUniverseIndexChanged);
    connect(m_formatBox, &QComboBox::currentIndexChanged, this,
            [this](int index) { m_grid->setFormat(DmxValueFormat(std::clamp(index, 0, 2))); });
    connect(m_grid, &DmxChannelGrid::channelHovered, this, &DmxInspector::onChannelHovered);
    retranslate();
}

void DmxInspector::retranslate()
{
    m_formatBox->setItemText(0, tr("Decimal"));
    m_formatBox->setItemText(1, tr("Hex"));
    m_formatBox->setItemText(2, tr("Percent"));
    m_universeBox->setToolTip(tr("The universe shown, by Port-Address."));
    m_universeLabel->setText(tr("Universe"));
    m_formatLabel->setText(tr("Values"));
    m_universeBox->setAccessibleName(tr("Universe"));
    m_formatBox->setAccessibleName(tr("Values"));
    m_hoverLabel->setText(hoverText());
}

void DmxInspector::setPixelLayout(const TPatch::PixelLayout *layout)
{
    m_layout = layout;
    onUniverseIndexChanged();
}

void DmxInspector::setUniverses(const QVector<quint16> &portAddresses)
{
    QVector<quint16> sorted = portAddresses;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    const int previous = currentUniverse();
    {
        const QSignalBlocker block(m_universeBox);
        m_universeBox->clear();
        for (const quint16 pa : sorted)
            m_universeBox->addItem(QStringLiteral("0x%1").arg(pa, 4, 16, QLatin1Char('0')).toUpper().replace(
                                       QStringLiteral("0X"), QStringLiteral("0x")),
                                   int(pa));
        const int keep = previous < 0 ? -1 : m_universeBox->findData(previous);
        m_universeBox->setCurrentIndex(keep >= 0 ? keep : (sorted.isEmpty() ? -1 : 0));
    }
    onUniverseIndexChanged();
}

int DmxInspector::currentUniverse() const
{
    const QVariant data = m_universeBox->currentData();
    return data.isValid() ? data.toInt() : -1;
}

void DmxInspector::setUniverseData(const QByteArray &data)
{
    m_grid->setData(data);
    if (m_hoveredChannel >= 0)
        m_hoverLabel->setText(hoverText());
}

void DmxInspector::setFormat(DmxValueFormat format)
{
    m_formatBox->setCurrentIndex(int(format));
}

void DmxInspector::onUniverseIndexChanged()
{
    const int pa = currentUniverse();
    m_map = (m_layout && pa >= 0) ? UniverseChannelMap(*m_layout, quint16(pa)) : UniverseChannelMap();
    m_grid->setChannelMap(&m_map);
    m_grid->setData(QByteArray()); // the new universe's bytes come from the main window
    emit universeChanged(pa);
}

void DmxInspector::onChannelHovered(int channel)
{
    m_hoveredChannel = channel;
    m_hoverLabel->setText(hoverText());
}

QString DmxInspector::hoverText() const
{
    const int c = m_hoveredChannel;
    if (c < 0)
        return QString();
    const QByteArray &data = m_grid->data();
    const QString value = c < data.size() ? formatDmxValue(quint8(data.at(c)), m_grid->format()) : tr("-");
    QString text = tr("Channel %1: %2").arg(c + 1).arg(value);
    const QVector<int> pixels = m_map.pixels(c);
    if (pixels.isEmpty())
        return text + tr(" · not patched");
    const quint8 role = m_map.role(c);
    const QString roleText = role == UniverseChannelMap::kKineticRole ? tr("kinetic") : PixelTexts::roleName(role);
    QStringList numbers;
    for (const int p : pixels.mid(0, 8))
        numbers << QString::number(p);
    if (pixels.size() > 8)
        numbers << tr("… (%1 in all)").arg(pixels.size());
    return text + tr(" · %1 of pixel(s) %2").arg(roleText, numbers.join(QStringLiteral(", ")));
}
