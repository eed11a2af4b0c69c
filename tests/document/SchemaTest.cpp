// SPDX-License-Identifier: MIT
#include <panorel/Manager.h>

#include <QFile>
#include <QXmlSchema>
#include <QtTest>

/** The schema that the library carries. */
class SchemaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void resourceIsTheFile();
    void linesAndIndents();
    void declarations();
    void compiles();

private:
    static QByteArray contentOf(const QString& name);

    QByteArray m_schema;
};

QByteArray SchemaTest::contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void SchemaTest::initTestCase()
{
    // Without a use of the library the linker may leave it out, and the resource with it.
    const Panorel::Manager manager({QStringLiteral("A")}, /*mergeOnApply=*/false);
    m_schema = contentOf(QStringLiteral(":/ViewSettingsXsdSchema"));
}

void SchemaTest::resourceIsTheFile()
{
    QCOMPARE(m_schema.size(), 2725);
    QCOMPARE(m_schema, contentOf(QStringLiteral(PANOREL_SCHEMA_FILE)));
}

void SchemaTest::linesAndIndents()
{
    QVERIFY(m_schema.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"));
    QVERIFY(m_schema.endsWith(">\r\n"));
    QCOMPARE(m_schema.count('\n'), m_schema.count("\r\n"));
    QCOMPARE(m_schema.count('\r'), m_schema.count("\r\n"));
    const QList<QByteArray> lines = m_schema.split('\n');
    for (const QByteArray& line : lines)
        QVERIFY2(!line.startsWith(' ') && !line.contains("\t "), line.constData());
}

void SchemaTest::declarations()
{
    const QByteArray flat = m_schema.simplified();
    for (const char* part :
         {"<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" "
          "elementFormDefault=\"qualified\" attributeFormDefault=\"unqualified\"> <!-- types -->",
          "<xs:simpleType name=\"name\"> <xs:restriction base=\"xs:string\"> "
          "<xs:minLength value=\"1\"/> <xs:maxLength value=\"32\"/> </xs:restriction> "
          "</xs:simpleType>",
          "<xs:extension base=\"xs:hexBinary\"> <xs:attribute name=\"DescriptorId\" "
          "type=\"xs:string\" use=\"required\"/> </xs:extension>",
          "<!-- elements --> <xs:element name=\"ViewData\">",
          "<!-- <xs:element name=\"Name\" type=\"name\"/> -->"})
        QCOMPARE(flat.count(part), 1);
    // The type is declared and used in the comment only.
    QCOMPARE(flat.count("type=\"name\""), 1);
    QVERIFY(!flat.contains("targetNamespace"));
}

void SchemaTest::compiles()
{
    QXmlSchema schema;
    QVERIFY(schema.load(m_schema, QUrl()));
    QVERIFY(schema.isValid());
}

QTEST_MAIN(SchemaTest)
#include "SchemaTest.moc"
