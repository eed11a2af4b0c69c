// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace Panorel {
class Manager;
}

/**
 * Keeps the layouts of a Manager in a file between runs. The Manager itself stores nothing.
 *
 * No file is ever lost: a new one takes the place of the old one only when it is complete, and one
 * that cannot be read is kept under another name. Both operations return a message for the user, an
 * empty one if all went well.
 */
class LayoutStore
{
    Q_DECLARE_TR_FUNCTIONS(LayoutStore)

public:
    explicit LayoutStore(const QString& fileName);

    /** The usual place for it, in the user's folder for this application. */
    static QString defaultFileName();

    /**
     * Reads the file into the Manager and restores its windows. A missing file is no problem: it is
     * the first run. With a message, the Manager is as it was.
     */
    QString load(Panorel::Manager& manager);

    /** Writes the Manager's layouts, with what the windows show now. */
    QString save(Panorel::Manager& manager);

    /**
     * Why a Manager does not read a document, in words; null if it does. Manager::fromXml() returns
     * true for one of another version, and then removes all layouts.
     */
    static QString problemWith(const QByteArray& document);

private:
    QString moveAway(const QString& reason);
    QString readable() const;

    QString m_fileName;
    bool m_mayWrite = true;
};
