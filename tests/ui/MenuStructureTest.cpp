// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QActionGroup>
#include <QLineEdit>
#include <QPointer>
#include <QWidgetAction>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** The entries of the menu: their order, owners and data. */
class MenuStructureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void topToBottom_data();
    void topToBottom();
    void subMenusAreSorted();
    void subMenusWithoutViews();
    void title();
    void parents();
    void entriesDieWithTheMenu();
    void viewEntries();
    void subMenuEntries();
    void oneExclusiveGroup();
    void nameEditIsEmpty();
    void fontOfTheEntries();
    void laterFontsDoNotReachTheEntries();
    void skippedViewUnknownToTheManager();
};

namespace {

QStringList compactEntries()
{
    return lines({"---", "Save Current Layout As... >", "Delete Layout... >"});
}

QStringList extendedEntries()
{
    return compactEntries() +
           lines({"---", "Export ...", "Import ...", "Import & Merge ...", "---",
                  "Reset Layout to Program Start (off)", "Reset Layout to Factory Default (off)"});
}

void create(Manager& manager, const QStringList& names)
{
    for (const QString& name : names)
        QVERIFY(manager.createView(name));
}

} // namespace

void MenuStructureTest::topToBottom_data()
{
    QTest::addColumn<QStringList>("views");
    QTest::addColumn<QString>("active");
    QTest::addColumn<bool>("extended");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("no views, compact") << QStringList() << QString() << false << compactEntries();
    QTest::newRow("no views, extended") << QStringList() << QString() << true << extendedEntries();
    QTest::newRow("views, compact") << lines({"b", "B", "a"}) << QString() << false
                                    << lines({"b", "B", "a"}) + compactEntries();
    QTest::newRow("views, extended") << lines({"b", "B", "a"}) << QString() << true
                                     << lines({"b", "B", "a"}) + extendedEntries();
    QTest::newRow("active view") << lines({"b", "B", "a"}) << "B"_s << false
                                 << lines({"b", "* B", "a"}) + compactEntries();
}

void MenuStructureTest::topToBottom()
{
    QFETCH(QStringList, views);
    QFETCH(QString, active);
    QFETCH(bool, extended);
    QFETCH(QStringList, expected);

    Manager manager({"G"_s}, false);
    create(manager, views);
    QCOMPARE(manager.activateView(active), !active.isEmpty());
    const Menu menu(&manager, extended, nullptr);
    QCOMPARE(entries(menu), expected);
}

void MenuStructureTest::subMenusAreSorted()
{
    Manager manager({"G"_s}, false);
    create(manager, lines({"b", "B", "a"}));
    const Menu menu(&manager, false, nullptr);
    QCOMPARE(entries(*saveAsMenu(menu)), lines({"[edit]", "B", "a", "b"}));
    QCOMPARE(entries(*deleteMenu(menu)), lines({"B", "a", "b"}));
}

void MenuStructureTest::subMenusWithoutViews()
{
    Manager manager({"G"_s}, false);
    const Menu menu(&manager, false, nullptr);
    QCOMPARE(entries(*saveAsMenu(menu)), lines({"[edit]"}));
    QCOMPARE(entries(*deleteMenu(menu)), QStringList());
}

void MenuStructureTest::title()
{
    Manager manager({"G"_s}, false);
    const Menu menu(&manager, false, nullptr);
    QCOMPARE(menu.title(), "Layouts"_s);
    QCOMPARE(menu.menuAction()->text(), "Layouts"_s);
    QCOMPARE(saveAsMenu(menu)->title(), "Save Current Layout As..."_s);
    QCOMPARE(deleteMenu(menu)->title(), "Delete Layout..."_s);
}

void MenuStructureTest::parents()
{
    Manager manager({"G"_s}, false);
    create(manager, {"a"_s});
    QWidget parent;
    auto* menu = new Menu(&manager, true, &parent);
    QCOMPARE(menu->parentWidget(), &parent);
    QCOMPARE(manager.parent(), nullptr);
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        QCOMPARE(action->parent(), action->menu() ? static_cast<QObject*>(action->menu()) : menu);
    for (const QMenu* subMenu : {saveAsMenu(*menu), deleteMenu(*menu)}) {
        QCOMPARE(subMenu->parentWidget(), menu);
        const QList<QAction*> subActions = subMenu->actions();
        for (const QAction* action : subActions)
            QCOMPARE(action->parent(), subMenu);
    }
    QCOMPARE(nameEdit(*menu)->parentWidget(), saveAsMenu(*menu));
}

void MenuStructureTest::entriesDieWithTheMenu()
{
    Manager manager({"G"_s}, false);
    create(manager, {"a"_s});
    auto menu = std::make_unique<Menu>(&manager, true, nullptr);
    QList<QPointer<QObject>> owned;
    const QList<QObject*> children = menu->findChildren<QObject*>();
    for (QObject* child : children)
        owned.append(child);
    menu.reset();
    for (const QPointer<QObject>& child : qAsConst(owned))
        QVERIFY(child.isNull());
    // The Manager, which is not owned, works on and reaches nobody.
    QVERIFY(manager.createView("b"_s));
    QVERIFY(manager.activateView("b"_s));
}

void MenuStructureTest::viewEntries()
{
    Manager manager({"G"_s}, false);
    create(manager, lines({"b", "R&D", ""}));
    const Menu menu(&manager, false, nullptr);
    QStringList data;
    const QList<QAction*> found = Tests::viewEntries(menu);
    for (const QAction* action : found) {
        QCOMPARE(action->data().userType(), int(QMetaType::QString));
        QCOMPARE(action->text(), action->data().toString());
        QVERIFY(action->isCheckable());
        QVERIFY(!action->menu());
        data.append(action->data().toString());
    }
    QCOMPARE(data, lines({"b", "R&D", ""}));
}

void MenuStructureTest::subMenuEntries()
{
    Manager manager({"G"_s}, false);
    create(manager, {"a"_s});
    const Menu menu(&manager, false, nullptr);
    for (const QMenu* subMenu : {saveAsMenu(menu), deleteMenu(menu)}) {
        const QAction* action = entry(subMenu, "a"_s);
        QVERIFY(action);
        QVERIFY(!action->data().isValid());
        QVERIFY(!action->isCheckable());
        QCOMPARE(action->actionGroup(), nullptr);
    }
}

void MenuStructureTest::oneExclusiveGroup()
{
    Manager manager({"G"_s}, false);
    create(manager, lines({"a", "b"}));
    const Menu menu(&manager, true, nullptr);
    const QList<QActionGroup*> groups = menu.findChildren<QActionGroup*>();
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first()->parent(), &menu);
    QVERIFY(groups.first()->isExclusive());
    QCOMPARE(groups.first()->actions(), Tests::viewEntries(menu));
}

void MenuStructureTest::nameEditIsEmpty()
{
    Manager manager({"G"_s}, false);
    const Menu menu(&manager, false, nullptr);
    const QLineEdit* edit = nameEdit(menu);
    QCOMPARE(edit->metaObject()->className(), "Panorel::MenuEdit");
    QCOMPARE(edit->text(), QString());
    QCOMPARE(edit->placeholderText(), QString());
}

void MenuStructureTest::fontOfTheEntries()
{
    const QFont before = QApplication::font();
    QFont special = before;
    special.setPointSize(before.pointSize() + 7);
    QApplication::setFont(special);
    Manager manager({"G"_s}, false);
    create(manager, {"a"_s});
    const Menu menu(&manager, false, nullptr);
    QApplication::setFont(before);
    QCOMPARE(Tests::viewEntries(menu).first()->font(), special);
    QCOMPARE(Tests::viewEntries(menu).first()->font().style(), QFont::StyleNormal);
}

void MenuStructureTest::laterFontsDoNotReachTheEntries()
{
    const QFont before = QApplication::font();
    Manager manager({"G"_s}, false);
    create(manager, {"old"_s});
    const Menu menu(&manager, false, nullptr);
    QFont later = before;
    later.setPointSize(before.pointSize() + 7);
    QApplication::setFont(later);
    const QFont oldEntry = Tests::viewEntries(menu).first()->font();
    create(manager, {"new"_s});
    const QFont newEntry = Tests::viewEntries(menu).last()->font();
    QApplication::setFont(before);
    QCOMPARE(oldEntry, before);
    QCOMPARE(newEntry, before);
}

void MenuStructureTest::skippedViewUnknownToTheManager()
{
    // The Manager returns no user data, so even a view that was read with "true" is not skipped.
    Manager manager({"G"_s}, false);
    QVERIFY(manager.fromXml(R"(<ViewData Version="1.1.0"><Groups><Group Name="G">
        <Views><View Name="a"><UserData>true</UserData></View></Views>
        <CurrentView Name="__current__"/></Group></Groups></ViewData>)",
                            false));
    const Menu menu(&manager, false, nullptr);
    QCOMPARE(entries(menu), lines({"a"}) + compactEntries());
    QVERIFY(!Tests::viewEntries(menu).first()->font().italic());
}

QTEST_MAIN(MenuStructureTest)
#include "MenuStructureTest.moc"
