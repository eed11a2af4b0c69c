// SPDX-License-Identifier: MIT
#include "FourSidesWindow.h"
#include "HistoryProgram.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <utility>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** Steps of whole documents, and operations within others. */
class LayoutsHistoryDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDocumentIsOneStep_data();
    void aDocumentIsOneStep();
    void aViewThatIsAddedByADocumentIsOneStep_data();
    void aViewThatIsAddedByADocumentIsOneStep();
    void theMenusResetIsOneStep();
    void aResetKeepsAFloatingTabGroup_data();
    void aResetKeepsAFloatingTabGroup();
    void removingAllViewsIsUndone();
    void whatChangesNothingIsNoStep_data();
    void whatChangesNothingIsNoStep();
    void receiversMayUseTheManager_data();
    void receiversMayUseTheManager();
    void aReceiversChangeIsAStepOfItsOwn();
    void loadingIsNoStep();
};

void LayoutsHistoryDocumentTest::aDocumentIsOneStep_data()
{
    QTest::addColumn<bool>("merges");
    QTest::addColumn<int>("how");
    for (const bool merges : {false, true}) {
        const char* const suffix = merges ? ", with merging" : "";
        QTest::addRow("laid over%s", suffix) << merges << 0;
        QTest::addRow("replacing%s", suffix) << merges << 1;
        QTest::addRow("factory default%s", suffix) << merges << 2;
        QTest::addRow("program start%s", suffix) << merges << 3;
    }
}

void LayoutsHistoryDocumentTest::aDocumentIsOneStep()
{
    QFETCH(bool, merges);
    QFETCH(int, how);
    HistoryProgram other(merges);
    other.save("b"_s, right);
    other.window.moveDock(bottom);
    const QByteArray document = other.manager.toXml(/*markActive=*/true);

    HistoryProgram p(merges);
    p.manager.setFactoryDefaultView(document);
    p.manager.setProgramStartView(document);
    p.save("a"_s, left);
    p.save("b"_s, left);
    p.manager.activateGroup("H"_s);
    p.save("h"_s, left);
    p.manager.activateGroup("G"_s);
    p.window.moveDock(top);
    const int before = p.stack.index();
    const QStringList views = p.views();
    switch (how) {
    case 0:
        QVERIFY(p.manager.fromXml(document, /*merge=*/true));
        QCOMPARE(p.views(), (QStringList{"a< *b>"_s, "*h<"_s}));
        break;
    case 1:
        QVERIFY(p.manager.fromXml(document, /*merge=*/false));
        break;
    case 2:
        QVERIFY(p.manager.activateFactoryDefaultView());
        break;
    default:
        QVERIFY(p.manager.activateProgramStartView());
    }
    if (how > 0)
        QCOMPARE(p.views(), (QStringList{"*b>"_s, QString()}));
    QCOMPARE(p.window.dockArea(), bottom);
    QCOMPARE(p.stack.count(), before + 1);
    p.stack.undo();
    QCOMPARE(p.views(), views);
    QCOMPARE(p.window.dockArea(), top);
    p.stack.redo();
    QCOMPARE(p.window.dockArea(), bottom);
    QCOMPARE(p.views().at(0), how == 0 ? "a< *b>"_s : "*b>"_s);
}

void LayoutsHistoryDocumentTest::aViewThatIsAddedByADocumentIsOneStep_data()
{
    QTest::addColumn<bool>("merges");
    QTest::addColumn<bool>("isFile");
    QTest::newRow("a file") << false << true;
    QTest::newRow("a file, with merging") << true << true;
    QTest::newRow("by the application") << false << false;
    QTest::newRow("by the application, with merging") << true << false;
}

// To the Manager's owners this looks like a view that the user creates.
void LayoutsHistoryDocumentTest::aViewThatIsAddedByADocumentIsOneStep()
{
    QFETCH(bool, merges);
    QFETCH(bool, isFile);
    HistoryProgram other(merges);
    other.save("x"_s, right);
    other.window.moveDock(bottom);
    const QTemporaryDir folder;
    const QString name = folder.filePath("x.views"_s);
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray document = other.manager.toXml(/*markActive=*/false);
    QCOMPARE(file.write(document), document.size());
    file.close();
    HistoryProgram p(merges);
    p.save("a"_s, left);
    p.window.moveDock(top);
    QVERIFY(isFile ? p.layouts.importFile(name) : p.manager.fromXml(document, /*merge=*/true));
    QCOMPARE(p.window.dockArea(), bottom);
    QCOMPARE(p.views().at(0), "*a< x>"_s);
    QCOMPARE(p.stack.count(), 2);
    if (isFile)
        QCOMPARE(p.stack.text(1), "Import \"x.views\""_s);
    p.stack.undo();
    QCOMPARE(p.views().at(0), "*a<"_s);
    QCOMPARE(p.window.dockArea(), top);
    p.stack.redo();
    QCOMPARE(p.views().at(0), "*a< x>"_s);
    QCOMPARE(p.window.dockArea(), bottom);
    p.manager.activateView("x"_s);
    QCOMPARE(p.window.dockArea(), right);
}

void LayoutsHistoryDocumentTest::theMenusResetIsOneStep()
{
    HistoryProgram p;
    const std::unique_ptr<QMenu> menu(p.layouts.createMenu(nullptr));
    QAction* reset = nullptr;
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->text() == "Reset Layout to Factory Default"_s)
            reset = action;
    }
    QVERIFY(reset);
    QVERIFY(!reset->isEnabled());
    p.save("default"_s, right);
    p.manager.setFactoryDefaultView(p.manager.toXml(/*markActive=*/false));
    QVERIFY(reset->isEnabled());
    p.save("a"_s, left);
    p.window.moveDock(top);
    const int before = p.stack.count();
    reset->trigger();
    QCOMPARE(p.window.dockArea(), right);
    QCOMPARE(p.views().at(0), "default>"_s);
    QCOMPARE(p.stack.count(), before + 1);
    QCOMPARE(p.stack.undoText(), reset->text());
    p.stack.undo();
    QCOMPARE(p.window.dockArea(), top);
    QCOMPARE(p.views().at(0), "default> *a<"_s);
}

void LayoutsHistoryDocumentTest::aResetKeepsAFloatingTabGroup_data()
{
    mergingColumn();
}

void LayoutsHistoryDocumentTest::aResetKeepsAFloatingTabGroup()
{
    QFETCH(bool, merges);
    Manager manager({"G"_s}, merges);
    FourSidesWindow window;
    window.show();
    Layouts layouts(manager);
    layouts.addWindow(window);
    window.floatAsTabs();
    QVERIFY(window.floatsAsTabs());
    manager.saveCurrentViewAs("a"_s);
    manager.setFactoryDefaultView(manager.toXml(/*markActive=*/true));
    QVERIFY(manager.activateFactoryDefaultView());
    QVERIFY(window.floatsAsTabs());
    window.rearrangeDocks();
    window.addDockWidget(left, window.one);
    window.addDockWidget(left, window.two);
    QVERIFY(manager.activateFactoryDefaultView());
    QVERIFY(window.floatsAsTabs());
    QCOMPARE(window.dockWidgetArea(window.left), left);
    layouts.history()->undo();
    QVERIFY(!window.floatsAsTabs());
    QCOMPARE(window.dockWidgetArea(window.left), right);
    layouts.history()->redo();
    QVERIFY(window.floatsAsTabs());
}

void LayoutsHistoryDocumentTest::removingAllViewsIsUndone()
{
    HistoryProgram p;
    p.save("a"_s, left);
    p.manager.activateGroup("H"_s);
    p.save("b"_s, right);
    p.save("c"_s, top);
    const int before = p.stack.index();
    p.manager.clear();
    QCOMPARE(p.stack.index(), before + 1);
    p.stack.undo();
    QCOMPARE(p.views(), (QStringList{"*a<"_s, "b> *c^"_s}));
    p.stack.redo();
    QCOMPARE(p.views(), (QStringList{QString(), QString()}));
    // One that comes later is a step of its own.
    p.save("d"_s, bottom);
    p.stack.undo();
    QCOMPARE(p.views(), (QStringList{QString(), QString()}));
    p.stack.undo();
    QCOMPARE(p.views(), (QStringList{"*a<"_s, "b> *c^"_s}));
}

void LayoutsHistoryDocumentTest::whatChangesNothingIsNoStep_data()
{
    mergingColumn();
}

void LayoutsHistoryDocumentTest::whatChangesNothingIsNoStep()
{
    QFETCH(bool, merges);
    HistoryProgram p(merges);
    p.save("a"_s, left);
    const int before = p.stack.count();
    p.manager.saveCurrentViewAs("a"_s);
    p.manager.activateView("a"_s);
    p.manager.activateView("unknown"_s);
    p.manager.activateGroup("G"_s);
    p.manager.deleteView("unknown"_s);
    p.manager.createView("a"_s);
    (void)p.manager.toXml(/*markActive=*/true);
    (void)p.manager.viewsValid();
    QVERIFY(!p.manager.fromXml("no document", /*merge=*/false));
    QCOMPARE(p.stack.count(), before);
}

void LayoutsHistoryDocumentTest::receiversMayUseTheManager_data()
{
    QTest::addColumn<bool>("merges");
    QTest::addColumn<bool>("isFirst");
    QTest::newRow("connected first") << false << true;
    QTest::newRow("connected last") << false << false;
    QTest::newRow("connected first, with merging") << true << true;
    QTest::newRow("connected last, with merging") << true << false;
}

// Such as an application that stores the document by itself.
void LayoutsHistoryDocumentTest::receiversMayUseTheManager()
{
    QFETCH(bool, merges);
    QFETCH(bool, isFirst);
    SmallWindow window;
    Manager manager({"G"_s}, merges);
    const auto store = [&] { (void)manager.toXml(/*markActive=*/true); };
    const auto watch = [&] {
        connect(&manager, &Manager::groupModified, this, store);
        connect(&manager, &Manager::viewActivated, this, store);
    };
    if (isFirst)
        watch();
    Layouts layouts(manager);
    layouts.addWindow(window, "w"_s);
    if (!isFirst)
        watch();
    QUndoStack& stack = *layouts.history();
    manager.saveCurrentViewAs("a"_s);
    window.moveDock(right);
    manager.saveCurrentViewAs("b"_s);
    manager.activateView("a"_s);
    window.moveDock(top);
    manager.saveCurrentViewAs("a"_s);
    manager.deleteView("b"_s);
    QCOMPARE(texts(stack), (QStringList{"New \"a\""_s, "New \"b\""_s, "Switch to \"a\""_s,
                                        "Save \"a\""_s, "Delete \"b\""_s}));
    stack.undo();
    QCOMPARE(manager.views(), (QStringList{"a"_s, "b"_s}));
    stack.undo();
    stack.undo();
    QCOMPARE(manager.activeView(), "b"_s);
    QCOMPARE(window.dockArea(), right);
    manager.activateView("a"_s);
    QCOMPARE(window.dockArea(), left);
}

void LayoutsHistoryDocumentTest::aReceiversChangeIsAStepOfItsOwn()
{
    HistoryProgram p;
    p.save("a"_s, left);
    p.save("b"_s, right);
    bool isFirst = true;
    connect(&p.manager, &Manager::viewActivated, this, [&] {
        if (std::exchange(isFirst, false))
            p.manager.createView("c"_s);
    });
    p.stack.undo();
    QCOMPARE(p.views().at(0), "*a< c>"_s);
    QTRY_COMPARE(p.stack.text(1), "New \"c\""_s);
    p.stack.undo();
    QCOMPARE(p.views().at(0), "*a<"_s);
    p.stack.undo();
    QCOMPARE(p.views().at(0), QString());
}

void LayoutsHistoryDocumentTest::loadingIsNoStep()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("layouts.views"_s);
    {
        HistoryProgram p;
        p.save("a"_s, left);
        p.manager.activateGroup("H"_s);
        p.window.moveDock(right);
        p.layouts.start(file);
        QVERIFY(p.layouts.save());
    }
    HistoryProgram p;
    p.window.show();
    p.layouts.start(file);
    QCOMPARE(p.stack.count(), 0);
    QCOMPARE(p.manager.activeGroup(), "H"_s);
    QCOMPARE(p.views().at(0), "*a<"_s);
    // The first group's working layout is there as well.
    p.manager.activateGroup("G"_s);
    QCOMPARE(p.window.dockArea(), left);
    p.manager.deleteView("a"_s);
    p.stack.undo();
    QCOMPARE(p.views().at(0), "*a<"_s);
}

QTEST_MAIN(LayoutsHistoryDocumentTest)
#include "LayoutsHistoryDocumentTest.moc"
