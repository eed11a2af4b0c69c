// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Panorel::Kit::Detail {

/** The text of an action or label that shows @p text as it is, although Qt does not show an
    ampersand but underlines the next letter. */
inline QString actionText(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace Panorel::Kit::Detail
