// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QMainWindow;
class QWidget;

namespace Panorel::Kit::Detail::Parts {

/** The windows of a window's floating tab groups. */
QList<QWidget*> floatingTabGroups(const QMainWindow& window);
/** The dock widgets of a window, those in floating tab groups last. */
QList<QWidget*> dockWidgets(const QMainWindow& window);
/** The tool bars of a window that are in one of its areas. */
QList<QWidget*> toolBars(const QMainWindow& window);

} // namespace Panorel::Kit::Detail::Parts
