// SPDX-License-Identifier: MIT
#pragma once

class QAction;
class QMenuBar;

namespace Panorel::Plugin {

/** The entry of a menu bar that opens the Help menu, or null. Qt has no mark for it, so it is the
    last entry whose object name or text says so, in any of the languages that we have. */
QAction* helpEntry(const QMenuBar& bar);

} // namespace Panorel::Plugin
