// SPDX-License-Identifier: MIT
#include "EditorWindow.h"
#include "LayoutStore.h"
#include "SaveAtEnd.h"

#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

namespace Panorel::Tests {

/** The steps of the guide to a first layout, each run as it is printed there. */
class FirstLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLayoutComesBack();
    void theMenuAndTheButtonFollow();
    void theNextRunBeginsWhereThisOneEnded();
};

void FirstLayoutTest::aLayoutComesBack()
{
    //! [manager]
    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    EditorWindow window;
    manager.registerManagable(window);
    //! [manager]
    window.show();
    //! [use]
    manager.saveCurrentViewAs(QStringLiteral("Standard"));
    // The user moves things, and later wants them back:
    manager.activateView(QStringLiteral("Standard"));
    //! [use]

    window.addDockWidget(Qt::RightDockWidgetArea, dockOf(window, "files"_s));
    window.addToolBar(Qt::BottomToolBarArea, window.findChild<QToolBar*>("edit"_s));
    manager.activateView("Standard"_s);
    QCOMPARE(window.dockWidgetArea(dockOf(window, "files"_s)), Qt::LeftDockWidgetArea);
    QCOMPARE(window.toolBarArea(window.findChild<QToolBar*>("edit"_s)), Qt::TopToolBarArea);
}

void FirstLayoutTest::theMenuAndTheButtonFollow()
{
    Panorel::Manager manager({"Editing"_s}, /*mergeOnApply=*/false);
    EditorWindow window;
    manager.registerManagable(window);
    //! [menu]
    auto* menu = new Panorel::Menu(&manager, /*extended=*/true, &window);
    window.menuBar()->addMenu(menu);
    auto* button = new Panorel::ViewButton(&manager, QObject::tr("Layout"), &window);
    QToolBar* bar = window.addToolBar(QObject::tr("Layouts"));
    bar->setObjectName(QStringLiteral("layouts"));
    bar->addWidget(button);
    //! [menu]
    manager.createView("Standard"_s);
    manager.saveCurrentViewAs("Wide"_s);
    QCOMPARE(menu->actions().at(0)->text(), "Standard"_s);
    QCOMPARE(menu->actions().at(1)->text(), "Wide"_s);
    QVERIFY(menu->actions().at(1)->isChecked());
    button->click();
    QCOMPARE(manager.activeView(), "Standard"_s);
}

void FirstLayoutTest::theNextRunBeginsWhereThisOneEnded()
{
    QTemporaryDir dir;
    const QString fileName = dir.filePath("layouts.views"_s);
    for (const bool isFirstRun : {true, false}) {
        Panorel::Manager manager({"Editing"_s}, /*mergeOnApply=*/false);
        EditorWindow window;
        manager.registerManagable(window);
        window.show();
        //! [load]
        LayoutStore store(fileName);
        QString problem = store.load(manager);
        //! [load]
        QCOMPARE(problem, QString());
        QCOMPARE(manager.views(), isFirstRun ? QStringList() : QStringList{"Mine"_s});
        QCOMPARE(window.dockWidgetArea(dockOf(window, "output"_s)),
                 isFirstRun ? Qt::BottomDockWidgetArea : Qt::TopDockWidgetArea);
        manager.saveCurrentViewAs("Mine"_s);
        window.addDockWidget(Qt::TopDockWidgetArea, dockOf(window, "output"_s));
        //! [save]
        const SaveAtEnd saveAtEnd([&] { problem = store.save(manager); });
        //! [save]
        QVERIFY(window.close());
        QCOMPARE(problem, QString());
    }
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::FirstLayoutTest)
#include "FirstLayoutTest.moc"
