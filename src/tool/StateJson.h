// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

namespace Panorel::Kit {
class WindowState;
} // namespace Panorel::Kit

namespace Panorel::Tool {

/** What a window's state says, for scripts. */
QJsonObject stateToJson(const Kit::WindowState& state);

} // namespace Panorel::Tool
