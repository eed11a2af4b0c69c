// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/PanorelKitExport.h>

#include <QByteArray>
#include <QString>

class QIODevice;

namespace Panorel::Kit {

/**
 * The content of a file that may hold layouts, read within a limit, and what kind of content it is.
 *
 * A plain value, which needs no application object. What is in the bytes is read by LayoutDocument,
 * WindowState and SettingsStates.
 */
class PANORELKIT_EXPORT LayoutFile
{
public:
    /** What the content is, recognised by itself and not by a name. */
    enum class Kind {
        /** None of the following, or nothing was read. */
        Unrecognised,
        /** A view-settings document: XML with the root "ViewData". It may be damaged or refused. */
        Document,
        /** One window's state: raw bytes that begin 00 00 00 FF, or these as hexadecimal or base64
            text with any white space. */
        State,
        /** A settings file with at least one state, see SettingsStates. */
        Settings
    };

    /** The most bytes that are read unless said otherwise, 64 MiB. */
    static constexpr qint64 standardLimit = qint64(64) * 1024 * 1024;
    /** The most bytes that are ever read, 512 MiB. */
    static constexpr qint64 largestLimit = qint64(512) * 1024 * 1024;

    /** Without bytes, and without an error. */
    LayoutFile() = default;

    /**
     * Reads the file @p name. Only regular files are opened: a directory, device or named pipe is
     * an error, because it may block or never end.
     * @param limit in bytes, at most largestLimit. A larger file is an error, and no more of it
     * than the limit is kept in memory.
     */
    static LayoutFile read(const QString& name, qint64 limit = standardLimit);
    /** Reads @p device, which is open, to its end; the same for standard input. It waits for
        whoever writes. */
    static LayoutFile read(QIODevice& device, qint64 limit = standardLimit);
    /** The content @p bytes of a file. */
    static LayoutFile fromBytes(const QByteArray& bytes);

    /** The content; empty after an error. */
    QByteArray bytes() const { return m_bytes; }
    /** What the content is. */
    Kind kind() const { return m_kind; }
    /** Of a Kind::State the raw bytes of the state, decoded; else empty. */
    QByteArray state() const { return m_state; }
    /** Why nothing was read or recognised, one sentence in the user's language without the name of
        the file; null if there is no error. A file without bytes is an error too. */
    QString error() const { return m_error; }

private:
    QByteArray m_bytes;
    QByteArray m_state;
    QString m_error;
    Kind m_kind = Kind::Unrecognised;
};

/** The identifier of @p kind in scripts: "document", "state" or "settings"; null for an
    unrecognised one. */
PANORELKIT_EXPORT QString identifierOf(LayoutFile::Kind kind);

} // namespace Panorel::Kit
