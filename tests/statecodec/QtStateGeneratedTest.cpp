// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/ReferenceReader.h"
#include "support/ResourceLimits.h"
#include "support/StateGenerator.h"

#include <panorel/QtState.h>

#include <QtTest>

namespace Panorel::Tests {

/** Properties that hold of every value, tried on generated ones with fixed seeds. */
class QtStateGeneratedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void writtenBytesHoldTheValue();
    void readingRepeatsTheItems();
    void singleRecordsComeBackUnchanged();
    void copiesAreEqual();
    void mergedBytesAreThoseOfTheParts();
    void smallBlobs_data();
    void smallBlobs();

private:
    MessageWatch m_watch;
};

namespace {

constexpr quint32 seeds = 3000;

/** The value of @p seed; every third has single records only. */
QtState generated(quint32 seed)
{
    QtState state;
    StateGenerator(seed).fill(state, seed % 3 == 0 ? 1 : 4);
    return state;
}

} // namespace

void QtStateGeneratedTest::writtenBytesHoldTheValue()
{
    for (quint32 seed = 0; seed < seeds; ++seed) {
        const QtState state = generated(seed);
        const Reading reading = ReferenceReader::read(state.write(), Records::AsStored);
        QVERIFY2(reading.ok, QByteArray::number(seed).constData());
        const QString text = difference(reading.state, state);
        QVERIFY2(text.isEmpty(), qPrintable(QString::number(seed) + text));
    }
}

void QtStateGeneratedTest::readingRepeatsTheItems()
{
    for (quint32 seed = 0; seed < seeds; ++seed) {
        QtState expected = generated(seed);
        QtState state;
        QVERIFY2(state.read(expected.write()), QByteArray::number(seed).constData());
        accumulate(expected);
        const QString text = difference(state, expected);
        QVERIFY2(text.isEmpty(), qPrintable(QString::number(seed) + text));
    }
}

void QtStateGeneratedTest::singleRecordsComeBackUnchanged()
{
    quint32 unchanged = 0;
    for (quint32 seed = 0; seed < seeds; ++seed) {
        const QtState original = generated(seed);
        QtState state;
        QVERIFY(state.read(original.write()));
        if (!hasSingleRecords(original))
            continue;
        ++unchanged;
        QCOMPARE(difference(state.write(), original.write()), QString());
    }
    QVERIFY(unchanged >= seeds / 3);
}

void QtStateGeneratedTest::copiesAreEqual()
{
    for (quint32 seed = 0; seed < seeds; ++seed) {
        const QtState state = generated(seed);
        const QtState copy(state);
        QCOMPARE(difference(copy, state), QString());
        QCOMPARE(difference(copy.write(), state.write()), QString());
    }
}

void QtStateGeneratedTest::mergedBytesAreThoseOfTheParts()
{
    for (quint32 seed = 0; seed + 1 < seeds; ++seed) {
        QtState a = generated(seed);
        QtState b = generated(seed + 1);
        const QtState merged = QtState::merge(a, b);
        a.m_toolBarAreaLayouts.clear();
        b.m_dockAreaLayouts.clear();
        const QByteArray toolBars = b.isNull() ? QByteArray() : b.write().mid(8);
        QCOMPARE(difference(merged.write(), a.write() + toolBars), QString());
    }
}

void QtStateGeneratedTest::smallBlobs_data()
{
    QTest::addColumn<QByteArray>("start");
    const QByteArray head = QByteArray::fromHex("000000FF 00000000");
    QTest::addRow("nothing") << QByteArray();
    QTest::addRow("head") << head;
    QTest::addRow("dock record") << head + QByteArray::fromHex(
                                               "FD 00000001 00000000 00000001 00000001");
    QTest::addRow("dock record of one item")
        << head + QByteArray::fromHex("FD 00000001 00000000 00000001 00000001 FC 01 00000001");
    QTest::addRow("two dock records, first tabbed")
        << head +
               QByteArray::fromHex("FD 00000002 00000000 00000001 00000001 FA 00000007 01 00000001"
                                   "FB FFFFFFFF 01 00000000 00000000 00000000 00000000"
                                   "00000001 00000001 00000001");
    QTest::addRow("lines") << head + QByteArray::fromHex("FC 00000002");
    QTest::addRow("short lines") << head + QByteArray::fromHex("FE 00000002");
}

// All sequences of up to five pieces of a blob after the given start: what one reader accepts the
// other must accept, and both must hold the same.
void QtStateGeneratedTest::smallBlobs()
{
    QFETCH(QByteArray, start);
    const char* const hex[] = {"00",
                               "FA",
                               "FB",
                               "FC",
                               "FD",
                               "FE",
                               "00000000",
                               "00000001",
                               "00000002",
                               "FFFFFFFF",
                               "01020304 05060708 090A0B0C 0D0E0F10",
                               "00000001 00000002 00000003 00000004 00000005 00000006"};
    std::vector<QByteArray> pieces;
    for (const char* const piece : hex)
        pieces.push_back(QByteArray::fromHex(piece));
    // Five take minutes with AddressSanitizer, and four are too few for some starts to be accepted.
    const std::size_t longest = hasAddressSanitizer ? 4 : 5;
    std::vector<std::size_t> chosen{0};
    int accepted = 0;
    while (!chosen.empty()) {
        QByteArray blob = start;
        for (const std::size_t index : chosen)
            blob += pieces[index];
        const Reading reading = ReferenceReader::read(blob);
        QtState state;
        const bool ok = state.read(blob);
        accepted += ok;
        const QString text = difference(state, reading.state);
        if (ok != reading.ok || !text.isEmpty())
            QFAIL(qPrintable(QString::fromLatin1(blob.toHex(' ')) + text));
        if (chosen.size() < longest) {
            chosen.push_back(0);
            continue;
        }
        while (!chosen.empty() && ++chosen.back() == pieces.size())
            chosen.pop_back();
    }
    QVERIFY(accepted > 0 || hasAddressSanitizer);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateGeneratedTest)
#include "QtStateGeneratedTest.moc"
