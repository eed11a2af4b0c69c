// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"
#include "ui/Hands.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>
#include <panorel/kit/Layouts.h>

#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

/** A window with the kit's menu in its menu bar. */
class Fixture
{
public:
    Fixture()
        : manager({"Editing"_s}, /*mergeOnApply=*/false)
        , layouts(manager)
        , messages(&layouts, &Kit::Layouts::message)
    {
        window.setCentralWidget(new QPlainTextEdit);
        auto* dock = new QDockWidget(&window);
        dock->setObjectName("dock"_s);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        layouts.addWindow(window);
        menu = layouts.createMenu(&window);
        window.menuBar()->setNativeMenuBar(false);
        window.menuBar()->addMenu(menu);
        window.resize(400, 300);
        window.show();
        window.activateWindow();
        window.centralWidget()->setFocus();
        isReady = QTest::qWaitForWindowActive(&window);
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Hands::press(key, modifiers);
        QCoreApplication::processEvents();
    }

    QMenu* saveAs() const { return saveAsMenu(*menu); }
    QMenu* deletion() const { return deleteMenu(*menu); }

    /** Opens the menu by its key and goes down and right into a sub-menu. */
    void open(QMenu* sub)
    {
        press(Qt::Key_L, Qt::AltModifier);
        for (int i = 0; i <= menu->actions().size() && menu->activeAction() != sub->menuAction();
             ++i)
            press(Qt::Key_Down);
        press(Qt::Key_Right);
    }

    QMainWindow window;
    Manager manager;
    Kit::Layouts layouts;
    QSignalSpy messages;
    QMenu* menu = nullptr;
    bool isReady = false;
};

QStringList textsOf(const QMenu& menu)
{
    QStringList texts;
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions)
        texts.append(action->text());
    return texts;
}

} // namespace

/** What users meet in the kit's menu and at its button, by real keys. */
class LayoutsMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuHasItsEntries();
    void nameFieldIsReadyForTyping();
    void nameFieldIsWideEnoughAfterEachChange();
    void emptyNameIsRefused();
    void keyboardLeavesTheMenuBar();
    void ampersandsAreShown();
    void desktopsAmpersandsDoNotChangeNames();
    void undoAndRedoNameTheStep();
    void manyLayoutsScroll();
    void buttonDescribesItself();
    void managerMayGoFirst();
    void layoutsMayGoFirst();
};

void LayoutsMenuTest::menuHasItsEntries()
{
    Fixture f;
    QVERIFY(qobject_cast<Menu*>(f.menu));
    QCOMPARE(f.menu->title(), "&Layouts"_s);
    QCOMPARE(textsOf(*f.menu).mid(0, 9),
             (QStringList{QString(), "Save Current Layout As..."_s, "Delete Layout..."_s, QString(),
                          "Export ..."_s, "Import ..."_s, "Import && Merge ..."_s, QString(),
                          "Reset Layout to Program Start"_s}));
    f.manager.saveCurrentViewAs("Wide"_s);
    QCOMPARE(f.menu->actions().constFirst()->text(), "Wide"_s);
    QVERIFY(f.menu->actions().constFirst()->isChecked());
}

void LayoutsMenuTest::nameFieldIsReadyForTyping()
{
    Fixture f;
    QVERIFY(f.isReady);
    f.open(f.saveAs());
    auto* edit = qobject_cast<QLineEdit*>(f.saveAs()->focusWidget());
    QVERIFY(edit);
    QCOMPARE(edit->accessibleName(), "Name of the new layout"_s);
    Hands::type("Wide"_s);
    QCOMPARE(edit->text(), "Wide"_s);
    f.press(Qt::Key_Return);
    QCOMPARE(f.manager.views(), QStringList{"Wide"_s});
}

void LayoutsMenuTest::nameFieldIsWideEnoughAfterEachChange()
{
    Fixture f;
    for (const char* name : {"a", "b", "c"}) {
        f.open(f.saveAs());
        auto* edit = qobject_cast<QLineEdit*>(f.saveAs()->focusWidget());
        QVERIFY(edit);
        const int needed = edit->fontMetrics().horizontalAdvance(edit->placeholderText());
        QVERIFY(needed > 0);
        QVERIFY2(edit->visibleRegion().boundingRect().width() > needed, name);
        Hands::type(QString::fromLatin1(name));
        f.press(Qt::Key_Return);
    }
    QCOMPARE(f.manager.views().size(), 3);
}

void LayoutsMenuTest::emptyNameIsRefused()
{
    Fixture f;
    f.open(f.saveAs());
    Hands::type("  "_s);
    f.press(Qt::Key_Return);
    QCOMPARE(f.manager.views(), QStringList());
    QCOMPARE(f.messages.count(), 1);
    QVERIFY(f.saveAs()->isVisible());
}

void LayoutsMenuTest::keyboardLeavesTheMenuBar()
{
    Fixture f;
    f.open(f.saveAs());
    Hands::type("Wide"_s);
    f.press(Qt::Key_Return);
    QTRY_COMPARE(QApplication::focusWidget(), f.window.centralWidget());
}

void LayoutsMenuTest::ampersandsAreShown()
{
    Fixture f;
    const QString name = "Cut & Paste"_s;
    f.manager.saveCurrentViewAs(name);
    f.open(f.deletion());
    QCOMPARE(f.menu->actions().constFirst()->text(), "Cut && Paste"_s);
    QCOMPARE(f.deletion()->actions().constFirst()->text(), "Cut && Paste"_s);
    f.press(Qt::Key_Return);
    QCOMPARE(f.manager.views(), QStringList());

    f.manager.saveCurrentViewAs(name);
    f.open(f.saveAs());
    f.press(Qt::Key_Down);
    f.press(Qt::Key_Return);
    QCOMPARE(f.manager.views(), QStringList{name});
}

void LayoutsMenuTest::desktopsAmpersandsDoNotChangeNames()
{
    Fixture f;
    f.manager.saveCurrentViewAs("Drawing"_s);
    f.manager.saveCurrentViewAs("Writing"_s);
    // As a desktop does when a menu is shown.
    QAction* save = f.saveAs()->actions().at(1);
    save->setText("&Drawing"_s);
    save->trigger();
    QCOMPARE(f.manager.views(), (QStringList{"Drawing"_s, "Writing"_s}));
    QAction* deletion = f.deletion()->actions().at(1);
    deletion->setText("&Writing"_s);
    deletion->trigger();
    QCOMPARE(f.manager.views(), QStringList{"Drawing"_s});
}

void LayoutsMenuTest::undoAndRedoNameTheStep()
{
    Fixture f;
    QUndoStack* steps = f.layouts.history();
    const QAction* undo = entry(f.menu, "Undo"_s);
    const QAction* redo = entry(f.menu, "Redo"_s);
    QVERIFY(undo && redo);
    steps->push(new QUndoCommand("Delete \"R&D\""_s));
    QCOMPARE(undo->text(), "Undo: Delete \"R&&D\""_s);
    QVERIFY(undo->isEnabled());
    QVERIFY(!redo->isEnabled());
    steps->undo();
    QCOMPARE(undo->text(), "Undo"_s);
    QCOMPARE(redo->text(), "Redo: Delete \"R&&D\""_s);
}

void LayoutsMenuTest::manyLayoutsScroll()
{
    Fixture f;
    for (int i = 0; i < 120; ++i)
        f.manager.createView(QString::number(i));
    f.press(Qt::Key_L, Qt::AltModifier);
    QTRY_VERIFY(f.menu->isVisible());
    QVERIFY(f.menu->width() < 600);
    f.menu->close();
}

void LayoutsMenuTest::buttonDescribesItself()
{
    Fixture f;
    QToolButton* button = f.layouts.createButton(&f.window);
    QVERIFY(qobject_cast<ViewButton*>(button));
    QVERIFY(button->accessibleDescription().startsWith("No layout is active."_s));
    f.manager.saveCurrentViewAs("<b>&"_s);
    QVERIFY(button->accessibleDescription().startsWith("\"<b>&\" is active."_s));
    QVERIFY(button->toolTip().contains("&lt;b&gt;&amp;"_s));
}

void LayoutsMenuTest::managerMayGoFirst()
{
    QMainWindow window;
    auto manager = std::make_unique<Manager>(QStringList{"Editing"_s}, false);
    auto layouts = std::make_unique<Kit::Layouts>(*manager);
    layouts->addWindow(window);
    QMenu* menu = layouts->createMenu(&window);
    QToolButton* button = layouts->createButton(&window);
    manager->saveCurrentViewAs("A"_s);
    manager->createView("B"_s);
    manager.reset();
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions)
        action->trigger();
    button->click();
    QVERIFY(!layouts->createMenu(&window)->isEnabled());
    QVERIFY(!layouts->createButton(&window)->isEnabled());
}

void LayoutsMenuTest::layoutsMayGoFirst()
{
    QMainWindow window;
    Manager manager({"Editing"_s}, false);
    auto layouts = std::make_unique<Kit::Layouts>(manager);
    layouts->addWindow(window);
    QMenu* menu = layouts->createMenu(&window);
    layouts->createButton(&window);
    layouts.reset();
    manager.saveCurrentViewAs("A"_s);
    QCOMPARE(menu->actions().constFirst()->text(), "A"_s);
    menu->actions().constFirst()->trigger();
    QCOMPARE(manager.activeView(), "A"_s);
}

QTEST_MAIN(LayoutsMenuTest)
#include "LayoutsMenuTest.moc"
