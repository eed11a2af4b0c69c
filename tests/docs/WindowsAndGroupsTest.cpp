// SPDX-License-Identifier: MIT
#include "EditorWindow.h"
#include "LayoutStore.h"

#include "support/Text.h"

#include <panorel/Manager.h>

#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace Panorel::Tests {

namespace {

//! [windows]
// All windows of the program. A plot window may be open or not.
class Windows : public Panorel::IManagable
{
public:
    QList<Panorel::ManagedWindow> managedWindows() override
    {
        if (m_onlyPlot)
            return {{QStringLiteral("plot"), plot}};
        QList<Panorel::ManagedWindow> windows{{QStringLiteral("editor"), &editor}};
        if (plot)
            windows.append({QStringLiteral("plot"), plot});
        return windows;
    }

    // Gives a plot window that was opened just now its layout, and leaves the other one alone.
    void restorePlot(Panorel::Manager& manager)
    {
        m_onlyPlot = true;
        manager.activateView(manager.activeView());
        m_onlyPlot = false;
    }

    EditorWindow editor;
    QPointer<QMainWindow> plot;

private:
    bool m_onlyPlot = false;
};
//! [windows]

Qt::DockWidgetArea areaOf(const QMainWindow& window, const QString& name)
{
    return window.dockWidgetArea(dockOf(window, name));
}

void move(QMainWindow& window, const QString& name, Qt::DockWidgetArea area)
{
    window.addDockWidget(area, dockOf(window, name));
}

} // namespace

/** What the guide says of several windows, of groups, and of the two special documents. */
class WindowsAndGroupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowsAreSwitchedTogether();
    void aWindowThatIsClosedKeepsItsPlaceInTheView();
    void aWindowOpenedLaterIsRestoredAlone();
    void eachGroupIsFoundAsItWasLeft();
    void theActiveGroupIsKeptBesideTheDocument();
    void thereIsAWayBackToBothBeginnings();
};

void WindowsAndGroupsTest::windowsAreSwitchedTogether()
{
    Windows windows;
    windows.plot = new EditorWindow;
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(windows);
    manager.saveCurrentViewAs("Mine"_s);
    move(windows.editor, "files"_s, Qt::TopDockWidgetArea);
    move(*windows.plot, "output"_s, Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("Mine"_s));
    QCOMPARE(areaOf(windows.editor, "files"_s), Qt::LeftDockWidgetArea);
    QCOMPARE(areaOf(*windows.plot, "output"_s), Qt::BottomDockWidgetArea);
    delete windows.plot;
}

void WindowsAndGroupsTest::aWindowThatIsClosedKeepsItsPlaceInTheView()
{
    Windows windows;
    windows.plot = new EditorWindow;
    move(*windows.plot, "output"_s, Qt::RightDockWidgetArea);
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(windows);
    manager.createView("Mine"_s);
    delete windows.plot;
    QVERIFY(manager.activateView("Mine"_s));
    windows.plot = new EditorWindow;
    QVERIFY(manager.activateView("Mine"_s));
    QCOMPARE(areaOf(*windows.plot, "output"_s), Qt::RightDockWidgetArea);
    // Only saving again under its name drops it.
    delete windows.plot;
    manager.saveCurrentViewAs("Mine"_s);
    windows.plot = new EditorWindow;
    QVERIFY(manager.activateView("Mine"_s));
    QCOMPARE(areaOf(*windows.plot, "output"_s), Qt::BottomDockWidgetArea);
    delete windows.plot;
}

void WindowsAndGroupsTest::aWindowOpenedLaterIsRestoredAlone()
{
    Windows windows;
    windows.plot = new EditorWindow;
    move(*windows.plot, "output"_s, Qt::RightDockWidgetArea);
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(windows);
    manager.saveCurrentViewAs("Mine"_s);
    delete windows.plot;
    move(windows.editor, "files"_s, Qt::TopDockWidgetArea);
    windows.plot = new EditorWindow;
    windows.restorePlot(manager);
    QCOMPARE(areaOf(*windows.plot, "output"_s), Qt::RightDockWidgetArea);
    QCOMPARE(areaOf(windows.editor, "files"_s), Qt::TopDockWidgetArea);
    delete windows.plot;
}

void WindowsAndGroupsTest::eachGroupIsFoundAsItWasLeft()
{
    //! [groups]
    Panorel::Manager manager({QStringLiteral("Editing"), QStringLiteral("Debugging")},
                             /*mergeOnApply=*/false);
    EditorWindow window;
    manager.registerManagable(window);
    QMenu* groups = window.menuBar()->addMenu(tr("&Group"));
    for (const QString& name : manager.groups())
        groups->addAction(name, &manager, [&manager, name] { manager.activateGroup(name); });
    //! [groups]
    manager.saveCurrentViewAs("Mine"_s);
    move(window, "files"_s, Qt::TopDockWidgetArea);
    QVERIFY(manager.activateGroup("Debugging"_s));
    // A group that has no layout of its own yet leaves the windows as they are.
    QCOMPARE(areaOf(window, "files"_s), Qt::TopDockWidgetArea);
    QCOMPARE(manager.views(), QStringList());
    move(window, "files"_s, Qt::RightDockWidgetArea);
    QVERIFY(manager.activateGroup("Editing"_s));
    QCOMPARE(areaOf(window, "files"_s), Qt::TopDockWidgetArea);
    QCOMPARE(manager.activeView(), "Mine"_s);
    QVERIFY(manager.activateGroup("Debugging"_s));
    QCOMPARE(areaOf(window, "files"_s), Qt::RightDockWidgetArea);
}

void WindowsAndGroupsTest::theActiveGroupIsKeptBesideTheDocument()
{
    QTemporaryDir dir;
    LayoutStore store(dir.filePath("layouts.views"_s));
    QSettings settings(dir.filePath("settings.ini"_s), QSettings::IniFormat);
    const QStringList groups{"Editing"_s, "Debugging"_s};
    {
        EditorWindow window;
        Manager manager(groups, /*mergeOnApply=*/false);
        manager.registerManagable(window);
        QVERIFY(manager.activateGroup("Debugging"_s));
        move(window, "files"_s, Qt::RightDockWidgetArea);
        //! [keep-group]
        settings.setValue(QStringLiteral("layouts/group"), manager.activeGroup());
        store.save(manager);
        //! [keep-group]
    }
    EditorWindow window;
    Manager manager(groups, /*mergeOnApply=*/false);
    manager.registerManagable(window);
    //! [find-group]
    // First, so that the windows are arranged only once. An unknown group changes nothing.
    manager.activateGroup(settings.value(QStringLiteral("layouts/group")).toString());
    store.load(manager);
    //! [find-group]
    QCOMPARE(manager.activeGroup(), "Debugging"_s);
    QCOMPARE(areaOf(window, "files"_s), Qt::RightDockWidgetArea);
    QVERIFY(manager.activateGroup("Editing"_s));
    QCOMPARE(areaOf(window, "files"_s), Qt::LeftDockWidgetArea);
}

void WindowsAndGroupsTest::thereIsAWayBackToBothBeginnings()
{
    QTemporaryDir dir;
    LayoutStore store(dir.filePath("layouts.views"_s));
    {
        EditorWindow earlier;
        Manager manager({"Group"_s}, /*mergeOnApply=*/false);
        manager.registerManagable(earlier);
        move(earlier, "files"_s, Qt::RightDockWidgetArea);
        manager.saveCurrentViewAs("Mine"_s);
        QCOMPARE(store.save(manager), QString());
    }
    EditorWindow window;
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(window);
    //! [special]
    // What the program arranges by itself is the factory default,
    manager.saveCurrentViewAs(tr("Standard"));
    manager.setFactoryDefaultView(manager.toXml(/*markActive=*/true));
    // and what was loaded over it is what this run begins with.
    store.load(manager);
    manager.setProgramStartView(manager.toXml(/*markActive=*/true));
    //! [special]
    manager.clear();
    move(window, "files"_s, Qt::TopDockWidgetArea);
    QVERIFY(manager.activateProgramStartView());
    QCOMPARE(manager.views(), QStringList{"Mine"_s});
    QCOMPARE(areaOf(window, "files"_s), Qt::RightDockWidgetArea);
    QVERIFY(manager.activateFactoryDefaultView());
    QCOMPARE(manager.views(), QStringList{"Standard"_s});
    QCOMPARE(areaOf(window, "files"_s), Qt::LeftDockWidgetArea);
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::WindowsAndGroupsTest)
#include "WindowsAndGroupsTest.moc"
