// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutCures.h"
#include "LayoutUndo.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QtTest>

/** A window with a dock widget, a text field and an extended menu in its menu bar, all shown. */
class CuresFixture : public Panorel::IManagable
{
public:
    CuresFixture()
        : manager({QStringLiteral("First"), QStringLiteral("Second")}, /*mergeOnApply=*/false)
        , menu(&manager, /*extended=*/true)
        , undo(manager)
    {
        window.setCentralWidget(&text);
        dock.setObjectName(QStringLiteral("dock"));
        window.addDockWidget(Qt::LeftDockWidgetArea, &dock);
        manager.registerManagable(*this);
        menu.setTitle(QStringLiteral("&Layouts"));
        window.menuBar()->setNativeMenuBar(false);
        window.menuBar()->addMenu(&menu);
        window.resize(400, 300);
        window.show();
        window.activateWindow();
        text.setFocus();
        isReady = QTest::qWaitForWindowActive(&window);
    }

    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("window"), &window}};
    }

    LayoutCures::Tell tell()
    {
        return [this](const QString& message) { told.append(message); };
    }

    /** Presses a key where a person's key would go: in the open menu, or else in the window. */
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
        const QList<QAction*> actions = menu.actions();
        for (const QAction* action : actions) {
            if (action->menu())
                found.append(action->menu());
        }
        return found.value(index);
    }
    QMenu* saveAs() const { return subMenu(0); }
    QMenu* deletion() const { return subMenu(1); }

    QAction* entry(const QMenu& in, const QString& label) const
    {
        const QList<QAction*> actions = in.actions();
        for (QAction* action : actions) {
            if (action->text() == label)
                return action;
        }
        return nullptr;
    }

    /** Opens the menu by its key and goes down and right into a sub-menu. */
    void open(QMenu* sub = nullptr)
    {
        press(Qt::Key_L, Qt::AltModifier);
        if (!sub)
            return;
        for (int i = 0; i <= menu.actions().size() && menu.activeAction() != sub->menuAction(); ++i)
            press(Qt::Key_Down);
        press(Qt::Key_Right);
    }

    /** Goes down to an entry of an open menu and presses Return. */
    void choose(QMenu& in, const QString& label)
    {
        QAction* wanted = entry(in, label);
        for (int i = 0; i <= in.actions().size() && in.activeAction() != wanted; ++i)
            press(Qt::Key_Down);
        press(Qt::Key_Return);
    }

    void save(const QString& name) { manager.saveCurrentViewAs(name); }

    // In this order: what uses the Manager ends before it, and children before their window.
    QMainWindow window;
    QPlainTextEdit text;
    QDockWidget dock;
    Panorel::Manager manager;
    Panorel::Menu menu;
    LayoutUndo undo;
    QStringList told;
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
