// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** "ToolBarState": written and read only by a Manager that merges. */
class DocumentMergeFlagTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatComesBack_data();
    void whatComesBack();
    void writtenOnlyWhenMerging();
    void laterOneOfTheSameIdCounts();
    void currentViewOfTheDocumentIsAppliedOverTheToolBars();

private:
    // The window's layout with the dock widget and the tool bar in these places.
    QByteArray arranged(Qt::DockWidgetArea dock, Qt::ToolBarArea bar)
    {
        m_window->moveDock(dock);
        m_window->moveBar(bar);
        return m_window->saveState(0).toHex();
    }

    std::unique_ptr<SmallWindow> m_window;
    Owner m_owner;
};

void DocumentMergeFlagTest::init()
{
    m_window = std::make_unique<SmallWindow>();
    m_owner.windows = {{"w"_s, m_window.get()}};
}

// The document's tool-bar state has the dock widget at the top and the tool bar at the bottom, its
// current view has them on the right and the left; the live window on the left and at the top.
void DocumentMergeFlagTest::whatComesBack_data()
{
    QTest::addColumn<bool>("mergeOnApply");
    QTest::addColumn<QByteArray>("toolBarId");
    QTest::addColumn<QByteArray>("currentId");
    QTest::addColumn<int>("dock");
    QTest::addColumn<int>("bar");
    const auto row = [](const char* name, bool mergeOnApply, const char* toolBarId,
                        const char* currentId, Qt::DockWidgetArea dock, Qt::ToolBarArea bar) {
        QTest::newRow(name) << mergeOnApply << QByteArray(toolBarId) << QByteArray(currentId)
                            << int(dock) << int(bar);
    };
    row("dock widgets of the view, tool bars of the tool-bar state", true, "w", "w",
        Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    row("tool-bar state of another window", true, "x", "w", Qt::RightDockWidgetArea,
        Qt::TopToolBarArea);
    row("tool-bar state with an id in other case", true, "W", "w", Qt::RightDockWidgetArea,
        Qt::TopToolBarArea);
    row("view of another window", true, "w", "x", Qt::TopDockWidgetArea, Qt::BottomToolBarArea);
    row("both of other windows", true, "x", "x", Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    row("not merging: the view alone", false, "w", "w", Qt::RightDockWidgetArea,
        Qt::LeftToolBarArea);
    row("not merging: view of another window", false, "w", "x", Qt::LeftDockWidgetArea,
        Qt::TopToolBarArea);
}

void DocumentMergeFlagTest::whatComesBack()
{
    QFETCH(bool, mergeOnApply);
    QFETCH(QByteArray, toolBarId);
    QFETCH(QByteArray, currentId);
    const QByteArray bars = arranged(Qt::TopDockWidgetArea, Qt::BottomToolBarArea);
    const QByteArray current = arranged(Qt::RightDockWidgetArea, Qt::LeftToolBarArea);
    const QByteArray data =
        document(group("A", {}, state(currentId, current)), toolBarState(toolBarId, bars));
    for (const bool merge : {false, true}) {
        (void)arranged(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
        Manager manager(names("A"), mergeOnApply);
        manager.registerManagable(m_owner);
        QVERIFY(manager.fromXml(data, merge));
        QTEST(int(m_window->dockArea()), "dock");
        QTEST(int(m_window->barArea()), "bar");
    }
}

void DocumentMergeFlagTest::writtenOnlyWhenMerging()
{
    Manager merging(names("A"), /*mergeOnApply=*/true);
    Manager plain(names("A"), /*mergeOnApply=*/false);
    merging.registerManagable(m_owner);
    plain.registerManagable(m_owner);
    const QByteArray live = m_window->saveState(0).toHex();
    QCOMPARE(merging.toXml(false).count(toolBarState("w", live)), 1);
    QVERIFY(!plain.toXml(false).contains("ToolBarState"));
    QVERIFY(plain.fromXml(merging.toXml(false), /*merge=*/false));
    QVERIFY(merging.fromXml(plain.toXml(false), /*merge=*/false));
}

void DocumentMergeFlagTest::laterOneOfTheSameIdCounts()
{
    const QByteArray bottom = arranged(Qt::LeftDockWidgetArea, Qt::BottomToolBarArea);
    const QByteArray right = arranged(Qt::LeftDockWidgetArea, Qt::RightToolBarArea);
    (void)arranged(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    Manager manager(names("A"), /*mergeOnApply=*/true);
    manager.registerManagable(m_owner);
    const QByteArray states =
        toolBarState("w", bottom) + toolBarState("w", right) + toolBarState("w", {});
    QVERIFY(manager.fromXml(document({}, states), /*merge=*/true));
    QCOMPARE(m_window->barArea(), Qt::RightToolBarArea);
}

// A current view without states is captured while the document is read, so before its tool-bar
// states are on the windows.
void DocumentMergeFlagTest::currentViewOfTheDocumentIsAppliedOverTheToolBars()
{
    const QByteArray bars = arranged(Qt::TopDockWidgetArea, Qt::BottomToolBarArea);
    (void)arranged(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    Manager manager(names("A"), /*mergeOnApply=*/true);
    manager.registerManagable(m_owner);
    QVERIFY(manager.fromXml(document(group("A", {}), toolBarState("w", bars)), /*merge=*/true));
    QCOMPARE(m_window->dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window->barArea(), Qt::BottomToolBarArea);
}

QTEST_MAIN(DocumentMergeFlagTest)
#include "DocumentMergeFlagTest.moc"
