// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QLineEdit>
#include <QPointer>
#include <QtTest>

#include <functional>

using namespace Panorel;
using namespace Panorel::Tests;

using Change = std::function<void(Manager&)>;
Q_DECLARE_METATYPE(Change)

/** How the menu follows the Manager's signals. */
class MenuUpdateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rebuiltBy_data();
    void rebuiltBy();
    void notRebuiltBy_data();
    void notRebuiltBy();
    void rebuiltBySlot();
    void followsTheGroup();
    void keepsTheMarkWhenRebuilt();
    void movesTheMark();
    void marksByCase();
    void removesTheMark_data();
    void removesTheMark();
    void removesNoMark();
    void keepsTheMarkOfAnUnknownName();
    void marksNothingForTheNamelessView();
    void selectionBySlot();
    void losesTypedText();
    void specialName_data();
    void specialName();

private:
    QStringList views() const { return entries(*m_menu).mid(0, viewEntries(*m_menu).size()); }

    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Menu> m_menu;
};

void MenuUpdateTest::init()
{
    m_manager = std::make_unique<Manager>(lines({"G", "H"}), false);
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QVERIFY(m_manager->createView("A"_s));
    m_menu = std::make_unique<Menu>(m_manager.get(), true, nullptr);
}

void MenuUpdateTest::cleanup()
{
    m_menu.reset();
    m_manager.reset();
}

void MenuUpdateTest::rebuiltBy_data()
{
    QTest::addColumn<Change>("change");

    QTest::newRow("groupModified") << Change([](Manager& m) { Q_EMIT m.groupModified(); });
    QTest::newRow("groupActivated") << Change([](Manager& m) { Q_EMIT m.groupActivated("G"_s); });
    QTest::newRow("viewUserDataChanged")
        << Change([](Manager& m) { Q_EMIT m.viewUserDataChanged(QVariant()); });
}

void MenuUpdateTest::rebuiltBy()
{
    QFETCH(Change, change);

    // Not through the menu, so that only the signal under test can tell.
    m_manager->blockSignals(true);
    m_manager->deleteView("a"_s);
    QVERIFY(m_manager->saveCurrentViewAs("new"_s));
    m_manager->blockSignals(false);
    const QPointer<QLineEdit> oldEdit = nameEdit(*m_menu);
    change(*m_manager);
    QCOMPARE(views(), lines({"A", "* new"}));
    QCOMPARE(entries(*saveAsMenu(*m_menu)), lines({"[edit]", "A", "new"}));
    QCOMPARE(entries(*deleteMenu(*m_menu)), lines({"A", "new"}));
    QVERIFY(oldEdit.isNull());
}

void MenuUpdateTest::notRebuiltBy_data()
{
    QTest::addColumn<Change>("change");

    QTest::newRow("viewActivated") << Change([](Manager& m) { Q_EMIT m.viewActivated("A"_s); });
    QTest::newRow("factoryDefaultViewChanged")
        << Change([](Manager& m) { Q_EMIT m.factoryDefaultViewChanged(true); });
    QTest::newRow("programStartViewChanged")
        << Change([](Manager& m) { Q_EMIT m.programStartViewChanged(true); });
}

void MenuUpdateTest::notRebuiltBy()
{
    QFETCH(Change, change);

    nameEdit(*m_menu)->setText("typed"_s);
    const QList<QAction*> actions = m_menu->actions();
    const QPointer<QAction> first = viewEntries(*m_menu).first();
    const QPointer<QLineEdit> edit = nameEdit(*m_menu);
    change(*m_manager);
    QCOMPARE(m_menu->actions(), actions);
    QVERIFY(first);
    QVERIFY(edit);
    QCOMPARE(edit->text(), "typed"_s);
}

void MenuUpdateTest::rebuiltBySlot()
{
    m_manager->blockSignals(true);
    QVERIFY(m_manager->saveCurrentViewAs("new"_s));
    m_manager->blockSignals(false);
    m_menu->updateMenu();
    QCOMPARE(views(), lines({"a", "A", "* new"}));
    // Again and again, nothing piles up.
    const int children = m_menu->findChildren<QObject*>().size();
    m_menu->updateMenu();
    QCOMPARE(views(), lines({"a", "A", "* new"}));
    QCOMPARE(m_menu->findChildren<QObject*>().size(), children);
}

void MenuUpdateTest::followsTheGroup()
{
    QVERIFY(m_manager->activateGroup("H"_s));
    QCOMPARE(views(), QStringList());
    QCOMPARE(entries(*deleteMenu(*m_menu)), QStringList());
    QVERIFY(m_manager->createView("h"_s));
    QCOMPARE(views(), lines({"h"}));
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(views(), lines({"* a", "A"}));
}

void MenuUpdateTest::keepsTheMarkWhenRebuilt()
{
    QVERIFY(m_manager->createView("b"_s));
    QCOMPARE(views(), lines({"* a", "A", "b"}));
    m_manager->deleteView("A"_s);
    QCOMPARE(views(), lines({"* a", "b"}));
}

void MenuUpdateTest::movesTheMark()
{
    QVERIFY(m_manager->activateView("A"_s));
    QCOMPARE(views(), lines({"a", "* A"}));
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QCOMPARE(views(), lines({"* a", "A"}));
    QVERIFY(m_manager->saveCurrentViewAs("c"_s));
    QCOMPARE(views(), lines({"a", "A", "* c"}));
}

void MenuUpdateTest::marksByCase()
{
    // Both orders, so that the first of two like names does not win by chance.
    QVERIFY(m_manager->saveCurrentViewAs("B"_s));
    QVERIFY(m_manager->saveCurrentViewAs("b"_s));
    QCOMPARE(views(), lines({"a", "A", "B", "* b"}));
}

void MenuUpdateTest::removesTheMark_data()
{
    QTest::addColumn<Change>("change");

    QTest::newRow("the active view is deleted") << Change([](Manager& m) {
        m.blockSignals(true);
        m.deleteView("a"_s);
        QVERIFY(m.createView("a"_s));
        m.blockSignals(false);
        Q_EMIT m.viewActivated(""_s);
    });
    QTest::newRow("the active name is null, the signal's is not") << Change([](Manager& m) {
        m.blockSignals(true);
        m.deleteView("a"_s);
        m.blockSignals(false);
        Q_EMIT m.viewActivated("a"_s);
    });
}

void MenuUpdateTest::removesTheMark()
{
    QFETCH(Change, change);

    QCOMPARE(views(), lines({"* a", "A"}));
    change(*m_manager);
    QCOMPARE(views(), lines({"a", "A"}));
}

void MenuUpdateTest::removesNoMark()
{
    m_manager->deleteView("a"_s);
    QCOMPARE(views(), lines({"A"}));
    m_menu->updateSelection();
    QCOMPARE(views(), lines({"A"}));
}

void MenuUpdateTest::keepsTheMarkOfAnUnknownName()
{
    m_manager->blockSignals(true);
    QVERIFY(m_manager->saveCurrentViewAs("unlisted"_s));
    m_manager->blockSignals(false);
    Q_EMIT m_manager->viewActivated("unlisted"_s);
    QCOMPARE(views(), lines({"* a", "A"}));
}

void MenuUpdateTest::marksNothingForTheNamelessView()
{
    QVERIFY(m_manager->saveCurrentViewAs(""_s));
    QCOMPARE(m_manager->activeView(), ""_s);
    QCOMPARE(views(), lines({"a", "A", ""}));
}

void MenuUpdateTest::selectionBySlot()
{
    m_manager->blockSignals(true);
    QVERIFY(m_manager->activateView("A"_s));
    m_manager->blockSignals(false);
    QCOMPARE(views(), lines({"* a", "A"}));
    m_menu->updateSelection();
    QCOMPARE(views(), lines({"a", "* A"}));
}

void MenuUpdateTest::losesTypedText()
{
    nameEdit(*m_menu)->setText("typed"_s);
    QVERIFY(m_manager->createView("b"_s));
    QCOMPARE(nameEdit(*m_menu)->text(), QString());
}

void MenuUpdateTest::specialName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << ""_s;
    QTest::newRow("ampersand") << "R&D"_s;
    QTest::newRow("ampersands") << "&&&"_s;
    QTest::newRow("tab") << "left\tright"_s;
    QTest::newRow("placeholder") << "%1 %2"_s;
    QTest::newRow("markup") << "<b>bold</b>"_s;
    QTest::newRow("dash") << "-"_s;
    QTest::newRow("blanks") << "  x "_s;
    QTest::newRow("reserved word") << "__current__"_s;
    QTest::newRow("beyond the basic plane") << "\xF0\x9F\x98\x80"_s;
}

void MenuUpdateTest::specialName()
{
    QFETCH(QString, name);

    QVERIFY(m_manager->createView(name));
    QCOMPARE(viewEntries(*m_menu).last()->text(), name);
    QCOMPARE(viewEntries(*m_menu).last()->data().toString(), name);
    QAction* save = entry(saveAsMenu(*m_menu), name);
    QVERIFY(save);
    save->trigger();
    QCOMPARE(m_manager->views(), lines({"a", "A"}) + QStringList(name));
    QCOMPARE(m_manager->activeView(), name);
    QAction* remove = entry(deleteMenu(*m_menu), name);
    QVERIFY(remove);
    remove->trigger();
    QCOMPARE(m_manager->views(), lines({"a", "A"}));
}

QTEST_MAIN(MenuUpdateTest)
#include "MenuUpdateTest.moc"
