// Every panel as a screen reader sees it: through the accessibility interfaces Qt hands
// the platform (AT-SPI, UI Automation), not through the widget pointers other tests use.
#include "artnet/widgets/broadcastpanel.h"
#include "panelpatch.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/groupfilterpanel.h"
#include "panels/patchbar.h"
#include "panels/patchsummarypanel.h"
#include "panels/playbackpanel.h"
#include "style/moxstyle.h"
#include "../monitor/monitortestdata.h"

#include <QAccessible>
#include <QCheckBox>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>

namespace {

bool isControl(QAccessible::Role role)
{
    static const QAccessible::Role controls[] = {
        QAccessible::PushButton, QAccessible::CheckBox,     QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::SpinBox,    QAccessible::EditableText, QAccessible::Slider,      QAccessible::Tree,
        QAccessible::Table,      QAccessible::ButtonMenu};
    return std::find(std::begin(controls), std::end(controls), role) != std::end(controls);
}

// Walks the accessible tree below root; calls visit for every visible node.
void walk(QAccessibleInterface *node, const std::function<void(QAccessibleInterface *)> &visit, int depth = 0)
{
    if (!node || depth > 40 || node->state().invisible)
        return;
    visit(node);
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), visit, depth + 1);
}

// The controls without a name a screen reader could announce.
QStringList unnamedControls(QWidget *panel)
{
    QStringList out;
    walk(QAccessible::queryAccessibleInterface(panel), [&](QAccessibleInterface *node) {
        if (isControl(node->role()) && node->text(QAccessible::Name).trimmed().isEmpty()) {
            QObject *o = node->object();
            out << QStringLiteral("%1 %2").arg(o ? QString::fromLatin1(o->metaObject()->className()) : QString(),
                                               o ? o->objectName() : QString());
        }
    });
    return out;
}

// The first node of that role (any role for NoRole) with that name.
QAccessibleInterface *findByName(QWidget *panel, QAccessible::Role role, const QString &name)
{
    QAccessibleInterface *found = nullptr;
    walk(QAccessible::queryAccessibleInterface(panel), [&](QAccessibleInterface *node) {
        if (!found && (role == QAccessible::NoRole || node->role() == role)
            && node->text(QAccessible::Name) == name)
            found = node;
    });
    return found;
}

void press(QAccessibleInterface *node)
{
    QVERIFY(node);
    QVERIFY(node->actionInterface());
    node->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace

class TestPanelAccessibility : public QObject
{
    Q_OBJECT
private slots:
    void everyControlHasAName_data();
    void everyControlHasAName();
    void buttonsWorkThroughTheirAccessibleAction();
    void messageLinesReadAsTheirMessage();

private:
    MoxStyle m_style;
};

using PanelFactory = std::function<QWidget *(const MoxStyle *)>;
Q_DECLARE_METATYPE(PanelFactory)

void TestPanelAccessibility::everyControlHasAName_data()
{
    QTest::addColumn<PanelFactory>("make");
    QTest::addColumn<QString>("named"); // a name the reader must find
    // Every path field holds text, so its clear button shows and is checked too.
    QTest::newRow("patch bar") << PanelFactory([](const MoxStyle *) {
        auto *bar = new PatchBar;
        bar->setPath(QStringLiteral("/shows/hall.tpatch"));
        return bar;
    }) << "Browse for a patch file";
    QTest::newRow("group filter") << PanelFactory([](const MoxStyle *) {
        auto *panel = new GroupFilterPanel;
        TPatch::PatchData patch;
        patch.groups = {PanelPatch::group(QStringLiteral("Front"), {{QStringLiteral("A")}})};
        panel->setPatch(patch, MonitorTestData::layoutOf({MonitorTestData::square(0, 0, 4, 0, 0, 0),
                                                           MonitorTestData::square(0, 0, 4, 0, 0, 1)}));
        return panel;
    }) << "Z Layer";
    QTest::newRow("patch summary") << PanelFactory([](const MoxStyle *s) { return new PatchSummaryPanel(*s); })
                                   << "Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to see its structure, "
                                      "universe list and channel ranges.";
    QTest::newRow("patch summary, loaded") << PanelFactory([](const MoxStyle *s) {
        auto *panel = new PatchSummaryPanel(*s);
        TPatch::PatchData patch;
        patch.groups = {PanelPatch::group(QStringLiteral("Front"), {{QStringLiteral("A")}})};
        panel->setPatch(patch, MonitorTestData::layoutOf({MonitorTestData::square(0, 0, 4)}), {});
        return panel;
    }) << "Universes";
    QTest::newRow("playback") << PanelFactory([](const MoxStyle *) {
        auto *panel = new PlaybackPanel;
        panel->setPath(QStringLiteral("/shows/hall.tpx"));
        return panel;
    }) << "Browse for a .tpx recording";
    QTest::newRow("gps playback") << PanelFactory([](const MoxStyle *s) {
        auto *panel = new GpsPlaybackPanel(*s);
        panel->setGroups({{QStringLiteral("Facade"), 2, true}, {QStringLiteral("Floor"), 1, true}});
        panel->setPaths({QStringLiteral("/gps/show_Facade.tpx")});
        return panel;
    }) << "Recording for \"Floor\"";
    QTest::newRow("broadcast") << PanelFactory([](const MoxStyle *) {
        auto *panel = new BroadcastPanel;
        panel->findChild<QCheckBox *>(QStringLiteral("recordEnabled"))->setChecked(true);
        return panel;
    }) << "Choose where the recording is written";
}

void TestPanelAccessibility::everyControlHasAName()
{
    QFETCH(PanelFactory, make);
    QFETCH(QString, named);
    std::unique_ptr<QWidget> panel(make(&m_style));
    panel->resize(420, 900);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    QVERIFY2(findByName(panel.get(), QAccessible::NoRole, named), qPrintable(named));
    const QStringList unnamed = unnamedControls(panel.get());
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral(", "))));
}

void TestPanelAccessibility::buttonsWorkThroughTheirAccessibleAction()
{
    PlaybackPanel playback;
    playback.show();
    QSignalSpy load(&playback, &PlaybackPanel::loadRequested);
    press(findByName(&playback, QAccessible::PushButton, QStringLiteral("Load")));
    QTRY_COMPARE(load.count(), 1); // the press action clicks the way a mouse does, a moment later

    GpsPlaybackPanel gps(m_style);
    gps.setGroups({{QStringLiteral("Facade"), 2, true}});
    gps.show();
    QSignalSpy loadSet(&gps, &GpsPlaybackPanel::loadAllRequested);
    press(findByName(&gps, QAccessible::PushButton, QStringLiteral("Load set")));
    QTRY_COMPARE(loadSet.count(), 1);
    QVERIFY(findByName(&gps, QAccessible::EditableText, QStringLiteral("Recording for \"Facade\"")));
    QVERIFY(findByName(&gps, QAccessible::ButtonMenu, QStringLiteral("Browse for the recording of \"Facade\""))
            || findByName(&gps, QAccessible::PushButton, QStringLiteral("Browse for the recording of \"Facade\"")));

    BroadcastPanel broadcast;
    broadcast.show();
    QSignalSpy start(&broadcast, &BroadcastPanel::startRequested);
    press(findByName(&broadcast, QAccessible::PushButton, QStringLiteral("Start listening")));
    QTRY_COMPARE(start.count(), 1);
}

void TestPanelAccessibility::messageLinesReadAsTheirMessage()
{
    PlaybackPanel panel;
    panel.show();
    const QString text = QStringLiteral("There is no recording to play. Load a .tpx file first.");
    panel.setMessage([text] { return text; }, 2);
    QVERIFY(findByName(&panel, QAccessible::StaticText, text));
}

QTEST_MAIN(TestPanelAccessibility)
#include "tst_panelaccessibility.moc"
