#include "app/menutable.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>

namespace {

const char *const kPlannedTip = QT_TRANSLATE_NOOP("MainWindow", "Planned for a future version.");

QString translated(const char *text)
{
    return QCoreApplication::translate("MainWindow", text);
}

} // namespace

QMenu *MenuTable::addMenu(QMenu *parent, const char *title)
{
    QMenu *menu = parent ? parent->addMenu(QString()) : m_bar->addMenu(QString());
    m_titles.emplace_back(menu, title);
    return menu;
}

QAction *MenuTable::addEntry(QMenu *menu, const char *text, const QKeySequence &shortcut, const char *tip,
                             const QString &icon)
{
    QAction *action = menu->addAction(QString());
    if (!icon.isEmpty())
        action->setIcon(QIcon(icon));
    action->setShortcut(shortcut);
    m_entries.push_back({action, text, tip});
    return action;
}

void MenuTable::addPlanned(QMenu *menu, const char *text)
{
    addEntry(menu, text, QKeySequence(), kPlannedTip)->setEnabled(false);
}

QAction *MenuTable::action(const char *text) const
{
    for (const Entry &entry : m_entries)
        if (qstrcmp(entry.text, text) == 0)
            return entry.action;
    return nullptr;
}

void MenuTable::retranslate()
{
    for (const auto &[menu, title] : m_titles)
        menu->setTitle(translated(title));
    for (const Entry &entry : m_entries) {
        entry.action->setText(translated(entry.text));
        const QString tip = entry.tip ? translated(entry.tip) : QString();
        entry.action->setToolTip(tip.isEmpty() ? entry.action->iconText() : tip);
        entry.action->setStatusTip(tip);
    }
}

QList<std::pair<QString, QString>> MenuTable::shortcutRows() const
{
    QList<std::pair<QString, QString>> rows;
    for (const Entry &entry : m_entries) {
        if (entry.action->shortcut().isEmpty())
            continue;
        QString text = entry.action->text();
        text.remove(QLatin1Char('&'));
        rows.append({text, entry.action->shortcut().toString(QKeySequence::NativeText)});
    }
    return rows;
}
