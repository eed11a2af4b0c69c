// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Panorel::Kit {
class WindowState;
} // namespace Panorel::Kit

namespace Panorel::Tool {

/**
 * What a window's state says, for a reader: lines with the dock widgets by side, tabs indented,
 * then the floating and the closed ones, then the tool bars by side and line.
 */
QStringList toText(const Kit::WindowState& state);

} // namespace Panorel::Tool
