// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SampleWindow.h"
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

class ObjectOwner : public QObject, public Owner
{};

QStringList idsIn(const QByteArray& document)
{
    QStringList ids;
    const QList<QByteArray> parts = document.mid(document.indexOf("<CurrentView")).split('"');
    for (int i = 1; i < parts.size(); ++i) {
        if (parts[i - 1].endsWith("DescriptorId="))
            ids.append(QString::fromUtf8(parts[i]));
    }
    return ids;
}

} // namespace

class LayoutsWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowsAreCapturedUnderTheirIds();
    void aWindowIsAddedOnce();
    void anOwnerIsAsked();
    void aDestroyedOwnerIsNotAsked();
    void namelessPartsComeBackByMerging();
    void namesAreTheSameInEveryRun();
    void namesComeFromTitles();
    void namesAreTakenBack();
    void aClosedWindowSavesItsOwnStateWithoutThem();
    void checkFinds();
    void anyOrderOfDestruction_data();
    void anyOrderOfDestruction();
};

void LayoutsWindowsTest::windowsAreCapturedUnderTheirIds()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    SmallWindow first;
    SmallWindow second;
    SmallWindow third;
    SmallWindow fourth;
    Layouts layouts(manager);
    layouts.addWindow(first, "given"_s);
    second.setObjectName("own"_s);
    layouts.addWindow(second);
    layouts.addWindow(third);
    layouts.addWindow(fourth);
    QCOMPARE(idsIn(manager.toXml(/*markActive=*/false)),
             QStringList({"given"_s, "own"_s, "window"_s, "window-2"_s}));
}

void LayoutsWindowsTest::aWindowIsAddedOnce()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    SmallWindow window;
    Layouts layouts(manager);
    layouts.addWindow(window, "a"_s);
    layouts.addWindow(window, "b"_s);
    QCOMPARE(idsIn(manager.toXml(/*markActive=*/false)), QStringList("a"_s));
}

void LayoutsWindowsTest::anOwnerIsAsked()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    SmallWindow window;
    Owner owner({{"theirs"_s, &window}});
    Layouts layouts(manager);
    layouts.addOwner(owner);
    owner.calls = 0;
    QCOMPARE(idsIn(manager.toXml(/*markActive=*/false)), QStringList("theirs"_s));
    QCOMPARE(owner.calls, 1);
}

void LayoutsWindowsTest::aDestroyedOwnerIsNotAsked()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    SmallWindow window;
    auto owner = std::make_unique<ObjectOwner>();
    owner->windows = {{"theirs"_s, &window}};
    Layouts layouts(manager);
    layouts.addOwner(*owner);
    QCOMPARE(idsIn(manager.toXml(/*markActive=*/false)), QStringList("theirs"_s));
    owner.reset();
    QCOMPARE(idsIn(manager.toXml(/*markActive=*/false)), QStringList());
}

void LayoutsWindowsTest::namelessPartsComeBackByMerging()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    QMainWindow window;
    auto* dock = new QDockWidget(&window);
    auto* bar = new QToolBar(&window);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.addToolBar(Qt::TopToolBarArea, bar);
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.saveCurrentViewAs("first"_s);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    window.addToolBar(Qt::BottomToolBarArea, bar);
    manager.activateView("first"_s);
    QCOMPARE(window.dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    QCOMPARE(window.toolBarArea(bar), Qt::TopToolBarArea);
}

void LayoutsWindowsTest::namesAreTheSameInEveryRun()
{
    const auto run = [](bool raised) {
        Manager manager({"G"_s}, /*mergeOnApply=*/false);
        QMainWindow window;
        auto* first = new QDockWidget(&window);
        auto* second = new QDockWidget(&window);
        window.addDockWidget(Qt::LeftDockWidgetArea, first);
        window.addDockWidget(Qt::RightDockWidgetArea, second);
        Layouts layouts(manager);
        layouts.addWindow(window);
        // This changes the order of the window's children.
        if (raised)
            first->raise();
        manager.createView("v"_s);
        return manager.toXml(/*markActive=*/false);
    };
    QCOMPARE(run(true), run(false));
}

void LayoutsWindowsTest::namesComeFromTitles()
{
    QByteArray document;
    for (const QStringList& titles : {QStringList{"X"_s, "Y"_s}, QStringList{"Y"_s, "X"_s}}) {
        Manager manager({"G"_s}, /*mergeOnApply=*/false);
        QMainWindow window;
        QMap<QString, QDockWidget*> docks;
        for (const QString& title : titles) {
            docks[title] = new QDockWidget(title, &window);
            window.addDockWidget(Qt::LeftDockWidgetArea, docks[title]);
        }
        Layouts layouts(manager);
        layouts.addWindow(window, "main"_s);
        if (document.isEmpty()) {
            window.addDockWidget(Qt::RightDockWidgetArea, docks["Y"_s]);
            document = manager.toXml(/*markActive=*/true);
            continue;
        }
        QVERIFY(manager.fromXml(document, /*merge=*/false));
        QCOMPARE(window.dockWidgetArea(docks["X"_s]), Qt::LeftDockWidgetArea);
        QCOMPARE(window.dockWidgetArea(docks["Y"_s]), Qt::RightDockWidgetArea);
    }
}

void LayoutsWindowsTest::namesAreTakenBack()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    QMainWindow window;
    auto* dock = new QDockWidget(&window);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    Layouts layouts(manager);
    layouts.addWindow(window);
    manager.createView("v"_s);
    QCoreApplication::processEvents();
    QCOMPARE(dock->objectName(), QString());
}

void LayoutsWindowsTest::aClosedWindowSavesItsOwnStateWithoutThem()
{
    class Window : public QMainWindow
    {
    public:
        QString nameWhenClosed = "not closed"_s;
        QDockWidget* const dock = new QDockWidget(this);

    protected:
        void closeEvent(QCloseEvent*) override { nameWhenClosed = dock->objectName(); }
    };
    const QTemporaryDir folder;
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    Window window;
    window.addDockWidget(Qt::LeftDockWidgetArea, window.dock);
    Layouts layouts(manager);
    layouts.addWindow(window);
    layouts.start(folder.filePath("layouts.views"_s));
    window.show();
    manager.createView("v"_s);
    QCoreApplication::processEvents();
    window.close();
    QCOMPARE(window.nameWhenClosed, QString());
}

void LayoutsWindowsTest::checkFinds()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    QMainWindow window;
    window.setWindowTitle("W"_s);
    Layouts layouts(manager);
    layouts.addWindow(window);
    QCOMPARE(layouts.check(), QStringList("The window \"W\" has no central widget."_s));
    window.setCentralWidget(new QWidget);
    QCOMPARE(layouts.check(), QStringList());

    auto* nameless = new QDockWidget("D"_s, &window);
    window.addDockWidget(Qt::LeftDockWidgetArea, nameless);
    window.addToolBar("T"_s);
    for (int i = 0; i < 3; ++i) {
        auto* bar = new QToolBar(&window);
        bar->setObjectName("same"_s);
        window.addToolBar(bar);
    }
    auto* outside = new QDockWidget(&window);
    outside->setObjectName("outside"_s);
    QCOMPARE(layouts.check(),
             QStringList({"The dock widget \"D\" has no object name."_s,
                          "The tool bar \"T\" has no object name."_s,
                          "Several tool bars have the object name \"same\"."_s,
                          "The dock widget \"outside\" is in none of the window's areas."_s}));
}

void LayoutsWindowsTest::anyOrderOfDestruction_data()
{
    QTest::addColumn<QString>("order");
    for (const char* order : {"MLW", "MWL", "LMW", "LWM", "WML", "WLM"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void LayoutsWindowsTest::anyOrderOfDestruction()
{
    QFETCH(QString, order);
    auto manager = std::make_unique<Manager>(QStringList("G"_s), /*mergeOnApply=*/true);
    auto layouts = std::make_unique<Layouts>(*manager);
    auto window = std::make_unique<SampleWindow>();
    layouts->addWindow(*window);
    manager->saveCurrentViewAs("a"_s);
    for (const QChar& next : order) {
        if (next == QLatin1Char('M'))
            manager.reset();
        else if (next == QLatin1Char('L'))
            layouts.reset();
        else
            window.reset();
        if (manager) {
            manager->activateView("a"_s);
            manager->saveCurrentViewAs("b"_s);
        }
        if (layouts)
            (void)layouts->check();
    }
}

QTEST_MAIN(LayoutsWindowsTest)
#include "LayoutsWindowsTest.moc"
