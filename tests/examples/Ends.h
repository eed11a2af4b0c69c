// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace Panorel::Tests::Ends {

/** Floats the first dock widget of each main window, and ends the program in the given @p way. */
void floatAndEnd(const QString& way);

/** Whether these dock widgets are floating, visible and where they were before the program ended.
 */
bool floatingDocksAreBack();

/** Whether they are floating and closed. */
bool floatingDocksAreClosed();

} // namespace Panorel::Tests::Ends
