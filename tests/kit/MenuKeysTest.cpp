// SPDX-License-Identifier: MIT
#include "support/Text.h"
#include "ui/Hands.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <memory>

namespace Panorel::Tests {

/** Ways through the kit's menu by keys and mouse: its field for names, and its groups. */
class MenuKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void leftOverTextIsGone();
    void arrowsGoOnFromTheField();
    void arrowsGoOnAfterTheMouse();
    void groupsAreSwitched();
    void oneGroupNeedsNoChoice();

private:
    QMenu* subMenu(int index) const;
    QLineEdit* field() const { return qobject_cast<QLineEdit*>(subMenu(0)->focusWidget()); }
    void start(const QStringList& groups);

    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Kit::Layouts> m_layouts;
    QMenu* m_menu = nullptr;
};

void MenuKeysTest::init()
{
    start({"First"_s, "R&D"_s});
}

void MenuKeysTest::cleanup()
{
    m_layouts.reset();
    m_manager.reset();
    m_window.reset();
}

void MenuKeysTest::start(const QStringList& groups)
{
    cleanup();
    m_window = std::make_unique<QMainWindow>();
    m_manager = std::make_unique<Manager>(groups, /*mergeOnApply=*/false);
    m_layouts = std::make_unique<Kit::Layouts>(*m_manager);
    m_layouts->addWindow(*m_window);
    m_manager->saveCurrentViewAs("Old"_s);
    m_menu = m_layouts->createMenu(m_window.get());
    m_window->menuBar()->setNativeMenuBar(false);
    m_window->menuBar()->addMenu(m_menu);
    m_window->resize(400, 300);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

QMenu* MenuKeysTest::subMenu(int index) const
{
    QList<QMenu*> found;
    const QList<QAction*> actions = m_menu->actions();
    for (const QAction* action : actions) {
        if (action->menu())
            found.append(action->menu());
    }
    return found.value(index);
}

void MenuKeysTest::leftOverTextIsGone()
{
    QVERIFY(Hands::open(*m_menu) && Hands::openSubMenu(*m_menu, *subMenu(0)));
    QTRY_VERIFY(field());
    Hands::type("Wi"_s);
    QCOMPARE(field()->text(), "Wi"_s);
    Hands::press(Qt::Key_Escape);
    Hands::press(Qt::Key_Escape);
    QVERIFY(!m_menu->isVisible());
    QVERIFY(Hands::open(*m_menu) && Hands::openSubMenu(*m_menu, *subMenu(0)));
    QTRY_VERIFY(field());
    QCOMPARE(field()->text(), QString());
}

void MenuKeysTest::arrowsGoOnFromTheField()
{
    QVERIFY(Hands::open(*m_menu));
    for (int i = 0; i < 9 && m_menu->activeAction() != subMenu(0)->menuAction(); ++i)
        Hands::press(Qt::Key_Down);
    Hands::press(Qt::Key_Right);
    QTRY_VERIFY(field());
    Hands::press(Qt::Key_Down);
    QCOMPARE(subMenu(0)->activeAction()->text(), "Old"_s);
}

void MenuKeysTest::arrowsGoOnAfterTheMouse()
{
    QVERIFY(Hands::open(*m_menu) && Hands::openSubMenu(*m_menu, *subMenu(0)));
    QTRY_VERIFY(field());
    Hands::press(Qt::Key_Down);
    QVERIFY(subMenu(0)->activeAction());
    QCOMPARE(subMenu(0)->activeAction()->text(), "Old"_s);
}

void MenuKeysTest::groupsAreSwitched()
{
    QMenu* groups = subMenu(2);
    QVERIFY(groups);
    const QList<QAction*> actions = groups->actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.at(1)->text(), "R&&D"_s);
    QVERIFY(actions.at(0)->isChecked());
    QVERIFY(Hands::open(*m_menu) && Hands::openSubMenu(*m_menu, *groups));
    Hands::click(*groups, actions.at(1));
    QCOMPARE(m_manager->activeGroup(), "R&D"_s);
    QVERIFY(actions.at(1)->isChecked() && !actions.at(0)->isChecked());
    // Whoever switches.
    QVERIFY(m_manager->activateGroup("First"_s));
    QVERIFY(actions.at(0)->isChecked() && !actions.at(1)->isChecked());
}

void MenuKeysTest::oneGroupNeedsNoChoice()
{
    start({"First"_s});
    QVERIFY(subMenu(1));
    QVERIFY(!subMenu(2));
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::MenuKeysTest)
#include "MenuKeysTest.moc"
