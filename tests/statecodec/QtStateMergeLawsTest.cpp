// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/StateGenerator.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <functional>
#include <vector>

namespace Panorel::Tests {

/** What merging obeys whatever it is given, tried on generated values with fixed seeds. */
class QtStateMergeLawsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void law_data();
    void law();
    void isNotCommutative();
    void associativityFailsAroundANull();

private:
    MessageWatch m_watch;
};

namespace {

using Law = std::function<QString(const QtState& a, const QtState& b, const QtState& c)>;

constexpr quint32 seeds = 1500;

/** The value of @p seed; every fifth is null and yet full, every seventh is empty. */
QtState generated(quint32 seed)
{
    QtState state;
    if (seed % 7 == 0)
        return state;
    StateGenerator(seed).fill(state, 3);
    if (seed % 5 == 0)
        state.m_version = -1;
    return state;
}

QtState withoutToolBars(QtState state)
{
    state.m_toolBarAreaLayouts.clear();
    return state;
}

QString same(const QtState& actual, const QtState& expected)
{
    const QString values = difference(actual, expected);
    return values.isEmpty() ? difference(actual.write(), expected.write()) : values;
}

struct NamedLaw
{
    const char* name;
    Law differenceOf;
};

const std::vector<NamedLaw>& laws()
{
    static const std::vector<NamedLaw> all{
        {"docks, marker and version are the first's",
         [](const QtState& a, const QtState& b, const QtState&) {
             return same(withoutToolBars(QtState::merge(a, b)), withoutToolBars(a));
         }},
        {"tool bars are the second's unless it is null",
         [](const QtState& a, const QtState& b, const QtState&) {
             QtState expected = withoutToolBars(a);
             if (!b.isNull())
                 expected.m_toolBarAreaLayouts = b.m_toolBarAreaLayouts;
             return same(QtState::merge(a, b), expected);
         }},
        {"a value that is not null, with itself, stays",
         [](const QtState& a, const QtState&, const QtState&) {
             return a.isNull() ? QString() : same(QtState::merge(a, a), a);
         }},
        {"a null value, with itself, loses its tool bars",
         [](const QtState& a, const QtState&, const QtState&) {
             return a.isNull() ? same(QtState::merge(a, a), withoutToolBars(a)) : QString();
         }},
        {"an empty second takes the tool bars",
         [](const QtState& a, const QtState&, const QtState&) {
             return same(QtState::merge(a, QtState()), withoutToolBars(a));
         }},
        {"the second again changes nothing",
         [](const QtState& a, const QtState& b, const QtState&) {
             return same(QtState::merge(QtState::merge(a, b), b), QtState::merge(a, b));
         }},
        {"only the last tool bars count",
         [](const QtState& a, const QtState& b, const QtState& c) {
             return same(QtState::merge(QtState::merge(a, b), c), QtState::merge(a, c));
         }},
        {"associative unless the middle is null and the last is not",
         [](const QtState& a, const QtState& b, const QtState& c) {
             if (b.isNull() && !c.isNull())
                 return QString();
             return same(QtState::merge(a, QtState::merge(b, c)),
                         QtState::merge(QtState::merge(a, b), c));
         }},
        {"a null middle takes the last tool bars with it",
         [](const QtState& a, const QtState& b, const QtState& c) {
             if (!b.isNull())
                 return QString();
             return same(QtState::merge(a, QtState::merge(b, c)), withoutToolBars(a));
         }}};
    return all;
}

} // namespace

void QtStateMergeLawsTest::law_data()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < laws().size(); ++i)
        QTest::addRow("%s", laws()[i].name) << static_cast<int>(i);
}

void QtStateMergeLawsTest::law()
{
    QFETCH(int, index);
    const Law& differenceOf = laws()[static_cast<std::size_t>(index)].differenceOf;
    for (quint32 seed = 0; seed < seeds; ++seed) {
        // Steps that meet every combination of full, null and empty.
        const QString found =
            differenceOf(generated(seed), generated(seed * 3 + 1), generated(seed * 11 + 2));
        QVERIFY2(found.isEmpty(), qPrintable(QString::number(seed) + u' ' + found));
    }
}

void QtStateMergeLawsTest::isNotCommutative()
{
    const QtState a = generated(1);
    const QtState b = generated(2);
    QVERIFY(!same(QtState::merge(a, b), QtState::merge(b, a)).isEmpty());
}

// The inner pair is null for its first, so its tool bars are not asked for.
void QtStateMergeLawsTest::associativityFailsAroundANull()
{
    QtState tools;
    tools.m_version = 0;
    tools.m_toolBarAreaLayouts.emplace_back();
    const QtState docks = generated(1);
    const QtState inner = QtState::merge(docks, QtState::merge(QtState(), tools));
    const QtState outer = QtState::merge(QtState::merge(docks, QtState()), tools);
    QCOMPARE(inner.m_toolBarAreaLayouts.size(), std::size_t(0));
    QCOMPARE(outer.m_toolBarAreaLayouts.size(), std::size_t(1));
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateMergeLawsTest)
#include "QtStateMergeLawsTest.moc"
