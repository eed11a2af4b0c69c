// SPDX-License-Identifier: MIT
#include "support/DamagedState.h"
#include "support/ArrangementGenerator.h"
#include "support/RecordedBlobs.h"

#include <QtTest>

namespace Panorel::Tests {

using Kit::WindowState;

/**
 * A damaged state that check() lets through neither crashes a window nor keeps it from ending, and
 * one that crashes it is found. tools/DamageBlobs tries thousands.
 */
class DamagedStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void soundOnesSurvive();
    void letThroughOnesSurvive();
    void crashingOneIsFound();

private:
    QVector<QByteArray> states() const;
};

QVector<QByteArray> DamagedStateTest::states() const
{
    QVector<QByteArray> states;
    for (const char* const folder : {"", "/rejected"}) {
        const QString path = QFINDTESTDATA("../data/blobs") + QString::fromLatin1(folder);
        for (const RecordedBlob& blob : recordedBlobs(path))
            states.append(blob.bytes);
    }
    for (quint32 seed = 0; states.size() < 30; ++seed) {
        const QByteArray state = ArrangedWindow(seed).saveState();
        if (!WindowState(state).floatingTabs().isEmpty())
            states.append(state);
    }
    return states;
}

void DamagedStateTest::soundOnesSurvive()
{
    for (const QByteArray& state : states()) {
        QVERIFY(WindowState(state).isSound());
        QVERIFY(survives(WindowState(state), state, /*isShownBefore=*/true));
    }
}

void DamagedStateTest::letThroughOnesSurvive()
{
    const QVector<QByteArray> sound = states();
    QRandomGenerator random(7);
    int letThrough = 0;
    for (int i = 0; i < 600; ++i) {
        const QByteArray& state = sound[random.bounded(sound.size())];
        const auto damage = static_cast<Damage>(random.bounded(damages));
        const QByteArray bad = damaged(state, damage, random);
        if (!WindowState(bad).isSound())
            continue;
        ++letThrough;
        QVERIFY2(survives(WindowState(state), bad, i % 2 == 0), bad.toHex().constData());
    }
    QVERIFY(letThrough > 50);
}

// Otherwise the tests above could not fail.
void DamagedStateTest::crashingOneIsFound()
{
    const QByteArray sound = ArrangedWindow(2, 0).saveState();
    QByteArray bad = sound;
    bad[13] = '\x70'; // the side of the first dock record
    QVERIFY(!WindowState(bad).isSound());
    QVERIFY(!survives(WindowState(sound), bad, /*isShownBefore=*/true));
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::DamagedStateTest)
#include "DamagedStateTest.moc"
