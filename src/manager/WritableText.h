// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Panorel::Detail {

/**
 * The text with a question mark for each half of a surrogate pair, which stands for nothing. Behind
 * one Qt's XML writer leaves out all further text, and the document would be refused as a whole.
 */
inline QString writable(const QString& text)
{
    return text.isValidUtf16() ? text : QString::fromUtf8(text.toUtf8());
}

} // namespace Panorel::Detail
