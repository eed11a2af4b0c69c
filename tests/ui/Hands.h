// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace Panorel::Tests {

/**
 * A user's hands: events go to windows, as the windowing system's do, so that Qt decides itself
 * which widget receives them.
 */
namespace Hands {

/** Presses a key in the open menu or, without one, in the active window. */
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/** Types a text there, character by character. */
void type(const QString& text);

/** Clicks on a point of a widget. */
void click(QWidget& widget, const QPoint& position);
void click(QWidget& widget);
/** Clicks on an entry of a menu that is open. */
void click(QMenu& menu, QAction* action);
/** Clicks on a menu's title in a menu bar. */
void click(QMenuBar& bar, const QMenu& menu);

/** Opens the menu as an application would, at a point of the screen. False if it stays closed. */
bool open(QMenu& menu);
/** Clicks on a sub-menu's title in a menu that is open. False if the sub-menu stays closed. */
bool openSubMenu(QMenu& menu, QMenu& subMenu);

} // namespace Hands

} // namespace Panorel::Tests
