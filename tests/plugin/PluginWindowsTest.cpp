// SPDX-License-Identifier: MIT
#include "ProgramMenu.h"
#include "support/MessageWatch.h"
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <QApplication>
#include <QDialog>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

// Of a machine that is busy.
constexpr int patience = 60000;

/** A window as many programs have it, on the screen. */
class ProgramWindow : public SmallWindow
{
public:
    explicit ProgramWindow(const QString& lastMenu = "&Help"_s)
    {
        menuBar()->addMenu("&File"_s);
        menuBar()->addMenu(lastMenu);
        setCentralWidget(new QWidget);
        resize(500, 400);
    }

    QStringList menus() const
    {
        QStringList texts;
        const QList<QAction*> entries = menuBar()->actions();
        for (const QAction* entry : entries)
            texts.append(entry->text());
        return texts;
    }
};

// By then the plugin has looked at all windows that were shown before.
void waitForPlugin()
{
    ProgramWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
}

QAction* buttonEntry(const QMainWindow& window)
{
    return pluginMenu(window)->actions().constLast();
}

} // namespace

/** This program, which has the plugin loaded into itself as any other would. */
class PluginWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_messages.start(); }
    void cleanup()
    {
        QCOMPARE(m_messages.finish(), QStringList());
        // A window that is being deleted may still be looked at.
        QCoreApplication::processEvents();
    }

    void startedProgramsRunWithoutIt();
    void menuIsBeforeHelp_data();
    void menuIsBeforeHelp();
    void menuIsLastWithoutHelp();
    void menuComesBackWhenMenusAreMadeAgain();
    void menuBarThatIsReplaced();
    void menuBarThatIsHidden();
    void menuBarThatComesLate();
    void partsThatComeLate();
    void windowsThatDoNotCount();
    void severalWindowsSwitchTogether();
    void dockWidgetPerDocument();
    void namelessPartsComeBack();
    void ownStateIsTheSame();
    void sizeStaysTheProgramsOwn();
    void buttonIsInAToolBar();
    void buttonLeavesBeforeTheProgramSaves();
    void buttonComesBackIfClosingIsRefused();
    void buttonOfTheLastRun();
    void windowThatIsDeleted();

private:
    MessageWatch m_messages;
};

void PluginWindowsTest::startedProgramsRunWithoutIt()
{
    QCOMPARE(qgetenv("QT_QPA_GENERIC_PLUGINS"), QByteArray("other:with,another"));
    QCOMPARE(qgetenv("QT_PLUGIN_PATH"), QByteArray("/nowhere"));
    QVERIFY(!qEnvironmentVariableIsSet("PANOREL_PLUGIN_PATH"));
}

void PluginWindowsTest::menuIsBeforeHelp_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("English") << "&Help"_s << QString();
    QTest::newRow("German") << "&Hilfe"_s << QString();
    QTest::newRow("Chinese, with a mnemonic") << QStringLiteral("帮助(&H)") << QString();
    QTest::newRow("question mark") << "&?"_s << QString();
    QTest::newRow("by its object name") << "Pagalba"_s
                                        << "menuHelp"_s;
}

void PluginWindowsTest::menuIsBeforeHelp()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    ProgramWindow window(text);
    window.menuBar()->actions().constLast()->menu()->setObjectName(name);
    window.show();
    QTRY_COMPARE_WITH_TIMEOUT(window.menus(), QStringList({"&File"_s, "&Layouts"_s, text}),
                              patience);
}

void PluginWindowsTest::menuIsLastWithoutHelp()
{
    ProgramWindow window("&Edit"_s);
    window.show();
    QTRY_COMPARE_WITH_TIMEOUT(window.menus(), QStringList({"&File"_s, "&Edit"_s, "&Layouts"_s}),
                              patience);
}

void PluginWindowsTest::menuComesBackWhenMenusAreMadeAgain()
{
    ProgramWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    window.menuBar()->clear();
    window.menuBar()->addMenu("&New"_s);
    QTRY_COMPARE_WITH_TIMEOUT(window.menus(), QStringList({"&New"_s, "&Layouts"_s}), patience);
    window.menuBar()->addMenu("&Help"_s);
    QTRY_COMPARE_WITH_TIMEOUT(window.menus(), QStringList({"&New"_s, "&Layouts"_s, "&Help"_s}),
                              patience);
}

void PluginWindowsTest::menuBarThatIsReplaced()
{
    ProgramWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    auto* bar = new QMenuBar;
    bar->addMenu("&Other"_s);
    window.setMenuBar(bar);
    QTRY_COMPARE_WITH_TIMEOUT(window.menus(), QStringList({"&Other"_s, "&Layouts"_s}), patience);
}

void PluginWindowsTest::menuBarThatIsHidden()
{
    ProgramWindow window;
    window.menuBar()->hide();
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    QVERIFY(window.menuBar()->isHidden());
}

void PluginWindowsTest::menuBarThatComesLate()
{
    SmallWindow window;
    window.show();
    waitForPlugin();
    QVERIFY(!window.menuWidget());
    window.menuBar()->addMenu("&File"_s);
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
}

void PluginWindowsTest::partsThatComeLate()
{
    QMainWindow window;
    window.menuBar()->addMenu("&File"_s);
    window.show();
    waitForPlugin();
    QVERIFY(!pluginMenu(window));
    window.addToolBar("Late"_s);
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
}

void PluginWindowsTest::windowsThatDoNotCount()
{
    QMainWindow plain;
    plain.menuBar()->addMenu("&File"_s);
    plain.show();

    ProgramWindow outer;
    auto* inner = new ProgramWindow;
    outer.setCentralWidget(inner);
    outer.show();

    ProgramWindow dialog;
    dialog.setWindowFlag(Qt::Dialog);
    dialog.show();

    QDialog other;
    auto* inDialog = new ProgramWindow;
    (new QVBoxLayout(&other))->addWidget(inDialog);
    other.show();

    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(outer), patience);
    waitForPlugin();
    QVERIFY(!pluginMenu(plain));
    QVERIFY(!pluginMenu(*inner));
    QVERIFY(!pluginMenu(dialog));
    QVERIFY(!pluginMenu(*inDialog));
}

void PluginWindowsTest::severalWindowsSwitchTogether()
{
    ProgramWindow first;
    ProgramWindow second;
    first.setObjectName("first"_s);
    second.setObjectName("second"_s);
    first.show();
    second.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(first) && pluginMenu(second), patience);
    pluginMenu(first)->saveCurrentLayoutAs("several"_s);
    first.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    second.arrange(Qt::TopDockWidgetArea, Qt::LeftToolBarArea);
    switchTo(*pluginMenu(second), "several"_s);
    QCOMPARE(first.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(first.barArea(), Qt::TopToolBarArea);
    QCOMPARE(second.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(second.barArea(), Qt::TopToolBarArea);
}

void PluginWindowsTest::dockWidgetPerDocument()
{
    ProgramWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    auto* dock = new QDockWidget("document.txt"_s, &window);
    dock->setObjectName("document"_s);
    window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    pluginMenu(window)->saveCurrentLayoutAs("documents"_s);
    window.addDockWidget(Qt::TopDockWidgetArea, dock);
    switchTo(*pluginMenu(window), "documents"_s);
    QCOMPARE(window.dockWidgetArea(dock), Qt::BottomDockWidgetArea);
    delete dock;
    switchTo(*pluginMenu(window), "documents"_s);
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
}

void PluginWindowsTest::namelessPartsComeBack()
{
    ProgramWindow window;
    auto* dock = new QDockWidget(&window);
    auto* bar = new QToolBar(&window);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    window.addToolBar(Qt::BottomToolBarArea, bar);
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    pluginMenu(window)->saveCurrentLayoutAs("nameless"_s);
    window.addDockWidget(Qt::TopDockWidgetArea, dock);
    window.addToolBar(Qt::LeftToolBarArea, bar);
    switchTo(*pluginMenu(window), "nameless"_s);
    QCOMPARE(window.dockWidgetArea(dock), Qt::RightDockWidgetArea);
    QCOMPARE(window.toolBarArea(bar), Qt::BottomToolBarArea);
    QCoreApplication::processEvents();
    QCOMPARE(dock->objectName(), QString());
    QCOMPARE(bar->objectName(), QString());
}

void PluginWindowsTest::ownStateIsTheSame()
{
    ProgramWindow window;
    window.setObjectName("own"_s);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QByteArray before = window.saveState();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    QCOMPARE(window.saveState(), before);
    pluginMenu(window)->saveCurrentLayoutAs("same"_s);
    switchTo(*pluginMenu(window), "same"_s);
    QCOMPARE(window.saveState(), before);
}

void PluginWindowsTest::sizeStaysTheProgramsOwn()
{
    for (const int width : {600, 450}) {
        ProgramWindow window;
        window.setObjectName("sized"_s);
        window.resize(width, 400);
        window.show();
        QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
        QCOMPARE(window.width(), width);
        window.close();
    }
}

void PluginWindowsTest::buttonIsInAToolBar()
{
    ProgramWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    QVERIFY(!buttonEntry(window)->isChecked());
    QCOMPARE(window.findChildren<QToolBar*>().size(), 1);
    const QByteArray before = window.saveState();

    buttonEntry(window)->trigger();
    auto* bar = window.findChild<QToolBar*>("panorel-layouts"_s);
    QVERIFY(bar && bar->isVisible());
    QCOMPARE(window.toolBarArea(bar), Qt::TopToolBarArea);

    buttonEntry(window)->trigger();
    QVERIFY(!window.findChild<QToolBar*>("panorel-layouts"_s));
    QTRY_COMPARE_WITH_TIMEOUT(window.saveState(), before, patience);

    buttonEntry(window)->trigger();
    bar = window.findChild<QToolBar*>("panorel-layouts"_s);
    bar->toggleViewAction()->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(!buttonEntry(window)->isChecked(), patience);
}

void PluginWindowsTest::buttonLeavesBeforeTheProgramSaves()
{
    class SavingWindow : public ProgramWindow
    {
    public:
        QByteArray saved;

    protected:
        void closeEvent(QCloseEvent*) override { saved = saveState(); }
    };
    SavingWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    const QByteArray before = window.saveState();
    buttonEntry(window)->trigger();
    QVERIFY(window.saveState() != before);
    window.close();
    QCOMPARE(window.saved, before);
    window.show();
    QVERIFY(window.findChild<QToolBar*>("panorel-layouts"_s)->isVisible());
    buttonEntry(window)->trigger();
}

void PluginWindowsTest::buttonComesBackIfClosingIsRefused()
{
    class StayingWindow : public ProgramWindow
    {
    protected:
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    };
    StayingWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    buttonEntry(window)->trigger();
    auto* const bar = window.findChild<QToolBar*>("panorel-layouts"_s);
    window.close();
    QVERIFY(!bar->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(bar->isVisible(), patience);
    buttonEntry(window)->trigger();
}

void PluginWindowsTest::buttonOfTheLastRun()
{
    {
        ProgramWindow window;
        window.show();
        QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
        buttonEntry(window)->trigger();
    }
    ProgramWindow window;
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(window), patience);
    QVERIFY(buttonEntry(window)->isChecked());
    QVERIFY(window.findChild<QToolBar*>("panorel-layouts"_s));
    buttonEntry(window)->trigger();
}

void PluginWindowsTest::windowThatIsDeleted()
{
    auto* window = new ProgramWindow;
    window->show();
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(*window), patience);
    delete window->menuBar();
    QCoreApplication::processEvents();
    window->menuBar()->addMenu("&File"_s);
    QTRY_VERIFY_WITH_TIMEOUT(pluginMenu(*window), patience);
    delete window;
    auto* shortLived = new ProgramWindow;
    shortLived->show();
    delete shortLived;
    waitForPlugin();
}

int main(int argc, char** argv)
{
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
    qputenv("QT_QPA_GENERIC_PLUGINS", "other:with,panorel,another");
    qputenv("QT_PLUGIN_PATH", PLUGINS ":/nowhere");
    qputenv("PANOREL_PLUGIN_PATH", PLUGINS);
    QApplication application(argc, argv);
    PluginWindowsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PluginWindowsTest.moc"
