// SPDX-License-Identifier: MIT
#include "StateDigits.h"

#include "TagReader.h"

#include <QString>

namespace Panorel::Kit::Detail {

namespace {

// Whether it is in UTF-8. Other encodings may use the bytes of ASCII for something else. Those that
// are not declared have zero bytes in the first tag.
bool isUtf8(const QByteArray& document)
{
    const QByteArray start = document.left(document.indexOf('>')).toLower();
    return !start.contains('\0') && (!start.contains("encoding") || start.contains("utf-8"));
}

// The four bits of a hexadecimal digit, and whether it is one. Short integers without branches, so
// that the compiler can vectorise the loop.
ushort digit(ushort code, ushort& isOther)
{
    const ushort isNumber = static_cast<ushort>(code - u'0') < 10;
    const ushort isLetter = static_cast<ushort>((code | 0x20) - u'a') < 6;
    isOther = static_cast<ushort>(isOther | ((isNumber | isLetter) ^ 1));
    return static_cast<ushort>((code & 0xF) + 9 * isLetter);
}

// The bytes of pairs of digits; null for other text.
QByteArray decoded(const QStringRef& text)
{
    const int size = text.size() / 2;
    QByteArray bytes(size, Qt::Uninitialized);
    const ushort* code = reinterpret_cast<const ushort*>(text.data());
    ushort isOther = text.size() % 2 == 0 ? 0 : 1;
    char* target = bytes.data();
    for (qptrdiff i = 0; i < size; ++i)
        target[i] =
            static_cast<char>(digit(code[2 * i], isOther) << 4 | digit(code[2 * i + 1], isOther));
    return isOther == 0 ? bytes : QByteArray();
}

bool isState(const QStringRef& name)
{
    return name == QLatin1String("State") || name == QLatin1String("ToolBarState");
}

} // namespace

StateDigits::StateDigits(const QByteArray& document)
    : rest(document)
{
    if (!isUtf8(document))
        return;
    // One character for each byte, so that places in the text are places in the bytes.
    const QString text = QString::fromLatin1(document.constData(), document.size());
    QByteArray kept;
    int keptEnd = 0;
    int element = -1;
    int tagEnd = 0;
    TagReader tags(text);
    while (tags.next()) {
        if (tags.hasDocumentType())
            return;
        if (!tags.isEnd()) {
            ++element;
        } else if (isState(tags.name())) {
            const QByteArray state = decoded(text.midRef(tagEnd, tags.start() - tagEnd));
            if (!state.isNull()) {
                states.insert(element, state);
                kept.append(document.constData() + keptEnd, tagEnd - keptEnd);
                keptEnd = tags.start();
            }
        }
        tagEnd = tags.end();
    }
    rest = kept.append(document.constData() + keptEnd, document.size() - keptEnd);
}

} // namespace Panorel::Kit::Detail
