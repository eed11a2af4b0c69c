// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Panorel::Tool {

/** "left", "right", "top" or "bottom" for scripts; empty for no side. Dock and tool-bar areas have
    the same numbers in Qt. */
QString identifierOfSide(int area);

/** The side in the user's language; empty for no side. */
QString nameOfSide(int area);

} // namespace Panorel::Tool
