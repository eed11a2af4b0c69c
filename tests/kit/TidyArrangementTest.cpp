// SPDX-License-Identifier: MIT
#include "GrownState.h"
#include "support/ArrangementGenerator.h"
#include "support/RecordedBlobs.h"
#include "support/ShownArrangement.h"

#include <panorel/kit/WindowState.h>

#include <QtTest>

#include <memory>

namespace Panorel::Tests {

using Kit::WindowState;

/** A window makes the same of a tidied state as of the grown one, over many arrangements. */
class TidyArrangementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void generated_data();
    void generated();
    void recorded_data();
    void recorded();
    void fortyRounds();
};

namespace {

constexpr int arrangements = 500;
constexpr int perRow = 25;

// From 1 to 20; few of the many, because a state of many rounds takes its time.
int roundsFor(quint32 seed)
{
    return 1 + static_cast<int>(seed % 5 == 0 ? seed / 5 % 20 : seed % 4);
}

QStringList shownOf(const ArrangedWindow& window, const QByteArray& state)
{
    const std::unique_ptr<ArrangedWindow> twin(window.twin());
    twin->show();
    if (!twin->restoreState(state))
        return {"refused"_s};
    return shownArrangement(*twin);
}

} // namespace

void TidyArrangementTest::generated_data()
{
    QTest::addColumn<quint32>("firstSeed");
    for (quint32 seed = 0; seed < arrangements; seed += perRow)
        QTest::addRow("seeds from %u", seed) << seed;
}

void TidyArrangementTest::generated()
{
    QFETCH(quint32, firstSeed);
    for (quint32 seed = firstSeed; seed < firstSeed + perRow; ++seed) {
        ArrangedWindow window(seed);
        const QByteArray clean = window.saveState();
        QCOMPARE(WindowState(clean).tidied(), clean);
        const QByteArray grown = grownState(window, roundsFor(seed));
        for (const QByteArray& state : {grown, mergedOnce(grown)}) {
            const WindowState value(state);
            QVERIFY2(value.isSound(), qPrintable("seed %1"_s.arg(seed)));
            const QByteArray tidied = value.tidied();
            QVERIFY2(tidied.size() <= clean.size(), qPrintable("seed %1"_s.arg(seed)));
            QCOMPARE(WindowState(tidied).tidied(), tidied);
            QCOMPARE(WindowState(tidied).repeats(), 0);
            QCOMPARE(shownOf(window, tidied), shownOf(window, state));
        }
    }
}

void TidyArrangementTest::recorded_data()
{
    QTest::addColumn<QByteArray>("blob");
    for (const char* const folder : {"", "/rejected", "/qt6", "/qt6/rejected"}) {
        const QString path = QFINDTESTDATA("../data/blobs") + QString::fromLatin1(folder);
        for (const RecordedBlob& blob : recordedBlobs(path))
            QTest::addRow("%s/%s", folder, blob.name.constData()) << blob.bytes;
    }
}

void TidyArrangementTest::recorded()
{
    QFETCH(QByteArray, blob);
    const WindowState state(blob);
    QVERIFY(state.isSound());
    QCOMPARE(state.tidied(), blob);
    const auto windowFor = [&state] {
        auto window = std::make_unique<QMainWindow>();
        window->resize(900, 700);
        for (const WindowState::DockWidget& part : state.dockWidgets()) {
            auto* const dock = new QDockWidget(part.name, window.get());
            dock->setObjectName(part.name);
            window->addDockWidget(Qt::LeftDockWidgetArea, dock);
        }
        for (const WindowState::ToolBar& part : state.toolBars())
            window->addToolBar(part.name)->setObjectName(part.name);
        window->show();
        return window;
    };
    for (const int rounds : {1, 5, 20}) {
        const auto window = windowFor();
        QVERIFY(window->restoreState(blob, state.layoutVersion()));
        const QByteArray grown = mergedOnce(grownState(*window, rounds));
        const QByteArray tidied = WindowState(grown).tidied();
        QVERIFY(tidied.size() <= blob.size());
        const auto one = windowFor();
        const auto other = windowFor();
        QVERIFY(one->restoreState(grown) && other->restoreState(tidied));
        // Another version of Qt has let dock widgets be smaller; the next layout puts that right.
        for (QMainWindow* const shown : {one.get(), other.get()}) {
            QCoreApplication::processEvents();
            shown->resize(901, 700);
        }
        QCOMPARE(shownArrangement(*other), shownArrangement(*one));
    }
}

// What a user has after some weeks: far more bytes, and yet nothing but his window's own words.
void TidyArrangementTest::fortyRounds()
{
    ArrangedWindow window(6, 2);
    const Qt::DockWidgetArea sides[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                        Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea};
    for (int i = 0; i < window.docks().size(); ++i)
        window.addDockWidget(sides[i % 4], window.docks()[i]);
    const QByteArray clean = window.saveState();
    const QByteArray grown = grownState(window, 40);
    QVERIFY(grown.size() > 300000);
    const WindowState state(grown);
    QVERIFY(state.isSound());
    QCOMPARE(state.tidied().size(), clean.size());
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::TidyArrangementTest)
#include "TidyArrangementTest.moc"
