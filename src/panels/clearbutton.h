#pragma once

#include <QLineEdit>
#include <QString>
#include <QToolButton>

// Names the clear button a line edit shows with setClearButtonEnabled(true):
// without a name it is announced as a bare "push button". The button is the
// toolkit's own child tool button of the line edit.
inline void nameClearButton(QLineEdit *edit, const QString &name)
{
    for (QToolButton *button : edit->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        button->setAccessibleName(name);
        button->setToolTip(name);
    }
}
