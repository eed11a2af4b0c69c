// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <QLineEdit>
#include <QPointer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

QStringList viewTexts(const QMenu& menu)
{
    QStringList texts;
    const QList<QAction*> found = viewEntries(menu);
    for (const QAction* const view : found)
        texts.append(view->text());
    return texts;
}

/** Runs an action when the watched object gets a close event, before it handles that. */
class CloseWatch : public QObject
{
public:
    std::function<void()> onClose;

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() != QEvent::Close || !onClose)
            return QObject::eventFilter(object, event);
        onClose();
        return true;
    }
};

} // namespace

/** The menu and the button while other code deletes them, rebuilds them or changes the views. */
class MenuReentryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void deletedByItsOwnEntry_data();
    void deletedByItsOwnEntry();
    void deletedByASignal_data();
    void deletedByASignal();
    void deletedByReturnInItsField();
    void deletedWhenItCloses();
    void changedWhilePoppedUp();
    void closedByTheChangeItMakes();
    void buttonDeletedByItsClick();
    void fieldRebuiltByReturn();

private:
    std::unique_ptr<Manager> m_manager;
    QPointer<Menu> m_menu;
};

void MenuReentryTest::init()
{
    m_manager = std::make_unique<Manager>(lines({"G", "H"}), false);
    QVERIFY(m_manager->createView("a"_s));
    QVERIFY(m_manager->saveCurrentViewAs("b"_s));
    const QByteArray document = m_manager->toXml(/*markActive=*/true);
    QVERIFY(m_manager->setFactoryDefaultView(document));
    QVERIFY(m_manager->setProgramStartView(document));
    m_menu = new Menu(m_manager.get(), /*extended=*/true);
}

void MenuReentryTest::cleanup()
{
    delete m_menu;
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
    m_manager.reset();
}

void MenuReentryTest::deletedByItsOwnEntry_data()
{
    QTest::addColumn<QString>("subMenu");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("views");
    QTest::addColumn<QString>("active");
    QTest::addRow("view") << QString() << "a"_s << lines({"a", "b"}) << "a"_s;
    QTest::addRow("save") << "Save Current Layout As..."_s
                          << "a"_s << lines({"a", "b"}) << "a"_s;
    QTest::addRow("delete") << "Delete Layout..."_s
                            << "b"_s << lines({"a"}) << QString();
    QTest::addRow("program start")
        << QString() << "Reset Layout to Program Start"_s << lines({"a", "b"}) << "b"_s;
    QTest::addRow("factory default")
        << QString() << "Reset Layout to Factory Default"_s << lines({"a", "b"}) << "b"_s;
}

// The operation that the entry starts goes on to its end without the menu.
void MenuReentryTest::deletedByItsOwnEntry()
{
    QFETCH(QString, subMenu);
    QFETCH(QString, text);
    const QMenu* const holder = subMenu.isEmpty() ? m_menu.data() : entry(m_menu, subMenu)->menu();
    connect(m_manager.get(), &Manager::viewActivated, this, [this] { delete m_menu; });
    entry(holder, text)->trigger();
    QVERIFY(!m_menu);
    QTEST(m_manager->views(), "views");
    QTEST(m_manager->activeView(), "active");
}

void MenuReentryTest::deletedByASignal_data()
{
    QTest::addColumn<bool>("before");
    QTest::addRow("received after the menu") << false;
    QTest::addRow("received before the menu") << true;
}

void MenuReentryTest::deletedByASignal()
{
    QFETCH(bool, before);
    const std::vector<std::function<void()>> acts{
        [this] { QVERIFY(m_manager->createView("c"_s)); }, [this] { m_manager->deleteView("b"_s); },
        [this] { QVERIFY(m_manager->activateGroup("H"_s)); }, [this] { m_manager->clear(); }};
    for (const auto& act : acts) {
        QObject receiver;
        const auto remove = [this] { delete m_menu; };
        const auto connectReceiver = [&] {
            connect(m_manager.get(), &Manager::groupModified, &receiver, remove);
            connect(m_manager.get(), &Manager::groupActivated, &receiver, remove);
        };
        // Receivers are called in the order in which they were connected.
        delete m_menu;
        if (before)
            connectReceiver();
        m_menu = new Menu(m_manager.get(), /*extended=*/true);
        if (!before)
            connectReceiver();
        act();
        QVERIFY(!m_menu);
    }
    QCOMPARE(m_manager->views(), QStringList());
}

void MenuReentryTest::deletedByReturnInItsField()
{
    connect(m_manager.get(), &Manager::groupModified, this, [this] { delete m_menu; });
    QLineEdit* const edit = nameEdit(*m_menu);
    QTest::keyClicks(edit, "typed"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(!m_menu);
    QCOMPARE(m_manager->views(), lines({"a", "b", "typed"}));
    QCOMPARE(m_manager->activeView(), "typed"_s);
}

void MenuReentryTest::deletedWhenItCloses()
{
    CloseWatch watch;
    m_menu->installEventFilter(&watch);
    watch.onClose = [this] { delete m_menu; };
    m_menu->popup(QPoint(0, 0));
    QLineEdit* const edit = nameEdit(*m_menu);
    QTest::keyClicks(edit, "typed"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(!m_menu);
    QCOMPARE(m_manager->activeView(), "typed"_s);
}

void MenuReentryTest::changedWhilePoppedUp()
{
    m_menu->popup(QPoint(0, 0));
    m_menu->setActiveAction(entry(m_menu, "b"_s));
    m_manager->deleteView("b"_s);
    QCOMPARE(viewTexts(*m_menu), lines({"a"}));
    QVERIFY(m_manager->createView("c"_s));
    QCOMPARE(viewTexts(*m_menu), lines({"a", "c"}));
    QTest::keyClick(m_menu, Qt::Key_Up);
    QVERIFY(m_manager->activateGroup("H"_s));
    QCOMPARE(viewTexts(*m_menu), QStringList());
    QVERIFY(m_manager->activateFactoryDefaultView());
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(viewTexts(*m_menu), lines({"a", "b"}));
    QVERIFY(entry(m_menu, "b"_s)->isChecked());
    QVERIFY(m_menu->isVisible());
    m_menu->close();
}

void MenuReentryTest::closedByTheChangeItMakes()
{
    m_menu->popup(QPoint(0, 0));
    QMenu* const subMenu = deleteMenu(*m_menu);
    subMenu->popup(QPoint(0, 0));
    subMenu->setActiveAction(entry(subMenu, "b"_s));
    // The entry is destroyed by the rebuilding while it is still triggered.
    QTest::keyClick(subMenu, Qt::Key_Return);
    QCOMPARE(m_manager->views(), lines({"a"}));
    QCOMPARE(viewTexts(*m_menu), lines({"a"}));
    QVERIFY(!subMenu->isVisible());
    m_menu->close();
}

void MenuReentryTest::buttonDeletedByItsClick()
{
    QPointer<ViewButton> button = new ViewButton(m_manager.get(), "Next"_s);
    connect(m_manager.get(), &Manager::viewActivated, this, [&] { delete button; });
    button->click();
    QVERIFY(!button);
    QCOMPARE(m_manager->activeView(), "a"_s);
}

void MenuReentryTest::fieldRebuiltByReturn()
{
    const QPointer<QLineEdit> edit = nameEdit(*m_menu);
    QTest::keyClicks(edit, "new"_s);
    QTest::keyClick(edit, Qt::Key_Enter);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!edit);
    QCOMPARE(viewTexts(*m_menu), lines({"a", "b", "new"}));
    QCOMPARE(nameEdit(*m_menu)->text(), QString());
}

QTEST_MAIN(MenuReentryTest)
#include "MenuReentryTest.moc"
