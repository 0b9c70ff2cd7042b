#include "packetlog/widgets/filterbar.h"

#include "packetlog/displayfilter.h"
#include "style/moxstyle.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

FilterBar::FilterBar(const MoxStyle &style, QWidget *parent) : QWidget(parent), m_style(style)
{
    m_field = new QComboBox(this);
    m_field->setObjectName(QStringLiteral("filterField"));
    m_field->setEditable(true);
    m_field->setInsertPolicy(QComboBox::NoInsert);
    // No inline completion: Enter must apply what was typed, not a longer recent filter.
    m_field->setCompleter(nullptr);
    m_field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_apply = new QPushButton(this);
    m_error = new QLabel(this);
    m_error->setObjectName(QStringLiteral("filterError"));
    MoxStyle::setLabelRole(m_error, MoxStyle::ErrorRole);
    m_error->setWordWrap(true);
    m_error->hide();
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_field, 0, 0);
    layout->addWidget(m_apply, 0, 1);
    layout->addWidget(m_error, 1, 0, 1, 2);

    connect(m_field->lineEdit(), &QLineEdit::textChanged, this, &FilterBar::check);
    // Enter in the field, or a recent filter picked from the list. (With
    // duplicates allowed the combo box does not also report Enter as a pick
    // from the list; the list itself never holds one filter twice.)
    m_field->setDuplicatesEnabled(true);
    connect(m_field->lineEdit(), &QLineEdit::returnPressed, this, &FilterBar::apply);
    connect(m_field, &QComboBox::textActivated, this, &FilterBar::apply);
    connect(m_apply, &QPushButton::clicked, this, &FilterBar::apply);
    connect(&m_style, &MoxStyle::themeChanged, this, &FilterBar::showState);
    retranslateUi();
    showState();
}

QString FilterBar::text() const
{
    return m_field->currentText();
}

void FilterBar::setText(const QString &text)
{
    m_field->setEditText(text);
}

QStringList FilterBar::recentFilters() const
{
    QStringList recent;
    for (int i = 0; i < m_field->count(); ++i)
        recent << m_field->itemText(i);
    return recent;
}

void FilterBar::setRecentFilters(const QStringList &filters)
{
    const QString current = text();
    const QSignalBlocker block(m_field);
    m_field->clear();
    m_field->addItems(filters);
    m_field->setEditText(current);
}

void FilterBar::check()
{
    showCompiled(PacketLog::compileFilter(text()));
}

void FilterBar::showCompiled(const PacketLog::FilterCompileResult &result)
{
    m_valid = result.ok();
    m_error->setText(m_valid ? QString() : result.error.text());
    m_error->setVisible(!m_valid);
    showState();
}

void FilterBar::showState()
{
    // Valid / invalid behind the text, in the theme's own colours; an empty field is neither.
    if (text().trimmed().isEmpty()) {
        m_field->setStyleSheet(QString());
        return;
    }
    QColor tint = m_style.roleColour(m_valid ? MoxStyle::Success : MoxStyle::ErrorRole);
    const QColor base = m_style.colour(QStringLiteral("base"));
    const QColor blended((tint.red() + 3 * base.red()) / 4, (tint.green() + 3 * base.green()) / 4,
                         (tint.blue() + 3 * base.blue()) / 4);
    m_field->setStyleSheet(
        QStringLiteral("QComboBox { background: %1; color: %2; }")
            .arg(blended.name(),
                 MoxStyle::readableOn(blended, m_style.colour(QStringLiteral("text"))).name()));
}

void FilterBar::apply()
{
    const QString filterText = text().trimmed();
    PacketLog::FilterCompileResult result = PacketLog::compileFilter(filterText);
    if (!result.ok()) {
        showCompiled(result); // the message stays; the list keeps what it shows
        return;
    }
    if (!filterText.isEmpty()) {
        QStringList recent = recentFilters();
        recent.removeAll(filterText);
        recent.prepend(filterText);
        while (recent.size() > kRecentFilters)
            recent.removeLast();
        setRecentFilters(recent);
        m_field->setEditText(filterText);
        emit recentFiltersChanged(recent);
    }
    emit filterApplied(std::shared_ptr<const PacketLog::FilterNode>(std::move(result.root)), filterText);
}

void FilterBar::retranslateUi()
{
    m_field->lineEdit()->setPlaceholderText(
        tr("Display filter, e.g. artnet.opcode == artdmx && ip.src == 10.0.0.1"));
    m_field->setToolTip(
        tr("Type a display filter and press Enter. Green: the filter is valid; red: it is not, "
           "and the message below says why."));
    m_field->setAccessibleName(tr("Display filter"));
    m_apply->setText(tr("Apply"));
    if (!m_valid)
        check();
}

void FilterBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
