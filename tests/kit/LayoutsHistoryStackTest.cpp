// SPDX-License-Identifier: MIT
#include "HistoryProgram.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoGroup>

#include <algorithm>
#include <memory>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** The stack itself: what it takes and outlives, and any operations in any order. */
class LayoutsHistoryStackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void memoryIsBounded();
    void namesCountToo();
    void theApplicationsCommandsStay();
    void commandsOfTheApplicationAreNotMerged();
    void whatTheFileReplacesIsNotUndone_data();
    void whatTheFileReplacesIsNotUndone();
    void withoutAFileStepsStay();
    void whatOthersHaveSavedStays();
    void theStackMayJoinAGroup();
    void anyOrderOfEnds_data();
    void anyOrderOfEnds();
    void whateverIsDoneIsUndone_data();
    void whateverIsDoneIsUndone();
};

void LayoutsHistoryStackTest::memoryIsBounded()
{
    QMainWindow window;
    auto* dock = new QDockWidget(&window);
    // A state of two megabytes.
    dock->setObjectName(QString(1024 * 1024, QLatin1Char('d')));
    window.addDockWidget(left, dock);
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    Layouts layouts(manager);
    layouts.addWindow(window, "w"_s);
    QUndoStack& stack = *layouts.history();
    manager.saveCurrentViewAs("a"_s);
    stack.setClean();
    for (int i = 0; i < 30; ++i) {
        // No two states are the same.
        window.addDockWidget(i % 2 ? left : right, dock);
        window.setCorner(Qt::TopLeftCorner, i % 4 < 2 ? top : left);
        dock->setObjectName(QString(1024 * 1024 + i, QLatin1Char('d')));
        manager.saveCurrentViewAs("a"_s);
    }
    QVERIFY2(stack.count() >= 8 && stack.count() <= 16, qPrintable(QString::number(stack.count())));
    QCOMPARE(stack.index(), stack.count());
    QVERIFY(!stack.isClean());
    while (stack.canUndo())
        stack.undo();
    QVERIFY(!stack.isClean());
    QCOMPARE(manager.views(), QStringList("a"_s));
    while (stack.canRedo())
        stack.redo();
    QCOMPARE(manager.activeView(), "a"_s);
    // Equal states count once.
    for (int i = 0; i < 100; ++i) {
        manager.createView("b"_s);
        manager.deleteView("b"_s);
    }
    QVERIFY(stack.count() > 200);
}

// Steps whose states are all the same.
void LayoutsHistoryStackTest::namesCountToo()
{
    HistoryProgram p;
    // Of two megabytes.
    const QString name(1024 * 1024, QLatin1Char('n'));
    for (int i = 0; i < 40; ++i) {
        p.manager.createView(name);
        p.manager.deleteView(name);
    }
    QVERIFY2(p.stack.count() >= 4 && p.stack.count() <= 16,
             qPrintable(QString::number(p.stack.count())));
    p.stack.undo();
    QCOMPARE(p.manager.views(), QStringList(name));
}

void LayoutsHistoryStackTest::theApplicationsCommandsStay()
{
    QMainWindow window;
    auto* dock = new QDockWidget(&window);
    window.addDockWidget(left, dock);
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    Layouts layouts(manager);
    layouts.addWindow(window, "w"_s);
    QUndoStack& stack = *layouts.history();
    stack.push(new QUndoCommand("own"_s));
    for (int i = 0; i < 30; ++i) {
        dock->setObjectName(QString(1024 * 1024 + i, QLatin1Char('d')));
        manager.saveCurrentViewAs("a"_s);
    }
    QCOMPARE(stack.text(0), "own"_s);
    for (int i = 0; i < 40; ++i)
        stack.undo();
    QVERIFY(!stack.canUndo());
    QVERIFY(stack.count() < 20);
}

void LayoutsHistoryStackTest::commandsOfTheApplicationAreNotMerged()
{
    // What an application is likely to write: whatever has its number is one of its own.
    struct Command : QUndoCommand
    {
        explicit Command(bool& hasMerged)
            : merged(hasMerged)
        {}
        int id() const override { return 1; }
        bool mergeWith(const QUndoCommand* /*other*/) override { return merged = true; }
        bool& merged;
    };
    HistoryProgram p;
    bool merged = false;
    p.stack.push(new Command(merged));
    p.save("a"_s, left);
    QVERIFY(!merged);
    QCOMPARE(p.stack.count(), 2);
}

void LayoutsHistoryStackTest::whatTheFileReplacesIsNotUndone_data()
{
    QTest::addColumn<bool>("hasOwn");
    QTest::newRow("steps only") << false;
    QTest::newRow("with a command of the application") << true;
}

void LayoutsHistoryStackTest::whatTheFileReplacesIsNotUndone()
{
    QFETCH(bool, hasOwn);
    const QTemporaryDir folder;
    const QString file = folder.filePath("f.views"_s);
    {
        HistoryProgram p;
        p.layouts.start(file);
        p.save("Default"_s, right);
        p.save("mine"_s, top);
    }
    HistoryProgram p;
    if (hasOwn)
        p.stack.push(new QUndoCommand("own"_s));
    p.save("Default"_s, left);
    p.save("Other"_s, left);
    p.stack.undo();
    p.layouts.start(file);
    const QStringList loaded{"Default> *mine^"_s, QString()};
    QCOMPARE(p.views(), loaded);
    QCOMPARE(p.stack.text(0), hasOwn ? "own"_s : QString());
    QCOMPARE(p.stack.count() > 0, hasOwn);
    for (int i = 0; i < 3; ++i)
        p.stack.undo();
    QCOMPARE(p.views(), loaded);
    for (int i = 0; i < 3; ++i)
        p.stack.redo();
    QCOMPARE(p.views(), loaded);
    // What is done afterwards is undone as usual.
    p.save("Default"_s, bottom);
    p.stack.undo();
    QCOMPARE(p.views(), loaded);
}

void LayoutsHistoryStackTest::withoutAFileStepsStay()
{
    const QTemporaryDir folder;
    HistoryProgram p;
    p.save("a"_s, left);
    p.layouts.start(folder.filePath("f.views"_s));
    p.stack.undo();
    QCOMPARE(p.manager.views(), QStringList());
}

void LayoutsHistoryStackTest::whatOthersHaveSavedStays()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("f.views"_s);
    HistoryProgram p;
    p.layouts.start(file);
    p.save("new"_s, left);
    p.save("saved"_s, left);
    p.save("saved"_s, right);
    p.save("deleted"_s, bottom);
    p.manager.deleteView("deleted"_s);
    QVERIFY(p.layouts.save());
    {
        HistoryProgram other;
        other.layouts.start(file);
        other.save("new"_s, top);
        other.save("saved"_s, top);
        other.save("deleted"_s, top);
        QVERIFY(other.layouts.save());
    }
    p.window.moveDock(left);
    QVERIFY(p.layouts.save());
    QCOMPARE(p.views(), QStringList({"new^ saved^ deleted^"_s, QString()}));
    p.stack.undo();
    QCOMPARE(p.views(), QStringList({"new^ saved^ deleted^ *deleted (2)_"_s, QString()}));
    p.stack.setIndex(2);
    QCOMPARE(p.manager.views(),
             QStringList({"new"_s, "saved"_s, "deleted"_s, "deleted (2)"_s, "saved (2)"_s}));
    p.stack.setIndex(0);
    const QStringList all = p.views();
    for (const QString& view : {"new^"_s, "saved^"_s, "deleted^"_s})
        QVERIFY2(all[0].contains(view), qPrintable(all[0]));
    QVERIFY2(all[0].contains("saved (2)<"_s), qPrintable(all[0]));
    // To and fro adds no more than both of its sides.
    p.stack.setIndex(5);
    const int count = p.manager.views().size();
    for (int i = 0; i < 3; ++i) {
        p.stack.setIndex(0);
        p.stack.setIndex(5);
    }
    QCOMPARE(p.manager.views().size(), count);
}

void LayoutsHistoryStackTest::theStackMayJoinAGroup()
{
    QUndoGroup group;
    {
        HistoryProgram p;
        group.addStack(&p.stack);
        group.setActiveStack(&p.stack);
        p.save("a"_s, left);
        QCOMPARE(group.undoText(), "New \"a\""_s);
        group.undo();
        QCOMPARE(p.manager.views(), QStringList());
    }
    QVERIFY(group.stacks().isEmpty());
    QVERIFY(!group.canUndo());
}

void LayoutsHistoryStackTest::anyOrderOfEnds_data()
{
    QTest::addColumn<QString>("order");
    // Manager, Layouts, window, menu, stack.
    QString order = "MLWNS"_s;
    std::sort(order.begin(), order.end());
    do {
        QTest::newRow(qPrintable(order)) << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

void LayoutsHistoryStackTest::anyOrderOfEnds()
{
    QFETCH(QString, order);
    auto window = std::make_unique<SmallWindow>();
    auto manager = std::make_unique<Manager>(QStringList("G"_s), /*mergeOnApply=*/false);
    auto layouts = std::make_unique<Layouts>(*manager);
    layouts->addWindow(*window, "w"_s);
    std::unique_ptr<QMenu> menu(layouts->createMenu(nullptr));
    manager->saveCurrentViewAs("a"_s);
    window->moveDock(right);
    manager->saveCurrentViewAs("b"_s);
    manager->activateView("a"_s);
    layouts->history()->undo();
    for (const QChar c : order) {
        if (c == QLatin1Char('M'))
            manager.reset();
        else if (c == QLatin1Char('L'))
            layouts.reset();
        else if (c == QLatin1Char('W'))
            window.reset();
        else if (c == QLatin1Char('N'))
            menu.reset();
        else if (layouts)
            delete layouts->history();
        if (layouts && layouts->history()) {
            QCOMPARE(layouts->history()->count() > 0, manager != nullptr);
            layouts->history()->undo();
            layouts->history()->redo();
        }
        if (menu) {
            for (QAction* entry : menu->actions()) {
                if (!entry->menu())
                    continue;
                entry->trigger();
            }
        }
        if (manager) {
            manager->activateView("b"_s);
            manager->activateView("a"_s);
        }
        QCoreApplication::processEvents();
    }
}

void LayoutsHistoryStackTest::whateverIsDoneIsUndone_data()
{
    QTest::addColumn<bool>("merges");
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 6; ++seed)
        QTest::addRow("%s %u", seed % 2 ? "with merging" : "without merging", seed)
            << bool(seed % 2) << seed;
}

// Any operations in any order, each undone and done again.
void LayoutsHistoryStackTest::whateverIsDoneIsUndone()
{
    QFETCH(bool, merges);
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const QVector<Qt::DockWidgetArea> areas{left, right, top, bottom};
    const QStringList names{"a"_s, "b"_s, "c"_s, "d"_s};
    HistoryProgram other(merges);
    other.save("x"_s, top);
    other.save("b"_s, bottom);
    const QByteArray document = other.manager.toXml(/*markActive=*/true);
    HistoryProgram p(merges);
    const auto state = [&]() -> QString {
        return p.views().join(QLatin1Char('|')) + QLatin1Char(' ') + p.manager.activeGroup() +
               HistoryProgram::nameOf(p.window.dockArea());
    };
    QStringList states{state()};
    for (int i = 0; i < 40; ++i) {
        QCoreApplication::processEvents();
        const QString name = names[random.bounded(names.size())];
        p.window.moveDock(areas[random.bounded(areas.size())]);
        const QString before = state();
        const int count = p.stack.index();
        switch (random.bounded(11)) {
        case 0:
        case 1:
            p.manager.saveCurrentViewAs(name);
            break;
        case 2:
            p.manager.createView(name);
            break;
        case 3:
            p.manager.deleteView(name);
            break;
        case 4:
        case 5:
        case 6:
            p.manager.activateView(name);
            break;
        case 7:
            p.manager.activateGroup(random.bounded(2) ? "G"_s : "H"_s);
            break;
        case 8:
            p.manager.fromXml(document, random.bounded(2) == 0);
            break;
        case 9:
            p.manager.clear();
            break;
        default:
            (void)p.manager.toXml(/*markActive=*/false);
        }
        const QString after = state();
        if (after == before)
            continue;
        QCOMPARE(p.stack.index(), count + 1);
        p.stack.undo();
        QCOMPARE(state(), before);
        p.stack.redo();
        QCOMPARE(state(), after);
        // From the end to the beginning, the windows apart, which are moved in between.
        states.append(after);
        if (random.bounded(8) == 0) {
            const int index = p.stack.index();
            while (p.stack.canUndo())
                p.stack.undo();
            QCOMPARE(p.views(), (QStringList{QString(), QString()}));
            p.stack.setIndex(index);
            QCOMPARE(state().section(QLatin1Char(' '), 0, -2),
                     after.section(QLatin1Char(' '), 0, -2));
            p.window.moveDock(areas[0]);
        }
    }
}

QTEST_MAIN(LayoutsHistoryStackTest)
#include "LayoutsHistoryStackTest.moc"
