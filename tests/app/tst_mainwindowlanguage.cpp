// German, French, Spanish: no English source text left on any control, menu or header (the expected
// texts from the translation files), the timed status message translated, and back to English.
#include "i18n/translator.h"
#include "windowdriver.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QStandardPaths>
#include <QTabBar>
#include <QTableWidget>
#include <QXmlStreamReader>

using namespace WindowDriver;

namespace {

// source text -> translation, for the texts whose translation differs.
QHash<QString, QString> dictionary(const QString &language)
{
    QFile file(QStringLiteral(TALU_SOURCE_DIR "/src/i18n/translations/talu_%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QHash<QString, QString> texts;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            // Plural forms are child elements; their texts run together, which no shown text matches.
            const QString translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (translation != source)
                texts.insert(source, translation);
        }
    }
    return texts;
}

// Every text a user can read on the window and its open dialogs, with where it is.
QList<std::pair<QString, QString>> shownTexts(MainWindow &w)
{
    QList<std::pair<QString, QString>> texts;
    QList<QWidget *> roots{&w};
    for (QWidget *top : QApplication::topLevelWidgets())
        if (top != &w && top->isVisible())
            roots << top;
    for (QWidget *root : roots) {
        for (QWidget *widget : root->findChildren<QWidget *>()) {
            if (!widget->isVisibleTo(root))
                continue;
            const QString where = QString::fromLatin1(widget->metaObject()->className());
            if (auto *label = qobject_cast<QLabel *>(widget))
                texts.append({label->text(), where});
            if (auto *button = qobject_cast<QAbstractButton *>(widget))
                texts.append({button->text(), where});
            if (auto *box = qobject_cast<QGroupBox *>(widget))
                texts.append({box->title(), where});
            if (auto *tabs = qobject_cast<QTabBar *>(widget))
                for (int i = 0; i < tabs->count(); ++i)
                    texts.append({tabs->tabText(i), where});
            if (auto *table = qobject_cast<QTableWidget *>(widget))
                for (int i = 0; i < table->columnCount(); ++i)
                    texts.append({table->horizontalHeaderItem(i)->text(), where});
            if (!widget->toolTip().isEmpty())
                texts.append({widget->toolTip(), where + QStringLiteral(" tooltip")});
        }
    }
    for (QMenu *menu : w.menuBar()->findChildren<QMenu *>()) {
        texts.append({menu->title(), QStringLiteral("menu")});
        for (QAction *action : menu->actions())
            texts.append({action->text(), QStringLiteral("menu ") + menu->title()});
    }
    return texts;
}

} // namespace

class TestMainWindowLanguage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void everyTextTranslatedAndBack();
};

void TestMainWindowLanguage::everyTextTranslatedAndBack()
{
    clearSettings();
    Translator translator;
    translator.install(*qApp);
    MainWindow w;
    w.setTranslator(&translator);
    w.show();
    w.openFiles(kDemoPatch, kDemoRecording);
    w.menuAction("Keyboard Shortcuts")->trigger();
    for (const QString &language : {QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("es")}) {
        const QHash<QString, QString> translated = dictionary(language);
        QVERIFY2(translated.size() > 400, qPrintable(language));
        w.menuAction("Copy Monitor Image")->trigger();
        QCOMPARE(translator.applyLanguage(language), language);
        QCoreApplication::processEvents();
        // The timed message, translated for the time it has left.
        QCOMPARE(status(w), translated.value(QStringLiteral("Monitor image copied to the clipboard.")));
        QStringList english;
        for (const auto &[text, where] : shownTexts(w)) {
            if (translated.contains(text))
                english << where + QStringLiteral(": ") + text;
        }
        QVERIFY2(english.isEmpty(),
                 qPrintable(language + QStringLiteral(" still shows\n") + english.join('\n')));
    }
    translator.applyLanguage(QStringLiteral("en"));
    QCoreApplication::processEvents();
    QCOMPARE(w.menuBar()->actions().first()->text(), QStringLiteral("&File"));
    QVERIFY(button(&w, QStringLiteral("Live broadcast")));
    QCOMPARE(status(w), QStringLiteral("Monitor image copied to the clipboard."));
}

QTEST_MAIN(TestMainWindowLanguage)
#include "tst_mainwindowlanguage.moc"
