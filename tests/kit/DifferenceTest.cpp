// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/DeepBlob.h"

#include <panorel/kit/Difference.h>
#include <panorel/kit/WindowState.h>

#include <QRect>
#include <QSize>
#include <QtTest>

namespace Panorel::Tests {

using Kit::Difference;
using Kit::WindowState;

/** Differences of hand-built states. */
class DifferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameLook_data();
    void sameLook();
    void docks_data();
    void docks();
    void toolBars_data();
    void toolBars();
    void unreadableHasNoParts();
    void millionParts();
};

namespace {

constexpr int horizontal = 1;
constexpr int vertical = 2;
constexpr int visible = 1;
constexpr int floating = 3;

QString textOf(const QVariant& value)
{
    switch (value.type()) {
    case QVariant::StringList:
        return u'[' + value.toStringList().join(u',') + u']';
    case QVariant::Rect:
        return "%1,%2"_s.arg(value.toRect().x()).arg(value.toRect().y());
    case QVariant::Size:
        return "%1x%2"_s.arg(value.toSize().width()).arg(value.toSize().height());
    default:
        return value.toString();
    }
}

/** "dock A area left right" and so on. */
QStringList found(const QByteArray& a, const QByteArray& b)
{
    QStringList lines;
    for (const Difference& difference : differences(WindowState(a), WindowState(b))) {
        const QStringList words{identifierOf(difference.part), difference.name,
                                identifierOf(difference.aspect), textOf(difference.from),
                                textOf(difference.to)};
        lines += words.join(u' ').simplified();
    }
    return lines;
}

QByteArray dock(const char* name, int from, int extent, int flags = visible)
{
    return BlobBuilder().widget(QString::fromLatin1(name), flags, {from, extent, 0, 0}).blob();
}

QByteArray window(const char* name, int x, int y, int width, int height)
{
    return BlobBuilder().widget(QString::fromLatin1(name), floating, {x, y, width, height}).blob();
}

QByteArray row(int from, int extent, const QByteArrayList& items)
{
    return BlobBuilder().nested({from, extent, 0, 0}).sequence(horizontal, items.size()).blob() +
           items.join();
}

QByteArray column(int from, int extent, const QByteArrayList& items)
{
    return BlobBuilder().nested({from, extent, 0, 0}).sequence(vertical, items.size()).blob() +
           items.join();
}

QByteArray tabs(int front, int from, int extent, const QByteArrayList& items)
{
    return BlobBuilder().nested({from, extent, 0, 0}).tabs(front, vertical, items.size()).blob() +
           items.join();
}

QByteArray side(int area, int width, int height, int orientation, const QByteArrayList& items)
{
    return BlobBuilder().dock(area, width, height).sequence(orientation, items.size()).blob() +
           items.join();
}

/** 600 high; the left side is 200 wide. */
QByteArray left(const QByteArrayList& items)
{
    return side(0, 200, 600, vertical, items);
}

QByteArray state(const QByteArrayList& sides, int version = 0)
{
    return soundHead(version)
        .dockSection(sides.size())
        .raw(sides.join())
        .dockTail(600, 600, {4, 4, 8, 8})
        .blob();
}

struct Bar
{
    const char* name;
    int position = 0;
    int length = -1;
    int flags = 1;
    int first = 0;
    int second = 0;
};

QByteArray line(int area, std::initializer_list<Bar> bars)
{
    BlobBuilder builder;
    builder.line(area, static_cast<qint32>(bars.size()));
    for (const Bar& bar : bars)
        builder.toolBar(QString::fromLatin1(bar.name), bar.flags,
                        {bar.position, bar.length, bar.first, bar.second});
    return builder.blob();
}

QByteArray bars(const QByteArrayList& lines)
{
    return soundHead().toolBarSection(lines.size()).raw(lines.join()).blob();
}

} // namespace

void DifferenceTest::sameLook_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    const QByteArray one = state({left({dock("A", 0, 600)})});
    QTest::newRow("same bytes") << one << one;
    QTest::newRow("version") << one << state({left({dock("A", 0, 600)})}, 7);
    QTest::newRow("repeats")
        << state({left({dock("A", 0, 600)}), side(1, 100, 600, vertical, {dock("B", 0, 600)})})
        << state({left({dock("A", 0, 600)}),
                  side(1, 100, 600, vertical, {dock("A", 0, 600), dock("B", 0, 600)})});
    QTest::newRow("within a tenth") << state({left({dock("A", 0, 300), dock("B", 306, 294)})})
                                    << state({left({dock("A", 0, 320), dock("B", 326, 274)})});
    QTest::newRow("place of a closed one")
        << state({left({dock("A", 0, 0, 0)})})
        << state({side(1, 5, 5, vertical, {dock("A", 9, 9, 0)})});
    QTest::newRow("closed windows")
        << state({left({BlobBuilder().widget("A"_s, 2, {1, 2, 3, 4}).blob()})})
        << state({left({BlobBuilder().widget("A"_s, 2, {100, 200, 300, 400}).blob()})});
    QTest::newRow("home of a window")
        << state({left({window("A", 10, 20, 300, 200)})})
        << state({side(3, 5, 5, horizontal, {window("A", 10, 20, 300, 200)})});
    QTest::newRow("window moved by less than a tenth")
        << state({left({window("A", 10, 20, 300, 200)})})
        << state({left({window("A", 40, 40, 300, 200)})});
    QTest::newRow("needless blocks")
        << state({left({dock("A", 0, 300), dock("B", 306, 294)})})
        << state({left({column(
               0, 600,
               {row(0, 600, {column(0, 600, {dock("A", 0, 300), dock("B", 306, 294)})})})})});
    QTest::newRow("column in a column")
        << state({left({dock("A", 0, 196), dock("B", 202, 196), dock("C", 404, 196)})})
        << state({left(
               {dock("A", 0, 196), column(202, 398, {dock("B", 202, 196), dock("C", 404, 196)})})});
    QTest::newRow("alone in a tab group")
        << one << state({left({tabs(0, 0, 600, {dock("A", 0, -1)})})});
    QTest::newRow("corner of nobody") << one
                                      << soundHead()
                                             .dockSection(1)
                                             .raw(left({dock("A", 0, 600)}))
                                             .dockTail(600, 600, {1, 2, 1, 2})
                                             .blob();
    QTest::newRow("window of another size")
        << one
        << soundHead()
               .dockSection(1)
               .raw(side(0, 200, 900, vertical, {dock("A", 0, 900)}))
               .dockTail(1000, 900, {4, 4, 8, 8})
               .blob();
    QTest::newRow("empty lines") << bars({line(2, {{"T"}})})
                                 << bars({line(2, {}), line(2, {{"T"}}), line(3, {})});
    QTest::newRow("hidden bars") << bars({line(2, {{"T"}, {"U", 5, 9, 0}})})
                                 << bars({line(2, {{"T"}}), line(0, {{"U", 0, -1, 0}})});
    QTest::newRow("length of the last bar")
        << bars({line(2, {{"T", 0, 100}})}) << bars({line(2, {{"T", 0, 300}})});
}

void DifferenceTest::sameLook()
{
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    QVERIFY(WindowState(a).isReadable());
    QVERIFY(WindowState(b).isReadable());
    QCOMPARE(found(a, b), QStringList());
}

void DifferenceTest::docks_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<QStringList>("expected");
    const auto row3 = [](const char* name, const QByteArray& a, const QByteArray& b,
                         const QStringList& expected) {
        QTest::newRow(name) << a << b << expected;
    };
    const QByteArray a = dock("A", 0, 600);
    row3("removed and added", state({left({a})}), state({left({dock("B", 0, 600)})}),
         {"dock A removed"_s, "dock B added"_s});
    row3("closed", state({left({dock("A", 0, 297), dock("B", 303, 297)})}),
         state({left({a, dock("B", 0, 0, 0)})}), {"dock B visible true false"_s});
    row3("area", state({left({a})}), state({side(1, 200, 600, vertical, {a})}),
         {"dock A area left right"_s});
    row3("floating", state({left({a})}), state({left({window("A", 10, 20, 300, 200)})}),
         {"dock A floating false true"_s});
    row3("moved window", state({left({window("A", 10, 20, 300, 200)})}),
         state({left({window("A", 41, 20, 300, 200)})}), {"dock A floating 10,20 41,20"_s});
    row3("window moved down", state({left({window("A", 10, 20, 300, 200)})}),
         state({left({window("A", 10, 41, 300, 200)})}), {"dock A floating 10,20 10,41"_s});
    const auto group = [](int orientation) -> QByteArray {
        return state({}) + BlobBuilder().byte(0xF9).ints({10, 20, 309, 219}).blob() +
               BlobBuilder().sequence(orientation, 2).blob() + dock("A", 0, 100) +
               dock("B", 106, 94);
    };
    row3("beside in a window", group(vertical), group(horizontal), {"dock B order below beside"_s});
    row3("into tabs on another side",
         state({left({dock("A", 0, 600)}), side(1, 100, 600, vertical, {dock("B", 0, 600)})}),
         state({left({tabs(0, 0, 600, {dock("A", 0, -1), dock("B", 0, -1)})})}),
         {"dock B area right left"_s, "dock B tabs [] [A]"_s});
    row3(
        "front page closed",
        state({left({tabs(0, 0, 600, {dock("A", 0, -1), dock("B", 0, -1), dock("C", 0, -1)})})}),
        state({left({tabs(2, 0, 600, {dock("A", 0, -1, 0), dock("B", 0, -1), dock("C", 0, -1)})})}),
        {"dock A visible true false"_s});
    row3("higher window", state({left({window("A", 10, 20, 300, 200)})}),
         state({left({window("A", 10, 20, 300, 221)})}), {"dock A size 300x200 300x221"_s});
    row3("wider side", state({left({a})}), state({side(0, 221, 600, vertical, {a})}),
         {"dock A size 200x600 221x600"_s});
    row3("moved splitter", state({left({dock("A", 0, 300), dock("B", 306, 294)})}),
         state({left({dock("A", 0, 331), dock("B", 337, 263)})}),
         {"dock A size 200x300 200x331"_s, "dock B size 200x294 200x263"_s});
    const QByteArray tab = dock("T", 0, -1);
    row3("into tabs", state({left({dock("A", 0, 297), dock("T", 303, 297)})}),
         state({left({tabs(0, 0, 600, {dock("A", 0, -1), tab})})}), {"dock T tabs [] [A]"_s});
    row3(
        "third tab",
        state({left({tabs(0, 0, 297, {dock("A", 0, -1), dock("B", 0, -1)}), dock("T", 303, 297)})}),
        state({left({tabs(0, 0, 600, {dock("A", 0, -1), dock("B", 0, -1), tab})})}),
        {"dock T tabs [] [A,B]"_s});
    row3("front", state({left({tabs(0, 0, 600, {dock("A", 0, -1), tab})})}),
         state({left({tabs(1, 0, 600, {dock("A", 0, -1), tab})})}), {"dock T tabs [A] [T]"_s});
    row3("order of tabs",
         state({left({tabs(0, 0, 600, {dock("A", 0, -1), dock("B", 0, -1), tab})})}),
         state({left({tabs(1, 0, 600, {tab, dock("A", 0, -1), dock("B", 0, -1)})})}),
         {"dock T order 2 0"_s});
    const QByteArray b = dock("B", 203, 197);
    const QByteArray c = dock("C", 403, 197);
    row3("order", state({left({dock("A", 0, 197), b, c})}),
         state({left({dock("C", 0, 197), dock("A", 203, 197), dock("B", 403, 197)})}),
         {"dock C order 2 0"_s});
    row3("beside", state({left({dock("A", 0, 300), dock("B", 306, 294)})}),
         state({left({row(0, 600, {dock("A", 0, 97), dock("B", 103, 97)})})}),
         {"dock B order below beside"_s});
    row3("in another row",
         state({left({row(0, 297, {dock("A", 0, 97), dock("B", 103, 97)}), dock("C", 303, 297)})}),
         state({left({row(
             0, 600,
             {dock("A", 0, 97), column(103, 97, {dock("B", 0, 297), dock("C", 303, 297)})})})}),
         {"dock C order below below"_s});
    const QByteArray top = side(2, 806, 100, horizontal, {dock("T", 0, 806)});
    const QByteArray shortTop = side(2, 600, 100, horizontal, {dock("T", 206, 600)});
    row3("corner",
         soundHead().dockSection(2).raw(left({a}) + top).dockTail(600, 600, {4, 4, 8, 8}).blob(),
         soundHead()
             .dockSection(2)
             .raw(side(0, 200, 706, vertical, {dock("A", 0, 706)}) + shortTop)
             .dockTail(600, 600, {1, 4, 8, 8})
             .blob(),
         {"dock A size 200x600 200x706"_s, "dock T size 806x100 600x100"_s});
    // By less than a tenth: 600 and 826 pixels by 20 and 26.
    row3("corner of narrow sides",
         soundHead()
             .dockSection(2)
             .raw(side(0, 20, 600, vertical, {dock("A", 20, 600)}))
             .raw(side(2, 826, 14, horizontal, {dock("T", 0, 826)}))
             .dockTail(800, 600, {4, 4, 8, 8})
             .blob(),
         soundHead()
             .dockSection(2)
             .raw(side(0, 20, 620, vertical, {dock("A", 0, 620)}))
             .raw(side(2, 800, 14, horizontal, {dock("T", 26, 800)}))
             .dockTail(800, 600, {1, 4, 8, 8})
             .blob(),
         {"dock A size 20x600 20x620"_s, "dock T size 826x14 800x14"_s});
}

void DifferenceTest::docks()
{
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    QVERIFY(WindowState(a).isReadable());
    QVERIFY(WindowState(b).isReadable());
    QTEST(found(a, b), "expected");
}

void DifferenceTest::toolBars_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<QStringList>("expected");
    const QByteArray three = bars({line(2, {{"T"}, {"U", 50}, {"V", 90}})});
    const auto row2 = [](const char* name, const QByteArray& a, const QByteArray& b,
                         const QStringList& expected) {
        QTest::newRow(name) << a << b << expected;
    };
    row2("added", bars({}), bars({line(2, {{"T"}})}), {"toolBar T added"_s});
    row2("removed", bars({line(2, {{"T"}})}), bars({}), {"toolBar T removed"_s});
    row2("hidden", three, bars({line(2, {{"T", 0, -1, 0}, {"U"}, {"V", 40}})}),
         {"toolBar T visible true false"_s});
    row2("area", bars({line(2, {{"T"}})}), bars({line(0, {{"T", 0, -1, 3}})}),
         {"toolBar T area top left"_s});
    row2("line", three, bars({line(2, {{"T"}, {"U", 50}}), line(2, {{"V"}})}),
         {"toolBar V line 0 1"_s});
    row2("lines change places",
         bars({line(2, {{"T"}}), line(2, {{"U"}, {"V", 50}}), line(2, {{"W"}})}),
         bars({line(2, {{"W"}}), line(2, {{"T"}}), line(2, {{"U"}, {"V", 50}})}),
         {"toolBar W line 2 0"_s});
    row2("order", three, bars({line(2, {{"V"}, {"T", 40}, {"U", 90}})}), {"toolBar V order 2 0"_s});
    row2("length", three, bars({line(2, {{"T", 0, 70}, {"U", 70}, {"V", 110}})}),
         {"toolBar T size 50 70"_s});
    const int first = (99 << 17) | ((70 + 0x7FFF) << 1) | 1;
    const int second = (36 << 16) | (80 + 0x7FFF);
    row2("floating", bars({line(2, {{"T"}})}), bars({line(2, {{"T", 0, -1, 1, first, second}})}),
         {"toolBar T floating false true"_s});
    row2("moved", bars({line(2, {{"T", 0, -1, 1, first, second}})}),
         bars({line(2, {{"T", 0, -1, 1, first, second + 10}})}),
         {"toolBar T floating 70,80 70,90"_s});
}

void DifferenceTest::toolBars()
{
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    QVERIFY(WindowState(a).isReadable());
    QVERIFY(WindowState(b).isReadable());
    QTEST(found(a, b), "expected");
}

void DifferenceTest::unreadableHasNoParts()
{
    const QByteArray one = state({left({dock("A", 0, 600)})});
    QCOMPARE(found(QByteArray(), one.chopped(1)), QStringList());
    QCOMPARE(found(one, one.chopped(1)), QStringList("dock A removed"_s));
}

// Nested blocks, and very many parts in one list, of which nothing is where it was.
void DifferenceTest::millionParts()
{
    QCOMPARE(found(deepBlob(300000), deepBlob(300000)), QStringList());
    QByteArrayList names;
    for (int i = 0; i < 20000; ++i)
        names.append(dock(QByteArray::number(i).constData(), i, 1));
    const QByteArray apart = state({left(names)});
    const QByteArray together = state({left({tabs(0, 0, 600, names)})});
    // All but the one to which the others came.
    QCOMPARE(differences(WindowState(apart), WindowState(together)).size(), 19999);
    std::reverse(names.begin(), names.end());
    QVERIFY(!differences(WindowState(apart), WindowState(state({left(names)}))).isEmpty());
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::DifferenceTest)
#include "DifferenceTest.moc"
