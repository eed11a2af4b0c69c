// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QMainWindow>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

// What is between <View ...> or <CurrentView ...> of @p name and its end, without white space
// between elements; null if it is not there.
QByteArray content(const QByteArray& data, const QByteArray& name)
{
    const int start = data.indexOf("Name=\"" + name + "\">");
    if (start < 0)
        return QByteArray();
    const int from = data.indexOf('>', start) + 1;
    // Unsigned, so that the one that is not found, -1, is the larger one.
    const quint32 end =
        qMin(quint32(data.indexOf("</View>", from)), quint32(data.indexOf("</CurrentView>", from)));
    return data.mid(from, static_cast<int>(end) - from).replace("\n", "").replace("  ", "");
}

} // namespace

/** What fromXml() makes of a document, replacing and merging. */
class DocumentReadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void savedViews_data();
    void savedViews();
    void activeMarks_data();
    void activeMarks();
    void viewContent_data();
    void viewContent();
    void newViewWithoutUserDataWritesItEmpty();
    void groupsStay();
    void currentView();
    void currentViewWithoutStatesIsTheLiveLayout();
    void currentViewIsApplied();
    void windowsStayWhenTheirIdIsUnknown();

private:
    std::unique_ptr<Manager> m_manager;
};

// Every test starts with the views a (user data "kept") and b, b active, and the group B.
void DocumentReadTest::init()
{
    m_manager = std::make_unique<Manager>(names("A,B"), /*mergeOnApply=*/false);
    const QByteArray views =
        view("a", state("w", "aa") + userData("kept")) + view("b", state("w", "bb"), "true");
    QVERIFY(
        m_manager->fromXml(document(group("A", views) + group("B", view("x", {}, "1"))), false));
}

void DocumentReadTest::savedViews_data()
{
    QTest::addColumn<QByteArray>("groups");
    QTest::addColumn<QStringList>("replaced");
    QTest::addColumn<QStringList>("merged");
    const auto row = [](const char* name, const QByteArray& groups, const char* replaced,
                        const char* merged) {
        QTest::newRow(name) << groups << names(replaced) << names(merged);
    };
    row("no groups", {}, "", "a,b");
    row("another group", group("B", view("c")), "", "a,b");
    row("unknown group", group("C", view("c")), "", "a,b");
    row("group in other case", group("a", view("c")), "", "a,b");
    row("no views", group("A", {}), "", "a,b");
    row("new views in the document's order", group("A", view("d") + view("c")), "d,c", "a,b,d,c");
    row("known views keep their places", group("A", view("b") + view("c") + view("a")), "b,c,a",
        "a,b,c");
    row("a name twice", group("A", view("c") + view("d") + view("c")), "c,d", "a,b,c,d");
    row("names differing in case", group("A", view("A") + view("a")), "A,a", "a,b,A");
    row("a group twice", group("A", view("c")) + group("A", view("d")), "c,d", "a,b,c,d");
    row("a group after an unknown one", group("C", view("c")) + group("A", view("d")), "d",
        "a,b,d");
    row("reserved name", group("A", view("__current__")), "__current__", "a,b,__current__");
}

void DocumentReadTest::savedViews()
{
    QFETCH(QByteArray, groups);
    QFETCH(QStringList, replaced);
    QFETCH(QStringList, merged);
    QVERIFY(m_manager->fromXml(document(groups), /*merge=*/true));
    QCOMPARE(m_manager->views(), merged);
    QVERIFY(m_manager->fromXml(document(groups), /*merge=*/false));
    QCOMPARE(m_manager->views(), replaced);
}

void DocumentReadTest::activeMarks_data()
{
    QTest::addColumn<QByteArray>("views");
    QTest::addColumn<QString>("replaced");
    QTest::addColumn<QString>("merged");
    const auto row = [](const char* name, const QByteArray& views, const QString& replaced,
                        const QString& merged) {
        QTest::newRow(name) << views << replaced << merged;
    };
    row("no mark", view("a") + view("b"), QString(), "b"_s);
    row("true", view("a", {}, "true"), "a"_s, "a"_s);
    row("1", view("a", {}, "1"), "a"_s, "a"_s);
    row("false", view("b", {}, "false"), QString(), "b"_s);
    row("0", view("b", {}, "0"), QString(), "b"_s);
    row("true with blanks", view("a", {}, " true "), QString(), "b"_s);
    row("1 with a blank", view("a", {}, "1 "), QString(), "b"_s);
    row("two marks", view("a", {}, "1") + view("c", {}, "true"), "c"_s, "c"_s);
    row("false after true", view("a", {}, "true") + view("a", {}, "false"), "a"_s, "a"_s);
    row("new view", view("c", {}, "true") + view("d"), "c"_s, "c"_s);
    row("empty name", view("", {}, "true"), ""_s, ""_s);
}

void DocumentReadTest::activeMarks()
{
    QFETCH(QByteArray, views);
    QFETCH(QString, replaced);
    QFETCH(QString, merged);
    QVERIFY(m_manager->fromXml(document(group("A", views)), /*merge=*/true));
    QCOMPARE(quoted(m_manager->activeView()), quoted(merged));
    QVERIFY(m_manager->fromXml(document(group("A", views)), /*merge=*/false));
    QCOMPARE(quoted(m_manager->activeView()), quoted(replaced));
}

void DocumentReadTest::viewContent_data()
{
    QTest::addColumn<QByteArray>("views");
    QTest::addColumn<QByteArray>("merged");
    QTest::addColumn<QByteArray>("replaced");
    const auto row = [](const QByteArray& name, const QByteArray& views, const QByteArray& merged,
                        const QByteArray& replaced) {
        QTest::newRow(name.constData()) << views << merged << replaced;
    };
    const QByteArray none = userData({});
    const QByteArray kept = userData("kept");
    row("no states", view("a"), kept, none);
    row("another state", view("a", state("v", "dd")), state("v", "dd") + kept,
        state("v", "dd") + none);
    row("user data", view("a", userData("new")), userData("new"), userData("new"));
    row("empty user data", view("a", userData({})), none, none);
    row("empty state", view("a", state("w", {})), kept, none);
    row("blank state", view("a", state("w", " ")), kept, none);
    // An odd or an even number of characters, with the digits at odd or at even places.
    for (const char* digits : {" d1e2", "d1e2 ", " d1e2 ", "  d1e2", "d1e2  ", "\n d1e2\t",
                               "\xC2\xA0"
                               "D1E2\xE3\x80\x80"})
        row("white space around " + QByteArray(digits).toPercentEncoding(),
            view("a", state("w", digits)), state("w", "d1e2") + kept, state("w", "d1e2") + none);
    row("an empty state after one of the same id", view("a", state("w", "dd") + state("w", {})),
        state("w", "dd") + kept, state("w", "dd") + none);
    row("an id twice", view("a", state("w", "dd") + state("w", "ee")), state("w", "ee") + kept,
        state("w", "ee") + none);
    row("ids differing in case", view("a", state("w", "dd") + state("W", "ee")),
        state("W", "ee") + state("w", "dd") + kept, state("W", "ee") + state("w", "dd") + none);
    row("empty id", view("a", state("", "dd")), state("", "dd") + kept, state("", "dd") + none);
    row("a name twice", view("a", state("v", "dd") + userData("1")) + view("a", state("w", "ee")),
        state("w", "ee") + userData("1"), state("w", "ee") + userData("1"));
    row("markup in user data", view("a", userData("<![CDATA[<b>]]>&amp;")),
        userData("&lt;b&gt;&amp;"), userData("&lt;b&gt;&amp;"));
}

void DocumentReadTest::viewContent()
{
    QFETCH(QByteArray, views);
    QFETCH(QByteArray, merged);
    QFETCH(QByteArray, replaced);
    QVERIFY(m_manager->fromXml(document(group("A", views)), /*merge=*/true));
    QCOMPARE(content(m_manager->toXml(false), "a"), merged);
    QCOMPARE(content(m_manager->toXml(false), "b"), state("w", "bb") + userData({}));
    QVERIFY(m_manager->fromXml(document(group("A", views)), /*merge=*/false));
    QCOMPARE(content(m_manager->toXml(false), "a"), replaced);
}

void DocumentReadTest::newViewWithoutUserDataWritesItEmpty()
{
    QVERIFY(m_manager->fromXml(document(group("A", view("n"))), /*merge=*/true));
    QCOMPARE(content(m_manager->toXml(false), "n"), userData({}));
    QCOMPARE(m_manager->viewUserData("a"_s), QVariant());
}

void DocumentReadTest::groupsStay()
{
    QVERIFY(m_manager->activateGroup("B"_s));
    for (const bool merge : {true, false}) {
        QVERIFY(m_manager->fromXml(document(group("C", {}) + group("A", view("n"))), merge));
        QCOMPARE(m_manager->groups(), names("A,B"));
        QCOMPARE(m_manager->activeGroup(), "B"_s);
        QCOMPARE(m_manager->views(), merge ? names("x") : QStringList());
        QCOMPARE(quoted(m_manager->activeView()), merge ? "'x'"_s : "null"_s);
    }
}

void DocumentReadTest::currentView()
{
    const QByteArray groups = group("B", {}, state("w", "cc") + userData("u"));
    QVERIFY(m_manager->fromXml(document(groups).replace("__current__", "other"), true));
    QCOMPARE(content(m_manager->toXml(false), "other"), QByteArray());
    QVERIFY(m_manager->toXml(false).endsWith(R"(            <CurrentView Name="__current__">
                <State DescriptorId="w">cc</State>
                <UserData>u</UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)"));
    // A document that does not name the group leaves its current view, clear() or not.
    QVERIFY(m_manager->fromXml(document(group("A", {})), /*merge=*/false));
    QCOMPARE(m_manager->toXml(false).count("<State DescriptorId=\"w\">cc</State>"), 1);
}

void DocumentReadTest::currentViewWithoutStatesIsTheLiveLayout()
{
    QMainWindow window;
    Owner owner({{"w"_s, &window}});
    m_manager->registerManagable(owner);
    const QByteArray live = state("w", window.saveState(0).toHex());
    QVERIFY(m_manager->fromXml(document(group("B", {}, state("w", "cc"))), /*merge=*/false));
    QCOMPARE(m_manager->toXml(false).count(live), 1);
    QVERIFY(m_manager->fromXml(document(group("B", {}, state("w", {}))), /*merge=*/false));
    QCOMPARE(m_manager->toXml(false).count(live), 2);
}

void DocumentReadTest::currentViewIsApplied()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    m_manager->registerManagable(owner);
    const QByteArray left = window.saveState(0);
    for (const bool merge : {true, false}) {
        window.moveDock(Qt::RightDockWidgetArea);
        QVERIFY(m_manager->fromXml(document(group("A", {}, state("w", left.toHex()))), merge));
        QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
        // And again for a document that does not name the active group.
        window.moveDock(Qt::RightDockWidgetArea);
        QVERIFY(m_manager->fromXml(document(group("B", {}, state("w", "cc"))), merge));
        QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
    }
}

void DocumentReadTest::windowsStayWhenTheirIdIsUnknown()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    const QByteArray left = window.saveState(0).toHex();
    window.moveDock(Qt::RightDockWidgetArea);
    m_manager->registerManagable(owner);
    for (const char* id : {"W", "", "other"}) {
        QVERIFY(m_manager->fromXml(document(group("A", {}, state(id, left))), /*merge=*/false));
        QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
    }
}

QTEST_MAIN(DocumentReadTest)
#include "DocumentReadTest.moc"
