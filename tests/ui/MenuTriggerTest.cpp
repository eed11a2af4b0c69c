// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"
#include "support/Text.h"
#include "ui/Hands.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QEventLoop>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

/**
 * Most entries make the menu rebuild while Qt still has signals to emit with them: what is being
 * triggered is gone from the menu at once and lives until the event is over.
 */
class MenuTriggerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void entryOutlivesItsEvent_data();
    void entryOutlivesItsEvent();
    void fieldOutlivesItsEvent();
    void viewEntryOutlivesItsEvent();
    void entryOutlivesAnInnerEventLoop();
    void entryIsGoneFromTheMenuAtOnce();
    void entryGoesWithTheMenu();
    void entriesThatAreNotTriggeredAreDeletedAtOnce();

private:
    // The texts of all actions that the menu bar and the menus were notified of.
    void follow(QMenu* menu);
    void follow(QMenuBar* bar);

    std::unique_ptr<SmallWindow> m_window;
    Owner m_owner;
    std::unique_ptr<Manager> m_manager;
    // A child of the window.
    QPointer<Menu> m_menu;
    QStringList m_texts;
};

void MenuTriggerTest::init()
{
    m_window = std::make_unique<SmallWindow>();
    m_owner.windows = {{"Window"_s, m_window.get()}};
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    m_manager->registerManagable(m_owner);
    m_manager->createView("Left"_s);
    m_manager->createView("Right"_s);
    m_menu = new Menu(m_manager.get(), true, m_window.get());
    m_window->menuBar()->addMenu(m_menu);
    m_window->resize(500, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_texts.clear();
    follow(m_window->menuBar());
}

void MenuTriggerTest::cleanup()
{
    m_window.reset();
    m_manager.reset();
}

void MenuTriggerTest::follow(QMenu* menu)
{
    connect(menu, &QMenu::triggered, this,
            [this](const QAction* action) { m_texts.append(action->text()); });
}

void MenuTriggerTest::follow(QMenuBar* bar)
{
    connect(bar, &QMenuBar::triggered, this,
            [this](const QAction* action) { m_texts.append(action->text()); });
}

void MenuTriggerTest::entryOutlivesItsEvent_data()
{
    QTest::addColumn<bool>("isSaving");
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("delete with the keyboard") << false << true;
    QTest::newRow("delete with the mouse") << false << false;
    QTest::newRow("save over with the keyboard") << true << true;
    QTest::newRow("save over with the mouse") << true << false;
}

void MenuTriggerTest::entryOutlivesItsEvent()
{
    QFETCH(bool, isSaving);
    QFETCH(bool, byKeyboard);
    QMenu* const subMenu = isSaving ? saveAsMenu(*m_menu) : deleteMenu(*m_menu);
    follow(m_menu);
    follow(subMenu);
    // Saving over a view does not rebuild the menu by itself.
    connect(m_manager.get(), &Manager::viewActivated, m_menu, &Menu::updateMenu);
    const QPointer<QAction> left = entry(subMenu, "Left"_s);
    QVERIFY(Hands::open(*m_menu));
    QVERIFY(Hands::openSubMenu(*m_menu, *subMenu));
    if (byKeyboard) {
        subMenu->setActiveAction(left);
        Hands::press(Qt::Key_Return);
    } else {
        Hands::click(*subMenu, left);
    }
    // Whatever order and number Qt emits them in, all of them are of this entry.
    QVERIFY(m_texts.size() >= 2);
    QCOMPARE(m_texts.count("Left"_s), m_texts.size());
    QCOMPARE(m_manager->views().contains("Left"_s), isSaving);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!left);
}

void MenuTriggerTest::fieldOutlivesItsEvent()
{
    QMenu* const subMenu = saveAsMenu(*m_menu);
    const QPointer<QLineEdit> edit = nameEdit(*m_menu);
    bool isAlive = false;
    // The last receiver of the field's signal.
    QVERIFY(connect(edit, SIGNAL(inputAccepted(QString)), m_window.get(), SLOT(update())));
    connect(m_manager.get(), &Manager::viewActivated, this, [&] { isAlive = edit; });
    QVERIFY(Hands::open(*m_menu));
    QVERIFY(Hands::openSubMenu(*m_menu, *subMenu));
    edit->setFocus();
    QTest::keyClicks(edit, "new"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(isAlive);
    QCOMPARE(m_manager->activeView(), "new"_s);
    QVERIFY(nameEdit(*m_menu) != edit);
    QCOMPARE(entries(*subMenu), lines({"[edit]", "Left", "Right", "new"}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!edit);
}

void MenuTriggerTest::viewEntryOutlivesItsEvent()
{
    connect(m_manager.get(), &Manager::viewActivated, m_menu, &Menu::updateMenu);
    const QPointer<QAction> left = entry(m_menu, "Left"_s);
    Hands::click(*m_window->menuBar(), *m_menu);
    Hands::click(*m_menu, left);
    QCOMPARE(m_texts, lines({"Left"}));
    QCOMPARE(entries(*m_menu).mid(0, 2), lines({"* Left", "Right"}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!left);
}

// A receiver may ask the user, and the menu may rebuild meanwhile.
void MenuTriggerTest::entryOutlivesAnInnerEventLoop()
{
    const QPointer<QAction> left = entry(deleteMenu(*m_menu), "Left"_s);
    bool isAlive = false;
    connect(m_manager.get(), &Manager::groupModified, this, [&] {
        QEventLoop question;
        QTimer::singleShot(0, m_menu, &Menu::updateMenu);
        QTimer::singleShot(0, &question, &QEventLoop::quit);
        question.exec();
        isAlive = left;
    });
    QTimer::singleShot(0, left, &QAction::trigger);
    QEventLoop application;
    QTimer::singleShot(0, &application, &QEventLoop::quit);
    application.exec();
    QVERIFY(isAlive);
    QCOMPARE(m_manager->views(), lines({"Right"}));
}

void MenuTriggerTest::entryIsGoneFromTheMenuAtOnce()
{
    const QPointer<QAction> left = entry(deleteMenu(*m_menu), "Left"_s);
    QStringList seen;
    connect(m_manager.get(), &Manager::groupModified, this, [&] {
        seen = entries(*m_menu).mid(0, 1) + entries(*saveAsMenu(*m_menu)) +
               entries(*deleteMenu(*m_menu));
        QVERIFY(left->associatedWidgets().isEmpty());
        QVERIFY(!deleteMenu(*m_menu)->findChildren<QAction*>().contains(left));
    });
    left->trigger();
    QCOMPARE(seen, lines({"Right", "[edit]", "Right", "Right"}));
}

void MenuTriggerTest::entryGoesWithTheMenu()
{
    const QPointer<QAction> left = entry(deleteMenu(*m_menu), "Left"_s);
    left->trigger();
    QVERIFY(left);
    delete m_menu;
    QVERIFY(!left);
}

void MenuTriggerTest::entriesThatAreNotTriggeredAreDeletedAtOnce()
{
    const QPointer<QAction> triggered = entry(deleteMenu(*m_menu), "Left"_s);
    const QPointer<QAction> other = entry(deleteMenu(*m_menu), "Right"_s);
    const QPointer<QAction> viewEntry = entry(m_menu, "Left"_s);
    const QPointer<QLineEdit> edit = nameEdit(*m_menu);
    triggered->trigger();
    QVERIFY(!other);
    QVERIFY(!viewEntry);
    QVERIFY(!edit);
}

QTEST_MAIN(MenuTriggerTest)
#include "MenuTriggerTest.moc"
