// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QObject;
class QWidget;

namespace Panorel::Tests {

/** The names of all properties in which two objects differ, those of the second one's class. */
QStringList differences(const QObject& object, const QObject& plain);

/** The same for widgets, and also their window flags and attributes. */
QStringList widgetDifferences(const QWidget& widget, const QWidget& plain);

} // namespace Panorel::Tests
