// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

const QByteArray typeOfAnything = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                                  " xmlns:xs=\"http://www.w3.org/2001/XMLSchema\""
                                  " xsi:type=\"xs:anyType\"";

// The root is put into a namespace, where the schema declares nothing.
QByteArray anything(QByteArray data)
{
    data.replace("ViewData", "p:ViewData");
    return data.replace("<p:ViewData", "<p:ViewData xmlns:p=\"urn:x\"" + typeOfAnything);
}

QByteArray other(const QByteArray& content = {})
{
    return "<Other Name=\"A\">" + content + "</Other>";
}

// @p data with a root that may hold anything, and what the Manager has of it afterwards.
void row(const char* name, const QByteArray& data, const char* views, int states = 0,
         const QByteArray& text = {})
{
    QTest::newRow(name) << anything(data) << names(views) << states << userData(text);
}

} // namespace

/** Documents that satisfy the validator though the schema knows nothing of what they hold. */
class DocumentAnythingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insideAnotherRoot();
    void elementsOutOfPlace_data();
    void elementsOutOfPlace();
    void toolBarStates();
};

void DocumentAnythingTest::insideAnotherRoot()
{
    Manager manager(names("A"), /*mergeOnApply=*/false);
    const QByteArray data =
        "<a" + typeOfAnything + ">text<b>" + anything(document(group("A", view("v")))) + "</b></a>";
    QVERIFY(manager.fromXml(data, /*merge=*/false));
    QCOMPARE(manager.views(), names("v"));
}

void DocumentAnythingTest::elementsOutOfPlace_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QStringList>("views");
    QTest::addColumn<int>("states");
    QTest::addColumn<QByteArray>("text");
    const QByteArray v = view("v");
    const QByteArray w = view("w");
    const QByteArray aa = state("w", "aa");
    const QByteArray content = "<Views>" + v + "</Views><CurrentView Name=\"c\"/>";
    row("none", document(group("A", v + w)), "v,w");
    row("in the root, before", document(group("A", v), other()), "");
    row("in the root, around",
        document(group("A", v))
            .replace("<Groups>", "<Other><Groups>")
            .replace("</Groups>", "</Groups></Other>"),
        "v");
    row("in the groups, with a group's content", document(other(content)), "");
    row("in the groups, around a group", document(other(group("A", v)) + group("A", w)), "v");
    row("in a group, with a view's content",
        document("<Group Name=\"B\">" + other(aa) + "</Group>"), "");
    row("in a group, around the views",
        document("<Group Name=\"A\">" + other(content) + "</Group>"), "v");
    row("in the views, with a view's content", document(group("A", v + other(aa) + w)), "v");
    row("in the views, around a view", document(group("A", other(v) + w)), "v");
    row("in a view, with text", document(group("A", view("v", other("text")) + w)), "v");
    row("in a view, around its content",
        document(group("A", view("v", other(aa + userData("text"))))), "v", 1, "text");
    row("in a state",
        document(group("A", view("v", state("w", "aa<b>" + state("x", "bb") + "</b>")) + w)), "v",
        1);
}

void DocumentAnythingTest::elementsOutOfPlace()
{
    QFETCH(QByteArray, data);
    Manager manager(names("A,B"), /*mergeOnApply=*/false);
    QVERIFY(manager.fromXml(data, /*merge=*/false));
    QTEST(manager.views(), "views");
    QByteArray written = manager.toXml(false);
    QTEST(written.count("<State "), "states");
    QFETCH(QByteArray, text);
    if (!manager.views().isEmpty())
        QVERIFY(written.contains(text));
    QVERIFY(!written.replace(text, QByteArray()).contains("text"));
}

// Without merging it is skipped, whatever it holds; what follows is read.
void DocumentAnythingTest::toolBarStates()
{
    Manager manager(names("A"), /*mergeOnApply=*/false);
    const QByteArray data = document(group("A", view("v")), toolBarState("w", "<b>aa</b>"));
    QVERIFY(manager.fromXml(anything(data), /*merge=*/false));
    QCOMPARE(manager.views(), names("v"));
}

QTEST_MAIN(DocumentAnythingTest)
#include "DocumentAnythingTest.moc"
