// SPDX-License-Identifier: MIT
#include <panorel/QtState.h>

#include <QByteArray>
#include <QFile>
#include <QLocale>
#include <QObject>
#include <QResource>
#include <QtTest>

/** The schema as a program that is linked with the library finds it. */
class ModuleResourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheWholeSchema();
    void isTheFileInTheTree();
    void isStoredAsZlib();
    void belongsToNoLocale_data();
    void belongsToNoLocale();
};

namespace {

QString schemaPath()
{
    return QStringLiteral(":/ViewSettingsXsdSchema");
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void ModuleResourceTest::readsTheWholeSchema()
{
    const QByteArray schema = contentOf(schemaPath());
    QCOMPARE(schema.size(), 2725);
    QVERIFY(schema.startsWith("<?xml version=\"1.0\""));
    QVERIFY(schema.contains("</xs:schema>"));
    QCOMPARE(schema.count('\n'), schema.count("\r\n"));
    QCOMPARE(schema.count('\r'), schema.count("\r\n"));
}

void ModuleResourceTest::isTheFileInTheTree()
{
    const QByteArray file = contentOf(QFile::decodeName(SCHEMA_FILE));
    QVERIFY(!file.isEmpty());
    QCOMPARE(contentOf(schemaPath()), file);
}

void ModuleResourceTest::isStoredAsZlib()
{
    const QResource resource(schemaPath());
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::ZlibCompression);
    const QByteArray stored(reinterpret_cast<const char*>(resource.data()),
                            static_cast<int>(resource.size()));
    QVERIFY(stored.size() < 2725);
    // 2,725 is 0x0AA5; 0x78 begins a zlib stream with a window of 32 KiB.
    QCOMPARE(stored.left(5).toHex(), QByteArray("00000aa578"));
    QCOMPARE(qUncompress(stored), contentOf(schemaPath()));
}

void ModuleResourceTest::belongsToNoLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("C") << QLocale::c();
    QTest::newRow("German, Austria") << QLocale(QLocale::German, QLocale::Austria);
    QTest::newRow("Chinese, Taiwan") << QLocale(QLocale::Chinese, QLocale::Taiwan);
}

void ModuleResourceTest::belongsToNoLocale()
{
    QFETCH(const QLocale, locale);
    const QResource resource(schemaPath(), locale);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.uncompressedSize(), qint64(2725));
}

// Something of the library has to be used, or the linker may leave it out.
static_assert(sizeof(Panorel::QtState) > 0);

int main(int argc, char** argv)
{
    if (Panorel::QtState().read(QByteArray()))
        return 1;
    const QCoreApplication application(argc, argv);
    ModuleResourceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ModuleResourceTest.moc"
