// SPDX-License-Identifier: MIT
#include "StateText.h"

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

// Enough for the marker in either form.
constexpr int startSize = 8;

bool isSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool isHexDigit(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

// The first characters that are no white space, as many as asked for.
QByteArray withoutSpace(const QByteArray& text, int most)
{
    QByteArray result;
    for (const char character : text) {
        if (result.size() == most)
            break;
        if (!isSpace(character))
            result.append(character);
    }
    return result;
}

QByteArray fromHex(const QByteArray& digits)
{
    const bool isHex =
        digits.size() % 2 == 0 && std::all_of(digits.cbegin(), digits.cend(), isHexDigit);
    return isHex ? QByteArray::fromHex(digits) : QByteArray();
}

QByteArray fromBase64(const QByteArray& digits)
{
    const bool isForAddresses = digits.contains('_') || digits.contains('-');
    const QByteArray::Base64Options options =
        QByteArray::AbortOnBase64DecodingErrors |
        (isForAddresses ? QByteArray::Base64UrlEncoding : QByteArray::Base64Encoding);
    return *QByteArray::fromBase64Encoding(digits, options);
}

} // namespace

bool beginsAsState(const QByteArray& bytes)
{
    return bytes.startsWith(QByteArray::fromRawData("\0\0\0\xFF", 4));
}

QByteArray stateFromText(const QByteArray& text)
{
    const QByteArray start = withoutSpace(text, startSize);
    const bool isHex = start.toLower() == "000000ff";
    if (!isHex && !start.startsWith("AAAA/") && !start.startsWith("AAAA_"))
        return QByteArray();
    const QByteArray digits = withoutSpace(text, text.size());
    const QByteArray state = isHex ? fromHex(digits) : fromBase64(digits);
    return beginsAsState(state) ? state : QByteArray();
}

} // namespace Panorel::Kit::Detail
