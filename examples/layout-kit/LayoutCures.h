// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <functional>

class QAction;
class QKeySequence;
class QMenu;
class QString;
class QWidget;

namespace Panorel {
class Manager;
class Menu;
class ViewButton;
} // namespace Panorel

class LayoutUndo;

/**
 * What an application does around Panorel's menu and button so that they please a person. Each
 * function cures one annoyance, is called once, and works without the others. Whatever it is given
 * must live as long as the menu or button; the menu of a view button is its menu().
 */
namespace LayoutCures {

/** Shows a message to a person, such as in a status line. */
using Tell = std::function<void(const QString& message)>;

/**
 * The field for a new name has no focus when "Save Current Layout As..." opens: what is typed goes
 * nowhere, and Return closes the menu. With this the field has it, is empty, and says what it is.
 */
void focusNameField(Panorel::Menu& menu);

/**
 * After a name and Return the menu bar keeps the keyboard, and the next letter typed opens a menu.
 * With this the keyboard goes back to where it was before the menu was opened.
 */
void leaveMenuBar(Panorel::Menu& menu);

/**
 * Return in the empty field saves a layout without a name, which nobody can choose and on which
 * cycling stops. With this Return does nothing there but say so.
 */
void refuseEmptyNames(Panorel::Menu& menu, const Tell& tell);

/** Removes layouts without a name wherever else they come from, such as an imported file. */
void removeNamelessViews(Panorel::Manager& manager, const Tell& tell);

/**
 * Saving over a layout, deleting one and resetting all ask nothing and have no way back. With this
 * each is remembered in @p undo first and told.
 */
void rememberChanges(Panorel::Menu& menu, Panorel::Manager& manager, LayoutUndo& undo,
                     const Tell& tell);

/** Manager::saveCurrentViewAs(), remembered and told like what is saved from the menu. */
void saveAs(Panorel::Manager& manager, const QString& name, LayoutUndo& undo, const Tell& tell);

/**
 * An import that did nothing looks like one that did something, and so does one that dropped all
 * layouts for a file of another version. With this the result is told, the former state comes back
 * by itself if the file was not read, and by @p undo if it was.
 */
void explainImports(Panorel::Menu& menu, Panorel::Manager& manager, LayoutUndo& undo,
                    const Tell& tell);

/** A hundred layouts make a menu that is wider than the screen. With this it scrolls. */
void makeScrollable(Panorel::Menu& menu);

/** "Layouts" has no key of its own in a menu bar. @p title has one, such as "&Layouts". */
void setTitle(Panorel::Menu& menu, const QString& title);

/** "Import & Merge ..." is shown as "Import _Merge ...". With this as it is meant. */
void showAmpersand(Panorel::Menu& menu);

/** The menu behind the button's arrow cannot be opened by the keyboard. @p keys do. */
void openByKeys(Panorel::ViewButton& button, const QKeySequence& keys, QWidget& window);

/**
 * The button has no tool tip and does not tell which layout is active. With this its tip does, for
 * screen readers too, followed by @p hint.
 */
void describeButton(Panorel::ViewButton& button, Panorel::Manager& manager, const QString& hint);

/**
 * An action that undoes the last change, on the keys for it in all of @p windows. After a change
 * the keys belong to the layouts until something is typed, even while a text field has the focus.
 */
QAction* createUndoAction(LayoutUndo& undo, const QList<QWidget*>& windows, const Tell& tell);

} // namespace LayoutCures
