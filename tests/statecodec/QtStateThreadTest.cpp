// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/RecordedBlobs.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

namespace Panorel::Tests {

/** Values of their own in several threads at once: nothing is shared between them. */
class QtStateThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void worksInSeveralThreads();
};

namespace {

// Each thread has another layout version, so that what another thread has read is noticed.
QByteArray blobOf(int thread)
{
    QByteArray blob = exampleBlob();
    blob[7] = static_cast<char>(thread);
    return blob;
}

bool isReadAndWritten(const QByteArray& blob)
{
    QtState state;
    if (!state.read(blob))
        return false;
    const QtState copy(state);
    return copy.write() == blob && QtState::merge(copy, state).write() == blob;
}

} // namespace

void QtStateThreadTest::worksInSeveralThreads()
{
    std::atomic<int> good{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&good, blob = blobOf(i)] {
            bool isGood = true;
            for (int round = 0; round < 5000; ++round)
                isGood = isReadAndWritten(blob) && isGood;
            good += isGood ? 1 : 0;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(good.load(), 4);
}

} // namespace Panorel::Tests

QTEST_APPLESS_MAIN(Panorel::Tests::QtStateThreadTest)
#include "QtStateThreadTest.moc"
