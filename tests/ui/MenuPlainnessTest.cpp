// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"
#include "ui/Differences.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QLineEdit>
#include <QWidgetAction>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Nothing is set on the menu's widgets and actions beyond what the menu is for. */
class MenuPlainnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void menu();
    void subMenus();
    void viewEntries();
    void separators();
    void subMenuEntries();
    void fileEntries();
    void resetEntries();
    void lineEdit();

private:
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Menu> m_menu;
};

namespace {

// Except the place of an action and its menu, which follow from adding it.
QStringList actionDifferences(const QAction* action, const QAction& plain)
{
    QStringList names = differences(*action, plain);
    if (action->data() != plain.data())
        names.append("data"_s);
    if (action->isSeparator() != plain.isSeparator())
        names.append("separator"_s);
    return names;
}

} // namespace

void MenuPlainnessTest::init()
{
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    QVERIFY(m_manager->createView("a"_s));
    QVERIFY(m_manager->saveCurrentViewAs("b"_s));
    m_menu = std::make_unique<Menu>(m_manager.get(), true, nullptr);
}

void MenuPlainnessTest::cleanup()
{
    m_menu.reset();
    m_manager.reset();
}

void MenuPlainnessTest::menu()
{
    QMenu plain("Layouts"_s);
    // The same entries, because the size depends on them.
    plain.addActions(m_menu->actions());
    QCOMPARE(widgetDifferences(*m_menu, plain), QStringList());
}

void MenuPlainnessTest::subMenus()
{
    QMenu parent;
    QMenu* saveAs = parent.addMenu("Save Current Layout As..."_s);
    saveAs->addActions(saveAsMenu(*m_menu)->actions().mid(1));
    saveAsMenu(*m_menu)->removeAction(saveAsMenu(*m_menu)->actions().first());
    QCOMPARE(widgetDifferences(*saveAsMenu(*m_menu), *saveAs), QStringList());
    QCOMPARE(actionDifferences(saveAsMenu(*m_menu)->menuAction(), *saveAs->menuAction()),
             QStringList());

    QMenu* remove = parent.addMenu("Delete Layout..."_s);
    remove->addActions(deleteMenu(*m_menu)->actions());
    QCOMPARE(widgetDifferences(*deleteMenu(*m_menu), *remove), QStringList());
    QCOMPARE(actionDifferences(deleteMenu(*m_menu)->menuAction(), *remove->menuAction()),
             QStringList());
}

void MenuPlainnessTest::viewEntries()
{
    const QList<QAction*> actions = Tests::viewEntries(*m_menu);
    QAction a("a"_s);
    a.setData("a"_s);
    a.setCheckable(true);
    QCOMPARE(actionDifferences(actions.at(0), a), QStringList());
    QAction b("b"_s);
    b.setData("b"_s);
    b.setCheckable(true);
    b.setChecked(true);
    QCOMPARE(actionDifferences(actions.at(1), b), QStringList());
}

void MenuPlainnessTest::separators()
{
    QAction plain;
    plain.setSeparator(true);
    int found = 0;
    const QList<QAction*> actions = m_menu->actions();
    for (const QAction* action : actions) {
        if (!action->isSeparator())
            continue;
        ++found;
        QCOMPARE(actionDifferences(action, plain), QStringList());
    }
    QCOMPARE(found, 3);
}

void MenuPlainnessTest::subMenuEntries()
{
    const QAction plain("a"_s);
    QCOMPARE(actionDifferences(entry(saveAsMenu(*m_menu), "a"_s), plain), QStringList());
    QCOMPARE(actionDifferences(entry(deleteMenu(*m_menu), "a"_s), plain), QStringList());
    const QWidgetAction plainEdit(nullptr);
    QCOMPARE(actionDifferences(saveAsMenu(*m_menu)->actions().first(), plainEdit), QStringList());
}

void MenuPlainnessTest::fileEntries()
{
    for (const QString& text : lines({"Export ...", "Import ...", "Import & Merge ..."}))
        QCOMPARE(actionDifferences(entry(m_menu.get(), text), QAction(text)), QStringList());
}

void MenuPlainnessTest::resetEntries()
{
    for (const QString& text :
         lines({"Reset Layout to Program Start", "Reset Layout to Factory Default"})) {
        QAction plain(text);
        plain.setEnabled(false);
        QCOMPARE(actionDifferences(entry(m_menu.get(), text), plain), QStringList());
    }
}

void MenuPlainnessTest::lineEdit()
{
    QMenu menu;
    auto* plain = new QLineEdit(&menu);
    QWidgetAction action(&menu);
    action.setDefaultWidget(plain);
    menu.addAction(&action);
    QCOMPARE(widgetDifferences(*nameEdit(*m_menu), *plain), QStringList());
}

QTEST_MAIN(MenuPlainnessTest)
#include "MenuPlainnessTest.moc"
