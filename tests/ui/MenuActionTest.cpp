// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"
#include "support/Text.h"
#include "ui/Hands.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** A user opens the menu and chooses, saves and deletes, with the mouse and with the keyboard. */
class MenuActionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void chooseWithTheMouse();
    void chooseWithTheKeyboard();
    void chooseInTheMenuBar();
    void chooseTheCheckedView();
    void chosenViewIsCheckedThoughItIsGone();
    void namelessViewCannotBeChosen();
    void saveAsNewName_data();
    void saveAsNewName();
    void saveAsWithTheMouse();
    void saveAsInTheMenuBar();
    void menuIsClosedBeforeSaving();
    void saveAsNothing();
    void saveAsExistingName();
    void leaveTheNameWithEscape();
    void saveOverWithTheKeyboard();
    void saveOverWithTheMouse();
    void deleteWithTheKeyboard();
    void deleteWithTheMouse();
    void deleteTheCheckedView();
    void deleteTheLastView();
    void saveBySlot_data();
    void saveBySlot();

private:
    QStringList views() const { return entries(*m_menu).mid(0, viewEntries(*m_menu).size()); }
    bool openWithKeys(QMenu* subMenu);
    bool openNameEditWithKeys();
    bool openWithMouse(QMenu* subMenu);

    std::unique_ptr<SmallWindow> m_window;
    Owner m_owner;
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<SignalLog> m_signals;
    // A child of the window.
    Menu* m_menu = nullptr;
};

void MenuActionTest::init()
{
    m_window = std::make_unique<SmallWindow>();
    m_owner.windows = {{"Window"_s, m_window.get()}};
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    m_manager->registerManagable(m_owner);
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    m_window->moveDock(Qt::RightDockWidgetArea);
    QVERIFY(m_manager->createView("Right"_s));
    m_menu = new Menu(m_manager.get(), true, m_window.get());
    m_signals = std::make_unique<SignalLog>(*m_manager);
    m_window->menuBar()->addMenu(m_menu);
    m_window->resize(500, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void MenuActionTest::cleanup()
{
    const bool closed = !QApplication::activePopupWidget();
    // A menu that a failed test left open would take the next one's clicks.
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    m_signals.reset();
    m_window.reset();
    m_manager.reset();
    QVERIFY(closed);
}

bool MenuActionTest::openWithKeys(QMenu* subMenu)
{
    if (!Hands::open(*m_menu))
        return false;
    // From the last entry upwards there are as many steps as entries at most.
    for (int i = m_menu->actions().size(); i > 0; --i) {
        if (m_menu->activeAction() == subMenu->menuAction())
            break;
        Hands::press(Qt::Key_Up);
    }
    Hands::press(Qt::Key_Right);
    return QTest::qWaitForWindowExposed(subMenu) && QApplication::activePopupWidget() == subMenu;
}

bool MenuActionTest::openNameEditWithKeys()
{
    if (!openWithKeys(saveAsMenu(*m_menu)))
        return false;
    // A field gets the focus when its entry is reached by a key.
    Hands::press(Qt::Key_Down);
    Hands::press(Qt::Key_Up);
    return QApplication::activePopupWidget()->focusWidget() == nameEdit(*m_menu);
}

bool MenuActionTest::openWithMouse(QMenu* subMenu)
{
    if (!Hands::open(*m_menu))
        return false;
    return Hands::openSubMenu(*m_menu, *subMenu);
}

void MenuActionTest::chooseWithTheMouse()
{
    QVERIFY(Hands::open(*m_menu));
    Hands::click(*m_menu, viewEntries(*m_menu).at(1));
    QCOMPARE(m_signals->take(), lines({"viewActivated('Right')"}));
    QCOMPARE(views(), lines({"left", "* Right"}));
    QVERIFY(!m_menu->isVisible());
    QVERIFY(Hands::open(*m_menu));
    Hands::click(*m_menu, viewEntries(*m_menu).at(0));
    QCOMPARE(m_window->dockArea(), Qt::LeftDockWidgetArea);
}

void MenuActionTest::chooseWithTheKeyboard()
{
    m_window->moveDock(Qt::TopDockWidgetArea);
    QVERIFY(Hands::open(*m_menu));
    Hands::press(Qt::Key_Down);
    Hands::press(Qt::Key_Down);
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_signals->take(), lines({"viewActivated('Right')"}));
    QCOMPARE(m_window->dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(views(), lines({"left", "* Right"}));
    QVERIFY(!m_menu->isVisible());
}

void MenuActionTest::chooseInTheMenuBar()
{
    Hands::click(*m_window->menuBar(), *m_menu);
    QVERIFY(QTest::qWaitForWindowExposed(m_menu));
    Hands::click(*m_menu, viewEntries(*m_menu).at(1));
    QCOMPARE(m_signals->take(), lines({"viewActivated('Right')"}));
    QVERIFY(!m_menu->isVisible());
}

void MenuActionTest::chooseTheCheckedView()
{
    // An exclusive group keeps the mark on a checked entry, but emits its signal.
    QVERIFY(Hands::open(*m_menu));
    Hands::click(*m_menu, viewEntries(*m_menu).at(0));
    QCOMPARE(m_signals->take(), lines({"viewActivated('left')"}));
    QCOMPARE(m_window->dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(views(), lines({"* left", "Right"}));
}

void MenuActionTest::chosenViewIsCheckedThoughItIsGone()
{
    m_manager->blockSignals(true);
    m_manager->deleteView("Right"_s);
    m_manager->blockSignals(false);
    QVERIFY(Hands::open(*m_menu));
    Hands::click(*m_menu, viewEntries(*m_menu).at(1));
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->activeView(), "left"_s);
    QCOMPARE(views(), lines({"left", "* Right"}));
}

void MenuActionTest::namelessViewCannotBeChosen()
{
    QVERIFY(m_manager->createView(""_s));
    m_signals->take();
    QVERIFY(Hands::open(*m_menu));
    Hands::click(*m_menu, viewEntries(*m_menu).at(2));
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->activeView(), "left"_s);
    QCOMPARE(views(), lines({"left", "Right", "* "}));
}

void MenuActionTest::saveAsNewName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Qt::Key>("confirm");

    QTest::newRow("Return") << "new" << Qt::Key_Return;
    QTest::newRow("Enter of the keypad") << "new" << Qt::Key_Enter;
    QTest::newRow("blanks are kept") << "  n  " << Qt::Key_Return;
    QTest::newRow("blanks only") << " " << Qt::Key_Return;
    QTest::newRow("ampersand") << "R&D" << Qt::Key_Return;
    QTest::newRow("reserved word") << "__current__" << Qt::Key_Return;
}

void MenuActionTest::saveAsNewName()
{
    QFETCH(QString, typed);
    QFETCH(Qt::Key, confirm);

    QVERIFY(openNameEditWithKeys());
    const QPointer<QLineEdit> edit = nameEdit(*m_menu);
    Hands::type(typed);
    QCOMPARE(edit->text(), typed);
    Hands::press(confirm);
    QCOMPARE(m_signals->take(),
             QStringList({"groupModified()"_s, "viewActivated("_s + quoted(typed) + ")"_s}));
    QCOMPARE(m_manager->activeView(), typed);
    QCOMPARE(views(), QStringList({"left"_s, "Right"_s, "* "_s + typed}));
    // The rebuild deletes the field while it still handles the key.
    QVERIFY(edit.isNull());
    QCOMPARE(nameEdit(*m_menu)->text(), QString());
    QVERIFY(!m_menu->isVisible());
    QVERIFY(!saveAsMenu(*m_menu)->isVisible());
}

void MenuActionTest::saveAsWithTheMouse()
{
    m_window->moveDock(Qt::BottomDockWidgetArea);
    QVERIFY(openWithMouse(saveAsMenu(*m_menu)));
    Hands::click(*nameEdit(*m_menu));
    Hands::type("Bottom"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_manager->views(), lines({"left", "Right", "Bottom"}));
    QVERIFY(m_manager->activateView("left"_s));
    QCOMPARE(m_window->dockArea(), Qt::LeftDockWidgetArea);
    QVERIFY(m_manager->activateView("Bottom"_s));
    QCOMPARE(m_window->dockArea(), Qt::BottomDockWidgetArea);
}

void MenuActionTest::saveAsInTheMenuBar()
{
    Hands::click(*m_window->menuBar(), *m_menu);
    QVERIFY(QTest::qWaitForWindowExposed(m_menu));
    QVERIFY(Hands::openSubMenu(*m_menu, *saveAsMenu(*m_menu)));
    Hands::click(*nameEdit(*m_menu));
    Hands::type("new"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_manager->activeView(), "new"_s);
    QVERIFY(!m_menu->isVisible());
    QVERIFY(!m_window->menuBar()->activeAction());
}

void MenuActionTest::menuIsClosedBeforeSaving()
{
    QVERIFY(openNameEditWithKeys());
    QList<bool> visible;
    connect(m_manager.get(), &Manager::groupModified, this,
            [&] { visible.append(m_menu->isVisible()); });
    Hands::type("new"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(visible, QList<bool>{false});
}

void MenuActionTest::saveAsNothing()
{
    QVERIFY(openNameEditWithKeys());
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_signals->take(), lines({"groupModified()", "viewActivated('')"}));
    QCOMPARE(m_manager->views(), lines({"left", "Right", ""}));
    QCOMPARE(views(), lines({"left", "Right", ""}));
    QCOMPARE(entries(*deleteMenu(*m_menu)), lines({"", "Right", "left"}));
    QVERIFY(!m_menu->isVisible());
}

void MenuActionTest::saveAsExistingName()
{
    // No question is asked: the dock widget is on the right, and so it is in "left" from now on.
    QVERIFY(openNameEditWithKeys());
    Hands::type("left"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_signals->take(), lines({"viewActivated('left')"}));
    QVERIFY(!m_menu->isVisible());
    m_window->moveDock(Qt::TopDockWidgetArea);
    QVERIFY(m_manager->activateView("left"_s));
    QCOMPARE(m_window->dockArea(), Qt::RightDockWidgetArea);
}

void MenuActionTest::leaveTheNameWithEscape()
{
    QVERIFY(openNameEditWithKeys());
    Hands::type("new"_s);
    Hands::press(Qt::Key_Escape);
    QTRY_COMPARE(QApplication::activePopupWidget(), m_menu);
    Hands::press(Qt::Key_Escape);
    QTRY_VERIFY(!m_menu->isVisible());
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(nameEdit(*m_menu)->text(), "new"_s);
}

void MenuActionTest::saveOverWithTheKeyboard()
{
    // Sorted: the field, "Right", "left".
    QVERIFY(openWithKeys(saveAsMenu(*m_menu)));
    Hands::press(Qt::Key_Down);
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_signals->take(), lines({"viewActivated('Right')"}));
    QCOMPARE(views(), lines({"left", "* Right"}));
    QVERIFY(!m_menu->isVisible());
}

void MenuActionTest::saveOverWithTheMouse()
{
    QVERIFY(openWithMouse(saveAsMenu(*m_menu)));
    Hands::click(*saveAsMenu(*m_menu), entry(saveAsMenu(*m_menu), "left"_s));
    QCOMPARE(m_signals->take(), lines({"viewActivated('left')"}));
    m_window->moveDock(Qt::TopDockWidgetArea);
    QVERIFY(m_manager->activateView("left"_s));
    QCOMPARE(m_window->dockArea(), Qt::RightDockWidgetArea);
}

void MenuActionTest::deleteWithTheKeyboard()
{
    // The rebuild deletes the sending entry while its menu still handles the key.
    const QPointer<QAction> sent = entry(deleteMenu(*m_menu), "Right"_s);
    QVERIFY(openWithKeys(deleteMenu(*m_menu)));
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_signals->take(), lines({"groupModified()"}));
    QCOMPARE(views(), lines({"* left"}));
    QVERIFY(sent.isNull());
    QVERIFY(!m_menu->isVisible());
}

void MenuActionTest::deleteWithTheMouse()
{
    const QPointer<QAction> sent = entry(deleteMenu(*m_menu), "Right"_s);
    QVERIFY(openWithMouse(deleteMenu(*m_menu)));
    Hands::click(*deleteMenu(*m_menu), sent);
    QCOMPARE(m_signals->take(), lines({"groupModified()"}));
    QCOMPARE(views(), lines({"* left"}));
    QVERIFY(sent.isNull());
    QVERIFY(!m_menu->isVisible());
}

void MenuActionTest::deleteTheCheckedView()
{
    QVERIFY(openWithMouse(deleteMenu(*m_menu)));
    Hands::click(*deleteMenu(*m_menu), entry(deleteMenu(*m_menu), "left"_s));
    QCOMPARE(m_signals->take(), lines({"viewActivated('')", "groupModified()"}));
    QVERIFY(m_manager->activeView().isNull());
    QCOMPARE(views(), lines({"Right"}));
    // The layout on the screen stays.
    QCOMPARE(m_window->dockArea(), Qt::RightDockWidgetArea);
}

void MenuActionTest::deleteTheLastView()
{
    for (const QString& name : lines({"left", "Right"})) {
        QVERIFY(openWithMouse(deleteMenu(*m_menu)));
        Hands::click(*deleteMenu(*m_menu), entry(deleteMenu(*m_menu), name));
    }
    QCOMPARE(views(), QStringList());
    QCOMPARE(entries(*saveAsMenu(*m_menu)), lines({"[edit]"}));
    QCOMPARE(entries(*deleteMenu(*m_menu)), QStringList());
}

void MenuActionTest::saveBySlot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("null") << QString() << QStringList();
    QTest::newRow("empty") << ""_s << QStringList();
    QTest::newRow("new") << "new"_s << lines({"groupModified()", "viewActivated('new')"});
    QTest::newRow("existing") << "Right"_s << lines({"viewActivated('Right')"});
    QTest::newRow("blanks") << "  "_s << lines({"groupModified()", "viewActivated('  ')"});
    QTest::newRow("reserved word")
        << "__current__"_s << lines({"groupModified()", "viewActivated('__current__')"});
}

void MenuActionTest::saveBySlot()
{
    QFETCH(QString, name);
    QFETCH(QStringList, emitted);

    QVERIFY(Hands::open(*m_menu));
    m_menu->saveCurrentLayoutAs(name);
    QCOMPARE(m_signals->take(), emitted);
    QCOMPARE(m_manager->views().contains(name), !emitted.isEmpty());
    // Only the line edit closes the menu.
    QVERIFY(m_menu->isVisible());
    m_menu->hide();
}

QTEST_MAIN(MenuActionTest)
#include "MenuActionTest.moc"
