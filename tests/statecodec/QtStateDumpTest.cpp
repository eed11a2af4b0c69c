// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

namespace Panorel::Tests {

/** Deliberate: dump() creates or empties the file, writes nothing and reports nothing. */
class QtStateDumpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void createsAnEmptyFile();
    void emptiesAnExistingFile();
    void emptyValueDoesTheSame();
    void valueStaysAsItIs();
    void unusablePath_data();
    void unusablePath();
    void readOnlyFileIsLeftAlone();
    void fileIsClosedAfterwards();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    QtState m_state;
    std::unique_ptr<QTemporaryDir> m_folder;
    MessageWatch m_watch;
};

namespace {

void writeFile(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

} // namespace

void QtStateDumpTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(m_state.read(exampleBlob()));
    m_watch.start();
}

void QtStateDumpTest::cleanup()
{
    QCOMPARE(m_watch.finish(), QStringList());
    m_folder.reset();
}

void QtStateDumpTest::createsAnEmptyFile()
{
    m_state.dump(path("new"));
    QVERIFY(QFile::exists(path("new")));
    QCOMPARE(QFileInfo(path("new")).size(), qint64(0));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("new"_s));
}

void QtStateDumpTest::emptiesAnExistingFile()
{
    writeFile(path("old"), "content");
    m_state.dump(path("old"));
    QVERIFY(QFile::exists(path("old")));
    QCOMPARE(QFileInfo(path("old")).size(), qint64(0));
}

void QtStateDumpTest::emptyValueDoesTheSame()
{
    writeFile(path("old"), "content");
    QtState().dump(path("old"));
    QtState().dump(path("new"));
    QCOMPARE(QFileInfo(path("old")).size(), qint64(0));
    QVERIFY(QFile::exists(path("new")));
}

void QtStateDumpTest::valueStaysAsItIs()
{
    m_state.dump(path("new"));
    QCOMPARE(m_state.write(), exampleBlob());
}

void QtStateDumpTest::unusablePath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addRow("null") << QString();
    QTest::addRow("empty") << QStringLiteral("");
    QTest::addRow("folder missing") << QStringLiteral("%1/missing/file");
    QTest::addRow("a folder") << QStringLiteral("%1");
    QTest::addRow("below a file") << QStringLiteral("%1/file/below");
    QTest::addRow("name too long") << QString(QStringLiteral("%1/") + QString(5000, u'x'));
}

void QtStateDumpTest::unusablePath()
{
    QFETCH(QString, name);
    writeFile(path("file"), "content");
    m_state.dump(name.replace(QStringLiteral("%1"), m_folder->path()));
    QCOMPARE(QFileInfo(path("file")).size(), qint64(7));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList("file"_s));
}

void QtStateDumpTest::readOnlyFileIsLeftAlone()
{
    writeFile(path("old"), "content");
    QVERIFY(QFile::setPermissions(path("old"), QFileDevice::ReadOwner));
    // A privileged user may write all the same.
    const bool writable = QFile(path("old")).open(QIODevice::ReadWrite);
    m_state.dump(path("old"));
    QCOMPARE(QFileInfo(path("old")).size(), qint64(writable ? 0 : 7));
}

void QtStateDumpTest::fileIsClosedAfterwards()
{
    m_state.dump(path("new"));
    writeFile(path("new"), "later");
    QCOMPARE(QFileInfo(path("new")).size(), qint64(5));
    QVERIFY(QFile::remove(path("new")));
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateDumpTest)
#include "QtStateDumpTest.moc"
