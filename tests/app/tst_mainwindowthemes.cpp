// Every theme, page by page with the demo loaded: each enabled plain label, check box and radio
// button reads against the pixels behind it (WCAG contrast at least 4.5).
#include "style/moxstyle.h"
#include "windowdriver.h"

#include <QLabel>
#include <QStandardPaths>
#include <QTabWidget>

using namespace WindowDriver;

class TestMainWindowThemes : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void textReadsInEveryTheme_data();
    void textReadsInEveryTheme();
};

void TestMainWindowThemes::textReadsInEveryTheme_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString &id : MoxStyle().themeIds())
        QTest::newRow(qPrintable(id)) << id;
}

void TestMainWindowThemes::textReadsInEveryTheme()
{
    QFETCH(QString, theme);
    clearSettings();
    MoxStyle style;
    style.applyTheme(theme);
    style.install(*qApp);
    MainWindow w(&style);
    w.show();
    w.openFiles(kDemoPatch, kDemoRecording);
    int checked = 0;
    QStringList unreadable;
    // Every page once: the side tabs, then the live page.
    QTabWidget *sideTabs = tabsWith(&w, QStringLiteral("Groups"));
    for (int page = 0; page < sideTabs->count() + 1; ++page) {
        if (page < sideTabs->count())
            sideTabs->setCurrentIndex(page);
        else
            click(&w, QStringLiteral("Live broadcast"));
        QCoreApplication::processEvents();
        const QImage shown = w.grab().toImage();
        for (QWidget *widget : w.findChildren<QWidget *>()) {
            QString text;
            if (auto *label = qobject_cast<QLabel *>(widget);
                label && label->textFormat() != Qt::RichText && !Qt::mightBeRichText(label->text()))
                text = label->text();
            else if (qobject_cast<QCheckBox *>(widget) || qobject_cast<QRadioButton *>(widget))
                text = static_cast<QAbstractButton *>(widget)->text();
            if (text.trimmed().isEmpty() || !widget->isVisibleTo(&w) || !widget->isEnabled())
                continue;
            // Text colour as the style sheet set it, on the colour most visible pixels have (text covers few).
            const QColor fg = widget->palette().color(widget->foregroundRole());
            const QRect area = widget->visibleRegion().boundingRect().translated(widget->mapTo(&w, QPoint()));
            QHash<QRgb, int> counts;
            for (int y = area.top(); y <= area.bottom(); ++y)
                for (int x = area.left(); x <= area.right(); ++x)
                    ++counts[shown.pixel(x, y)];
            if (counts.isEmpty())
                continue;
            const QColor bg = QColor::fromRgb(std::max_element(counts.cbegin(), counts.cend()).key());
            const double ratio = MoxStyle::contrastRatio(fg, bg);
            ++checked;
            if (ratio < MoxStyle::kMinimumContrast)
                unreadable << QStringLiteral("%1 \"%2\": %3 on %4 = %5")
                                  .arg(widget->metaObject()->className(), text.left(40), fg.name(), bg.name())
                                  .arg(ratio, 0, 'f', 2);
        }
    }
    QVERIFY2(checked > 20, qPrintable(QString::number(checked)));
    QVERIFY2(unreadable.isEmpty(), qPrintable(unreadable.join('\n')));
}

QTEST_MAIN(TestMainWindowThemes)
#include "tst_mainwindowthemes.moc"
