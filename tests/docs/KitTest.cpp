// SPDX-License-Identifier: MIT
#include "EditorWindow.h"

#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace Panorel::Tests {

/** What the guide and the migration page say of Panorel Kit. */
class KitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void fiveLinesAreEnough();
    void dockWidgetsAreCreatedWhenALayoutMentionsThem();
    void namesCanBeChecked();
    void theFirstRunAdoptsTheOldLayout();
    void anOldLayoutIsAdoptedOnce();

private:
    void writeOldLayout(QSettings& settings);
};

void KitTest::fiveLinesAreEnough()
{
    EditorWindow window;
    QToolBar* toolBar = window.findChild<QToolBar*>("edit"_s);
    //! [kit]
    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/true);
    Panorel::Kit::Layouts layouts(manager);
    layouts.addWindow(window);
    window.menuBar()->addMenu(layouts.createMenu(&window));
    toolBar->addWidget(layouts.createButton(&window));
    window.show();
    layouts.start();
    //! [kit]
    //! [kit-message]
    QObject::connect(&layouts, &Panorel::Kit::Layouts::message, window.statusBar(),
                     [&window](const QString& text) { window.statusBar()->showMessage(text); });
    //! [kit-message]
    manager.saveCurrentViewAs("Wide"_s);
    dockOf(window, "files"_s)->close();
    QVERIFY(manager.activateView("Wide"_s));
    QVERIFY(dockOf(window, "files"_s)->isVisible());
    QString problem;
    QVERIFY(!layouts.importFile("/nowhere.views"_s, &problem));
    QVERIFY(!problem.isEmpty());
}

void KitTest::dockWidgetsAreCreatedWhenALayoutMentionsThem()
{
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    EditorWindow window;
    Panorel::Kit::Layouts layouts(manager);
    layouts.addWindow(window);
    auto* first = new QDockWidget("Plot"_s);
    first->setObjectName("plot"_s);
    window.addDockWidget(Qt::RightDockWidgetArea, first);
    manager.saveCurrentViewAs("With a plot"_s);
    delete first;
    //! [kit-dock]
    layouts.addDock(QStringLiteral("plot"), [] { return new QDockWidget(tr("Plot")); });
    //! [kit-dock]
    QVERIFY(manager.activateView("With a plot"_s));
    QCOMPARE(window.dockWidgetArea(dockOf(window, "plot"_s)), Qt::RightDockWidgetArea);
}

void KitTest::namesCanBeChecked()
{
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    EditorWindow window;
    Panorel::Kit::Layouts layouts(manager);
    layouts.addWindow(window);
    //! [kit-check]
    QCOMPARE(layouts.check(), QStringList());
    //! [kit-check]
    dockOf(window, "files"_s)->setObjectName(QString());
    QCOMPARE(layouts.check(), QStringList{"The dock widget \"Files\" has no object name."_s});
}

namespace {

//! [kit-adopt]
// Makes what the earlier release has kept the first layout. Call it after Layouts::start().
void adoptOldLayout(QSettings& settings, QMainWindow& window, Panorel::Manager& manager,
                    Panorel::Kit::Layouts& layouts)
{
    const QString key = QStringLiteral("window/state");
    const int oldVersion = 3; // What the earlier release gave to saveState().
    const QByteArray state = settings.value(key).toByteArray();
    // Without an old layout, or with a broken one, the window stays as the program arranges it.
    if (manager.views().isEmpty() && window.restoreState(state, oldVersion))
        manager.saveCurrentViewAs(QCoreApplication::translate("Program", "My layout"));
    if (!manager.views().isEmpty() && layouts.save())
        settings.remove(key);
}
//! [kit-adopt]

} // namespace

void KitTest::writeOldLayout(QSettings& settings)
{
    EditorWindow window;
    window.addDockWidget(Qt::RightDockWidgetArea, dockOf(window, "files"_s));
    settings.setValue("window/state"_s, window.saveState(3));
}

void KitTest::theFirstRunAdoptsTheOldLayout()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"_s), QSettings::IniFormat);
    writeOldLayout(settings);
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    EditorWindow window;
    Panorel::Kit::Layouts layouts(manager);
    layouts.addWindow(window);
    window.show();
    layouts.start(folder.filePath("layouts.views"_s));
    adoptOldLayout(settings, window, manager, layouts);
    QCOMPARE(manager.activeView(), "My layout"_s);
    QVERIFY(!settings.contains("window/state"_s));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.dockWidgetArea(dockOf(window, "files"_s)), Qt::RightDockWidgetArea);
    window.addDockWidget(Qt::TopDockWidgetArea, dockOf(window, "files"_s));
    QVERIFY(manager.activateView("My layout"_s));
    QCOMPARE(window.dockWidgetArea(dockOf(window, "files"_s)), Qt::RightDockWidgetArea);
}

void KitTest::anOldLayoutIsAdoptedOnce()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"_s), QSettings::IniFormat);
    for (const bool isFirstRun : {true, false}) {
        writeOldLayout(settings);
        Manager manager({"Group"_s}, /*mergeOnApply=*/false);
        EditorWindow window;
        Panorel::Kit::Layouts layouts(manager);
        layouts.addWindow(window);
        window.show();
        layouts.start(folder.filePath("layouts.views"_s));
        adoptOldLayout(settings, window, manager, layouts);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(manager.views(), QStringList{"My layout"_s});
        QVERIFY(!settings.contains("window/state"_s));
        QTRY_COMPARE(window.dockWidgetArea(dockOf(window, "files"_s)),
                     isFirstRun ? Qt::RightDockWidgetArea : Qt::TopDockWidgetArea);
        window.addDockWidget(Qt::TopDockWidgetArea, dockOf(window, "files"_s));
    }
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::KitTest)
#include "KitTest.moc"
