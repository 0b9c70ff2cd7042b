#pragma once

#include "app/appsettings.h"
#include "app/mainwindow.h"
#include "panels/patchbar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

#include <functional>

// Drives the main window the way a user does: by the texts on its controls.
namespace WindowDriver {

inline const QString kDemoPatch = QStringLiteral(TALU_SOURCE_DIR "/examples/demo.tpatch");
inline const QString kDemoRecording = QStringLiteral(TALU_SOURCE_DIR "/examples/demo.tpx");
inline const QString kDemoGps = QStringLiteral(TALU_SOURCE_DIR "/examples/gps");

inline void clearSettings()
{
    auto s = openSettings();
    s->clear();
    s->sync();
}

// The first button below root showing text (buttons on hidden pages too).
template <typename Button = QAbstractButton>
Button *button(QWidget *root, const QString &text)
{
    for (Button *b : root->findChildren<Button *>()) {
        if (b->text() == text)
            return b;
    }
    return nullptr;
}

inline void click(QWidget *root, const QString &text)
{
    // Pending layouts first (a page just shown has no size before them).
    QCoreApplication::processEvents();
    QAbstractButton *b = button(root, text);
    QVERIFY2(b, qPrintable(text));
    QVERIFY2(b->isEnabled(), qPrintable(text));
    // A check box or radio button reacts on its indicator and text only, not
    // on the whole width a layout gives it: click near its left end.
    const bool indicator = qobject_cast<QCheckBox *>(b) || qobject_cast<QRadioButton *>(b);
    QTest::mouseClick(b, Qt::LeftButton, {}, indicator ? QPoint(6, b->height() / 2) : b->rect().center());
}

// Types the demo patch into the patch bar and presses "Upload".
inline void uploadPatch(MainWindow &w, const QString &path = kDemoPatch)
{
    auto *bar = w.findChild<PatchBar *>();
    QLineEdit *edit = bar->findChild<QLineEdit *>();
    edit->clear();
    QTest::keyClicks(edit, path);
    click(bar, QStringLiteral("Upload"));
}

// Runs act on the next modal dialog once it is up (act closes it); gives up
// after 10 s, so a dialog that never came cannot be taken for a later one.
inline void onNextModal(std::function<void(QWidget *)> act)
{
    auto *poll = new QTimer;
    poll->setInterval(10);
    auto *deadline = new QElapsedTimer;
    deadline->start();
    QObject::connect(poll, &QTimer::timeout, [poll, act, deadline] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal && deadline->elapsed() < 10000)
            return;
        poll->deleteLater();
        delete deadline;
        if (modal)
            act(modal);
    });
    poll->start();
}

// Accepts the next modal dialog, keeping its title and, for a message box, its text.
inline void acceptNextModal(QString *title, QString *text = nullptr)
{
    onNextModal([title, text](QWidget *modal) {
        *title = modal->windowTitle();
        if (text)
            *text = qobject_cast<QMessageBox *>(modal)->text();
        qobject_cast<QDialog *>(modal)->accept();
    });
}

inline QString status(MainWindow &w)
{
    return w.statusBar()->currentMessage();
}

// The text of the label below root with this object name.
inline QString labelText(QWidget *root, const char *name)
{
    return root->findChild<QLabel *>(QLatin1String(name))->text();
}

// The tab widget below root whose first tab is firstTab.
inline QTabWidget *tabsWith(QWidget *root, const QString &firstTab)
{
    for (auto *tabs : root->findChildren<QTabWidget *>())
        if (tabs->tabText(0) == firstTab)
            return tabs;
    return nullptr;
}

} // namespace WindowDriver
