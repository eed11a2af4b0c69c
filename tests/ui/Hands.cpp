// SPDX-License-Identifier: MIT
#include "ui/Hands.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <QWindow>

namespace Panorel::Tests::Hands {

namespace {

QWindow* keyWindow()
{
    if (const QWidget* popup = QApplication::activePopupWidget())
        return popup->windowHandle();
    const QWidget* window = QApplication::activeWindow();
    return window ? window->windowHandle() : nullptr;
}

} // namespace

void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QWindow* window = keyWindow())
        QTest::keyClick(window, key, modifiers);
}

void type(const QString& text)
{
    for (const QChar character : text) {
        if (QWindow* window = keyWindow())
            QTest::keyClick(window, character.toLatin1());
    }
}

void click(QWidget& widget, const QPoint& position)
{
    QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget.mapTo(window, position));
}

void click(QWidget& widget)
{
    click(widget, widget.rect().center());
}

void click(QMenu& menu, QAction* action)
{
    click(menu, menu.actionGeometry(action).center());
}

void click(QMenuBar& bar, const QMenu& menu)
{
    click(bar, bar.actionGeometry(menu.menuAction()).center());
}

bool open(QMenu& menu)
{
    menu.popup(QGuiApplication::primaryScreen()->availableGeometry().topLeft() + QPoint(60, 60));
    return QTest::qWaitForWindowExposed(&menu);
}

bool openSubMenu(QMenu& menu, QMenu& subMenu)
{
    click(menu, subMenu.menuAction());
    // It opens a little after the click, because the mouse may just pass over the title.
    return QTest::qWaitFor([&] { return subMenu.isVisible(); }) &&
           QTest::qWaitForWindowExposed(&subMenu);
}

} // namespace Panorel::Tests::Hands
