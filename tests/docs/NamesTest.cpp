// SPDX-License-Identifier: MIT
#include "EditorWindow.h"

#include "support/MessageWatch.h"
#include "support/Text.h"

#include <panorel/Manager.h>

#include <QTest>

namespace Panorel::Tests {

namespace {

//! [nameless]
// What no layout can hold: dock widgets and tool bars without a name, or with one that is taken.
QStringList partsWithoutNameOfTheirOwn(const QMainWindow& window)
{
    QList<QWidget*> parts;
    for (QDockWidget* dock : window.findChildren<QDockWidget*>())
        parts.append(dock);
    for (QToolBar* bar : window.findChildren<QToolBar*>())
        parts.append(bar);
    QStringList names;
    QStringList found;
    for (const QWidget* part : qAsConst(parts)) {
        if (part->objectName().isEmpty() || names.contains(part->objectName()))
            found.append(part->windowTitle());
        names.append(part->objectName());
    }
    return found;
}
//! [nameless]

//! [later]
// For a dock widget that is created when layouts have been restored already.
void addLater(QMainWindow& window, QDockWidget* dock, Qt::DockWidgetArea firstArea)
{
    // The place that it has in the layout; if that knows none, one to begin with.
    if (!window.restoreDockWidget(dock))
        window.addDockWidget(firstArea, dock);
}
//! [later]

QDockWidget* makeDock(const QString& name)
{
    auto* dock = new QDockWidget(name);
    dock->setObjectName(name);
    return dock;
}

// The document of a window whose dock widget "plugin" is on the right, saved as "Mine".
QByteArray documentWithPlugin()
{
    EditorWindow window;
    window.addDockWidget(Qt::RightDockWidgetArea, makeDock("plugin"_s));
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(window);
    manager.saveCurrentViewAs("Mine"_s);
    return manager.toXml(/*markActive=*/true);
}

/** A program that has read a document and lacks the dock widget of the plugin. */
struct LaterRun
{
    explicit LaterRun(const QByteArray& document = documentWithPlugin(), bool mergeOnApply = false)
        : manager({"Group"_s}, mergeOnApply)
    {
        manager.registerManagable(window);
        isLoaded = manager.fromXml(document, /*merge=*/false);
    }

    Manager manager;
    EditorWindow window;
    bool isLoaded;
};

} // namespace

/** What the guide says of object names, and of dock widgets that come late. */
class NamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDockWithoutANameIsNotRestored();
    void qtWarnsOfItWhenALayoutIsSaved();
    void twoOfOneNameChangePlaces();
    void theCheckFindsIt();
    void aLateDockGetsItsPlace_data();
    void aLateDockGetsItsPlace();
    void addDockWidgetAloneDoesNotLookForIt();
    void theNextSwitchPlacesIt();
    void anUnknownDockIsAddedSomewhere();
    void thePlaceIsKeptByRunsWithoutTheDock_data();
    void thePlaceIsKeptByRunsWithoutTheDock();
};

void NamesTest::aDockWithoutANameIsNotRestored()
{
    // The next test checks Qt's warnings.
    const MessageWatch watch(MessageWatch::Started);
    EditorWindow window;
    QDockWidget* outline = dockOf(window, "outline"_s);
    outline->setObjectName(QString());
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(window);
    manager.saveCurrentViewAs("Mine"_s);
    window.addDockWidget(Qt::TopDockWidgetArea, outline);
    window.addDockWidget(Qt::TopDockWidgetArea, dockOf(window, "files"_s));
    QVERIFY(manager.activateView("Mine"_s));
    QCOMPARE(window.dockWidgetArea(dockOf(window, "files"_s)), Qt::LeftDockWidgetArea);
    QCOMPARE(window.dockWidgetArea(outline), Qt::TopDockWidgetArea);
}

void NamesTest::qtWarnsOfItWhenALayoutIsSaved()
{
    EditorWindow window;
    dockOf(window, "outline"_s)->setObjectName(QString());
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(window);
    const MessageWatch watch(MessageWatch::Started);
    manager.createView("Mine"_s);
    QCOMPARE(watch.messages().size(), 1);
    QVERIFY(manager.activateView("Mine"_s)); // Says nothing more.
    QCOMPARE(watch.messages().size(), 1);
    QVERIFY(watch.messages().first().contains("'objectName' not set for QDockWidget"_s));
}

void NamesTest::twoOfOneNameChangePlaces()
{
    EditorWindow window;
    QDockWidget* files = dockOf(window, "files"_s);
    QDockWidget* outline = dockOf(window, "outline"_s);
    outline->setObjectName("files"_s);
    window.addDockWidget(Qt::BottomDockWidgetArea, files);
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(window);
    manager.saveCurrentViewAs("Mine"_s);
    QVERIFY(manager.activateView("Mine"_s));
    QCOMPARE(window.dockWidgetArea(files), Qt::LeftDockWidgetArea);
    QCOMPARE(window.dockWidgetArea(outline), Qt::BottomDockWidgetArea);
}

void NamesTest::theCheckFindsIt()
{
    EditorWindow window;
    QCOMPARE(partsWithoutNameOfTheirOwn(window), QStringList());
    dockOf(window, "outline"_s)->setObjectName(QString());
    dockOf(window, "output"_s)->setObjectName("edit"_s); // As the tool bar.
    QCOMPARE(partsWithoutNameOfTheirOwn(window).size(), 2);
    QVERIFY(partsWithoutNameOfTheirOwn(window).contains("Outline"_s));
}

void NamesTest::aLateDockGetsItsPlace_data()
{
    QTest::addColumn<bool>("mergeOnApply");
    QTest::newRow("not merging") << false;
    QTest::newRow("merging") << true;
}

void NamesTest::aLateDockGetsItsPlace()
{
    QFETCH(bool, mergeOnApply);
    LaterRun run(documentWithPlugin(), mergeOnApply);
    QVERIFY(run.isLoaded);
    QDockWidget* plugin = makeDock("plugin"_s);
    addLater(run.window, plugin, Qt::BottomDockWidgetArea);
    QCOMPARE(run.window.dockWidgetArea(plugin), Qt::RightDockWidgetArea);
}

void NamesTest::addDockWidgetAloneDoesNotLookForIt()
{
    LaterRun run;
    QVERIFY(run.isLoaded);
    QDockWidget* plugin = makeDock("plugin"_s);
    run.window.addDockWidget(Qt::BottomDockWidgetArea, plugin);
    run.window.restoreDockWidget(plugin); // Too late.
    QCOMPARE(run.window.dockWidgetArea(plugin), Qt::BottomDockWidgetArea);
}

void NamesTest::theNextSwitchPlacesIt()
{
    LaterRun run;
    QVERIFY(run.isLoaded);
    QDockWidget* plugin = makeDock("plugin"_s);
    run.window.addDockWidget(Qt::BottomDockWidgetArea, plugin);
    QVERIFY(run.manager.activateView("Mine"_s));
    QCOMPARE(run.window.dockWidgetArea(plugin), Qt::RightDockWidgetArea);
}

void NamesTest::anUnknownDockIsAddedSomewhere()
{
    LaterRun run;
    QVERIFY(run.isLoaded);
    QDockWidget* unknown = makeDock("unknown"_s);
    addLater(run.window, unknown, Qt::TopDockWidgetArea);
    QCOMPARE(run.window.dockWidgetArea(unknown), Qt::TopDockWidgetArea);
}

void NamesTest::thePlaceIsKeptByRunsWithoutTheDock_data()
{
    aLateDockGetsItsPlace_data();
}

void NamesTest::thePlaceIsKeptByRunsWithoutTheDock()
{
    QFETCH(bool, mergeOnApply);
    QByteArray document = documentWithPlugin();
    {
        LaterRun run(document, mergeOnApply);
        QVERIFY(run.isLoaded);
        run.manager.saveCurrentViewAs("Mine"_s); // Saved again, without the dock widget.
        document = run.manager.toXml(/*markActive=*/true);
    }
    LaterRun run(document, mergeOnApply);
    QVERIFY(run.isLoaded);
    QDockWidget* plugin = makeDock("plugin"_s);
    addLater(run.window, plugin, Qt::BottomDockWidgetArea);
    QCOMPARE(run.window.dockWidgetArea(plugin), Qt::RightDockWidgetArea);
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::NamesTest)
#include "NamesTest.moc"
