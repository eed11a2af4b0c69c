// SPDX-License-Identifier: MIT
#include "GrownState.h"
#include "StateLines.h"
#include "support/BlobBuilder.h"
#include "support/DeepBlob.h"
#include "support/RecordedBlobs.h"
#include "support/ResourceLimits.h"

#include <panorel/kit/WindowState.h>

#include <QtTest>

namespace Panorel::Tests {

using Kit::WindowState;

/** What is said of a state's faults: which, where and of what part. */
class WindowStateCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(limitStack(mebibyte)); }

    void sound_data();
    void sound();
    void refusedAtOnce_data();
    void refusedAtOnce();
    void malformed_data();
    void malformed();
    void areas();
    void inTheOrderOfTheBytes();
    void floatingTabs();
    void namelessParts();
    void sameNames_data();
    void sameNames();
    void repeats_data();
    void repeats();
    void nesting_data();
    void nesting();
    void size_data();
    void size();
    void recordedOnesAreSound();
};

namespace {

// Such as "repeated-part 55 A"; the name is left out where there is none.
QStringList problemsOf(const QByteArray& blob)
{
    QStringList result;
    for (const Kit::Problem& problem : WindowState(blob).check()) {
        result += identifierOf(problem.code) + " %1"_s.arg(problem.offset);
        if (!problem.detail.isNull())
            result.last() += " "_s + problem.detail;
    }
    return result;
}

BlobBuilder oneDock(qint32 area = 0)
{
    return soundHead().dockSection(1).dock(area, 10, 20);
}

// A sequence in a sequence and so on, @p levels in all, around what follows.
QByteArray levels(int levels)
{
    return BlobBuilder().sequence(1, 1).nested().blob().repeated(levels - 1);
}

} // namespace

void WindowStateCheckTest::sound_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addRow("nothing") << soundHead().blob();
    QTest::addRow("example") << exampleBlob();
    QTest::addRow("other layout version") << soundHead(-7).blob();
    QTest::addRow("front tab that is not there")
        << oneDock().tabs(9, 1, 1).widget("A"_s).dockTail().blob();
    QTest::addRow("unknown orientation")
        << oneDock().sequence(0, 1).widget("A"_s).dockTail().blob();
    QTest::addRow("all flags") << oneDock().sequence(1, 1).widget("A"_s, 255).dockTail().blob();
    QTest::addRow("odd corners")
        << oneDock().sequence(1, 0).dockTail(-1, 1 << 30, {0, 99, -1, 16}).blob();
}

void WindowStateCheckTest::sound()
{
    QFETCH(QByteArray, blob);
    QCOMPARE(problemsOf(blob), QStringList());
    QVERIFY(WindowState(blob).isSound());
}

void WindowStateCheckTest::refusedAtOnce_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addRow("null") << QByteArray();
    QTest::addRow("empty") << QByteArray("");
    QTest::addRow("marker without a version") << "000000FF 0000"_hex;
    QTest::addRow("other marker") << BlobBuilder().head(254, 0).blob();
    QTest::addRow("what merging makes of nothing") << BlobBuilder().head(-1, -1).blob();
}

void WindowStateCheckTest::refusedAtOnce()
{
    QFETCH(QByteArray, blob);
    QCOMPARE(problemsOf(blob), lines({"marker 0"}));
    QVERIFY(!WindowState(blob).isSound());
}

void WindowStateCheckTest::malformed_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<int>("offset");
    QTest::addRow("unknown section") << soundHead().byte(0xFF).blob() << 8;
    QTest::addRow("unknown second section") << exampleBlob() + '\0' << 117;
    QTest::addRow("unknown block") << oneDock().byte(0xFB).blob() << 25;
    QTest::addRow("unknown item") << oneDock().sequence(1, 1).byte(0).blob() << 31;
    QTest::addRow("odd name") << oneDock().sequence(1, 1).byte(0xFB).int32(3).blob() << 32;
    QTest::addRow("cut off in a number") << exampleBlob().left(116) << 101;
}

void WindowStateCheckTest::malformed()
{
    QFETCH(QByteArray, blob);
    QFETCH(int, offset);
    QCOMPARE(problemsOf(blob), QStringList("malformed %1"_s.arg(offset)));
    QVERIFY(!WindowState(blob).isSound());
}

void WindowStateCheckTest::areas()
{
    for (const int area : {-1, 4, 255, 1 << 30}) {
        const QByteArray docks = oneDock(area).sequence(1, 0).dockTail().blob();
        QCOMPARE(problemsOf(docks), lines({"dock-area 13"}));
        QVERIFY(!WindowState(docks).isSound());
        const QByteArray bars = soundHead().toolBarSection(1).line(area, 0).blob();
        QCOMPARE(problemsOf(bars), lines({"tool-bar-area 13"}));
        QVERIFY(WindowState(bars).isSound());
    }
}

void WindowStateCheckTest::inTheOrderOfTheBytes()
{
    BlobBuilder blob = soundHead().toolBarSection(1).line(7, 1).toolBar(QString());
    blob.dockSection(1).dock(9, 1, 1).sequence(1, 1).widget(""_s).dockTail();
    QCOMPARE(problemsOf(blob.blob()),
             lines({"tool-bar-area 13", "nameless-part 21", "dock-area 47", "nameless-part 65"}));
}

void WindowStateCheckTest::floatingTabs()
{
    const QByteArray group = BlobBuilder().byte(0xF9).ints({0, 0, 9, 9}).tabs(0, 1, 0).blob();
    QCOMPARE(problemsOf(soundHead().raw(group + group).blob()),
             lines({"floating-tabs 8", "floating-tabs 35"}));
}

void WindowStateCheckTest::namelessParts()
{
    BlobBuilder blob = oneDock().sequence(1, 2).widget(QString()).widget(""_s).dockTail();
    QCOMPARE(problemsOf(blob.blob()), lines({"nameless-part 31", "nameless-part 53"}));
}

void WindowStateCheckTest::sameNames_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<QStringList>("problems");
    QTest::addRow("in one record")
        << oneDock().sequence(1, 3).widget("A"_s).widget("A"_s).widget("A"_s).dockTail().blob()
        << lines({"repeated-part 55 A"});
    BlobBuilder records = soundHead().dockSection(2);
    records.dock(0, 1, 1).sequence(2, 1).widget("A"_s, 1, {0, 9, 44, 99});
    records.dock(1, 1, 1).sequence(2, 1).widget("A"_s, 1, {0, 9, 44, 99}).dockTail();
    QTest::addRow("alone in two records") << records.blob() << lines({"repeated-part 73 A"});
    BlobBuilder last = soundHead().dockSection(2);
    last.dock(0, 1, 1).sequence(2, 1).widget("A"_s);
    last.dock(1, 1, 1).sequence(2, 2).widget("B"_s).widget("A"_s).dockTail();
    QTest::addRow("after another") << last.blob() << lines({"repeated-part 97 A"});
    BlobBuilder lines2 = soundHead().toolBarSection(2);
    lines2.line(2, 2).toolBar("X"_s).toolBar("X"_s).line(2, 1).toolBar("X"_s);
    QTest::addRow("tool bars") << lines2.blob() << lines({"repeated-part 44 X"});
}

void WindowStateCheckTest::sameNames()
{
    QFETCH(QByteArray, blob);
    QFETCH(QStringList, problems);
    QCOMPARE(problemsOf(blob), problems);
    QVERIFY(WindowState(blob).isSound());
    QCOMPARE(WindowState(blob).tidied(), blob);
}

void WindowStateCheckTest::repeats_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<QStringList>("problems");
    BlobBuilder merged = soundHead().dockSection(2);
    merged.dock(0, 1, 1).sequence(2, 1).widget("A"_s, 1, {0, 9, 44, 99});
    merged.dock(1, 1, 1).sequence(2, 2).widget("A"_s, 1, {0, 9, 44, 99}).widget("B"_s).dockTail();
    QTest::addRow("written by merging") << merged.blob() << lines({"repeats 73"});
    BlobBuilder saved = soundHead().dockSection(2);
    saved.dock(0, 1, 1).sequence(2, 1).widget("A"_s, 1, {0, 9, 44, 99});
    saved.dock(1, 1, 1).sequence(2, 1).widget("A"_s, 1, {0, 9, 0, 0}).dockTail();
    QTest::addRow("place kept by a window") << saved.blob() << lines({"repeats 73"});
    BlobBuilder floating = soundHead().dockSection(2);
    floating.dock(0, 1, 1).sequence(2, 1).widget("A"_s, 3, {5, 6, 70, 80});
    floating.dock(1, 1, 1).sequence(2, 1).widget("A"_s, 3, {0, 0, 70, 80}).dockTail();
    QTest::addRow("floating") << floating.blob() << lines({"repeats 73"});
    BlobBuilder bars = soundHead().toolBarSection(2);
    bars.line(2, 1).toolBar("X"_s).line(2, 2).toolBar("X"_s).toolBar("Y"_s);
    QTest::addRow("tool bars") << bars.blob() << lines({"repeats 52"});
}

void WindowStateCheckTest::repeats()
{
    QFETCH(QByteArray, blob);
    QFETCH(QStringList, problems);
    QCOMPARE(problemsOf(blob), problems);
    QVERIFY(WindowState(blob).isSound());
}

void WindowStateCheckTest::nesting_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<QStringList>("problems");
    const QByteArray full = BlobBuilder().sequence(1, 1).widget("A"_s).blob();
    const auto alone = [](const QByteArray& block) {
        return oneDock().raw(block).dockTail().blob();
    };
    QTest::addRow("at the limit") << alone(levels(100) + full.mid(0)) << QStringList();
    // The 101st block: 25 bytes, 99 levels of 23 bytes, and the item after the last one's head.
    QTest::addRow("one more") << alone(levels(101) + full) << lines({"nesting 2308"});
    QTest::addRow("one more without a dock widget")
        << alone(levels(101) + BlobBuilder().sequence(1, 0).blob()) << lines({"nesting 2308"});
    const QByteArray tabs = BlobBuilder().tabs(0, 1, 1).nested().blob();
    QTest::addRow("tabs count twice")
        << alone(tabs.repeated(49) + BlobBuilder().tabs(0, 1, 1).widget("A"_s).blob())
        << QStringList();
    QTest::addRow("tabs and one more")
        << alone(tabs.repeated(50) + full) << lines({"nesting 1358"});
    // 16 * 50 ^ 4 is 100 ^ 4.
    const auto blocks = [&alone](int deep, int empty) {
        BlobBuilder blob = BlobBuilder().sequence(2, deep + empty);
        for (int i = 0; i < deep; ++i) {
            blob.nested().raw(levels(49)).sequence(1, 1);
            blob.widget(QString::number(i), 1, {0, 9, 44, 99});
        }
        for (int i = 0; i < empty; ++i)
            blob.nested().raw(levels(49)).sequence(1, 1).widget("0"_s);
        return alone(blob.blob());
    };
    QTest::addRow("many deep blocks") << blocks(16, 0) << QStringList();
    // 31 bytes, then a deep block takes 1151 bytes, or 1153 with two digits in the name.
    QTest::addRow("one deep block too many") << blocks(17, 0) << lines({"nesting 19563"});
    QTest::addRow("and empty places") << blocks(16, 9) << lines({"repeats 19586"});
    QTest::addRow("million") << deepBlob(1000000) << lines({"nesting 2308"});
}

void WindowStateCheckTest::nesting()
{
    QFETCH(QByteArray, blob);
    QFETCH(QStringList, problems);
    QCOMPARE(problemsOf(blob), problems);
    QCOMPARE(WindowState(blob).isSound(), problems.filter("nesting"_s).isEmpty());
}

void WindowStateCheckTest::size_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<bool>("isSound");
    const auto records = [](int count) {
        BlobBuilder blob = soundHead().dockSection(count);
        for (int i = 0; i < count; ++i)
            blob.dock(i % 4, 1, 1).sequence(1, 1).widget("A"_s);
        return blob.dockTail().blob();
    };
    const auto rows = [](int count) {
        BlobBuilder blob = soundHead().toolBarSection(count);
        for (int i = 0; i < count; ++i)
            blob.line(2, 1).toolBar(QString::number(i));
        return blob.blob();
    };
    const QByteArray group = BlobBuilder().byte(0xF9).ints({0, 0, 9, 9}).tabs(0, 1, 0).blob();
    // A record or line and its one item are two, so that the sum is count * (count + 1).
    QTest::addRow("300 records") << records(300) << true;
    QTest::addRow("320 records") << records(320) << false;
    QTest::addRow("300 lines") << rows(300) << true;
    QTest::addRow("320 lines") << rows(320) << false;
    QTest::addRow("1000 floating tab groups")
        << soundHead().raw(group.repeated(1000)).blob() << true;
    QTest::addRow("1001 floating tab groups")
        << soundHead().raw(group.repeated(1001)).blob() << false;
    QTest::addRow("many empty sections")
        << soundHead().raw(BlobBuilder().toolBarSection(0).blob().repeated(100001)).blob() << false;
    BlobBuilder many = oneDock().sequence(1, 40000);
    for (int i = 0; i < 40000; ++i)
        many.widget(QString::number(i));
    QTest::addRow("40,000 dock widgets") << many.dockTail().blob() << true;
}

void WindowStateCheckTest::size()
{
    QFETCH(QByteArray, blob);
    QFETCH(bool, isSound);
    QCOMPARE(WindowState(blob).isSound(), isSound);
    QCOMPARE(problemsOf(blob).filter("size "_s).size(), isSound ? 0 : 1);
}

void WindowStateCheckTest::recordedOnesAreSound()
{
    int count = 0;
    for (const char* const folder : {"", "/rejected", "/qt6", "/qt6/rejected"}) {
        const QString path = QFINDTESTDATA("../data/blobs") + QString::fromLatin1(folder);
        for (const RecordedBlob& blob : recordedBlobs(path)) {
            QVERIFY2(WindowState(blob.bytes).isSound(), blob.name.constData());
            QVERIFY2(WindowState(mergedOnce(blob.bytes)).isSound(), blob.name.constData());
            ++count;
        }
    }
    QVERIFY(count > 40);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::WindowStateCheckTest)
#include "WindowStateCheckTest.moc"
