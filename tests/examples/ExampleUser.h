// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Panorel::Tests {

/** Uses the running program as @p name says. False, with a line on stderr, if anything is wrong. */
bool useExample(const QString& name);

} // namespace Panorel::Tests
