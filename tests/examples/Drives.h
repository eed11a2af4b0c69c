// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Drives {

/** Uses the running program as @p name says. False, with a line on stderr, if anything is wrong. */
bool drive(const QString& name);

} // namespace Drives
