// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/PanorelKitExport.h>

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Panorel::Kit {

/**
 * The window states in an INI-like settings file, of QSettings or of a KDE program.
 *
 * A state is a value that is `@ByteArray(...)`, base64 or hexadecimal text, in a comma list and in
 * quotes too, and whose bytes begin with Qt's marker 00 00 00 FF. Everything else of the file is
 * skipped. QSettings itself is not used, because it reads no bytes in memory, knows no nested
 * groups of KDE, and builds any other object that a hostile file describes.
 *
 * A plain value. It needs no application object; time and memory grow as the size of the file.
 */
class PANORELKIT_EXPORT SettingsStates
{
public:
    /** One state. */
    struct Entry
    {
        /**
         * "SECTION/KEY" as in the file, so "General/state" for a key in [General]; "A/B/KEY" in a
         * nested group [A][B], and KEY before the first section. The escapes of QSettings are
         * resolved, and its separator in keys is "/". Where a list has several states, or a key
         * occurs again, "/2", "/3" and so on follow.
         */
        QString key;
        /** The bytes of QMainWindow::saveState(). */
        QByteArray state;
    };

    /** Without entries. */
    SettingsStates() = default;
    /** Reads @p bytes of a file. Bytes that are no settings file have no entries. */
    explicit SettingsStates(const QByteArray& bytes);

    /** The states in the order of the file; each key once. */
    const QVector<Entry>& entries() const { return m_entries; }
    /** The state of @p key; null if there is none. */
    QByteArray state(const QString& key) const;

private:
    QVector<Entry> m_entries;
};

} // namespace Panorel::Kit
