// SPDX-License-Identifier: MIT
#include "FourSidesWindow.h"
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

using Features = QDockWidget::DockWidgetFeatures;

const Features all = QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable |
                     QDockWidget::DockWidgetClosable;

struct Program
{
    Program()
    {
        layouts.addWindow(window, "w"_s);
        window.move(20, 20);
        window.show();
        isShown = QTest::qWaitForWindowExposed(&window);
    }

    FourSidesWindow window;
    Manager manager{{"G"_s}, /*mergeOnApply=*/false};
    Layouts layouts{manager};
    bool isShown = false;
};

// Where the desktop would draw the title of a floating one, Qt draws this.
void giveTitle(QDockWidget& dock)
{
    auto* title = new QLabel(dock.windowTitle());
    title->setMinimumHeight(20);
    dock.setTitleBarWidget(title);
}

// As a user does.
void dragTitle(QDockWidget& dock, const QPoint& distance)
{
    const QPoint title = dock.titleBarWidget()->geometry().center();
    const QPoint start = dock.mapToGlobal(title);
    QTest::mousePress(&dock, Qt::LeftButton, Qt::NoModifier, title);
    for (int step = 1; step <= 10; ++step) {
        // The dock widget moves along.
        const QPoint position = start + distance * step / 10;
        QMouseEvent move(QEvent::MouseMove, dock.mapFromGlobal(position), position, Qt::LeftButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&dock, &move);
        QCoreApplication::processEvents();
    }
    QTest::mouseRelease(&dock, Qt::LeftButton, Qt::NoModifier,
                        dock.mapFromGlobal(start + distance));
    QCoreApplication::processEvents();
}

// As the desktop does, by a key or in the title that it draws.
bool closeByDesktop(QWidget& widget)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    (void)qApp->notify(&widget, &event); // sendEvent() makes it one of the program.
    return event.isAccepted();
}

QTabBar* tabBarIn(QWidget& parent)
{
    const auto bars = parent.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    for (QTabBar* bar : bars) {
        if (bar->isVisible())
            return bar;
    }
    return nullptr;
}

QStringList tabsOf(const QTabBar& bar)
{
    QStringList tabs;
    for (int i = 0; i < bar.count(); ++i)
        tabs.append(bar.tabText(i));
    return tabs;
}

void dragTab(QTabBar& bar, int from, int to)
{
    const QPoint start = bar.tabRect(from).center();
    const QPoint end = bar.tabRect(to).center();
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, start);
    for (int step = 1; step <= 10; ++step) {
        const QPoint position = start + (end - start) * step / 10;
        QMouseEvent move(QEvent::MouseMove, position, bar.mapToGlobal(position), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&bar, &move);
    }
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, end);
}

} // namespace

class LayoutsLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partsAllowNothingWhileLocked();
    void eachPartGetsBackWhatItAllowed();
    void changesOfTheApplicationCount();
    void partsThatComeLaterAreLocked();
    void dockedWidgetsCannotBeDragged();
    void floatingWidgetsCannotBeDragged();
    void tabsCannotBeDragged();
    void floatingTabGroupsStay();
    void desktopsCannotCloseFloatingParts();
    void menusStillShowAndHide();
    void layoutsStillSwitch();
    void theFileKeepsIt();
    void theEndUnlocks_data();
    void theEndUnlocks();
    void partsMayGoWhileLocked();
};

void LayoutsLockTest::partsAllowNothingWhileLocked()
{
    Program p;
    const QSignalSpy changes(&p.layouts, &Layouts::lockedChanged);
    QVERIFY(!p.layouts.isLocked());
    p.layouts.setLocked(true);
    QVERIFY(p.layouts.isLocked());
    p.layouts.setLocked(true);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toBool(), true);
    const auto docks = p.window.findChildren<QDockWidget*>();
    QCOMPARE(docks.size(), 7);
    for (const QDockWidget* dock : docks)
        QCOMPARE(int(dock->features()), 0);
    QVERIFY(!p.window.mainBar->isMovable());
    QVERIFY(!p.window.editBar->isMovable());
    p.layouts.setLocked(false);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(1).at(0).toBool(), false);
}

void LayoutsLockTest::eachPartGetsBackWhatItAllowed()
{
    Program p;
    const Features vertical = QDockWidget::DockWidgetVerticalTitleBar;
    p.window.left->setFeatures(QDockWidget::DockWidgetMovable | vertical);
    p.window.right->setFeatures(QDockWidget::NoDockWidgetFeatures);
    p.window.top->setFeatures(QDockWidget::DockWidgetClosable);
    p.window.editBar->setMovable(false);
    for (int time = 1; time <= 3; ++time) {
        p.layouts.setLocked(true);
        QCOMPARE(int(p.window.left->features()), int(vertical));
        p.layouts.setLocked(false);
        QCOMPARE(int(p.window.left->features()), int(QDockWidget::DockWidgetMovable | vertical));
        QCOMPARE(int(p.window.right->features()), 0);
        QCOMPARE(int(p.window.top->features()), int(QDockWidget::DockWidgetClosable));
        QCOMPARE(int(p.window.bottom->features()), int(all));
        QVERIFY(p.window.mainBar->isMovable());
        QVERIFY(!p.window.editBar->isMovable());
    }
}

void LayoutsLockTest::changesOfTheApplicationCount()
{
    Program p;
    const Features vertical = QDockWidget::DockWidgetVerticalTitleBar;
    p.window.left->setFeatures(QDockWidget::NoDockWidgetFeatures);
    p.window.editBar->setMovable(false);
    p.layouts.setLocked(true);
    p.window.left->setFeatures(all);
    p.window.right->setFeatures(QDockWidget::DockWidgetMovable | vertical);
    p.window.top->setFeatures(p.window.top->features() | vertical);
    p.window.editBar->setMovable(true);
    QCOMPARE(int(p.window.left->features()), 0);
    QCOMPARE(int(p.window.right->features()), int(vertical));
    QCOMPARE(int(p.window.top->features()), int(vertical));
    QVERIFY(!p.window.editBar->isMovable());
    p.layouts.setLocked(false);
    QCOMPARE(int(p.window.left->features()), int(all));
    QCOMPARE(int(p.window.right->features()), int(QDockWidget::DockWidgetMovable | vertical));
    QCOMPARE(int(p.window.top->features()), int(all | vertical));
    QVERIFY(p.window.editBar->isMovable());
    // It is the application's again.
    p.window.left->setFeatures(QDockWidget::DockWidgetClosable);
    QCOMPARE(int(p.window.left->features()), int(QDockWidget::DockWidgetClosable));
}

void LayoutsLockTest::partsThatComeLaterAreLocked()
{
    Program p;
    p.layouts.setLocked(true);
    auto* dock = new QDockWidget("late"_s, &p.window);
    p.window.addDockWidget(Qt::RightDockWidgetArea, dock);
    QToolBar* bar = p.window.addToolBar("late"_s);
    SmallWindow second;
    p.layouts.addWindow(second, "second"_s);
    auto* const secondDock = second.findChild<QDockWidget*>();
    QCOMPARE(int(secondDock->features()), 0);
    QTRY_COMPARE(int(dock->features()), 0);
    QTRY_VERIFY(!bar->isMovable());
    p.layouts.setLocked(false);
    QCOMPARE(int(dock->features()), int(all));
    QCOMPARE(int(secondDock->features()), int(all));
    QVERIFY(bar->isMovable());
}

void LayoutsLockTest::dockedWidgetsCannotBeDragged()
{
    Program p;
    giveTitle(*p.window.right);
    p.layouts.setLocked(true);
    dragTitle(*p.window.right, QPoint(-300, -200));
    QVERIFY(!p.window.right->isFloating());
    QCOMPARE(p.window.dockWidgetArea(p.window.right), Qt::RightDockWidgetArea);
    p.layouts.setLocked(false);
    dragTitle(*p.window.right, QPoint(-300, -200));
    QVERIFY(p.window.right->isFloating() ||
            p.window.dockWidgetArea(p.window.right) != Qt::RightDockWidgetArea);
}

void LayoutsLockTest::floatingWidgetsCannotBeDragged()
{
    Program p;
    QVERIFY(p.isShown);
    giveTitle(*p.window.right);
    p.window.right->setFloating(true);
    p.window.right->setGeometry(900, 100, 200, 200);
    QCoreApplication::processEvents();
    p.layouts.setLocked(true);
    // Over another one, where it would be docked.
    const QPoint distance = p.window.bottom->mapToGlobal(p.window.bottom->rect().center()) -
                            p.window.right->mapToGlobal(QPoint(100, 10));
    dragTitle(*p.window.right, distance);
    QVERIFY(p.window.right->isFloating());
    QCOMPARE(p.window.right->geometry(), QRect(900, 100, 200, 200));
    QTest::mouseDClick(p.window.right, Qt::LeftButton, Qt::NoModifier,
                       p.window.right->titleBarWidget()->geometry().center());
    QVERIFY(p.window.right->isFloating());
    p.layouts.setLocked(false);
    dragTitle(*p.window.right, distance);
    QTRY_VERIFY(!p.window.right->isFloating());
}

void LayoutsLockTest::tabsCannotBeDragged()
{
    Program p;
    QTabBar* tabs = tabBarIn(p.window);
    QVERIFY(tabs);
    QCOMPARE(tabsOf(*tabs), lines({"left", "leftTab"}));
    p.layouts.setLocked(true);
    dragTab(*tabs, 0, 1);
    QCOMPARE(tabsOf(*tabs), lines({"left", "leftTab"}));
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(1).center());
    QCOMPARE(tabs->currentIndex(), 1);
    p.layouts.setLocked(false);
    dragTab(*tabs, 0, 1);
    QCOMPARE(tabsOf(*tabs), lines({"leftTab", "left"}));
}

void LayoutsLockTest::floatingTabGroupsStay()
{
    Program p;
    p.layouts.setLocked(true);
    p.window.floatAsTabs();
    QVERIFY(p.window.floatsAsTabs());
    QCoreApplication::processEvents();
    QWidget* group = p.window.one->parentWidget();
    QTabBar* tabs = tabBarIn(*group);
    QVERIFY(tabs);
    dragTab(*tabs, 0, 1);
    QCOMPARE(tabsOf(*tabs), lines({"one", "two"}));
    QVERIFY(!closeByDesktop(*group));
    QVERIFY(p.window.one->isVisible() || p.window.two->isVisible());
    QCOMPARE(int(p.window.one->features()), 0);
    p.layouts.setLocked(false);
    QCOMPARE(int(p.window.one->features()), int(all));
    dragTab(*tabs, 0, 1);
    QVERIFY(tabsOf(*tabs) != lines({"one", "two"}));
}

void LayoutsLockTest::desktopsCannotCloseFloatingParts()
{
    Program p;
    p.window.right->setFloating(true);
    p.layouts.setLocked(true);
    QVERIFY(!closeByDesktop(*p.window.right));
    QVERIFY(p.window.right->isVisible());
    // The window itself is no part, and what the program closes is meant.
    QVERIFY(closeByDesktop(p.window));
    QVERIFY(p.window.right->close());
    p.window.right->show();
    p.layouts.setLocked(false);
    QVERIFY(closeByDesktop(*p.window.right));
}

void LayoutsLockTest::menusStillShowAndHide()
{
    Program p;
    p.window.bottom->toggleViewAction()->setEnabled(false);
    p.layouts.setLocked(true);
    QVERIFY(p.window.right->toggleViewAction()->isEnabled());
    p.window.right->toggleViewAction()->trigger();
    QVERIFY(p.window.right->isHidden());
    p.window.right->toggleViewAction()->trigger();
    QVERIFY(!p.window.right->isHidden());
    p.layouts.setLocked(false);
    QVERIFY(p.window.right->toggleViewAction()->isEnabled());
    QVERIFY(!p.window.bottom->toggleViewAction()->isEnabled());
}

void LayoutsLockTest::layoutsStillSwitch()
{
    Program p;
    p.manager.saveCurrentViewAs("docked"_s);
    p.window.rearrangeDocks();
    p.window.top->setFloating(true);
    p.window.right->hide();
    p.window.addToolBar(Qt::BottomToolBarArea, p.window.mainBar);
    p.manager.saveCurrentViewAs("floating"_s);
    p.layouts.setLocked(true);
    p.manager.activateView("docked"_s);
    QVERIFY(!p.window.top->isFloating());
    QVERIFY(!p.window.right->isHidden());
    QCOMPARE(p.window.dockWidgetArea(p.window.left), Qt::LeftDockWidgetArea);
    QCOMPARE(p.window.toolBarArea(p.window.mainBar), Qt::TopToolBarArea);
    p.manager.activateView("floating"_s);
    QVERIFY(p.window.top->isFloating());
    QVERIFY(p.window.right->isHidden());
    QCOMPARE(p.window.dockWidgetArea(p.window.left), Qt::RightDockWidgetArea);
    QCOMPARE(p.window.toolBarArea(p.window.mainBar), Qt::BottomToolBarArea);
    QCOMPARE(int(p.window.top->features()), 0);
    p.layouts.setLocked(false);
    QCOMPARE(int(p.window.top->features()), int(all));
}

void LayoutsLockTest::theFileKeepsIt()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("f.views"_s);
    {
        Program p;
        p.layouts.setLocked(true);
        p.layouts.start(name);
        QVERIFY(p.layouts.isLocked());
    }
    {
        Program p;
        p.layouts.start(name);
        QVERIFY(p.layouts.isLocked());
        QCOMPARE(int(p.window.left->features()), 0);
        p.layouts.setLocked(false);
    }
    Program p;
    p.layouts.setLocked(true);
    p.layouts.start(name);
    QVERIFY(!p.layouts.isLocked());
    QCOMPARE(int(p.window.left->features()), int(all));
}

void LayoutsLockTest::theEndUnlocks_data()
{
    QTest::addColumn<bool>("managerFirst");
    QTest::newRow("of Layouts") << false;
    QTest::newRow("of the Manager") << true;
}

void LayoutsLockTest::theEndUnlocks()
{
    QFETCH(bool, managerFirst);
    FourSidesWindow window;
    auto manager = std::make_unique<Manager>(QStringList("G"_s), /*mergeOnApply=*/false);
    auto layouts = std::make_unique<Layouts>(*manager);
    layouts->addWindow(window, "w"_s);
    QSignalSpy changes(layouts.get(), &Layouts::lockedChanged);
    layouts->setLocked(true);
    QCOMPARE(int(window.left->features()), 0);
    if (managerFirst) {
        manager.reset();
        QCOMPARE(changes.count(), 2);
        QVERIFY(!layouts->isLocked());
        layouts->setLocked(true);
        QVERIFY(!layouts->isLocked());
    } else
        layouts.reset();
    QCOMPARE(int(window.left->features()), int(all));
    QVERIFY(window.mainBar->isMovable());
}

void LayoutsLockTest::partsMayGoWhileLocked()
{
    Program p;
    p.layouts.setLocked(true);
    delete p.window.left;
    delete p.window.mainBar;
    QMainWindow other;
    other.addDockWidget(Qt::LeftDockWidgetArea, p.window.right);
    p.layouts.setLocked(false);
    QCOMPARE(int(p.window.right->features()), int(all));
}

QTEST_MAIN(LayoutsLockTest)
#include "LayoutsLockTest.moc"
