// SPDX-License-Identifier: MIT
#include "support/ArrangementGenerator.h"
#include "support/BlobBuilder.h"

#include <panorel/kit/Picture.h>

#include <QtTest>

namespace Panorel::Tests {

using Kit::Picture;
using Kit::WindowState;
using Part = Picture::Part;
using Kind = Picture::Part::Kind;

/** What a picture has of hand-built states, by the rules in Picture.h. */
class PictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unreadableIsEmpty();
    void neverShownWindow();
    void exampleParts();
    void windowSizeCountsWhatIsThere();
    void otherSizeGoesToTheCentralWidget();
    void rowKeepsProportions();
    void rowMindsMinimumSizes();
    void cornersDecideWhoIsLonger_data();
    void cornersDecideWhoIsLonger();
    void tabsBelowThePage();
    void oneOpenPageHasNoTabs();
    void pageInFront_data();
    void pageInFront();
    void blockAmongTabsIsNotSeen();
    void closedPartsAreNotThere();
    void repeatedPartsAreThereOnce();
    void separatorFromPositions();
    void toolBarsAtTheEdges();
    void toolBarLinesFromTheEdge();
    void floatingToolBar();
    void floatingLeftOfTheWindow();
    void floatingTabGroup();
    void floatingRow();
    void menuBarFromPositions();
};

namespace {

constexpr int horizontal = 1;
constexpr int vertical = 2;
constexpr int visible = 1;
constexpr int floating = 3;

QString textOf(const Part& part)
{
    const QRect rect = part.rect;
    return "%1 %2,%3 %4x%5"_s.arg(part.kind == Kind::Central ? "central"_s : part.name)
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QStringList textOf(const Picture& picture)
{
    QStringList lines;
    for (const Part& part : picture.parts())
        lines += textOf(part);
    return lines;
}

QStringList shown(const BlobBuilder& builder, const QSize& size = QSize())
{
    return textOf(Picture(WindowState(builder.blob()), size));
}

} // namespace

void PictureTest::unreadableIsEmpty()
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("no state"), exampleBlob().chopped(1)}) {
        const Picture picture((WindowState(bytes)), QSize(640, 480));
        QCOMPARE(picture.size(), QSize());
        QCOMPARE(picture.parts().size(), 0);
        QVERIFY(Picture::windowSize(WindowState(bytes)).isEmpty());
    }
}

// Without any size, all that is known is that there is a window.
void PictureTest::neverShownWindow()
{
    QCOMPARE(shown(soundHead()), QStringList("central 0,0 640x480"_s));
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 0, 0).sequence(vertical, 2);
    builder.widget("A"_s, visible, {0, -1, 0, 0}).widget("B"_s, visible, {0, -1, 0, 0});
    builder.dockTail(0, 0, {4, 4, 8, 8});
    QCOMPARE(shown(builder),
             (QStringList{"central 106,0 534x480"_s, "A 0,0 100x237"_s, "B 0,243 100x237"_s}));
}

// As in docs/blob-format.md: 400 x 300 and a side of 200, one line of tool bars.
void PictureTest::exampleParts()
{
    const Picture picture((WindowState(exampleBlob())));
    QCOMPARE(picture.size(), QSize(606, 336));
    QCOMPARE(textOf(picture),
             (QStringList{"central 0,36 400x300"_s, "AB 406,36 200x300"_s, "T 0,0 606x36"_s}));
    QCOMPARE(picture.parts().last().kind, Kind::ToolBar);
    QCOMPARE(picture.parts().last().isVertical, false);
    QCOMPARE(picture.parts().last().isFloating, false);
}

void PictureTest::windowSizeCountsWhatIsThere()
{
    QCOMPARE(Picture::windowSize(WindowState(dockBesideCentral().blob())), QSize(806, 600));
    QCOMPARE(Picture::windowSize(WindowState(exampleBlob())), QSize(606, 336));
    // A top side as long as the window tells the separators: 700 - 200 - 300 - 180 = 2 x 10.
    BlobBuilder builder = soundHead().dockSection(3);
    builder.dock(0, 200, 300).sequence(vertical, 1).widget("L"_s, visible, {110, 300, 0, 0});
    builder.dock(1, 180, 300).sequence(vertical, 1).widget("R"_s, visible, {110, 300, 0, 0});
    builder.dock(2, 700, 100).sequence(horizontal, 1).widget("T"_s, visible, {0, 700, 0, 0});
    builder.dockTail(300, 300, {4, 4, 8, 8});
    QCOMPARE(shown(builder), (QStringList{"central 210,110 300x300"_s, "L 0,110 200x300"_s,
                                          "R 520,110 180x300"_s, "T 0,0 700x100"_s}));
}

void PictureTest::otherSizeGoesToTheCentralWidget()
{
    QCOMPARE(shown(dockBesideCentral(), QSize(1000, 700)),
             (QStringList{"central 206,0 794x700"_s, "A 0,0 200x700"_s}));
    QCOMPARE(shown(dockBesideCentral(), QSize(306, 100)),
             (QStringList{"central 206,0 100x100"_s, "A 0,0 200x100"_s}));
    // Nothing is left for the central widget.
    QCOMPARE(shown(dockBesideCentral(), QSize(106, 100)),
             (QStringList{"central 106,0 0x100"_s, "A 0,0 100x100"_s}));
}

void PictureTest::rowKeepsProportions()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(3, 606, 100).sequence(horizontal, 2);
    builder.widget("A"_s, visible, {0, 200, 0, 0}).widget("B"_s, visible, {206, 400, 0, 0});
    builder.dockTail(606, 400, {4, 4, 8, 8});
    QCOMPARE(shown(builder),
             (QStringList{"central 0,0 606x400"_s, "A 0,406 200x100"_s, "B 206,406 400x100"_s}));
    QCOMPARE(shown(builder, QSize(306, 306)),
             (QStringList{"central 0,0 306x200"_s, "A 0,206 100x100"_s, "B 106,206 200x100"_s}));
}

// A would get a third of 300, but needs 150.
void PictureTest::rowMindsMinimumSizes()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(3, 606, 100).sequence(horizontal, 2);
    builder.widget("A"_s, visible, {0, 200, 150, 0}).widget("B"_s, visible, {206, 400, 0, 0});
    builder.dockTail(606, 400, {4, 4, 8, 8});
    QCOMPARE(shown(builder, QSize(306, 306)),
             (QStringList{"central 0,0 306x200"_s, "A 0,206 150x100"_s, "B 156,206 150x100"_s}));
    // Both at their minimum, and B can be no larger than 420.
    builder = soundHead().dockSection(1).dock(3, 606, 100).sequence(horizontal, 2);
    builder.widget("A"_s, visible, {0, 200, 0, 16777215})
        .widget("B"_s, visible, {206, 400, 0, 420});
    builder.dockTail(606, 400, {4, 4, 8, 8});
    QCOMPARE(shown(builder, QSize(1006, 506)),
             (QStringList{"central 0,0 1006x400"_s, "A 0,406 580x100"_s, "B 586,406 420x100"_s}));
}

void PictureTest::cornersDecideWhoIsLonger_data()
{
    QTest::addColumn<int>("corner");
    QTest::addColumn<QStringList>("parts");
    QTest::newRow("top") << 4
                         << QStringList{"central 206,106 400x300"_s, "L 0,106 200x300"_s,
                                        "T 0,0 606x100"_s};
    QTest::newRow("left") << 1
                          << QStringList{"central 206,106 400x300"_s, "L 0,0 200x406"_s,
                                         "T 206,0 400x100"_s};
}

void PictureTest::cornersDecideWhoIsLonger()
{
    QFETCH(int, corner);
    const bool isTop = corner == 4;
    BlobBuilder builder = soundHead().dockSection(2);
    builder.dock(0, 200, isTop ? 300 : 406).sequence(vertical, 1);
    builder.widget("L"_s, visible, {isTop ? 106 : 0, isTop ? 300 : 406, 0, 0});
    builder.dock(2, isTop ? 606 : 400, 100).sequence(horizontal, 1);
    builder.widget("T"_s, visible, {isTop ? 0 : 206, isTop ? 606 : 400, 0, 0});
    builder.dockTail(400, 300, {corner, 4, 8, 8});
    QTEST(shown(builder), "parts");
}

void PictureTest::tabsBelowThePage()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 1);
    builder.nested({0, 600, 0, 0}).tabs(1, vertical, 2).widget("A"_s).widget("B"_s);
    builder.dockTail(600, 600, {4, 4, 8, 8});
    const Picture usual((WindowState(builder.blob())));
    QCOMPARE(textOf(usual), (QStringList{"central 206,0 600x600"_s, "B 0,0 200x568"_s}));
    QCOMPARE(usual.parts().last().tabs, (QStringList{"A"_s, "B"_s}));
    QCOMPARE(usual.parts().last().tabBar, QRect(0, 568, 200, 32));
    // The group's largest height tells that of its tabs: 1025 - 1000.
    builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 1);
    builder.nested({0, 600, 0, 1025}).tabs(0, vertical, 2);
    builder.widget("A"_s, visible, {0, -1, 0, 1000}).widget("B"_s, visible, {0, -1, 0, 2000});
    builder.dockTail(600, 600, {4, 4, 8, 8});
    QCOMPARE(shown(builder), (QStringList{"central 206,0 600x600"_s, "A 0,0 200x575"_s}));
}

void PictureTest::oneOpenPageHasNoTabs()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 1);
    builder.nested({0, 600, 0, 0}).tabs(1, vertical, 2).widget("A"_s).widget("B"_s, 0);
    builder.dockTail(600, 600, {4, 4, 8, 8});
    const Picture picture((WindowState(builder.blob())));
    QCOMPARE(textOf(picture), (QStringList{"central 206,0 600x600"_s, "A 0,0 200x600"_s}));
    QCOMPARE(picture.parts().last().tabs, QStringList());
    QCOMPARE(picture.parts().last().tabBar, QRect());
}

void PictureTest::pageInFront_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("front");
    QTest::newRow("first") << 0 << "A"_s;
    QTest::newRow("closed") << 1 << "A"_s;
    QTest::newRow("last") << 2 << "C"_s;
    QTest::newRow("too large") << 3 << "A"_s;
    QTest::newRow("negative") << -1 << "A"_s;
}

void PictureTest::pageInFront()
{
    QFETCH(int, index);
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 1);
    builder.nested({0, 600, 0, 0}).tabs(index, vertical, 3);
    builder.widget("A"_s).widget("B"_s, 0).widget("C"_s).dockTail(600, 600, {4, 4, 8, 8});
    QTEST(Picture(WindowState(builder.blob())).parts().last().name, "front");
}

// Splitting a dock widget that is a tab makes a window write this: the block takes room, but Qt has
// no tab for it.
void PictureTest::blockAmongTabsIsNotSeen()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(3, 600, 100).sequence(horizontal, 1);
    builder.nested({0, 600, 0, 0}).tabs(0, horizontal, 2).nested().sequence(vertical, 1);
    builder.widget("A"_s).widget("B"_s, 0).dockTail(600, 494, {4, 4, 8, 8});
    QCOMPARE(shown(builder), QStringList("central 0,0 600x494"_s));
}

void PictureTest::closedPartsAreNotThere()
{
    BlobBuilder builder = soundHead().dockSection(2).dock(0, 0, 0).sequence(vertical, 3);
    builder.widget("closed"_s, 0).widget("closed window"_s, 2, {9, 9, 90, 90});
    builder.nested().sequence(horizontal, 1).widget("closed inside"_s, 0);
    builder.dock(1, 0, 0).sequence(vertical, 0).dockTail(600, 600, {4, 4, 8, 8});
    builder.toolBarSection(1).line(2, 1).toolBar("hidden"_s, 0);
    QCOMPARE(shown(builder), QStringList("central 0,0 600x600"_s));
}

// Merging repeats the items of earlier records; a window has each dock widget once.
void PictureTest::repeatedPartsAreThereOnce()
{
    BlobBuilder builder = soundHead().dockSection(2).dock(0, 100, 600).sequence(vertical, 1);
    builder.widget("A"_s, visible, {0, 600, 0, 0}).dock(1, 100, 600).sequence(vertical, 2);
    builder.widget("A"_s, visible, {0, 600, 0, 0}).widget("B"_s, visible, {0, 600, 0, 0});
    builder.dockTail(600, 600, {4, 4, 8, 8}).toolBarSection(2).line(2, 1).toolBar("T"_s);
    builder.line(3, 2).toolBar("T"_s).toolBar("U"_s);
    QCOMPARE(shown(builder),
             (QStringList{"central 106,36 600x600"_s, "A 0,36 100x600"_s, "B 712,36 100x600"_s,
                          "T 0,0 812x36"_s, "U 0,636 812x36"_s}));
}

void PictureTest::separatorFromPositions()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 2);
    builder.widget("A"_s, visible, {0, 296, 0, 0}).widget("B"_s, visible, {300, 300, 0, 0});
    builder.dockTail(600, 600, {4, 4, 8, 8});
    QCOMPARE(shown(builder),
             (QStringList{"central 204,0 600x600"_s, "A 0,0 200x296"_s, "B 0,300 200x300"_s}));
}

// The first dock widget at the left begins 50 pixels down: two lines of 25 pixels.
void PictureTest::toolBarsAtTheEdges()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 1);
    builder.widget("A"_s, visible, {50, 600, 0, 0}).dockTail(600, 600, {4, 4, 8, 8});
    builder.toolBarSection(5).line(0, 1).toolBar("left"_s, 3).line(1, 1).toolBar("right"_s, 3);
    builder.line(2, 2).toolBar("one"_s, 1, {0, -1, 0, 0}).toolBar("two"_s, 1, {90, -1, 0, 0});
    builder.line(2, 1).toolBar("three"_s).line(3, 1).toolBar("bottom"_s);
    QCOMPARE(shown(builder),
             (QStringList{"central 242,50 600x600"_s, "A 36,50 200x600"_s, "left 0,50 36x600"_s,
                          "right 842,50 36x600"_s, "one 0,0 90x25"_s, "two 90,0 788x25"_s,
                          "three 0,25 878x25"_s, "bottom 0,650 878x25"_s}));
}

void PictureTest::toolBarLinesFromTheEdge()
{
    BlobBuilder builder = soundHead().dockSection(0).dockTail(600, 600, {4, 4, 8, 8});
    builder.toolBarSection(4).line(3, 1).toolBar("edge"_s).line(3, 0).line(3, 1).toolBar("inner"_s);
    builder.line(1, 3).toolBar("a"_s, 3).toolBar("b"_s, 2).toolBar("c"_s, 3);
    QCOMPARE(shown(builder),
             (QStringList{"central 0,0 600x600"_s, "a 600,0 36x300"_s, "c 600,300 36x300"_s,
                          "edge 0,636 636x36"_s, "inner 0,600 636x36"_s}));
}

// As a window packs it: bit 0, then x + 0x7FFF and the width; y + 0x7FFF and the height.
void PictureTest::floatingToolBar()
{
    const int first = (99 << 17) | ((70 + 0x7FFF) << 1) | 1;
    const int second = (36 << 16) | (80 + 0x7FFF);
    BlobBuilder builder = soundHead().dockSection(0).dockTail(600, 600, {4, 4, 8, 8});
    builder.toolBarSection(1).line(2, 1).toolBar("T"_s, 3, {0, -1, first, second});
    const Picture picture((WindowState(builder.blob())));
    QCOMPARE(textOf(picture), (QStringList{"central 0,0 600x600"_s, "T 70,80 99x36"_s}));
    QVERIFY(picture.parts().last().isFloating);
    QVERIFY(picture.parts().last().isVertical);
}

void PictureTest::floatingLeftOfTheWindow()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 0, 0).sequence(vertical, 1);
    builder.widget("F"_s, floating, {-50, 100, 160, 600}).dockTail(600, 600, {4, 4, 8, 8});
    const Picture picture((WindowState(builder.blob())));
    QCOMPARE(picture.size(), QSize(650, 700));
    QCOMPARE(picture.window(), QRect(50, 0, 600, 600));
    QCOMPARE(textOf(picture), (QStringList{"central 50,0 600x600"_s, "F 0,100 160x600"_s}));
    QCOMPARE(picture.parts().last().kind, Kind::FloatingWindow);
}

// A window keeps the places of both in a side, closed, and the section of the group opens them.
void PictureTest::floatingTabGroup()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 0, 0).sequence(vertical, 2);
    builder.widget("A"_s, 0, {0, -1, 0, 0}).widget("B"_s, 0, {0, -1, 0, 0});
    builder.dockTail(600, 600, {4, 4, 8, 8}).byte(0xF9).ints({10, 20, 209, 319});
    builder.tabs(1, horizontal, 2).widget("A"_s).widget("B"_s).toolBarSection(0);
    const Picture picture((WindowState(builder.blob())));
    QCOMPARE(textOf(picture), (QStringList{"central 0,0 600x600"_s, "B 10,20 200x300"_s}));
    QCOMPARE(picture.parts().last().kind, Kind::FloatingWindow);
    QCOMPARE(picture.parts().last().tabs, (QStringList{"A"_s, "B"_s}));
    QCOMPARE(picture.parts().last().tabBar, QRect(10, 288, 200, 32));
}

// With nested docks, a floating window can hold dock widgets beside each other.
void PictureTest::floatingRow()
{
    BlobBuilder builder = soundHead().dockSection(0).dockTail(600, 600, {4, 4, 8, 8});
    builder.byte(0xF9).ints({10, 20, 215, 119}).sequence(horizontal, 2);
    builder.widget("A"_s, visible, {0, 150, 0, 0}).widget("B"_s, visible, {156, 50, 0, 0});
    const Picture picture((WindowState(builder.blob())));
    QCOMPARE(textOf(picture), (QStringList{"central 0,0 600x600"_s, "A 10,20 206x100"_s,
                                           "A 10,20 150x100"_s, "B 166,20 50x100"_s}));
    QCOMPARE(picture.parts()[1].kind, Kind::FloatingWindow);
    QCOMPARE(picture.parts()[2].kind, Kind::DockWidget);
}

// What is above the first dock widget and more than tool bars need is the menu bar's.
void PictureTest::menuBarFromPositions()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 1);
    builder.widget("A"_s, visible, {58, 600, 0, 0}).dockTail(600, 600, {4, 4, 8, 8});
    builder.toolBarSection(1).line(2, 1).toolBar("T"_s);
    QCOMPARE(shown(builder),
             (QStringList{"central 206,58 600x600"_s, "A 0,58 200x600"_s, "T 0,22 806x36"_s}));
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::PictureTest)
#include "PictureTest.moc"
