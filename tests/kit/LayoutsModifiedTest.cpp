// SPDX-License-Identifier: MIT
#include "FourSidesWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>

#include <memory>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

constexpr auto left = Qt::LeftDockWidgetArea;
constexpr auto right = Qt::RightDockWidgetArea;

struct Program
{
    explicit Program(bool merges = false)
        : manager({"G"_s, "H"_s}, merges)
        , layouts(manager)
        , changes(&layouts, &Layouts::modifiedChanged)
    {
        layouts.addWindow(window, "w"_s);
        window.show();
        QCoreApplication::processEvents();
    }

    FourSidesWindow window;
    Manager manager;
    Layouts layouts;
    QSignalSpy changes;
};

void mergingColumn()
{
    QTest::addColumn<bool>("merges");
    QTest::newRow("without merging") << false;
    QTest::newRow("with merging") << true;
}

QAction* entry(const QMenu& menu, const QString& text)
{
    const QList<QAction*> actions = menu.actions();
    for (QAction* action : actions) {
        if (action->text().startsWith(text))
            return action;
    }
    return nullptr;
}

} // namespace

/** Whether the active layout is marked as modified when, and only when, it is. */
class LayoutsModifiedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAnActiveLayoutNothingIs();
    void movingAndPuttingBack_data();
    void movingAndPuttingBack();
    void savingAndGoingBack_data();
    void savingAndGoingBack();
    void aSwitchIsNoModification_data();
    void aSwitchIsNoModification();
    void sizesCount();
    void theWindowsSizeDoesNotCount();
    void toolBarsCountWithoutMergingOnly_data();
    void toolBarsCountWithoutMergingOnly();
    void newPartsDoNotCount();
    void undoIsFollowed();
    void undoKnowsSizes_data();
    void undoKnowsSizes();
    void redoKnowsWhatWasShown();
    void groupsKnowTheirOwn();
    void aStartKnowsWhatWasNotSaved();
    void theMenuOffersSaveAndBack();
    void withoutTheManagerNothingIs();
};

void LayoutsModifiedTest::withoutAnActiveLayoutNothingIs()
{
    Program p;
    p.window.addDockWidget(right, p.window.left);
    QVERIFY(!p.layouts.isModified());
    p.manager.createView("a"_s);
    p.window.addDockWidget(left, p.window.left);
    QVERIFY(!p.layouts.isModified());
}

void LayoutsModifiedTest::movingAndPuttingBack_data()
{
    mergingColumn();
}

void LayoutsModifiedTest::movingAndPuttingBack()
{
    QFETCH(bool, merges);
    Program p(merges);
    p.manager.saveCurrentViewAs("a"_s);
    QVERIFY(!p.layouts.isModified());
    p.window.right->close();
    QTRY_COMPARE(p.changes.count(), 1);
    QVERIFY(p.layouts.isModified());
    p.window.right->show();
    QTRY_COMPARE(p.changes.count(), 2);
    QVERIFY(!p.layouts.isModified());
    p.window.addDockWidget(right, p.window.bottom);
    QVERIFY(p.layouts.isModified());
    p.window.addDockWidget(Qt::BottomDockWidgetArea, p.window.bottom);
    QVERIFY(!p.layouts.isModified());
}

void LayoutsModifiedTest::savingAndGoingBack_data()
{
    mergingColumn();
}

void LayoutsModifiedTest::savingAndGoingBack()
{
    QFETCH(bool, merges);
    Program p(merges);
    p.manager.saveCurrentViewAs("a"_s);
    p.window.right->close();
    QVERIFY(p.layouts.isModified());
    p.manager.saveCurrentViewAs("a"_s);
    QVERIFY(!p.layouts.isModified());
    p.window.right->show();
    QVERIFY(p.layouts.isModified());
    p.manager.activateView("a"_s);
    QVERIFY(!p.layouts.isModified());
    QVERIFY(p.window.right->isHidden());
    p.window.right->show();
    QVERIFY(p.layouts.isModified());
    p.manager.deleteView("a"_s);
    QVERIFY(!p.layouts.isModified());
}

void LayoutsModifiedTest::aSwitchIsNoModification_data()
{
    mergingColumn();
}

void LayoutsModifiedTest::aSwitchIsNoModification()
{
    QFETCH(bool, merges);
    Program p(merges);
    p.manager.saveCurrentViewAs("a"_s);
    p.window.rearrangeDocks();
    p.window.addToolBar(Qt::BottomToolBarArea, p.window.mainBar);
    p.manager.saveCurrentViewAs("b"_s);
    p.window.right->setFloating(true);
    p.manager.saveCurrentViewAs("c"_s);
    for (const QString& name : {"a"_s, "b"_s, "c"_s, "b"_s, "a"_s}) {
        p.manager.activateView(name);
        QVERIFY(!p.layouts.isModified());
        QTest::qWait(200); // Longer than it takes to look.
        QVERIFY(!p.layouts.isModified());
        // Nor are the next ones in a window of another size.
        p.window.resize(p.window.width() + 150, p.window.height() - 60);
        QCoreApplication::processEvents();
        QVERIFY(!p.layouts.isModified());
    }
    QCOMPARE(p.changes.count(), 0);
}

void LayoutsModifiedTest::sizesCount()
{
    Program p;
    p.manager.saveCurrentViewAs("a"_s);
    const int width = p.window.leftTab->width();
    p.window.resizeDocks({p.window.leftTab}, {width + 100}, Qt::Horizontal);
    QVERIFY(p.layouts.isModified());
    p.window.resizeDocks({p.window.leftTab}, {width + 1}, Qt::Horizontal);
    QVERIFY(!p.layouts.isModified());
}

void LayoutsModifiedTest::theWindowsSizeDoesNotCount()
{
    Program p;
    p.manager.saveCurrentViewAs("a"_s);
    QCoreApplication::processEvents();
    QVERIFY(!p.layouts.isModified());
    p.window.resize(1600, 1000);
    QCoreApplication::processEvents();
    QVERIFY(!p.layouts.isModified());
    // From then on sizes count again.
    p.window.resizeDocks({p.window.leftTab}, {p.window.leftTab->width() + 200}, Qt::Horizontal);
    QVERIFY(p.layouts.isModified());
}

void LayoutsModifiedTest::toolBarsCountWithoutMergingOnly_data()
{
    mergingColumn();
}

void LayoutsModifiedTest::toolBarsCountWithoutMergingOnly()
{
    QFETCH(bool, merges);
    Program p(merges);
    p.manager.saveCurrentViewAs("a"_s);
    p.window.addToolBar(Qt::RightToolBarArea, p.window.mainBar);
    QCOMPARE(p.layouts.isModified(), !merges);
}

void LayoutsModifiedTest::newPartsDoNotCount()
{
    Program p;
    p.manager.saveCurrentViewAs("a"_s);
    auto* dock = new QDockWidget(&p.window);
    dock->setObjectName("plugin"_s);
    p.window.addDockWidget(left, dock);
    QCoreApplication::processEvents();
    QVERIFY(!p.layouts.isModified());
    dock->setFloating(true);
    QVERIFY(p.layouts.isModified());
}

void LayoutsModifiedTest::undoIsFollowed()
{
    Program p;
    p.manager.saveCurrentViewAs("a"_s);
    p.window.rearrangeDocks();
    p.manager.saveCurrentViewAs("b"_s);
    p.window.top->close();
    p.manager.activateView("a"_s);
    QVERIFY(!p.layouts.isModified());
    // What was not saved comes back, and is not saved then.
    p.layouts.history()->undo();
    QVERIFY(p.layouts.isModified());
    p.layouts.history()->redo();
    QVERIFY(!p.layouts.isModified());
}

void LayoutsModifiedTest::undoKnowsSizes_data()
{
    mergingColumn();
}

void LayoutsModifiedTest::undoKnowsSizes()
{
    QFETCH(bool, merges);
    Program p(merges);
    p.manager.saveCurrentViewAs("b"_s);
    p.manager.saveCurrentViewAs("a"_s);
    QVERIFY(!p.layouts.isModified());
    p.window.resizeDocks({p.window.leftTab}, {p.window.leftTab->width() + 100}, Qt::Horizontal);
    QVERIFY(p.layouts.isModified());
    p.manager.activateView("b"_s);
    QVERIFY(!p.layouts.isModified());
    for (int round = 0; round < 2; ++round) {
        p.layouts.history()->undo();
        QCoreApplication::processEvents();
        QCOMPARE(p.manager.activeView(), "a"_s);
        QVERIFY(p.layouts.isModified());
        p.layouts.history()->redo();
        QCoreApplication::processEvents();
        QCOMPARE(p.manager.activeView(), "b"_s);
        QVERIFY(!p.layouts.isModified());
    }
}

void LayoutsModifiedTest::redoKnowsWhatWasShown()
{
    Program p;
    QToolButton* const button = p.layouts.createButton(&p.window);
    p.window.mainBar->addWidget(button);
    p.window.mainBar->hide();
    p.manager.saveCurrentViewAs("b"_s);
    p.window.mainBar->show();
    p.window.rearrangeDocks();
    p.manager.saveCurrentViewAs("a"_s);
    p.manager.activateView("b"_s);
    // Because of the button.
    QTRY_VERIFY(!p.window.mainBar->isHidden());
    QVERIFY(!p.layouts.isModified());
    for (int round = 0; round < 2; ++round) {
        p.layouts.history()->undo();
        QCoreApplication::processEvents();
        QVERIFY(!p.layouts.isModified());
        p.layouts.history()->redo();
        QCoreApplication::processEvents();
        QCOMPARE(p.manager.activeView(), "b"_s);
        QVERIFY(!p.window.mainBar->isHidden());
        QVERIFY(!p.layouts.isModified());
    }
}

void LayoutsModifiedTest::groupsKnowTheirOwn()
{
    Program p;
    p.manager.saveCurrentViewAs("a"_s);
    p.window.top->close();
    QVERIFY(p.layouts.isModified());
    p.manager.activateGroup("H"_s);
    QVERIFY(!p.layouts.isModified());
    p.window.top->show();
    p.manager.saveCurrentViewAs("b"_s);
    QVERIFY(!p.layouts.isModified());
    p.manager.activateGroup("G"_s);
    QVERIFY(p.layouts.isModified());
    p.manager.activateGroup("H"_s);
    QVERIFY(!p.layouts.isModified());
}

void LayoutsModifiedTest::aStartKnowsWhatWasNotSaved()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("layouts.views"_s);
    for (const bool isModified : {false, true}) {
        {
            Program p;
            p.layouts.start(file);
            p.manager.saveCurrentViewAs("a"_s);
            p.window.top->setVisible(!isModified);
            QVERIFY(p.layouts.save());
        }
        Program p;
        p.layouts.start(file);
        QCoreApplication::processEvents();
        QCOMPARE(p.manager.activeView(), "a"_s);
        QCOMPARE(p.layouts.isModified(), isModified);
    }
}

void LayoutsModifiedTest::theMenuOffersSaveAndBack()
{
    Program p;
    const std::unique_ptr<QMenu> menu(p.layouts.createMenu(nullptr));
    QVERIFY(entry(*menu, "Save Layout"_s));
    p.manager.saveCurrentViewAs("Cut & <b>"_s);
    QAction* const save = entry(*menu, "Save \""_s);
    QAction* const back = entry(*menu, "Back to"_s);
    QCOMPARE(save->text(), "Save \"Cut && <b>\""_s);
    QCOMPARE(back->text(), "Back to \"Cut && <b>\""_s);
    QVERIFY(!save->isEnabled());
    QVERIFY(!back->isEnabled());
    p.window.top->setWindowTitle("Find & <i>"_s);
    p.window.top->close();
    menu->popup(QPoint());
    QVERIFY(save->isEnabled());
    QVERIFY(back->isEnabled());
    QCOMPARE(back->toolTip(), "<qt>&quot;Find &amp; &lt;i&gt;&quot; is closed</qt>"_s);
    QVERIFY(menu->toolTipsVisible());
    menu->close();
    back->trigger();
    QVERIFY(!p.window.top->isHidden());
    QVERIFY(!save->isEnabled());
    QCOMPARE(p.layouts.history()->undoText(), "Back to \"Cut & <b>\""_s);
    p.layouts.history()->undo();
    QVERIFY(p.window.top->isHidden());
    menu->popup(QPoint());
    QVERIFY(save->isEnabled());
    menu->close();
    save->trigger();
    QVERIFY(!save->isEnabled());
    QVERIFY(!p.layouts.isModified());
    p.manager.activateView("Cut & <b>"_s);
    QVERIFY(p.window.top->isHidden());
}

void LayoutsModifiedTest::withoutTheManagerNothingIs()
{
    FourSidesWindow window;
    auto manager = std::make_unique<Manager>(QStringList("G"_s), /*mergeOnApply=*/false);
    Layouts layouts(*manager);
    layouts.addWindow(window, "w"_s);
    window.show();
    const std::unique_ptr<QMenu> menu(layouts.createMenu(nullptr));
    manager->saveCurrentViewAs("a"_s);
    window.top->close();
    QVERIFY(layouts.isModified());
    QSignalSpy changes(&layouts, &Layouts::modifiedChanged);
    manager.reset();
    QCOMPARE(changes.count(), 1);
    QVERIFY(!layouts.isModified());
    menu->popup(QPoint());
    menu->close();
}

QTEST_MAIN(LayoutsModifiedTest)
#include "LayoutsModifiedTest.moc"
