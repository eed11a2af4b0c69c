// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QLockFile>
#include <QString>

#include <functional>

namespace Panorel::Kit::Detail {

/**
 * One file that several programs may read and write, each of them whole or not at all. Beside it
 * are its lock, with the suffix ".lock", and what it was at the last starts, ".1" to ".3".
 */
class Storage
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::Layouts)

public:
    explicit Storage(const QString& fileName);

    /** The usual place, in the user's folder for this application. */
    static QString usualFileName();

    QString fileName() const { return m_fileName; }
    /** The file as the user knows it. */
    QString readableName() const;

    /** Nobody else writes while one exists. It waits for a moment at most, because a write that is
        not locked loses less than one that is never done. */
    class Lock
    {
    public:
        explicit Lock(const Storage& storage);

    private:
        QLockFile m_file;
    };

    /** What is in the file; null without a problem if there is none. */
    QByteArray read(QString* problem) const;
    /** Writes @p content in its place. @return why that failed, null if it did not. */
    QString write(const QByteArray& content);
    /** Keeps @p content, which is good, as ".1" and what was there as ".2" and so on. Does nothing
        if it is there already. */
    void keepCopy(const QByteArray& content) const;
    /** The newest copy that @p isGood accepts; null if there is none. */
    QByteArray newestCopy(const std::function<bool(const QByteArray&)>& isGood) const;
    /** Renames the file, so that it is not overwritten. @return its new name; null if it stays. */
    QString moveAway() const;

private:
    QString copyName(int number) const;

    QString m_fileName;
};

} // namespace Panorel::Kit::Detail
