// SPDX-License-Identifier: MIT
#include <panorel/kit/LayoutFile.h>

#include "DocumentText.h"
#include "StateText.h"

#include <panorel/kit/SettingsStates.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileDevice>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace Panorel::Kit {

namespace {

constexpr qint64 pieceSize = qint64(1024) * 1024;

QString translated(const char* text)
{
    return QCoreApplication::translate("Panorel::Kit::LayoutFile", text);
}

QString tooLarge(qint64 limit)
{
    return translated(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutFile",
                                        "The file is larger than the limit of %1"))
        .arg(QLocale().formattedDataSize(limit));
}

// Whether the bytes begin as XML does, in any encoding that Qt's reader recognises by itself.
bool mayBeXml(const QByteArray& bytes)
{
    const QByteArray start = bytes.left(64).trimmed();
    return start.startsWith('<') || bytes.startsWith("\xEF\xBB\xBF") ||
           bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE") ||
           bytes.startsWith(QByteArray::fromRawData("\0<", 2));
}

bool isDocument(const QByteArray& bytes)
{
    return mayBeXml(bytes) && Detail::rootName(bytes) == QLatin1String("ViewData");
}

} // namespace

LayoutFile LayoutFile::read(const QString& name, qint64 limit)
{
    LayoutFile content;
    const QFileInfo info(name);
    // Qt warns of such names.
    const bool hasName = !name.isEmpty() && !name.contains(QChar(u'\0'));
    if (!hasName || (info.exists() && !info.isFile())) {
        content.m_error =
            translated(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutFile", "This is not a regular file"));
        return content;
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        content.m_error = file.errorString();
        return content;
    }
    return read(file, limit);
}

LayoutFile LayoutFile::read(QIODevice& device, qint64 limit)
{
    LayoutFile content;
    QByteArray bytes;
    const qint64 most = std::clamp<qint64>(limit, 0, largestLimit);
    QByteArray piece = device.read(std::min(pieceSize, most + 1));
    while (!piece.isEmpty() && bytes.size() <= most) {
        bytes += piece;
        piece = device.read(std::min(pieceSize, most + 1 - bytes.size()));
    }
    const auto* file = qobject_cast<const QFileDevice*>(&device);
    if (file && file->error() != QFileDevice::NoError)
        content.m_error = file->errorString();
    else if (bytes.size() > most)
        content.m_error = tooLarge(most);
    else
        content = fromBytes(bytes);
    return content;
}

LayoutFile LayoutFile::fromBytes(const QByteArray& bytes)
{
    LayoutFile content;
    content.m_bytes = bytes;
    content.m_state = Detail::beginsAsState(bytes) ? bytes : Detail::stateFromText(bytes);
    if (!content.m_state.isEmpty())
        content.m_kind = Kind::State;
    else if (isDocument(bytes))
        content.m_kind = Kind::Document;
    else if (!SettingsStates(bytes).entries().isEmpty())
        content.m_kind = Kind::Settings;
    else if (bytes.isEmpty())
        content.m_error =
            translated(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutFile", "The file is empty"));
    else
        content.m_error = translated(
            QT_TRANSLATE_NOOP("Panorel::Kit::LayoutFile", "There are no layouts in the file"));
    return content;
}

QString identifierOf(LayoutFile::Kind kind)
{
    switch (kind) {
    case LayoutFile::Kind::Document:
        return QStringLiteral("document");
    case LayoutFile::Kind::State:
        return QStringLiteral("state");
    case LayoutFile::Kind::Settings:
        return QStringLiteral("settings");
    case LayoutFile::Kind::Unrecognised:
        break;
    }
    return QString();
}

} // namespace Panorel::Kit
