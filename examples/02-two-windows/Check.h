// SPDX-License-Identifier: MIT
#pragma once

class TwoWindows;

/** Disturbs the windows in several ways and tells what does not come back. */
bool allComesBack(TwoWindows& windows);
