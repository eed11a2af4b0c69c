// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"
#include "support/SignalLog.h"

#include <panorel/Manager.h>

#include <QMainWindow>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

// What a window that was never shown, without dock widgets and tool bars, gives: marker, version;
// the section of dock areas: no record, central size 0 x 0, top corners to the top area (4), bottom
// ones to the bottom area (8); the section of tool bars: no line.
const QByteArray plainWindow = "000000ff00000000"
                               "fd00000000"
                               "0000000000000000"
                               "00000004000000040000000800000008"
                               "fc00000000";

} // namespace

/** The bytes of toXml(), whole documents each. */
class DocumentWriteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newManager();
    void viewsAndMarks();
    void activeViewIsNotMarkedUnlessAsked();
    void liveLayoutBecomesTheCurrentViewOfTheActiveGroup();
    void toolBarStates();
    void names_data();
    void names();
    void emitsNothing();
};

void DocumentWriteTest::newManager()
{
    Manager manager({"B"_s, "A"_s}, /*mergeOnApply=*/false);
    const QByteArray expected = R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <Groups>
        <Group Name="B">
            <Views/>
            <CurrentView Name="__current__">
                <UserData></UserData>
            </CurrentView>
        </Group>
        <Group Name="A">
            <Views/>
            <CurrentView Name="__current__">
                <UserData></UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)";
    QCOMPARE(manager.toXml(/*markActive=*/true), expected);
    QCOMPARE(manager.toXml(/*markActive=*/false), expected);
}

void DocumentWriteTest::viewsAndMarks()
{
    Manager manager({"A"_s, "B"_s}, /*mergeOnApply=*/false);
    const QByteArray groups =
        group("A", view("z", state("w2", "0A0b") + state("W", "ff") + state("w1", "00"), "1") +
                       view("a", userData("text"))) +
        group("B", view("only", {}, "true"), state("w", "cc") + userData("of the current view"));
    QVERIFY(manager.fromXml(document(groups), /*merge=*/false));
    QCOMPARE(manager.toXml(/*markActive=*/true),
             QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <Groups>
        <Group Name="A">
            <Views>
                <View Active="true" Name="z">
                    <State DescriptorId="W">ff</State>
                    <State DescriptorId="w1">00</State>
                    <State DescriptorId="w2">0a0b</State>
                    <UserData></UserData>
                </View>
                <View Name="a">
                    <UserData>text</UserData>
                </View>
            </Views>
            <CurrentView Name="__current__">
                <UserData></UserData>
            </CurrentView>
        </Group>
        <Group Name="B">
            <Views>
                <View Active="true" Name="only">
                    <UserData></UserData>
                </View>
            </Views>
            <CurrentView Name="__current__">
                <State DescriptorId="w">cc</State>
                <UserData>of the current view</UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)"));
}

void DocumentWriteTest::activeViewIsNotMarkedUnlessAsked()
{
    Manager manager({"A"_s}, /*mergeOnApply=*/false);
    QVERIFY(manager.saveCurrentViewAs("v"_s));
    QVERIFY(manager.createView("w"_s));
    const QByteArray unmarked = manager.toXml(/*markActive=*/false);
    const QByteArray marked = manager.toXml(/*markActive=*/true);
    QVERIFY(!unmarked.contains("Active"));
    QCOMPARE(marked.count("Active"), 1);
    QCOMPARE(QByteArray(marked).replace("<View Active=\"true\" Name=\"v\">", "<View Name=\"v\">"),
             unmarked);
    QCOMPARE(manager.activeView(), "v"_s);
}

void DocumentWriteTest::liveLayoutBecomesTheCurrentViewOfTheActiveGroup()
{
    QMainWindow window;
    Owner owner({{"w"_s, &window}, {QString(), &window}});
    Manager manager({"A"_s, "B"_s}, /*mergeOnApply=*/false);
    const QByteArray current = state("w", "aa") + state("gone", "bb");
    QVERIFY(manager.fromXml(document(group("A", {}, current) + group("B", {}, current)),
                            /*merge=*/false));
    manager.registerManagable(owner);
    const QByteArray expected = R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <Groups>
        <Group Name="A">
            <Views/>
            <CurrentView Name="__current__">
                <State DescriptorId="w">PLAIN</State>
                <UserData></UserData>
            </CurrentView>
        </Group>
        <Group Name="B">
            <Views/>
            <CurrentView Name="__current__">
                <State DescriptorId="gone">bb</State>
                <State DescriptorId="w">aa</State>
                <UserData></UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)";
    QCOMPARE(manager.toXml(false), QByteArray(expected).replace("PLAIN", plainWindow));
}

void DocumentWriteTest::toolBarStates()
{
    QMainWindow window;
    Owner owner({{"b"_s, &window}, {"a"_s, &window}});
    Manager manager({"A"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(owner);
    const QByteArray expected = R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <ToolBarState DescriptorId="a">PLAIN</ToolBarState>
    <ToolBarState DescriptorId="b">PLAIN</ToolBarState>
    <Groups>
        <Group Name="A">
            <Views/>
            <CurrentView Name="__current__">
                <State DescriptorId="a">PLAIN</State>
                <State DescriptorId="b">PLAIN</State>
                <UserData></UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)";
    QCOMPARE(manager.toXml(false), QByteArray(expected).replace("PLAIN", plainWindow));
}

void DocumentWriteTest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("markup") << "<a & \"b\">"_s << QByteArray("&lt;a &amp; &quot;b&quot;&gt;");
    QTest::newRow("apostrophe") << "it's"_s << QByteArray("it's");
    QTest::newRow("blanks") << "  a  "_s << QByteArray("  a  ");
    QTest::newRow("UTF-8") << QString::fromUtf8("\xC3\xA9\xF0\x9F\x98\x80")
                           << QByteArray("\xC3\xA9\xF0\x9F\x98\x80");
    QTest::newRow("reserved") << "__current__"_s << QByteArray("__current__");
}

void DocumentWriteTest::names()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, written);
    Manager manager({name}, /*mergeOnApply=*/false);
    QVERIFY(manager.createView(name));
    const QByteArray data = manager.toXml(false);
    QCOMPARE(data.count("<Group Name=\"" + written + "\">"), 1);
    QCOMPARE(data.count("<View Name=\"" + written + "\">"), 1);
    QVERIFY(manager.fromXml(data, /*merge=*/false));
    QCOMPARE(manager.views(), QStringList(name));
}

void DocumentWriteTest::emitsNothing()
{
    Manager manager({"A"_s}, /*mergeOnApply=*/true);
    QVERIFY(manager.createView("v"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    (void)manager.toXml(true);
    QCOMPARE(log.lines(), QStringList());
}

QTEST_MAIN(DocumentWriteTest)
#include "DocumentWriteTest.moc"
