// SPDX-License-Identifier: MIT
#include "Storage.h"

#include "../value/WholeFile.h"

#include <panorel/kit/LayoutFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Panorel::Kit::Detail {

namespace {

constexpr int copies = 3;
// In milliseconds.
constexpr int patience = 2000;
constexpr int oldLock = 500;

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Storage::Storage(const QString& fileName)
    : m_fileName(fileName.isEmpty() ? usualFileName() : QFileInfo(fileName).absoluteFilePath())
{}

QString Storage::usualFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/layouts.views");
}

QString Storage::readableName() const
{
    return QDir::toNativeSeparators(m_fileName);
}

Storage::Lock::Lock(const Storage& storage)
    : m_file(storage.m_fileName + QStringLiteral(".lock"))
{
    // A program that was killed at the wrong moment leaves a lock that does not say whose it is.
    // Age alone does not take a lock from a program that runs, which holds the open file as well.
    m_file.setStaleLockTime(oldLock);
    (void)m_file.tryLock(patience); // Without the folder's rights there is no lock at all.
}

QByteArray Storage::read(QString* problem) const
{
    if (!QFileInfo::exists(m_fileName))
        return QByteArray();
    const LayoutFile file = LayoutFile::read(m_fileName);
    *problem = file.error();
    return file.bytes();
}

QString Storage::write(const QByteArray& content)
{
    (void)QDir().mkpath(QFileInfo(m_fileName).absolutePath()); // If it fails, so does open().
    return writeWholeFile(m_fileName, content);
}

void Storage::keepCopy(const QByteArray& content) const
{
    const auto isThere = [](const QByteArray& copy) { return !copy.isEmpty(); };
    if (newestCopy(isThere) == content)
        return;
    const QString newest = copyName(1) + QStringLiteral(".new");
    if (!writeWholeFile(newest, content).isNull())
        return;
    (void)QFile::remove(copyName(copies));
    for (int number = copies; number > 1; --number)
        (void)QFile::rename(copyName(number - 1), copyName(number));
    (void)QFile::rename(newest, copyName(1));
}

QByteArray Storage::newestCopy(const std::function<bool(const QByteArray&)>& isGood) const
{
    for (int number = 1; number <= copies; ++number) {
        QByteArray content = contentOf(copyName(number));
        if (isGood(content))
            return content;
    }
    return QByteArray();
}

QString Storage::moveAway() const
{
    QString name;
    for (int number = 1; name.isEmpty() || QFileInfo::exists(name); ++number)
        name = m_fileName + QStringLiteral(".unreadable-%1").arg(number);
    return QFile::rename(m_fileName, name) ? name : QString();
}

QString Storage::copyName(int number) const
{
    return m_fileName + QStringLiteral(".%1").arg(number);
}

} // namespace Panorel::Kit::Detail
