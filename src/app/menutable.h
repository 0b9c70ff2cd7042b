#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <utility>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;

// Every menu and entry of the main window's menu bar with its untranslated
// text and tip (marked with QT_TR_NOOP in the context "MainWindow"), so that a
// language change sets them all again and the shortcut table is built from
// the same list as the menus. GUI thread only.
class MenuTable
{
public:
    explicit MenuTable(QMenuBar *bar) : m_bar(bar) {}

    // A menu on the bar (parent null) or a sub-menu.
    QMenu *addMenu(QMenu *parent, const char *title);
    QAction *addEntry(QMenu *menu, const char *text, const QKeySequence &shortcut, const char *tip = nullptr,
                      const QString &icon = QString());
    // Present, disabled, "Planned for a future version.", no shortcut.
    void addPlanned(QMenu *menu, const char *text);
    // The entry with this untranslated text, or null.
    QAction *action(const char *text) const;
    // Sets every title, text and tip in the language in force.
    void retranslate();
    // The entries that have a shortcut, in menu order: the text without its
    // accelerator, and the shortcut in the platform's own words.
    QList<std::pair<QString, QString>> shortcutRows() const;

private:
    struct Entry
    {
        QAction *action;
        const char *text;
        const char *tip; // nullptr for none
    };
    QMenuBar *m_bar; // not owned
    std::vector<Entry> m_entries;
    std::vector<std::pair<QMenu *, const char *>> m_titles;
};
