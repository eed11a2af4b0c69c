// SPDX-License-Identifier: MIT
#include "StateLines.h"
#include "support/ArrangementGenerator.h"

#include <panorel/kit/WindowState.h>

#include <QtTest>

#include <memory>

namespace Panorel::Tests {

using Kit::WindowState;

/** A window given a merged state has the stored dock widgets and the live tool bars. */
class MergeArrangementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPartFromItsSide();
};

namespace {

// Two seeds that are this far from each other make windows with the same parts.
constexpr quint32 samePartsStep = 35;

// What does not depend on where the other parts are.
QStringList docksIn(const WindowState& state)
{
    QStringList result;
    for (WindowState::DockWidget dock : state.dockWidgets()) {
        dock.offset = 0;
        if (!dock.isFloating)
            dock.size = QSize();
        result += lineOf(dock);
    }
    return result;
}

QStringList barsIn(const WindowState& state)
{
    QStringList result;
    for (WindowState::ToolBar bar : state.toolBars()) {
        bar.offset = 0;
        result += lineOf(bar);
    }
    return result;
}

WindowState restored(const ArrangedWindow& window, const QByteArray& state)
{
    const std::unique_ptr<ArrangedWindow> twin(window.twin());
    twin->show();
    if (!twin->restoreState(state))
        return WindowState();
    QCoreApplication::processEvents();
    return WindowState(twin->saveState());
}

} // namespace

void MergeArrangementTest::eachPartFromItsSide()
{
    int floatingInStored = 0;
    int floatingInLive = 0;
    for (quint32 seed = 0; seed < 150; ++seed) {
        const ArrangedWindow window(seed);
        const WindowState stored(window.saveState());
        const WindowState live(ArrangedWindow(seed + samePartsStep).saveState());
        const QByteArray merged = WindowState::merged(stored, live);
        const WindowState made = restored(window, merged);
        QVERIFY(made.isReadable());
        QCOMPARE(docksIn(made), docksIn(restored(window, stored.bytes())));
        QCOMPARE(barsIn(made), barsIn(restored(window, live.bytes())));
        QCOMPARE(made.floatingTabs().size(), stored.floatingTabs().size());
        QCOMPARE(made.toolBars().size(), window.bars().size());
        QCOMPARE(made.dockWidgets().size(), window.docks().size());
        floatingInStored += stored.floatingTabs().size();
        floatingInLive += live.floatingTabs().size();
    }
    QVERIFY(floatingInStored > 10 && floatingInLive > 10);
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::MergeArrangementTest)
#include "MergeArrangementTest.moc"
