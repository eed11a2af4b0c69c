// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/RecordedBlobs.h"
#include "support/ReferenceReader.h"

#include <panorel/QtState.h>

#include <QtTest>

namespace Panorel::Tests {

/** Blobs of real windows. Every file in tests/data/blobs, those of Qt 6 too, is a case. */
class QtStateRecordedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void read_data();
    void read();
    void write_data();
    void write();
    void readAgain_data();
    void readAgain();
    void rejected_data();
    void rejected();
    void floatingTabGroupEndsTheReading_data();
    void floatingTabGroupEndsTheReading();

private:
    MessageWatch m_watch;
};

namespace {

void addBlobs(const char* version, const QString& folder)
{
    QVERIFY(!folder.isEmpty());
    for (const RecordedBlob& blob : recordedBlobs(folder)) {
        QVERIFY2(!blob.bytes.isEmpty(), blob.name.constData());
        QTest::addRow("%s %s", version, blob.name.constData()) << blob.bytes;
    }
}

} // namespace

void QtStateRecordedTest::read_data()
{
    QTest::addColumn<QByteArray>("blob");
    addBlobs("Qt 5", QFINDTESTDATA("../data/blobs"));
    addBlobs("Qt 6", QFINDTESTDATA("../data/blobs/qt6"));
}

void QtStateRecordedTest::read()
{
    QFETCH(QByteArray, blob);
    QtState state;
    QVERIFY(state.read(blob));
    const Reading reading = ReferenceReader::read(blob);
    QVERIFY(reading.ok);
    QCOMPARE(difference(state, reading.state), QString());
    QVERIFY(!state.isNull());
    // A window writes one section of each kind.
    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(1));
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(1));
    QCOMPARE(state.m_toolBarAreaLayouts[0].extended, true);
}

void QtStateRecordedTest::write_data()
{
    read_data();
}

// Single records come back byte for byte; of several the later ones hold the items of those before.
void QtStateRecordedTest::write()
{
    QFETCH(QByteArray, blob);
    QtState state;
    QVERIFY(state.read(blob));
    Reading stored = ReferenceReader::read(blob, Records::AsStored);
    if (hasSingleRecords(stored.state)) {
        QCOMPARE(difference(state.write(), blob), QString());
        return;
    }
    accumulate(stored.state);
    const Reading written = ReferenceReader::read(state.write(), Records::AsStored);
    QVERIFY(written.ok);
    QCOMPARE(difference(written.state, stored.state), QString());
}

void QtStateRecordedTest::readAgain_data()
{
    read_data();
}

void QtStateRecordedTest::readAgain()
{
    QFETCH(QByteArray, blob);
    QtState state;
    QVERIFY(state.read(blob));
    QtState again;
    QVERIFY(again.read(state.write()));
    QtState expected(state);
    accumulate(expected);
    QCOMPARE(difference(again, expected), QString());
}

void QtStateRecordedTest::rejected_data()
{
    QTest::addColumn<QByteArray>("blob");
    addBlobs("Qt 5", QFINDTESTDATA("../data/blobs/rejected"));
    addBlobs("Qt 6", QFINDTESTDATA("../data/blobs/qt6/rejected"));
}

void QtStateRecordedTest::rejected()
{
    QFETCH(QByteArray, blob);
    QtState state;
    QVERIFY(!state.read(blob));
    const Reading reading = ReferenceReader::read(blob);
    QVERIFY(!reading.ok);
    QCOMPARE(difference(state, reading.state), QString());
}

void QtStateRecordedTest::floatingTabGroupEndsTheReading_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addRow("Qt 5") << QFINDTESTDATA("../data/blobs/rejected/floating-tabs.blob");
    QTest::addRow("Qt 6") << QFINDTESTDATA("../data/blobs/qt6/rejected/floating-tabs.blob");
}

// The group's marker 0xF9 is not that of a section. The dock areas come before it and stay; the
// tool bars follow it and are lost.
void QtStateRecordedTest::floatingTabGroupEndsTheReading()
{
    QFETCH(QString, fileName);
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QtState state;
    QVERIFY(!state.read(file.readAll()));
    QCOMPARE(state.m_versionMarker, 255);
    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(1));
    QCOMPARE(state.m_dockAreaLayouts[0].docks.at(0).block.items.size(), std::size_t(2));
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateRecordedTest)
#include "QtStateRecordedTest.moc"
