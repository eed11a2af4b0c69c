// SPDX-License-Identifier: MIT
#include "Group.h"

#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <memory>
#include <type_traits>
#include <vector>

using namespace Panorel;
using namespace Panorel::Tests;

static_assert(!std::is_copy_constructible_v<Group> && !std::is_copy_assignable_v<Group>);
static_assert(std::is_same_v<decltype(Group::manager), Manager*>);
static_assert(std::is_same_v<decltype(Group::name), QString>);
static_assert(std::is_same_v<decltype(Group::activeView), View*>);
static_assert(std::is_same_v<decltype(Group::views), std::vector<std::unique_ptr<View>>>);
static_assert(std::is_same_v<decltype(Group::currentView), std::unique_ptr<View>>);
static_assert(std::is_same_v<decltype(View::name), QString>);
static_assert(std::is_same_v<decltype(View::states), StateMap>);
static_assert(std::is_same_v<decltype(View::userData), QVariant>);

/** A group on its own, with a Manager that it captures and applies through. */
class GroupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void startsEmpty();
    void appendView();
    void findView_data();
    void findView();
    void findViewTakesTheFirst();
    void findViewNeverFindsTheCurrentView();

    void removeInactiveView();
    void removeActiveView();
    void removeUnknownView();

    void captureReplacesTheStates();
    void applyKeepsTheStates();

    void selectView_data();
    void selectView();
    void selectViewCopiesStatesOnly();
    void selectNoView_data();
    void selectNoView();
    void selectViewSignalsLast();
    void selectViewEmitsItsName_data();
    void selectViewEmitsItsName();

private:
    SmallWindow m_window;
    Owner m_owner{{{"w"_s, &m_window}}};
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Group> m_group;
};

void GroupTest::init()
{
    m_window.onPlaced = nullptr;
    m_window.arrange(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    m_manager = std::make_unique<Manager>(lines({"unused"}), false);
    m_manager->registerManagable(m_owner);
    m_group = std::make_unique<Group>(m_manager.get(), "G"_s);
}

void GroupTest::startsEmpty()
{
    QCOMPARE(m_group->manager, m_manager.get());
    QCOMPARE(m_group->name, "G"_s);
    QVERIFY(!m_group->activeView);
    QVERIFY(m_group->views.empty());
    QCOMPARE(m_group->currentView->name, "__current__"_s);
    QCOMPARE(m_group->currentView->states, StateMap());
    QVERIFY(!m_group->currentView->userData.isValid());
}

void GroupTest::appendView()
{
    const View* first = m_group->appendView("b"_s);
    const View* second = m_group->appendView("a"_s);
    QCOMPARE(m_group->views.size(), std::size_t(2));
    QCOMPARE(m_group->views[0].get(), first);
    QCOMPARE(m_group->views[1].get(), second);
    QCOMPARE(second->name, "a"_s);
    QCOMPARE(second->states, StateMap());
    QVERIFY(!second->userData.isValid());
    QVERIFY(!m_group->activeView);
}

void GroupTest::findView_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");

    QTest::newRow("first") << "a"_s << 0;
    QTest::newRow("last") << "A"_s << 1;
    QTest::newRow("empty, named by null") << QString() << 2;
    QTest::newRow("empty") << ""_s << 2;
    QTest::newRow("unknown") << "b"_s << -1;
    QTest::newRow("with a blank") << "a "_s << -1;
}

void GroupTest::findView()
{
    QFETCH(QString, name);
    QFETCH(int, index);
    for (const QString& viewName : lines({"a", "A", ""}))
        m_group->appendView(viewName);
    const View* found = m_group->findView(name);
    QCOMPARE(found, index < 0 ? nullptr : m_group->views[static_cast<std::size_t>(index)].get());
}

void GroupTest::findViewTakesTheFirst()
{
    m_group->appendView("other"_s);
    const View* first = m_group->appendView("same"_s);
    m_group->appendView("same"_s);
    QCOMPARE(m_group->findView("same"_s), first);
}

void GroupTest::findViewNeverFindsTheCurrentView()
{
    QVERIFY(!m_group->findView("__current__"_s));
    const View* saved = m_group->appendView("__current__"_s);
    QVERIFY(saved != m_group->currentView.get());
    QCOMPARE(m_group->findView("__current__"_s), saved);
}

void GroupTest::removeInactiveView()
{
    View* a = m_group->appendView("a"_s);
    View* b = m_group->appendView("b"_s);
    View* c = m_group->appendView("c"_s);
    m_group->activeView = c;
    m_group->removeView(a->serial);
    QCOMPARE(m_group->views.size(), std::size_t(2));
    QCOMPARE(m_group->views[0].get(), b);
    QCOMPARE(m_group->views[1].get(), c);
    QCOMPARE(m_group->activeView, c);
}

void GroupTest::removeActiveView()
{
    View* a = m_group->appendView("a"_s);
    View* b = m_group->appendView("b"_s);
    m_group->activeView = b;
    m_group->removeView(b->serial);
    QCOMPARE(m_group->views.size(), std::size_t(1));
    QCOMPARE(m_group->views[0].get(), a);
    QVERIFY(!m_group->activeView);
}

void GroupTest::removeUnknownView()
{
    const quint64 gone = m_group->appendView("a"_s)->serial;
    m_group->removeView(gone);
    View* a = m_group->appendView("a"_s);
    m_group->activeView = a;
    m_group->removeView(gone);
    m_group->removeView(m_group->currentView->serial);
    QCOMPARE(m_group->views.size(), std::size_t(1));
    QCOMPARE(m_group->activeView, a);
    QCOMPARE(m_group->currentView->name, "__current__"_s);
}

void GroupTest::captureReplacesTheStates()
{
    m_group->currentView->states = {{"w"_s, "old"}, {"gone"_s, "old"}};
    m_group->currentView->userData = 7;
    m_group->captureCurrentView();
    QCOMPARE(m_group->currentView->states, (StateMap{{"w"_s, m_window.saveState(0)}}));
    QCOMPARE(m_group->currentView->userData, QVariant(7));
}

void GroupTest::applyKeepsTheStates()
{
    const QByteArray right = SmallWindow::stateOf(Qt::RightDockWidgetArea, Qt::TopToolBarArea);
    const StateMap states{{"w"_s, right}, {"gone"_s, "blob"}};
    m_group->currentView->states = states;
    m_group->applyCurrentView();
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_group->currentView->states, states);
}

void GroupTest::selectView_data()
{
    QTest::addColumn<bool>("emitSignal");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("with signal") << true << lines({"viewActivated('a')"});
    QTest::newRow("without") << false << QStringList();
}

void GroupTest::selectView()
{
    QFETCH(bool, emitSignal);
    QFETCH(QStringList, emitted);
    View* view = m_group->appendView("a"_s);
    view->states = {{"w"_s, SmallWindow::stateOf(Qt::RightDockWidgetArea, Qt::BottomToolBarArea)}};
    const SignalLog log(*m_manager);
    m_group->selectView(view, emitSignal);
    QCOMPARE(m_group->activeView, view);
    QCOMPARE(m_group->currentView->states, view->states);
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::BottomToolBarArea);
    QCOMPARE(log.lines(), emitted);
}

void GroupTest::selectViewCopiesStatesOnly()
{
    View* view = m_group->appendView("a"_s);
    view->states = {{"gone"_s, "blob"}};
    view->userData = "data of a"_s;
    m_group->currentView->userData = 7;
    m_group->currentView->states = {{"old"_s, "blob"}};
    m_group->selectView(view, /*emitSignal=*/false);
    QCOMPARE(m_group->currentView->states, (StateMap{{"gone"_s, "blob"}}));
    QCOMPARE(m_group->currentView->userData, QVariant(7));
    QCOMPARE(m_group->currentView->name, "__current__"_s);
    QCOMPARE(view->userData, QVariant("data of a"_s));
    // A copy: what is captured later does not reach the view.
    m_group->captureCurrentView();
    QCOMPARE(view->states, (StateMap{{"gone"_s, "blob"}}));
}

void GroupTest::selectNoView_data()
{
    QTest::addColumn<bool>("emitSignal");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("with signal") << true << lines({"viewActivated(null)"});
    QTest::newRow("without") << false << QStringList();
}

void GroupTest::selectNoView()
{
    QFETCH(bool, emitSignal);
    QFETCH(QStringList, emitted);
    m_group->activeView = m_group->appendView("a"_s);
    const StateMap states{
        {"w"_s, SmallWindow::stateOf(Qt::RightDockWidgetArea, Qt::BottomToolBarArea)}};
    m_group->currentView->states = states;
    m_owner.calls = 0;
    const SignalLog log(*m_manager);
    m_group->selectView(nullptr, emitSignal);
    QVERIFY(!m_group->activeView);
    QCOMPARE(m_group->currentView->states, states);
    QCOMPARE(m_owner.calls, 0);
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(log.lines(), emitted);
}

void GroupTest::selectViewSignalsLast()
{
    View* view = m_group->appendView("a"_s);
    view->states = {{"w"_s, SmallWindow::stateOf(Qt::RightDockWidgetArea, Qt::BottomToolBarArea)}};
    const View* activeAtRestore = nullptr;
    StateMap currentAtRestore;
    m_window.onPlaced = [&] {
        activeAtRestore = m_group->activeView;
        currentAtRestore = m_group->currentView->states;
    };
    Qt::DockWidgetArea areaAtSignal = Qt::NoDockWidgetArea;
    connect(m_manager.get(), &Manager::viewActivated, m_manager.get(),
            [&] { areaAtSignal = m_window.dockArea(); });
    m_group->selectView(view, /*emitSignal=*/true);
    QCOMPARE(activeAtRestore, view);
    QCOMPARE(currentAtRestore, view->states);
    QCOMPARE(areaAtSignal, Qt::RightDockWidgetArea);
}

void GroupTest::selectViewEmitsItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("empty") << ""_s << lines({"viewActivated('')"});
    QTest::newRow("null") << QString() << lines({"viewActivated(null)"});
    QTest::newRow("reserved") << "__current__"_s << lines({"viewActivated('__current__')"});
}

void GroupTest::selectViewEmitsItsName()
{
    QFETCH(QString, name);
    QFETCH(QStringList, emitted);
    const SignalLog log(*m_manager);
    m_group->selectView(m_group->appendView(name), /*emitSignal=*/true);
    QCOMPARE(log.lines(), emitted);
}

QTEST_MAIN(GroupTest)
#include "GroupTest.moc"
