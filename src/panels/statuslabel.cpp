#include "panels/statuslabel.h"

#include <QEvent>
#include <QStyle>

StatusLabel::StatusLabel(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void StatusLabel::showMessage(std::function<QString()> producer, int level)
{
    m_producer = std::move(producer);
    m_level = level;
    setText(m_producer ? m_producer() : QString());
    // The style sheet selects on msgLevel; a property change needs a re-polish to show.
    style()->unpolish(this);
    style()->polish(this);
}

void StatusLabel::retranslate()
{
    if (m_producer)
        setText(m_producer());
}

void StatusLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QLabel::changeEvent(event);
}
