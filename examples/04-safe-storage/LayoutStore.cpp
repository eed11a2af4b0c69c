// SPDX-License-Identifier: MIT
#include "LayoutStore.h"

#include <panorel/Manager.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QXmlStreamReader>

namespace {

QString versionOf(const QByteArray& document)
{
    QXmlStreamReader reader(document);
    reader.readNextStartElement();
    return reader.attributes().value(QLatin1String("Version")).toString();
}

} // namespace

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
        return moveAway(file.errorString());
    const QByteArray document = file.readAll();
    file.close();
    const QString problem = problemWith(document);
    if (!problem.isNull())
        return moveAway(problem);
    (void)manager.fromXml(document, /*merge=*/false); // It is valid.
    return QString();
}

QString LayoutStore::problemWith(const QByteArray& document)
{
    Panorel::Manager validator({QString()}, /*mergeOnApply=*/false);
    // Validates it as fromXml() does, and only keeps it.
    if (!validator.setFactoryDefaultView(document))
        return tr("It is damaged.");
    if (versionOf(document) != versionOf(validator.toXml(/*markActive=*/false)))
        return tr("It was written by another version of this program.");
    return QString();
}

QString LayoutStore::save(Panorel::Manager& manager)
{
    if (!m_mayWrite)
        return tr("The layouts are not saved, because the file %1 would be lost.").arg(readable());
    (void)QDir().mkpath(QFileInfo(m_fileName).absolutePath()); // If it fails, so does open().
    QSaveFile file(m_fileName);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(manager.toXml(/*markActive=*/true));
        if (file.flush() && file.commit()) // Alone, commit() does not notice a full disk.
            return QString();
    }
    return tr("The layouts could not be saved in %1: %2").arg(readable(), file.errorString());
}

// Later runs write a new file, and the user can still look into this one.
QString LayoutStore::moveAway(const QString& reason)
{
    QString newName;
    for (int number = 1; newName.isEmpty() || QFile::exists(newName); ++number)
        newName = m_fileName + QStringLiteral(".unreadable-%1").arg(number);
    m_mayWrite = QFile::rename(m_fileName, newName);
    const QString problem =
        tr("The file with your layouts, %1, cannot be read. %2").arg(readable(), reason);
    if (!m_mayWrite)
        return problem + QLatin1Char(' ') +
               tr("It stays as it is, and layouts are not saved in this run.");
    return problem + QLatin1Char(' ') + tr("It is kept as %1.").arg(QFileInfo(newName).fileName());
}

QString LayoutStore::readable() const
{
    return QDir::toNativeSeparators(m_fileName);
}
