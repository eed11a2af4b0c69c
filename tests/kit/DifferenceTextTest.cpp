// SPDX-License-Identifier: MIT
#include "support/Text.h"

#include <panorel/kit/Difference.h>

#include <QRect>
#include <QSize>
#include <QtTest>

namespace Panorel::Tests {

using Kit::Difference;
using Aspect = Kit::Difference::Aspect;
using Part = Kit::Difference::Part;

/** The words for differences: those for users, and those for scripts. */
class DifferenceTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identifiers();
    void texts_data();
    void texts();
    void textsMindNames();
};

void DifferenceTextTest::identifiers()
{
    QCOMPARE(identifierOf(Part::DockWidget), QStringLiteral("dock"));
    QCOMPARE(identifierOf(Part::ToolBar), QStringLiteral("toolBar"));
    const char* const expected[] = {"added",   "removed", "area", "tabs", "floating",
                                    "visible", "size",    "line", "order"};
    for (int i = 0; i < 9; ++i)
        QCOMPARE(identifierOf(static_cast<Aspect>(i)), QString::fromLatin1(expected[i]));
}

void DifferenceTextTest::texts_data()
{
    QTest::addColumn<int>("aspect");
    QTest::addColumn<QVariant>("from");
    QTest::addColumn<QVariant>("to");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, Aspect aspect, const QVariant& from, const QVariant& to,
                        const char* text) {
        QTest::newRow(name) << static_cast<int>(aspect) << from << to << QString::fromUtf8(text);
    };
    row("added", Aspect::Added, {}, {}, "\"F\" was added");
    row("removed", Aspect::Removed, {}, {}, "\"F\" was removed");
    row("area", Aspect::Area, "left"_s, "right"_s, "\"F\" moved from left to right");
    row("top and bottom", Aspect::Area, "top"_s, "bottom"_s, "\"F\" moved from top to bottom");
    row("tab", Aspect::Tabs, QStringList(), QStringList("G"_s), "\"F\" is now a tab beside \"G\"");
    row("tab of several", Aspect::Tabs, QStringList(), QStringList{"G"_s, "H"_s},
        "\"F\" is now a tab beside \"G\", \"H\"");
    row("no tab", Aspect::Tabs, QStringList("G"_s), QStringList(), "\"F\" is no longer a tab");
    row("front", Aspect::Tabs, QStringList("G"_s), QStringList("F"_s),
        "The tab \"F\" is now in front");
    row("floating", Aspect::Floating, false, true, "\"F\" is now a window of its own");
    row("docked", Aspect::Floating, true, false, "\"F\" is no longer a window of its own");
    row("moved", Aspect::Floating, QRect(1, 2, 3, 4), QRect(5, 6, 3, 4),
        "\"F\" moved on the desktop");
    row("opened", Aspect::Visible, false, true, "\"F\" is open");
    row("closed", Aspect::Visible, true, false, "\"F\" is closed");
    row("size", Aspect::Size, QSize(20, 30), QSize(40, 50),
        "\"F\" changed its size from 20 \u00d7 30 to 40 \u00d7 50");
    row("length", Aspect::Size, 20, 40, "\"F\" changed its size from 20 to 40");
    row("line", Aspect::Line, 0, 2, "\"F\" moved from line 1 to line 3");
    row("order", Aspect::Order, 0, 2, "\"F\" has another place among its neighbours");
    row("beside", Aspect::Order, "below"_s, "beside"_s, "\"F\" is now beside its neighbours");
    row("below", Aspect::Order, "beside"_s, "below"_s,
        "\"F\" is now above or below its neighbours");
    row("beside others", Aspect::Order, "beside"_s, "beside"_s,
        "\"F\" has another place among its neighbours");
}

void DifferenceTextTest::texts()
{
    QFETCH(int, aspect);
    QFETCH(QVariant, from);
    QFETCH(QVariant, to);
    Difference difference;
    difference.name = "F"_s;
    difference.aspect = static_cast<Aspect>(aspect);
    difference.from = from;
    difference.to = to;
    QTEST(difference.text(), "text");
}

void DifferenceTextTest::textsMindNames()
{
    Difference difference;
    difference.aspect = Aspect::Area;
    difference.from = "left"_s;
    difference.to = "right"_s;
    difference.name = "%2 %1"_s;
    QCOMPARE(difference.text(), "\"%2 %1\" moved from left to right"_s);
    QCOMPARE(difference.text("Title"_s), "\"Title\" moved from left to right"_s);
    difference.name.clear();
    QCOMPARE(difference.text(), "(without a name) moved from left to right"_s);
}

} // namespace Panorel::Tests

QTEST_APPLESS_MAIN(Panorel::Tests::DifferenceTextTest)
#include "DifferenceTextTest.moc"
