// SPDX-License-Identifier: MIT
#pragma once

#include "Command.h"
#include "Samples.h"

#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

namespace Panorel::Tests {

/** A test of the command, with a folder of its own for each test function. */
class ToolTest : public QObject
{
    Q_OBJECT

protected:
    /** Writes a file into the folder. */
    void write(const char* name, const QByteArray& bytes)
    {
        QFile file(m_folder->filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    /** What a file of the folder holds; null if there is none. */
    QByteArray read(const char* name)
    {
        QFile file(m_folder->filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool exists(const char* name) { return m_folder && QFile::exists(path(name)); }
    QString path(const char* name) { return m_folder->filePath(QString::fromLatin1(name)); }

    CommandResult panorel(const QString& arguments, const QByteArray& input = QByteArray())
    {
        return runPanorel(arguments.split(QLatin1Char(' ')), m_folder->path(), input);
    }

    CommandResult panorel(const char* arguments, const QByteArray& input = QByteArray())
    {
        return panorel(QString::fromUtf8(arguments), input);
    }

    QString folder() const { return m_folder->path(); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace Panorel::Tests
