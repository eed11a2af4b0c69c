// SPDX-License-Identifier: MIT
#include "DocumentEncoding.h"

#include <QRegularExpression>
#include <QTextCodec>
#include <QtEndian>

#include <algorithm>
#include <memory>

namespace Panorel::Detail {

namespace {

enum class Kind { Unknown, Ascii, Utf16, Codec };

struct Encoding
{
    Kind kind = Kind::Unknown;
    QTextCodec* codec = nullptr;
};

// Longer than any XML declaration that a program writes.
constexpr int headSize = 256;

const char utf8Mark[] = "\xEF\xBB\xBF";

bool hasUtf16Mark(const QByteArray& document)
{
    return document.startsWith("\xFE\xFF") ||
           (document.startsWith("\xFF\xFE") && document.mid(2, 2) != QByteArray(2, '\0'));
}

QString fromUtf16(const QByteArray& document)
{
    const int size = document.size() / 2 - 1;
    QString text(size, Qt::Uninitialized);
    const char* units = document.constData() + 2;
    if (document.startsWith("\xFE\xFF"))
        qFromBigEndian<ushort>(units, size, text.data());
    else
        qFromLittleEndian<ushort>(units, size, text.data());
    return text;
}

// The encoding that the XML declaration at the start of @p head names: null without declaration,
// empty if it names none. The reader goes by the last of several, and by where each was found; then
// @p isCertain becomes false.
QByteArray declaredEncoding(const QString& head, bool& isCertain)
{
    if (!head.startsWith(QLatin1String("<?xml")))
        return QByteArray();
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml\\s+version\\s*=\\s*[\"']1\\.0[\"']"
                       "(?:\\s+encoding\\s*=\\s*(?:\"([A-Za-z0-9._-]+)\"|'([A-Za-z0-9._-]+)'))?"
                       "(?:\\s+standalone\\s*=\\s*(?:\"(?:yes|no)\"|'(?:yes|no)'))?\\s*\\?>"));
    const QRegularExpressionMatch match = declaration.match(head);
    isCertain = match.hasMatch();
    const QString name = match.captured(1) + match.captured(2);
    return name.isEmpty() ? QByteArray("") : name.toLatin1();
}

// Bytes below 128 mean in them what they mean in ASCII, wherever they are.
bool isLikeAscii(const QByteArray& encoding)
{
    static const QRegularExpression names(
        QStringLiteral("^(?:utf-8|us-ascii|iso-8859-[0-9]+|windows-125[0-9])$"),
        QRegularExpression::CaseInsensitiveOption);
    return names.match(QString::fromLatin1(encoding)).hasMatch();
}

Encoding encodingOfUtf16(const QByteArray& document)
{
    bool isCertain = true;
    const QByteArray name = declaredEncoding(fromUtf16(document.left(2 * headSize)), isCertain);
    const bool fits = name.isEmpty() || name.compare("UTF-16", Qt::CaseInsensitive) == 0;
    return {isCertain && fits ? Kind::Utf16 : Kind::Unknown};
}

Encoding encodingOf(const QByteArray& document)
{
    if (hasUtf16Mark(document))
        return encodingOfUtf16(document);
    const bool hasMark = document.startsWith(utf8Mark);
    const QByteArray head = document.mid(hasMark ? 3 : 0, headSize);
    bool isCertain = true;
    const QByteArray name = declaredEncoding(QString::fromLatin1(head), isCertain);
    if (!isCertain)
        return {};
    if (name.isEmpty() ? head.trimmed().startsWith('<') && !head.contains('\0') : isLikeAscii(name))
        return {Kind::Ascii};
    if (name.isEmpty() || hasMark)
        return {};
    return {Kind::Codec, QTextCodec::codecForName(name)};
}

} // namespace

QByteArray DocumentEncoding::textOf(const QByteArray& document)
{
    const Encoding encoding = encodingOf(document);
    switch (encoding.kind) {
    case Kind::Ascii:
        return document;
    case Kind::Utf16:
        return fromUtf16(document).toUtf8();
    case Kind::Codec:
        break;
    case Kind::Unknown:
        return QByteArray();
    }
    if (!encoding.codec)
        return QByteArray();
    // The reader decodes the declaration twice; only if both give the same does the text go on
    // where the declaration ends.
    const std::unique_ptr<QTextDecoder> decoder(encoding.codec->makeDecoder());
    const QByteArray text = decoder->toUnicode(document).toUtf8();
    const int declaration = document.indexOf("?>") + 2;
    return text.startsWith(document.left(declaration)) ? text : QByteArray();
}

} // namespace Panorel::Detail
