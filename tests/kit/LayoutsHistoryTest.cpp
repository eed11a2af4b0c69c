// SPDX-License-Identifier: MIT
#include "HistoryProgram.h"

#include <QAction>
#include <QMenu>
#include <QTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** Steps of single views, switches and groups, and what users see of them. */
class LayoutsHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreNamed();
    void savingIsUndone_data();
    void savingIsUndone();
    void aDeletedViewComesBackInItsPlace_data();
    void aDeletedViewComesBackInItsPlace();
    void aSwitchIsUndone_data();
    void aSwitchIsUndone();
    void aSwitchKeepsToolBarsWithMerging();
    void theFirstSwitchIsUndone();
    void aSwitchOfGroupsIsUndone_data();
    void aSwitchOfGroupsIsUndone();
    void givingTheActiveViewAgainIsUndone_data();
    void givingTheActiveViewAgainIsUndone();
    void signalsComeOnceTheWindowsAreArranged();
    void theMenuFollows();
    void anOpenMenuSurvives();
};

void LayoutsHistoryTest::stepsAreNamed()
{
    HistoryProgram p;
    p.save("a"_s, left);
    p.save("Cut & Paste"_s, right);
    p.manager.activateView("a"_s);
    p.window.moveDock(top);
    p.manager.activateView("a"_s);
    p.save("a"_s, bottom);
    p.manager.createView("c"_s);
    p.manager.deleteView("a"_s);
    p.manager.activateGroup("H"_s);
    QCOMPARE(
        texts(p.stack),
        (QStringList{"New \"a\""_s, "New \"Cut & Paste\""_s, "Switch to \"a\""_s, "Back to \"a\""_s,
                     "Save \"a\""_s, "New \"c\""_s, "Delete \"a\""_s, "Switch to Group \"H\""_s}));
    const std::unique_ptr<QAction> undo(p.stack.createUndoAction(nullptr));
    QCOMPARE(undo->text(), "Undo Switch to Group \"H\""_s);
    QVERIFY(undo->shortcut().isEmpty());
}

void LayoutsHistoryTest::savingIsUndone_data()
{
    mergingColumn();
}

void LayoutsHistoryTest::savingIsUndone()
{
    QFETCH(bool, merges);
    HistoryProgram p(merges);
    p.save("a"_s, left);
    p.save("b"_s, right);
    p.save("b"_s, top);
    p.save("a"_s, bottom);
    QCOMPARE(p.views().at(0), "*a_ b^"_s);
    p.stack.undo();
    QCOMPARE(p.views().at(0), "a< *b^"_s);
    // Saving does not move the windows, and neither does undoing it.
    QCOMPARE(p.window.dockArea(), bottom);
    p.stack.undo();
    QCOMPARE(p.views().at(0), "a< *b>"_s);
    p.stack.undo();
    QCOMPARE(p.views().at(0), "*a<"_s);
    p.stack.undo();
    QCOMPARE(p.views().at(0), QString());
    QVERIFY(!p.stack.canUndo());
    p.stack.setIndex(4);
    QCOMPARE(p.views().at(0), "*a_ b^"_s);
    p.manager.activateView("b"_s);
    QCOMPARE(p.window.dockArea(), top);
}

void LayoutsHistoryTest::aDeletedViewComesBackInItsPlace_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("after");
    QTest::newRow("first") << "a"_s
                           << "b> *c^"_s;
    QTest::newRow("middle") << "b"_s
                            << "a< *c^"_s;
    QTest::newRow("active") << "c"_s
                            << "a< b>"_s;
}

void LayoutsHistoryTest::aDeletedViewComesBackInItsPlace()
{
    QFETCH(QString, name);
    QFETCH(QString, after);
    HistoryProgram p;
    p.save("a"_s, left);
    p.save("b"_s, right);
    p.save("c"_s, top);
    p.window.moveDock(bottom);
    p.manager.deleteView(name);
    QCOMPARE(p.views().at(0), after);
    for (int round = 0; round < 2; ++round) {
        p.stack.undo();
        QCOMPARE(p.views().at(0), "a< b> *c^"_s);
        QCOMPARE(p.manager.activeView(), "c"_s);
        p.stack.redo();
        QCOMPARE(p.views().at(0), after);
    }
    QCOMPARE(p.window.dockArea(), bottom);
}

void LayoutsHistoryTest::aSwitchIsUndone_data()
{
    mergingColumn();
}

// With what was not saved before, and again with what was not saved after it.
void LayoutsHistoryTest::aSwitchIsUndone()
{
    QFETCH(bool, merges);
    HistoryProgram p(merges);
    p.save("a"_s, left);
    p.save("b"_s, right);
    p.window.moveDock(top);
    p.manager.activateView("a"_s);
    QCOMPARE(p.window.dockArea(), left);
    p.window.moveDock(bottom);
    p.stack.undo();
    QCOMPARE(p.window.dockArea(), top);
    QCOMPARE(p.manager.activeView(), "b"_s);
    p.stack.redo();
    QCOMPARE(p.window.dockArea(), bottom);
    QCOMPARE(p.manager.activeView(), "a"_s);
    QCOMPARE(p.views().at(0), "*a< b>"_s);
    p.manager.activateView("b"_s);
    QCOMPARE(p.window.dockArea(), right);
}

// They are no part of what a layout gives then.
void LayoutsHistoryTest::aSwitchKeepsToolBarsWithMerging()
{
    HistoryProgram p(/*merges=*/true);
    p.save("a"_s, left);
    p.save("b"_s, right);
    p.manager.activateView("a"_s);
    p.window.moveBar(Qt::BottomToolBarArea);
    p.stack.undo();
    QCOMPARE(p.window.dockArea(), right);
    QCOMPARE(p.window.barArea(), Qt::BottomToolBarArea);
}

void LayoutsHistoryTest::theFirstSwitchIsUndone()
{
    HistoryProgram p;
    p.manager.createView("a"_s);
    p.window.moveDock(top);
    p.manager.activateView("a"_s);
    p.stack.undo();
    QVERIFY(p.manager.activeView().isNull());
    QCOMPARE(p.manager.views(), QStringList("a"_s));
    QCOMPARE(p.window.dockArea(), top);
    p.stack.redo();
    QCOMPARE(p.manager.activeView(), "a"_s);
}

void LayoutsHistoryTest::aSwitchOfGroupsIsUndone_data()
{
    mergingColumn();
}

void LayoutsHistoryTest::aSwitchOfGroupsIsUndone()
{
    QFETCH(bool, merges);
    HistoryProgram p(merges);
    p.save("a"_s, left);
    p.manager.activateGroup("H"_s);
    p.save("b"_s, right);
    p.window.moveDock(top);
    p.manager.activateGroup("G"_s);
    QCOMPARE(p.window.dockArea(), left);
    p.window.moveDock(bottom);
    p.stack.undo();
    QCOMPARE(p.manager.activeGroup(), "H"_s);
    QCOMPARE(p.window.dockArea(), top);
    // What the group that was left shows stays with it.
    p.manager.activateGroup("G"_s);
    QCOMPARE(p.window.dockArea(), bottom);
    QCOMPARE(p.views(), (QStringList{"*a<"_s, "*b>"_s}));
}

void LayoutsHistoryTest::givingTheActiveViewAgainIsUndone_data()
{
    mergingColumn();
}

void LayoutsHistoryTest::givingTheActiveViewAgainIsUndone()
{
    QFETCH(bool, merges);
    HistoryProgram p(merges);
    p.save("a"_s, left);
    p.window.moveDock(top);
    p.manager.activateView("a"_s);
    QCOMPARE(p.window.dockArea(), left);
    p.stack.undo();
    QCOMPARE(p.window.dockArea(), top);
    QCOMPARE(p.views().at(0), "*a<"_s);
    p.stack.redo();
    QCOMPARE(p.window.dockArea(), left);
}

void LayoutsHistoryTest::signalsComeOnceTheWindowsAreArranged()
{
    HistoryProgram p;
    p.save("a"_s, left);
    p.save("b"_s, right);
    p.manager.activateView("a"_s);
    QStringList seen;
    connect(&p.manager, &Manager::groupModified, this,
            [&] { seen += "modified "_s + p.manager.views().join(QLatin1Char(' ')); });
    connect(&p.manager, &Manager::groupActivated, this,
            [&](const QString& name) { seen += "group "_s + name; });
    connect(&p.manager, &Manager::viewActivated, this, [&](const QString& name) {
        seen += "view "_s + name + HistoryProgram::nameOf(p.window.dockArea());
    });
    p.stack.undo();
    QCOMPARE(seen, QStringList("view b>"_s));
    seen.clear();
    p.stack.undo();
    QCOMPARE(seen, (QStringList{"modified a"_s, "view a>"_s}));
    p.manager.activateGroup("H"_s);
    seen.clear();
    p.stack.undo();
    QCOMPARE(seen, (QStringList{"group G"_s, "view a>"_s}));
}

void LayoutsHistoryTest::theMenuFollows()
{
    HistoryProgram p;
    const std::unique_ptr<QMenu> menu(p.layouts.createMenu(nullptr));
    const auto checked = [&] {
        QStringList names;
        for (const QAction* entry : menu->actions()) {
            if (entry->isCheckable() && !entry->data().isNull())
                names += (entry->isChecked() ? "*"_s : QString()) + entry->text();
        }
        return names.join(QLatin1Char(' '));
    };
    const auto undo = [&] {
        for (const QAction* entry : menu->actions()) {
            if (entry->text().startsWith("Undo"_s))
                return entry->text();
        }
        return QString();
    };
    p.save("a"_s, left);
    p.save("b"_s, right);
    p.manager.activateView("a"_s);
    QCOMPARE(checked(), "*a b"_s);
    QCOMPARE(undo(), "Undo: Switch to \"a\""_s);
    p.stack.undo();
    QCOMPARE(checked(), "a *b"_s);
    QCOMPARE(undo(), "Undo: New \"b\""_s);
    p.stack.undo();
    QCOMPARE(checked(), "*a"_s);
    p.stack.undo();
    QCOMPARE(checked(), QString());
    QCOMPARE(undo(), "Undo"_s);
    p.stack.setIndex(3);
    QCOMPARE(checked(), "*a b"_s);
}

void LayoutsHistoryTest::anOpenMenuSurvives()
{
    HistoryProgram p;
    p.window.show();
    const std::unique_ptr<QMenu> menu(p.layouts.createMenu(nullptr));
    p.save("a"_s, left);
    p.save("b"_s, right);
    p.manager.deleteView("a"_s);
    menu->popup(QPoint(0, 0));
    QTRY_VERIFY(menu->isVisible());
    // By a shortcut of the application, say, and by the entry itself.
    p.stack.undo();
    p.stack.redo();
    p.stack.setIndex(1);
    p.stack.setIndex(3);
    for (QAction* entry : menu->actions()) {
        if (entry->text().startsWith("Undo"_s)) {
            QTest::mouseClick(menu.get(), Qt::LeftButton, {}, menu->actionGeometry(entry).center());
            break;
        }
    }
    QTRY_VERIFY(!menu->isVisible());
    QCOMPARE(p.views().at(0), "a< *b>"_s);
}

QTEST_MAIN(LayoutsHistoryTest)
#include "LayoutsHistoryTest.moc"
