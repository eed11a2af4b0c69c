// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>

class QAction;
class QLineEdit;
class QMenu;

namespace Panorel::Tests {

/**
 * A menu as one line per entry, top to bottom: "name", "* name" for a checked one, "name (off)" for
 * a disabled one, "name >" for a sub-menu, "[edit]" for a line edit and "---" for a separator.
 */
QStringList entries(const QMenu& menu);

/** The two sub-menus of a Layouts menu, found by their place: the first and the second one. */
QMenu* saveAsMenu(const QMenu& layouts);
QMenu* deleteMenu(const QMenu& layouts);

/** The first entry with exactly this text; null if there is none. */
QAction* entry(const QMenu* menu, const QString& text);

/** The view entries: what stands above the first separator. */
QList<QAction*> viewEntries(const QMenu& layouts);

/** The line edit at the top of the first sub-menu. */
QLineEdit* nameEdit(const QMenu& layouts);

} // namespace Panorel::Tests
