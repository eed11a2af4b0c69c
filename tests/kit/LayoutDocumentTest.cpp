// SPDX-License-Identifier: MIT
#include "document/DocumentFixture.h"
#include "support/MessageWatch.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>

#include <QTest>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** What a document says. */
class LayoutDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void whatAManagerWrote();
    void withGroups();
    void copiesShareAndPart();
    void unreadable_data();
    void unreadable();
    void otherVersion();
    void viewsInOrder();
    void namesThatOccurAgain();
    void activeView_data();
    void activeView();
    void states_data();
    void states();
    void userData_data();
    void userData();
    void toolBarStates();
    void windowIds();
    void whatIsNotThere();

private:
    MessageWatch m_watch;
};

namespace {

LayoutDocument parsed(const QByteArray& bytes)
{
    return LayoutDocument(bytes);
}

} // namespace

void LayoutDocumentTest::whatAManagerWrote()
{
    Manager manager({"Edit"_s, "Watch"_s}, /*mergeOnApply=*/false);
    QVERIFY(manager.createView("Wide <&\"'>\t\n"_s));
    QVERIFY(manager.saveCurrentViewAs("\u00C4"_s));
    const QByteArray bytes = manager.toXml(/*markActive=*/true);
    const LayoutDocument document(bytes);
    QCOMPARE(document.bytes(), bytes);
    QVERIFY(document.isReadable());
    QCOMPARE(document.version(), "1.1.0"_s);
    QCOMPARE(document.groupNames(), lines({"Edit", "Watch"}));
    QCOMPARE(document.viewNames("Edit"_s), lines({"Wide <&\"'>\t\n", "\u00C4"}));
    QCOMPARE(document.viewNames("Watch"_s), QStringList());
    QVERIFY(document.view("Edit"_s, "\u00C4"_s).isActive);
    QVERIFY(!document.view("Edit"_s, "Wide <&\"'>\t\n"_s).isActive);
    QCOMPARE(document.currentView("Watch"_s).name, "__current__"_s);
}

// As a Manager without views and windows writes it.
void LayoutDocumentTest::withGroups()
{
    Manager manager({"A"_s, "B & C"_s}, /*mergeOnApply=*/false);
    QCOMPARE(LayoutDocument::withGroups({"A"_s, "B & C"_s}).bytes(), manager.toXml(false));
    QCOMPARE(LayoutDocument::withGroups({}).groupNames(), QStringList());
    QVERIFY(LayoutDocument::withGroups({}).isReadable());
    QVERIFY(!LayoutDocument::withGroups({QString(QChar(1))}).isReadable());
    QVERIFY(!LayoutDocument::withGroups({QString(QChar(0xD800))}).isReadable());
}

void LayoutDocumentTest::copiesShareAndPart()
{
    LayoutDocument original(document(group("G", view("a"))));
    LayoutDocument copy = original;
    QVERIFY(!copy.renameView("G"_s, "a"_s, "b"_s));
    QCOMPARE(original.viewNames("G"_s), lines({"a"}));
    QCOMPARE(copy.viewNames("G"_s), lines({"b"}));
    original = std::move(copy);
    QCOMPARE(original.viewNames("G"_s), lines({"b"}));
}

void LayoutDocumentTest::unreadable_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no XML") << QByteArray("text");
    QTest::newRow("not well-formed") << document(group("G", view("a"))).chopped(1);
    QTest::newRow("not valid") << document("<Group/>");
}

void LayoutDocumentTest::unreadable()
{
    QFETCH(QByteArray, bytes);
    LayoutDocument document(bytes);
    QVERIFY(!document.isReadable());
    QCOMPARE(document.bytes(), bytes);
    QVERIFY(document.version().isNull());
    QCOMPARE(document.groups().size(), 0);
    const LayoutDocument::Error error = document.removeView("G"_s, "a"_s);
    QCOMPARE(error.code, LayoutDocument::Error::Code::NotReadable);
    QVERIFY(!error.text.isEmpty());
    QCOMPARE(document.bytes(), bytes);
}

// A Manager reads nothing of it, but a user may want to know what is in there.
void LayoutDocumentTest::otherVersion()
{
    const QByteArray bytes = document(group("G", view("a")), {}, "1.0.0");
    LayoutDocument document(bytes);
    QVERIFY(document.isReadable());
    QCOMPARE(document.version(), "1.0.0"_s);
    QCOMPARE(document.viewNames("G"_s), lines({"a"}));
    const LayoutDocument::Error error = document.removeView("G"_s, "a"_s);
    QCOMPARE(error.code, LayoutDocument::Error::Code::OtherVersion);
    QCOMPARE(error.text, "The document has the unknown version \"1.0.0\""_s);
    QCOMPARE(document.bytes(), bytes);
}

void LayoutDocumentTest::viewsInOrder()
{
    const LayoutDocument document = parsed(Tests::document(
        group("H", view("z", state("w", "00")) + view("a"), state("w", "01")) + group("G", "")));
    const QVector<LayoutDocument::Group> groups = document.groups();
    QCOMPARE(groups.size(), 2);
    QCOMPARE(groups.at(0).name, "H"_s);
    QCOMPARE(groups.at(0).views.size(), 2);
    QCOMPARE(groups.at(0).views.at(0).name, "z"_s);
    QCOMPARE(groups.at(0).views.at(0).states, (StateMap{{"w"_s, "00"_hex}}));
    QCOMPARE(groups.at(0).views.at(1).name, "a"_s);
    QCOMPARE(groups.at(0).current.states, (StateMap{{"w"_s, "01"_hex}}));
    QCOMPARE(groups.at(1).name, "G"_s);
}

// groups() lists all, the others are as a Manager has them: states of the last element, user data
// of the last element that has it.
void LayoutDocumentTest::namesThatOccurAgain()
{
    const LayoutDocument document = parsed(
        Tests::document(group("G", view("a", state("w", "00") + Tests::userData("x")) + view("b"),
                              state("w", "0A")) +
                        group("G", view("c") + view("a", state("v", "01")), state("v", "0B"))));
    QCOMPARE(document.groups().size(), 2);
    QCOMPARE(document.groups().at(0).views.at(0).states, (StateMap{{"w"_s, "00"_hex}}));
    QCOMPARE(document.groupNames(), lines({"G"}));
    QCOMPARE(document.viewNames("G"_s), lines({"a", "b", "c"}));
    QCOMPARE(document.view("G"_s, "a"_s).states, (StateMap{{"v"_s, "01"_hex}}));
    QCOMPARE(document.view("G"_s, "a"_s).userData, "x"_s);
    QCOMPARE(document.currentView("G"_s).states, (StateMap{{"v"_s, "0B"_hex}}));
}

void LayoutDocumentTest::activeView_data()
{
    QTest::addColumn<QByteArray>("groups");
    QTest::addColumn<QString>("active");
    const auto row = [](const char* name, const QByteArray& groups, const char* active) {
        QTest::newRow(name) << groups << QString::fromLatin1(active);
    };
    row("none", group("G", view("a") + view("b")), "");
    row("true", group("G", view("a", "", "true") + view("b")), "0");
    row("1", group("G", view("a") + view("b", "", "1")), "1");
    row("false and 0", group("G", view("a", "", "false") + view("b", "", "0")), "");
    row("true with blanks", group("G", view("a", "", " true ")), "");
    row("the last one", group("G", view("a", "", "true") + view("b", "", "1") + view("c")), "1");
    row("of each group", group("G", view("a", "", "1")) + group("H", view("b", "", "1")), "0 1");
    row("the last of groups of a name",
        group("G", view("a", "", "1")) + group("G", view("b", "", "1")), "1");
}

void LayoutDocumentTest::activeView()
{
    QFETCH(QByteArray, groups);
    QStringList active;
    int number = 0;
    for (const LayoutDocument::Group& group : parsed(document(groups)).groups()) {
        for (const LayoutDocument::View& view : group.views) {
            if (view.isActive)
                active.append(QString::number(number));
            ++number;
        }
    }
    QTEST(active.join(u' '), "active");
}

void LayoutDocumentTest::states_data()
{
    QTest::addColumn<QByteArray>("elements");
    QTest::addColumn<StateMap>("states");
    QTest::newRow("either case") << state("w", "aAfF") << StateMap{{"w"_s, "aaff"_hex}};
    QTest::newRow("white space") << state("w", " \n00\t") << StateMap{{"w"_s, "00"_hex}};
    QTest::newRow("in pieces") << state("w", "0<!-- 1 -->0<![CDATA[0]]>&#48;")
                               << StateMap{{"w"_s, "0000"_hex}};
    QTest::newRow("empty") << state("w", "") + state("v", "00") << StateMap{{"v"_s, "00"_hex}};
    QTest::newRow("an id again") << state("w", "00") + state("w", "01") + state("w", "")
                                 << StateMap{{"w"_s, "01"_hex}};
    QTest::newRow("an empty id") << state("", "00") << StateMap{{""_s, "00"_hex}};
}

void LayoutDocumentTest::states()
{
    QFETCH(QByteArray, elements);
    QTEST(parsed(document(group("G", view("a", elements)))).view("G"_s, "a"_s).states, "states");
}

void LayoutDocumentTest::userData_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << QByteArray() << QString();
    QTest::newRow("empty") << Tests::userData("") << ""_s;
    QTest::newRow("without an end tag") << QByteArray("<UserData/>") << ""_s;
    QTest::newRow("text") << Tests::userData(" a&lt;b<![CDATA[<&]]>\n") << " a<b<&\n"_s;
}

void LayoutDocumentTest::userData()
{
    QFETCH(QByteArray, element);
    QFETCH(QString, expected);
    const LayoutDocument document =
        parsed(Tests::document(group("G", view("a", element), element)));
    QCOMPARE(quoted(document.view("G"_s, "a"_s).userData), quoted(expected));
    QCOMPARE(quoted(document.currentView("G"_s).userData), quoted(expected));
}

void LayoutDocumentTest::toolBarStates()
{
    const LayoutDocument document = parsed(Tests::document(
        "", toolBarState("b", "00") + toolBarState("a", "") + toolBarState("b", "01")));
    QCOMPARE(document.toolBarStates(), (StateMap{{"b"_s, "01"_hex}}));
}

void LayoutDocumentTest::windowIds()
{
    const LayoutDocument document = parsed(Tests::document(
        group("G", view("a", state("d", "00") + state("b", "00")), state("c", "00")),
        toolBarState("b", "00") + toolBarState("e", "") + toolBarState("a", "00")));
    QCOMPARE(document.windowIds(), lines({"a", "b", "c", "d"}));
}

void LayoutDocumentTest::whatIsNotThere()
{
    const LayoutDocument document = parsed(Tests::document(group("G", view("a"))));
    QVERIFY(document.hasView("G"_s, "a"_s));
    QVERIFY(!document.hasView("G"_s, "A"_s));
    QVERIFY(!document.hasView("H"_s, "a"_s));
    QVERIFY(document.view("G"_s, "b"_s).name.isNull());
    QVERIFY(document.currentView("H"_s).name.isNull());
    QCOMPARE(document.viewNames("H"_s), QStringList());
    QVERIFY(!LayoutDocument().isReadable());
}

// Without the application object of a user interface: a document is a value.
QTEST_GUILESS_MAIN(LayoutDocumentTest)
#include "LayoutDocumentTest.moc"
