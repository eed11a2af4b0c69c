// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Panorel::Detail {

/**
 * The text with a question mark for each half of a surrogate pair. After one, Qt's XML writer
 * leaves out all further text, and the document would be refused as a whole.
 */
inline QString writable(const QString& text)
{
    if (text.isValidUtf16())
        return text;
    QString copy = text;
    for (int i = 0; i < copy.size(); ++i) {
        const bool isPair =
            copy.at(i).isHighSurrogate() && i + 1 < copy.size() && copy.at(i + 1).isLowSurrogate();
        if (isPair)
            ++i;
        else if (copy.at(i).isSurrogate())
            copy[i] = QLatin1Char('?');
    }
    return copy;
}

} // namespace Panorel::Detail
