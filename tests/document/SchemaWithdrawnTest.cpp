// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "ErrorOutput.h"
#include "support/MessageWatch.h"
#include "support/SignalLog.h"

#include <panorel/Manager.h>

#include <QFile>
#include <QTemporaryFile>
#include <QtEndian>
#include <QtTest>

#include <dlfcn.h>

#include <cstring>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

// What the library registers with Qt when it is loaded, which is before main().
struct Collection
{
    int version;
    const unsigned char* tree;
    const unsigned char* names;
    const unsigned char* data;
};
Collection ours{};

bool callQt(const char* mangledName, const Collection& collection)
{
    using Operation =
        bool (*)(int, const unsigned char*, const unsigned char*, const unsigned char*);
    const auto operation = reinterpret_cast<Operation>(dlsym(RTLD_NEXT, mangledName));
    return operation &&
           operation(collection.version, collection.tree, collection.names, collection.data);
}

bool add(const Collection& collection)
{
    return callQt("_Z21qRegisterResourceDataiPKhS0_S0_", collection);
}

bool withdraw(const Collection& collection)
{
    return callQt("_Z23qUnregisterResourceDataiPKhS0_S0_", collection);
}

} // namespace

// The linker takes this one instead of Qt's.
Q_DECL_EXPORT bool qRegisterResourceData(int version, const unsigned char* tree,
                                         const unsigned char* names, const unsigned char* data)
{
    const Collection collection{version, tree, names, data};
    Dl_info info;
    if (dladdr(tree, &info) && std::strstr(info.dli_fname, "libpanorel.so"))
        ours = collection;
    return add(collection);
}

namespace {

/**
 * Stands in for the schema as long as it lives: tree and names of the library's own collection,
 * which holds one file, with another content. That is its length in four bytes, then the content in
 * the form of qCompress().
 */
class OtherContent
{
public:
    explicit OtherContent(const QByteArray& content)
        : m_content(content)
    {
        const QByteArray compressed = qCompress(content);
        m_data.resize(4);
        qToBigEndian(compressed.size(), m_data.data());
        m_data += compressed;
        add(collection());
    }
    ~OtherContent() { withdraw(collection()); }
    OtherContent(const OtherContent&) = delete;
    OtherContent& operator=(const OtherContent&) = delete;

    bool isThere() const
    {
        QFile file(":/ViewSettingsXsdSchema"_s);
        return file.open(QIODevice::ReadOnly) && file.readAll() == m_content;
    }

private:
    Collection collection() const
    {
        return {ours.version, ours.tree, ours.names,
                reinterpret_cast<const unsigned char*>(m_data.constData())};
    }

    QByteArray m_content;
    QByteArray m_data;
};

} // namespace

/** What becomes of documents when the schema is not among the program's resources, or is none. */
class SchemaWithdrawnTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void missing();
    void missingIsSilent();
    void none_data();
    void none();
    void anotherRoot();

private:
    QByteArray m_document = document(group("A", view("from the document")));
    std::unique_ptr<Manager> m_manager;
};

void SchemaWithdrawnTest::initTestCase()
{
    QVERIFY(ours.tree);
    QVERIFY(QFile::exists(":/ViewSettingsXsdSchema"_s));
}

// The schema is there at first, and so is a document for each of the special views.
void SchemaWithdrawnTest::init()
{
    m_manager = std::make_unique<Manager>(names("A"), /*mergeOnApply=*/false);
    QVERIFY(m_manager->createView("kept"_s));
    QVERIFY(m_manager->setFactoryDefaultView(m_document));
    QVERIFY(m_manager->setProgramStartView(m_document));
    QVERIFY(withdraw(ours));
    QVERIFY(!QFile::exists(":/ViewSettingsXsdSchema"_s));
}

// As soon as it is there again, documents are taken again: nothing of it is kept.
void SchemaWithdrawnTest::cleanup()
{
    QVERIFY(add(ours));
    QVERIFY(m_manager->setProgramStartView(m_document));
    QVERIFY(m_manager->fromXml(m_document, /*merge=*/false));
    QCOMPARE(m_manager->views(), names("from the document"));
}

void SchemaWithdrawnTest::missing()
{
    const SignalLog log(*m_manager);
    QVERIFY(!m_manager->fromXml(m_document, /*merge=*/false));
    QVERIFY(!m_manager->fromXml(m_document, /*merge=*/true));
    QVERIFY(!m_manager->setFactoryDefaultView(m_document));
    QVERIFY(!m_manager->setProgramStartView(m_document));
    QVERIFY(!m_manager->activateFactoryDefaultView());
    QVERIFY(!m_manager->activateProgramStartView());
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(m_manager->views(), names("kept"));
    QVERIFY(m_manager->factoryDefaultViewSet());
    QVERIFY(m_manager->programStartViewSet());
}

void SchemaWithdrawnTest::missingIsSilent()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    MessageWatch watch;
    watch.start();
    {
        const ErrorOutput output(file);
        (void)m_manager->fromXml(m_document, /*merge=*/false);
        (void)m_manager->setFactoryDefaultView(m_document);
        (void)m_manager->setProgramStartView(m_document);
    }
    QCOMPARE(watch.finish(), QStringList());
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), QByteArray());
}

void SchemaWithdrawnTest::none_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a blank") << QByteArray(" ");
    QTest::newRow("no XML") << QByteArray("schema");
    QTest::newRow("no schema") << m_document;
    QTest::newRow("schema of an unknown type")
        << QByteArray("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                      "<xs:element name=\"ViewData\" type=\"unknown\"/></xs:schema>");
}

void SchemaWithdrawnTest::none()
{
    QFETCH(QByteArray, content);
    const OtherContent other(content);
    QVERIFY(other.isThere());
    QVERIFY(!m_manager->fromXml(m_document, /*merge=*/false));
    QVERIFY(!m_manager->setFactoryDefaultView(m_document));
    QVERIFY(!m_manager->setProgramStartView(m_document));
    QCOMPARE(m_manager->views(), names("kept"));
}

// Reading does not rely on the schema to know what it reads.
void SchemaWithdrawnTest::anotherRoot()
{
    const OtherContent other("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                             "<xs:element name=\"Other\" type=\"xs:string\"/></xs:schema>");
    QVERIFY(other.isThere());
    QVERIFY(!m_manager->fromXml(m_document, /*merge=*/true));
    QVERIFY(m_manager->fromXml("<Other/>", /*merge=*/true));
    QCOMPARE(m_manager->views(), names("kept"));
    QVERIFY(m_manager->fromXml("<Other/>", /*merge=*/false));
    QCOMPARE(m_manager->views(), QStringList());
}

QTEST_MAIN(SchemaWithdrawnTest)
#include "SchemaWithdrawnTest.moc"
