// SPDX-License-Identifier: MIT
#include "DocumentJudge.h"

#include <QTcpServer>
#include <QTemporaryDir>
#include <QTimer>

using namespace Panorel::Tests;

namespace {

const char foreignSchema[] = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
    <xs:element name="Foreign"/>
</xs:schema>)";

// For the document's namespace and for another one.
const char foreignSchemaOfNamespace[] = R"(<xs:schema targetNamespace="urn:x"
    xmlns:xs="http://www.w3.org/2001/XMLSchema">
    <xs:element name="Foreign"/>
</xs:schema>)";

QTestData& row(const QByteArray& name)
{
    return QTest::newRow(name.constData());
}

QByteArray withHint(const QByteArray& data, const QByteArray& hint)
{
    const int endOfName = data.indexOf(' ');
    return data.left(endOfName) +
           " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:" + hint +
           data.mid(endOfName);
}

} // namespace

/** What a document refers to is neither opened nor fetched, and the answer comes at once. */
class DocumentAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void hintIsNotFollowed_data();
    void hintIsNotFollowed();
    void hintHidesNoFault_data();
    void hintHidesNoFault();
    void foreignRootIsRefusedWithItsSchemaAtHand_data();
    void foreignRootIsRefusedWithItsSchemaAtHand();
    void externalEntity_data();
    void externalEntity();
    void nothingElseRunsMeanwhile();

private:
    QByteArrayList places() const;
    void write(const QString& name, const char* content) const;

    QTcpServer m_server;
    QTemporaryDir m_folder;
};

void DocumentAccessTest::initTestCase()
{
    QVERIFY(m_server.listen(QHostAddress::LocalHost, 0));
    QVERIFY(m_folder.isValid());
    QVERIFY(QDir::setCurrent(m_folder.path()));
    write(QStringLiteral("foreign.xsd"), foreignSchema);
    write(QStringLiteral("foreign-x.xsd"), foreignSchemaOfNamespace);
    write(QStringLiteral("entity.txt"), "outside");
}

// A connection is seen at the latest in the second round of the event loop.
void DocumentAccessTest::cleanup()
{
    for (int round = 0; round < 10; ++round)
        QCoreApplication::processEvents();
    QVERIFY(!m_server.hasPendingConnections());
    QVERIFY(!m_server.waitForNewConnection(0));
}

void DocumentAccessTest::write(const QString& name, const char* content) const
{
    QFile file(m_folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(qstrlen(content)));
}

// Where something could be fetched from, without the file's name.
QByteArrayList DocumentAccessTest::places() const
{
    return {"http://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + '/',
            "https://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + '/',
            "ftp://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + '/',
            "//127.0.0.1:" + QByteArray::number(m_server.serverPort()) + '/',
            "file://" + m_folder.path().toUtf8() + '/',
            m_folder.path().toUtf8() + '/',
            "qrc:/",
            ":/",
            "data:text/xml,",
            ""};
}

void DocumentAccessTest::hintIsNotFollowed_data()
{
    QTest::addColumn<QByteArray>("hint");
    for (const QByteArray& place : places()) {
        row("no namespace at " + place) << "noNamespaceSchemaLocation=\"" + place + "foreign.xsd\"";
        row("a namespace at " + place) << "schemaLocation=\"urn:x " + place + "foreign-x.xsd\"";
    }
    row("its own schema") << QByteArray("noNamespaceSchemaLocation=\"qrc:/ViewSettingsXsdSchema\"");
}

void DocumentAccessTest::hintIsNotFollowed()
{
    QFETCH(QByteArray, hint);
    DocumentJudge().expectAccepted(withHint(document(group("A", view("v"))), hint));
}

void DocumentAccessTest::hintHidesNoFault_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray good = document(group("A", view("v", state("w", "aa"))));
    row("text after the root") << good + "text";
    row("second root") << good + good;
    row("no end tag") << good.left(good.lastIndexOf('<'));
    row("odd digits") << QByteArray(good).replace("aa", "a");
    row("root in a namespace") << QByteArray(good).replace("<ViewData",
                                                           "<ViewData xmlns=\"urn:x\"");
    row("further attribute") << QByteArray(good).replace("<Groups>", "<Groups Name=\"A\">");
    row("text between elements") << QByteArray(good).replace("<Groups>", "text<Groups>");
}

void DocumentAccessTest::hintHidesNoFault()
{
    QFETCH(QByteArray, data);
    DocumentJudge().expectRefused(withHint(data, "schemaLocation=\"urn:x ftp://127.0.0.1/\""));
}

void DocumentAccessTest::foreignRootIsRefusedWithItsSchemaAtHand_data()
{
    QTest::addColumn<QByteArray>("data");
    for (const QByteArray& place : places()) {
        row("no namespace at " + place)
            << withHint("<Foreign />", "noNamespaceSchemaLocation=\"" + place + "foreign.xsd\"");
        row("a namespace at " + place) << withHint(
            "<Foreign xmlns=\"urn:x\"/>", "schemaLocation=\"urn:x " + place + "foreign-x.xsd\"");
    }
}

void DocumentAccessTest::foreignRootIsRefusedWithItsSchemaAtHand()
{
    QFETCH(QByteArray, data);
    DocumentJudge().expectRefused(data);
}

void DocumentAccessTest::externalEntity_data()
{
    QTest::addColumn<QByteArray>("place");
    for (const QByteArray& place : places())
        row("at " + place) << place;
}

// An entity from outside adds nothing, and neither does an outside document type.
void DocumentAccessTest::externalEntity()
{
    QFETCH(QByteArray, place);
    const QByteArray entity = "\"" + place + "entity.txt\"";
    const QByteArray data = document(group("A", view("v", userData("in&e;side"))));
    const QByteArray inside = "<!ENTITY e SYSTEM " + entity + ">";
    const QByteArray outside = "SYSTEM " + entity;
    for (const QByteArray& type :
         QByteArrayList{" [" + inside + "]", outside + " [" + inside + "]"}) {
        Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
        QVERIFY(manager.fromXml("<!DOCTYPE ViewData " + type + ">" + data, /*merge=*/false));
        QVERIFY(manager.toXml(false).contains("<UserData>inside</UserData>"));
    }
    DocumentJudge().expectAccepted("<!DOCTYPE ViewData " + outside + ">" + document({}));
    DocumentJudge().expectAccepted("<!DOCTYPE ViewData [<!ENTITY % p SYSTEM " + entity + "> %p;]>" +
                                   document({}));
}

void DocumentAccessTest::nothingElseRunsMeanwhile()
{
    const QByteArray hint = "noNamespaceSchemaLocation=\"" + places().first() + "foreign.xsd\"";
    DocumentJudge judge;
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    QMetaObject::invokeMethod(
        this, [&] { ran = true; }, Qt::QueuedConnection);
    QVERIFY(judge.manager.fromXml(withHint(document({}), hint), /*merge=*/false));
    QVERIFY(!judge.manager.fromXml(withHint("<Foreign />", hint), /*merge=*/false));
    QVERIFY(!ran);
    QCoreApplication::processEvents();
    QVERIFY(ran);
}

QTEST_MAIN(DocumentAccessTest)
#include "DocumentAccessTest.moc"
