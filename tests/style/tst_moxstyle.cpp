// The themes: every one complete, every text colour readable where it is drawn, a theme change reaching the app.
#include "style/moxstyle.h"

#include <QApplication>
#include <QtTest>

class TestMoxStyle : public QObject
{
    Q_OBJECT
private slots:
    void textReadsOnItsBackground_data()
    {
        QTest::addColumn<QString>("theme");
        for (const QString &id : MoxStyle().themeIds())
            QTest::newRow(qPrintable(id)) << id;
    }
    void textReadsOnItsBackground()
    {
        QFETCH(QString, theme);
        MoxStyle style;
        style.applyTheme(theme);
        QCOMPARE(style.currentThemeId(), theme);
        QVERIFY(!MoxStyle::themeDisplayName(theme).isEmpty());
        // Labels and message lines on the window; fields, tables and the status bar's muted text on base; buttons.
        const std::pair<const char *, const char *> pairs[] = {
            {"text", "window"},    {"text", "base"},      {"text", "button"},   {"mutedText", "window"},
            {"mutedText", "base"}, {"hint", "window"},    {"accent", "window"}, {"accent", "base"},
            {"info", "window"},    {"warning", "window"}, {"warning", "base"},  {"error", "window"},
            {"error", "base"},     {"success", "window"}, {"success", "base"},  {"highlightedText", "highlight"},
        };
        for (const auto &[text, background] : pairs) {
            const QColor fg = style.colour(QString::fromLatin1(text));
            const QColor bg = style.colour(QString::fromLatin1(background));
            QVERIFY2(fg != QColor(Qt::magenta) && bg != QColor(Qt::magenta), text); // every role named
            const double ratio = MoxStyle::contrastRatio(fg, bg);
            QVERIFY2(ratio >= MoxStyle::kMinimumContrast,
                     qPrintable(QStringLiteral("%1 on %2: %3").arg(text, background).arg(ratio, 0, 'f', 2)));
        }
    }

    void readableOnPicksTheBetterText()
    {
        QCOMPARE(MoxStyle::contrastRatio(Qt::black, Qt::white), 21.0);
        QCOMPARE(MoxStyle::contrastRatio(Qt::white, Qt::white), 1.0);
        // Light grey text on a pale tint falls back to black; on a dark tint it stays.
        QCOMPARE(MoxStyle::readableOn(QColor(210, 220, 240), QColor(200, 200, 200)), QColor(Qt::black));
        QCOMPARE(MoxStyle::readableOn(QColor(40, 30, 60), QColor(200, 200, 200)), QColor(200, 200, 200));
        QCOMPARE(MoxStyle::readableOn(QColor(60, 10, 10), QColor(90, 20, 20)), QColor(Qt::white));
    }

    void applyingReachesTheApplication()
    {
        MoxStyle style;
        QSignalSpy changed(&style, &MoxStyle::themeChanged);
        style.applyTheme(QStringLiteral("no such theme"));
        QCOMPARE(style.currentThemeId(), MoxStyle::defaultThemeId());
        style.applyTheme(QStringLiteral("dimred"));
        style.install(*qApp);
        QCOMPARE(qApp->palette().color(QPalette::Window), QColor(QStringLiteral("#0d0505")));
        QVERIFY(qApp->styleSheet().contains(QStringLiteral("#e06a55")));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(MoxStyle::themeDisplayName(QStringLiteral("contrast")), QStringLiteral("High contrast"));
    }
};

QTEST_MAIN(TestMoxStyle)
#include "tst_moxstyle.moc"
