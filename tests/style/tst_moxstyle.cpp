// The themes: every one complete, every text colour readable on the
// backgrounds it is drawn on, and a theme change reaching the application.
#include "style/moxstyle.h"

#include <QApplication>
#include <QtTest>

class TestMoxStyle : public QObject
{
    Q_OBJECT
private slots:
    void textReadsOnItsBackground_data();
    void textReadsOnItsBackground();
    void readableOnPicksTheBetterText();
    void applyingReachesTheApplication();
};

void TestMoxStyle::textReadsOnItsBackground_data()
{
    QTest::addColumn<QString>("theme");
    MoxStyle style;
    for (const QString &id : style.themeIds())
        QTest::newRow(qPrintable(id)) << id;
}

void TestMoxStyle::textReadsOnItsBackground()
{
    QFETCH(QString, theme);
    MoxStyle style;
    style.applyTheme(theme);
    QCOMPARE(style.currentThemeId(), theme);
    // Where each text role is drawn: labels and message lines on the window,
    // fields and tables on base, the status bar's muted text on base, buttons.
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
    QVERIFY(!MoxStyle::themeDisplayName(theme).isEmpty());
}

void TestMoxStyle::readableOnPicksTheBetterText()
{
    QCOMPARE(MoxStyle::contrastRatio(Qt::black, Qt::white), 21.0);
    QCOMPARE(MoxStyle::contrastRatio(Qt::white, Qt::white), 1.0);
    // Light grey text on a pale tint falls back to black; on a dark tint it stays.
    QCOMPARE(MoxStyle::readableOn(QColor(210, 220, 240), QColor(200, 200, 200)), QColor(Qt::black));
    QCOMPARE(MoxStyle::readableOn(QColor(40, 30, 60), QColor(200, 200, 200)), QColor(200, 200, 200));
    QCOMPARE(MoxStyle::readableOn(QColor(60, 10, 10), QColor(90, 20, 20)), QColor(Qt::white));
}

void TestMoxStyle::applyingReachesTheApplication()
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

QTEST_MAIN(TestMoxStyle)
#include "tst_moxstyle.moc"
