// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/MessageWatch.h"
#include "support/RecordedBlobs.h"
#include "support/ReferenceReader.h"
#include "support/ResourceLimits.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <numeric>

namespace Panorel::Tests {

/**
 * Recorded blobs cut off anywhere, with any byte changed, left out or doubled: each is read or
 * refused exactly as by the reference reader, and leaves the same fields.
 */
class QtStateDamageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void truncated_data() { addBlobs(); }
    void truncated();
    void changed_data() { addBlobs(); }
    void changed();
    void byteLeftOutOrDoubled_data() { addBlobs(); }
    void byteLeftOutOrDoubled();

private:
    static void addBlobs();

    MessageWatch m_watch;
};

namespace {

/** Counts the blobs tried, and reports the first that the two readers disagree about. */
class Comparison
{
public:
    void tryBlob(const QByteArray& blob)
    {
        ++m_tried;
        const Reading reading = ReferenceReader::read(blob);
        QtState state;
        const bool ok = state.read(blob);
        m_accepted += ok;
        if (!m_failure.isEmpty())
            return;
        if (ok != reading.ok)
            m_failure = QStringLiteral("The readers disagree");
        else
            m_failure = difference(state, reading.state);
        if (!m_failure.isEmpty())
            m_failure += QStringLiteral(", blob ") + QString::fromLatin1(blob.toHex());
    }

    const QString& failure() const { return m_failure; }
    int tried() const { return m_tried; }
    int accepted() const { return m_accepted; }

private:
    QString m_failure;
    int m_tried = 0;
    int m_accepted = 0;
};

/**
 * The bits to change of each byte: every combination, but where that takes minutes only the single
 * bits and those that lead from 0 or 0xFC to the markers.
 */
std::vector<int> changesFor(const QByteArray& blob)
{
    if (blob.size() > 300 || hasAddressSanitizer)
        return {1, 2, 3, 4, 5, 6, 7, 8, 16, 32, 64, 128, 0xFC, 0xFD, 0xFE, 0xFF};
    std::vector<int> all(255);
    std::iota(all.begin(), all.end(), 1);
    return all;
}

} // namespace

void QtStateDamageTest::addBlobs()
{
    QTest::addColumn<QByteArray>("blob");
    const QString folder = QFINDTESTDATA("../data/blobs");
    QVERIFY(!folder.isEmpty());
    for (const QString& path : {folder, QString(folder + QStringLiteral("/rejected"))}) {
        for (const RecordedBlob& blob : recordedBlobs(path))
            QTest::addRow("%s", blob.name.constData()) << blob.bytes;
    }
    QTest::addRow("example") << exampleBlob();
    BlobBuilder odd = soundHead().shortToolBarSection(2).line(0, 1).shortToolBar("S"_s);
    odd.line(1, 2).shortToolBar(QString()).shortToolBar(QStringLiteral(""));
    odd.dockSection(3).dock(0, 1, 1).tabs(3, 1, 1).widget("A"_s).dock(1, 1, 1).sequence(1, 1);
    odd.nested().tabs(1, 1, 1).widget("B"_s).dock(2, 1, 1).sequence(1, 0).dockTail();
    QTest::addRow("short section first, tabs before sequences") << odd.blob();
}

void QtStateDamageTest::truncated()
{
    QFETCH(QByteArray, blob);
    Comparison comparison;
    for (int size = 0; size < blob.size(); ++size)
        comparison.tryBlob(blob.left(size));
    QCOMPARE(comparison.failure(), QString());
    QCOMPARE(comparison.tried(), blob.size());
    QVERIFY(comparison.accepted() < blob.size());
}

void QtStateDamageTest::changed()
{
    QFETCH(QByteArray, blob);
    const std::vector<int> changes = changesFor(blob);
    Comparison comparison;
    for (int offset = 0; offset < blob.size(); ++offset) {
        for (const int change : changes) {
            QByteArray damaged = blob;
            damaged[offset] = static_cast<char>(static_cast<unsigned char>(blob[offset]) ^ change);
            comparison.tryBlob(damaged);
        }
    }
    QCOMPARE(comparison.failure(), QString());
    QCOMPARE(comparison.tried(), blob.size() * static_cast<int>(changes.size()));
    // The four leading bytes admit no other value at all.
    QVERIFY(comparison.accepted() <= (comparison.tried() / blob.size()) * (blob.size() - 4));
}

void QtStateDamageTest::byteLeftOutOrDoubled()
{
    QFETCH(QByteArray, blob);
    Comparison comparison;
    for (int offset = 0; offset < blob.size(); ++offset) {
        comparison.tryBlob(QByteArray(blob).remove(offset, 1));
        comparison.tryBlob(QByteArray(blob).insert(offset, blob[offset]));
    }
    QCOMPARE(comparison.failure(), QString());
    QCOMPARE(comparison.tried(), blob.size() * 2);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateDamageTest)
#include "QtStateDamageTest.moc"
