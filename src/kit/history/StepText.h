// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Panorel::Kit::Detail {

struct Contents;
struct Delta;

/** What a step is called in menus and lists, in the user's language. */
namespace StepText {

/** The change from what there was before to @p after. If nothing has changed but the windows, they
    are as the active layout has them again. */
QString of(const Delta& delta, const Contents& after);

/** Reading the file of this name. */
QString ofImport(const QString& file);

} // namespace StepText

} // namespace Panorel::Kit::Detail
