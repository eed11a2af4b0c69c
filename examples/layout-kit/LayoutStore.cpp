// SPDX-License-Identifier: MIT
#include "LayoutStore.h"

#include "LayoutDocument.h"

#include <panorel/Manager.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

using LayoutDocument::Problem;

LayoutStore::LayoutStore(const QString& fileName)
    : m_fileName(fileName)
{}

QString LayoutStore::defaultFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/layouts.views");
}

QString LayoutStore::load(Panorel::Manager& manager)
{
    QFile file(m_fileName);
    if (!file.exists())
        return QString();
    if (!file.open(QIODevice::ReadOnly))
        return putAside(file.errorString());
    const QByteArray document = file.readAll();
    file.close();
    // Asked first, for fromXml() takes a document of another version for an empty one.
    switch (LayoutDocument::problemWith(document)) {
    case Problem::NotLayouts:
        return putAside(tr("It is damaged."));
    case Problem::OtherVersion:
        return putAside(tr("It was written by another version of this program."));
    case Problem::None:
        break;
    }
    (void)manager.fromXml(document, /*merge=*/false); // It is valid, as was just asked.
    return QString();
}

QString LayoutStore::save(Panorel::Manager& manager)
{
    if (!m_mayWrite)
        return tr("The layouts are not saved, for the file %1 would be lost.").arg(readable());
    (void)QDir().mkpath(QFileInfo(m_fileName).absolutePath()); // If it fails, so does open().
    QSaveFile file(m_fileName);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(manager.toXml(/*markActive=*/true));
        if (file.commit())
            return QString();
    }
    return tr("The layouts could not be saved in %1: %2").arg(readable(), file.errorString());
}

// Later runs write a new file, and a person can still look into this one.
QString LayoutStore::putAside(const QString& reason)
{
    QString aside;
    for (int number = 1; aside.isEmpty() || QFile::exists(aside); ++number)
        aside = m_fileName + QStringLiteral(".unreadable-%1").arg(number);
    m_mayWrite = QFile::rename(m_fileName, aside);
    const QString problem =
        tr("The file with your layouts, %1, cannot be read. %2").arg(readable(), reason);
    if (!m_mayWrite)
        return problem + QLatin1Char(' ') +
               tr("It stays as it is, and layouts are not saved in this run.");
    return problem + QLatin1Char(' ') + tr("It is kept as %1.").arg(QFileInfo(aside).fileName());
}

QString LayoutStore::readable() const
{
    return QDir::toNativeSeparators(m_fileName);
}
