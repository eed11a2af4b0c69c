// SPDX-License-Identifier: MIT
#include "FourSidesWindow.h"
#include "support/ShownArrangement.h"
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>
#include <panorel/kit/WindowState.h>

#include <QTest>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

class LayoutsSwitchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutMergingAllComesBack();
    void mergingKeepsToolBars_data();
    void mergingKeepsToolBars();
    void windowsAreArrangedBeforeAnySignal();
    void anEarlierReceiverSeesTheWindows_data();
    void anEarlierReceiverSeesTheWindows();
    void savingOverKeepsTheWindows_data();
    void savingOverKeepsTheWindows();
    void activatingTheActiveViewIsRepaired();
    void groupsKeepTheirLayouts_data();
    void groupsKeepTheirLayouts();
    void aReadDocumentIsRepaired();
    void nothingGrows_data();
    void nothingGrows();
    void aWindowIsRestoredOnce_data();
    void aWindowIsRestoredOnce();
    void unsoundStatesAreNotGiven();
    void missingDockWidgetsAreCreated_data();
    void missingDockWidgetsAreCreated();
    void oneThatIsNotCreatedStopsNoOther_data();
    void oneThatIsNotCreatedStopsNoOther();
    void unknownDockWidgetsKeepTheirPlace_data();
    void unknownDockWidgetsKeepTheirPlace();
};

namespace {

void mergingColumn()
{
    QTest::addColumn<bool>("merges");
    QTest::newRow("without merging") << false;
    QTest::newRow("with merging") << true;
}

} // namespace

void LayoutsSwitchTest::withoutMergingAllComesBack()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.saveCurrentViewAs("a"_s);
    const QStringList shown = shownArrangement(window);
    window.rearrangeDocks();
    window.addToolBar(Qt::BottomToolBarArea, window.mainBar);
    manager.saveCurrentViewAs("b"_s);
    manager.activateView("a"_s);
    QCOMPARE(shownArrangement(window), shown);
}

void LayoutsSwitchTest::mergingKeepsToolBars_data()
{
    QTest::addColumn<bool>("storedFloats");
    QTest::addColumn<bool>("liveFloats");
    QTest::newRow("docked") << false << false;
    QTest::newRow("to a floating tab group") << true << false;
    QTest::newRow("from a floating tab group") << false << true;
    QTest::newRow("both with a floating tab group") << true << true;
}

void LayoutsSwitchTest::mergingKeepsToolBars()
{
    QFETCH(bool, storedFloats);
    QFETCH(bool, liveFloats);
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window);
    if (storedFloats)
        window.floatAsTabs();
    manager.saveCurrentViewAs("a"_s);
    window.rearrangeDocks();
    if (liveFloats)
        window.floatAsTabs();
    window.addToolBar(Qt::BottomToolBarArea, window.mainBar);
    manager.saveCurrentViewAs("b"_s);

    manager.activateView("a"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::LeftDockWidgetArea);
    QCOMPARE(window.dockWidgetArea(window.bottom), Qt::BottomDockWidgetArea);
    QCOMPARE(window.floatsAsTabs(), storedFloats);
    QCOMPARE(window.toolBarArea(window.mainBar), Qt::BottomToolBarArea);
    QCOMPARE(window.toolBarArea(window.editBar), Qt::LeftToolBarArea);
    QVERIFY(window.editBar->isVisible());
    QCOMPARE(WindowState(window.saveState()).repeats(), 0);
}

void LayoutsSwitchTest::windowsAreArrangedBeforeAnySignal()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    QVector<Qt::DockWidgetArea> seen;
    connect(&manager, &Manager::viewActivated, this,
            [&] { seen.append(window.dockWidgetArea(window.left)); });
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.saveCurrentViewAs("a"_s);
    window.rearrangeDocks();
    manager.saveCurrentViewAs("b"_s);
    manager.activateView("a"_s);
    QCOMPARE(seen, QVector<Qt::DockWidgetArea>(
                       {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea, Qt::LeftDockWidgetArea}));
}

void LayoutsSwitchTest::anEarlierReceiverSeesTheWindows_data()
{
    mergingColumn();
}

// Such as an application that stores the Manager's document by itself.
void LayoutsSwitchTest::anEarlierReceiverSeesTheWindows()
{
    QFETCH(bool, merges);
    Manager manager({"G"_s, "H"_s}, merges);
    FourSidesWindow window;
    QList<QByteArray> documents;
    connect(&manager, &Manager::viewActivated, this,
            [&] { documents.append(manager.toXml(/*markActive=*/true)); });
    Layouts layouts(manager);
    layouts.addWindow(window, "main"_s);
    manager.saveCurrentViewAs("a"_s);
    window.rearrangeDocks();
    manager.saveCurrentViewAs("b"_s);
    manager.saveCurrentViewAs("a"_s);
    window.addDockWidget(Qt::TopDockWidgetArea, window.left);
    manager.saveCurrentViewAs("c"_s);
    manager.activateView("a"_s);
    manager.activateGroup("H"_s);
    manager.activateGroup("G"_s);
    QCOMPARE(documents.size(), 7);
    for (const QByteArray& document : qAsConst(documents)) {
        const QByteArray current = document.mid(document.indexOf("<CurrentView"));
        QVERIFY(current.contains("DescriptorId=\"main\""));
        QCOMPARE(document.contains("<ToolBarState"), merges);
    }
    QCOMPARE(window.dockWidgetArea(window.left), Qt::RightDockWidgetArea);
}

void LayoutsSwitchTest::savingOverKeepsTheWindows_data()
{
    mergingColumn();
}

void LayoutsSwitchTest::savingOverKeepsTheWindows()
{
    QFETCH(bool, merges);
    Manager manager({"G"_s}, merges);
    FourSidesWindow window;
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.saveCurrentViewAs("a"_s);
    manager.saveCurrentViewAs("b"_s);
    window.rearrangeDocks();
    manager.saveCurrentViewAs("b"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::RightDockWidgetArea);
    manager.saveCurrentViewAs("a"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::RightDockWidgetArea);
    window.addDockWidget(Qt::LeftDockWidgetArea, window.left);
    manager.activateView("b"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::RightDockWidgetArea);
}

void LayoutsSwitchTest::activatingTheActiveViewIsRepaired()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window);
    window.floatAsTabs();
    manager.saveCurrentViewAs("a"_s);
    window.rearrangeDocks();
    window.addToolBar(Qt::BottomToolBarArea, window.mainBar);
    manager.activateView("a"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::LeftDockWidgetArea);
    QVERIFY(window.floatsAsTabs());
    QCOMPARE(window.toolBarArea(window.mainBar), Qt::BottomToolBarArea);
    QCOMPARE(WindowState(window.saveState()).repeats(), 0);
}

void LayoutsSwitchTest::groupsKeepTheirLayouts_data()
{
    mergingColumn();
}

void LayoutsSwitchTest::groupsKeepTheirLayouts()
{
    QFETCH(bool, merges);
    Manager manager({"G"_s, "H"_s}, merges);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.activateGroup("H"_s); // It has no layout yet, so the windows stay.
    QCOMPARE(window.dockWidgetArea(window.left), Qt::LeftDockWidgetArea);
    window.rearrangeDocks();
    manager.activateGroup("G"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::LeftDockWidgetArea);
    manager.activateGroup("H"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::RightDockWidgetArea);
    manager.activateGroup("H"_s);
    QCOMPARE(window.dockWidgetArea(window.left), Qt::RightDockWidgetArea);
    QCOMPARE(WindowState(window.saveState()).repeats(), 0);
    QVERIFY(window.editBar->isVisible());
}

void LayoutsSwitchTest::aReadDocumentIsRepaired()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window);
    const QByteArray document = manager.toXml(/*markActive=*/true);
    window.rearrangeDocks();
    QVERIFY(manager.fromXml(document, /*merge=*/false));
    QCOMPARE(window.dockWidgetArea(window.left), Qt::LeftDockWidgetArea);
    QCOMPARE(WindowState(window.saveState()).repeats(), 0);
}

void LayoutsSwitchTest::nothingGrows_data()
{
    QTest::addColumn<bool>("floats");
    QTest::newRow("docked") << false;
    QTest::newRow("with a floating tab group") << true;
}

void LayoutsSwitchTest::nothingGrows()
{
    QFETCH(bool, floats);
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.saveCurrentViewAs("a"_s);
    window.rearrangeDocks();
    if (floats)
        window.floatAsTabs();
    manager.saveCurrentViewAs("b"_s);
    QVector<int> bytes;
    QVector<QPoint> places;
    for (int round = 0; round < 100; ++round) {
        manager.activateView("a"_s);
        manager.saveCurrentViewAs("a"_s);
        manager.activateView("b"_s);
        manager.saveCurrentViewAs("b"_s);
        QCOMPARE(window.toolBarArea(window.mainBar), Qt::TopToolBarArea);
        QCOMPARE(window.toolBarArea(window.editBar), Qt::LeftToolBarArea);
        QCOMPARE(window.floatsAsTabs(), floats);
        places.append(window.one->parentWidget()->geometry().topLeft());
        bytes.append(manager.toXml(/*markActive=*/true).size());
        // Windows that are no longer needed are deleted here.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QCOMPARE(bytes.last(), bytes.first());
    if (floats)
        QCOMPARE(places.last(), places.first());
}

void LayoutsSwitchTest::aWindowIsRestoredOnce_data()
{
    mergingColumn();
}

void LayoutsSwitchTest::aWindowIsRestoredOnce()
{
    QFETCH(bool, merges);
    Manager manager({"G"_s}, merges);
    SmallWindow window;
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.saveCurrentViewAs("a"_s);
    window.moveDock(Qt::RightDockWidgetArea);
    manager.saveCurrentViewAs("b"_s);
    window.placed = 0;
    manager.activateView("a"_s);
    QCOMPARE(window.placed, 1);
}

void LayoutsSwitchTest::unsoundStatesAreNotGiven()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    SmallWindow window;
    Layouts layouts(manager);
    layouts.addWindow(window, "w"_s);
    manager.saveCurrentViewAs("a"_s);
    const QByteArray good = manager.toXml(/*markActive=*/false);
    // A dock record on side 4 makes Qt write past its arrays.
    const QByteArray state = window.saveState().toHex();
    QByteArray bad = state;
    bad.replace(20, 8, "00000004");
    QByteArray document = good;
    document.replace(document.indexOf(state), state.size(), bad);
    QVERIFY(document != good);
    QVERIFY(manager.fromXml(document, /*merge=*/false));
    window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("a"_s));
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
}

void LayoutsSwitchTest::missingDockWidgetsAreCreated_data()
{
    mergingColumn();
}

void LayoutsSwitchTest::missingDockWidgetsAreCreated()
{
    QFETCH(bool, merges);
    Manager manager({"G"_s}, merges);
    QByteArray document;
    {
        FourSidesWindow window;
        Layouts layouts(manager);
        layouts.addWindow(window, "w"_s);
        manager.saveCurrentViewAs("b"_s);
        auto* late = new QDockWidget(&window);
        late->setObjectName("late"_s);
        window.tabifyDockWidget(window.left, late);
        manager.saveCurrentViewAs("a"_s);
        window.removeDockWidget(late);
        document = manager.toXml(/*markActive=*/false);
    }
    Manager second({"G"_s}, merges);
    FourSidesWindow window;
    window.show();
    Layouts layouts(second);
    QVERIFY(second.fromXml(document, /*merge=*/true));
    layouts.addWindow(window, "w"_s);
    int created = 0;
    layouts.addDock("late"_s, [&created] {
        ++created;
        return new QDockWidget;
    });
    second.activateView("b"_s);
    QCOMPARE(created, 0);
    second.activateView("a"_s);
    QCOMPARE(created, 1);
    auto* late = window.findChild<QDockWidget*>("late"_s);
    QVERIFY(late);
    QCOMPARE(window.tabifiedDockWidgets(late), QList<QDockWidget*>({window.left, window.leftTab}));
    second.activateView("b"_s);
    second.activateView("a"_s);
    QCOMPARE(created, 1);
}

void LayoutsSwitchTest::oneThatIsNotCreatedStopsNoOther_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("created");
    QTest::newRow("the first") << "late"_s
                               << "later"_s;
    QTest::newRow("the second") << "later"_s
                                << "late"_s;
}

void LayoutsSwitchTest::oneThatIsNotCreatedStopsNoOther()
{
    QFETCH(QString, missing);
    QFETCH(QString, created);
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    FourSidesWindow window;
    Layouts layouts(manager);
    layouts.addWindow(window, "w"_s);
    manager.saveCurrentViewAs("b"_s);
    for (const QString& name : {"late"_s, "later"_s}) {
        auto* dock = new QDockWidget(&window);
        dock->setObjectName(name);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    }
    manager.saveCurrentViewAs("a"_s);
    manager.activateView("b"_s);
    for (const QString& name : {"late"_s, "later"_s})
        delete window.findChild<QDockWidget*>(name);
    layouts.addDock(missing, [] { return nullptr; });
    layouts.addDock(created, [] { return new QDockWidget; });
    manager.activateView("a"_s);
    QVERIFY(!window.findChild<QDockWidget*>(missing));
    QVERIFY(window.findChild<QDockWidget*>(created));
}

void LayoutsSwitchTest::unknownDockWidgetsKeepTheirPlace_data()
{
    QTest::addColumn<bool>("savedWithout");
    QTest::newRow("filled at once") << false;
    QTest::newRow("filled by a switch, saved meanwhile") << true;
}

void LayoutsSwitchTest::unknownDockWidgetsKeepTheirPlace()
{
    QFETCH(bool, savedWithout);
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window, "w"_s);
    window.tabifyDockWidget(window.left, window.one);
    manager.saveCurrentViewAs("a"_s);
    window.rearrangeDocks();
    manager.saveCurrentViewAs("b"_s);
    delete window.one;
    manager.activateView("a"_s);
    if (savedWithout) {
        manager.saveCurrentViewAs("a"_s);
        manager.activateView("b"_s);
    }
    layouts.addDock("one"_s, [] { return new QDockWidget; });
    if (savedWithout)
        manager.activateView("a"_s);
    auto* one = window.findChild<QDockWidget*>("one"_s);
    QVERIFY(one);
    QCOMPARE(window.tabifiedDockWidgets(one), QList<QDockWidget*>({window.left, window.leftTab}));
}

QTEST_MAIN(LayoutsSwitchTest)
#include "LayoutsSwitchTest.moc"
