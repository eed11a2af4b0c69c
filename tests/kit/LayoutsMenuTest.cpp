// SPDX-License-Identifier: MIT
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

using namespace Panorel;

namespace {

/** A window with the kit's menu in its menu bar. */
class Fixture
{
public:
    Fixture()
        : manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false)
        , layouts(manager)
        , messages(&layouts, &Kit::Layouts::message)
    {
        window.setCentralWidget(new QPlainTextEdit);
        auto* dock = new QDockWidget(&window);
        dock->setObjectName(QStringLiteral("dock"));
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

    /** Presses a key where a user's key would go: in the open menu, or else in the window. */
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(receiver(), key, modifiers);
        QCoreApplication::processEvents();
    }

    static void type(const char* characters)
    {
        for (; *characters; ++characters)
            QTest::keyClick(receiver(), *characters);
    }

    QMenu* subMenu(int index) const
    {
        QList<QMenu*> found;
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            if (action->menu())
                found.append(action->menu());
        }
        return found.value(index);
    }
    QMenu* saveAs() const { return subMenu(0); }
    QMenu* deletion() const { return subMenu(1); }

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

private:
    static QWidget* receiver()
    {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup->focusWidget() ? popup->focusWidget() : popup;
        return QApplication::focusWidget() ? QApplication::focusWidget()
                                           : QApplication::activeWindow();
    }
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
    void manyLayoutsScroll();
    void buttonDescribesItself();
    void managerMayGoFirst();
    void layoutsMayGoFirst();
};

void LayoutsMenuTest::menuHasItsEntries()
{
    Fixture f;
    QVERIFY(qobject_cast<Menu*>(f.menu));
    QCOMPARE(f.menu->title(), QStringLiteral("&Layouts"));
    QCOMPARE(
        textsOf(*f.menu).mid(0, 9),
        (QStringList{QString(), QStringLiteral("Save Current Layout As..."),
                     QStringLiteral("Delete Layout..."), QString(), QStringLiteral("Export ..."),
                     QStringLiteral("Import ..."), QStringLiteral("Import && Merge ..."), QString(),
                     QStringLiteral("Reset Layout to Program Start")}));
    f.manager.saveCurrentViewAs(QStringLiteral("Wide"));
    QCOMPARE(f.menu->actions().constFirst()->text(), QStringLiteral("Wide"));
    QVERIFY(f.menu->actions().constFirst()->isChecked());
}

void LayoutsMenuTest::nameFieldIsReadyForTyping()
{
    Fixture f;
    QVERIFY(f.isReady);
    f.open(f.saveAs());
    auto* edit = qobject_cast<QLineEdit*>(f.saveAs()->focusWidget());
    QVERIFY(edit);
    QCOMPARE(edit->accessibleName(), QStringLiteral("Name of the new layout"));
    f.type("Wide");
    QCOMPARE(edit->text(), QStringLiteral("Wide"));
    f.press(Qt::Key_Return);
    QCOMPARE(f.manager.views(), QStringList{QStringLiteral("Wide")});
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
        f.type(name);
        f.press(Qt::Key_Return);
    }
    QCOMPARE(f.manager.views().size(), 3);
}

void LayoutsMenuTest::emptyNameIsRefused()
{
    Fixture f;
    f.open(f.saveAs());
    f.type("  ");
    f.press(Qt::Key_Return);
    QCOMPARE(f.manager.views(), QStringList());
    QCOMPARE(f.messages.count(), 1);
    QVERIFY(f.saveAs()->isVisible());
}

void LayoutsMenuTest::keyboardLeavesTheMenuBar()
{
    Fixture f;
    f.open(f.saveAs());
    f.type("Wide");
    f.press(Qt::Key_Return);
    QTRY_COMPARE(QApplication::focusWidget(), f.window.centralWidget());
}

void LayoutsMenuTest::ampersandsAreShown()
{
    Fixture f;
    const QString name = QStringLiteral("Cut & Paste");
    f.manager.saveCurrentViewAs(name);
    f.open(f.deletion());
    QCOMPARE(f.menu->actions().constFirst()->text(), QStringLiteral("Cut && Paste"));
    QCOMPARE(f.deletion()->actions().constFirst()->text(), QStringLiteral("Cut && Paste"));
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
    f.manager.saveCurrentViewAs(QStringLiteral("Drawing"));
    f.manager.saveCurrentViewAs(QStringLiteral("Writing"));
    // As a desktop does when a menu is shown.
    QAction* save = f.saveAs()->actions().at(1);
    save->setText(QStringLiteral("&Drawing"));
    save->trigger();
    QCOMPARE(f.manager.views(),
             (QStringList{QStringLiteral("Drawing"), QStringLiteral("Writing")}));
    QAction* deletion = f.deletion()->actions().at(1);
    deletion->setText(QStringLiteral("&Writing"));
    deletion->trigger();
    QCOMPARE(f.manager.views(), QStringList{QStringLiteral("Drawing")});
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
    QVERIFY(button->accessibleDescription().startsWith(QStringLiteral("No layout is active.")));
    f.manager.saveCurrentViewAs(QStringLiteral("<b>&"));
    QVERIFY(button->accessibleDescription().startsWith(QStringLiteral("\"<b>&\" is active.")));
    QVERIFY(button->toolTip().contains(QStringLiteral("&lt;b&gt;&amp;")));
}

void LayoutsMenuTest::managerMayGoFirst()
{
    QMainWindow window;
    auto manager = std::make_unique<Manager>(QStringList{QStringLiteral("Editing")}, false);
    auto layouts = std::make_unique<Kit::Layouts>(*manager);
    layouts->addWindow(window);
    QMenu* menu = layouts->createMenu(&window);
    QToolButton* button = layouts->createButton(&window);
    manager->saveCurrentViewAs(QStringLiteral("A"));
    manager->createView(QStringLiteral("B"));
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
    Manager manager({QStringLiteral("Editing")}, false);
    auto layouts = std::make_unique<Kit::Layouts>(manager);
    layouts->addWindow(window);
    QMenu* menu = layouts->createMenu(&window);
    layouts->createButton(&window);
    layouts.reset();
    manager.saveCurrentViewAs(QStringLiteral("A"));
    QCOMPARE(menu->actions().constFirst()->text(), QStringLiteral("A"));
    menu->actions().constFirst()->trigger();
    QCOMPARE(manager.activeView(), QStringLiteral("A"));
}

QTEST_MAIN(LayoutsMenuTest)
#include "LayoutsMenuTest.moc"
