// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtTest>

#include <functional>

class QAction;
class QMenu;

/** What the tour does with keyboard and mouse, as the events of a user. */
namespace TourHands {

/** How many milliseconds a window may take to appear on a busy machine. */
constexpr int patience = 60000;

/** Has the keyboard in @p window whenever no other window of the program has it. */
void startFrom(QWidget& window);

/** Gives the window system and Qt's layouts their turn. */
void settle();

/** Presses a key where the keyboard's focus is, be it a menu, a dialog or a window. */
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/** Types a text there. */
void type(const QString& text);
/** Goes down from entry to entry of an open menu until @p action is the active one. */
bool goTo(const QMenu& menu, const QAction* action);
/** @param position as in a window that is read from left to right. */
void click(QWidget& widget, const QPoint& position);

/**
 * Types a file name into the file dialog that @p open brings up and accepts it, or cancels it for
 * an empty name. Before that @p look is called with the dialog open.
 */
void chooseFile(const QString& fileName, const std::function<void()>& open,
                const std::function<void()>& look);

} // namespace TourHands
