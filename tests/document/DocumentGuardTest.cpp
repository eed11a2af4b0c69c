// SPDX-License-Identifier: MIT
#include "DocumentGuard.h"

#include <QAbstractMessageHandler>
#include <QSourceLocation>
#include <QTest>
#include <QUrl>
#include <QXmlSchema>

#include <stdexcept>

using namespace Panorel::Detail;

namespace {

const QByteArray schemaText = "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                              "<xs:element name=\"a\"/></xs:schema>";

// The one way to let something be thrown in the middle of a validation.
class Thrower : public QAbstractMessageHandler
{
protected:
    void handleMessage(QtMsgType type, const QString& description, const QUrl& identifier,
                       const QSourceLocation& sourceLocation) override
    {
        Q_UNUSED(type)
        Q_UNUSED(description)
        Q_UNUSED(identifier)
        Q_UNUSED(sourceLocation)
        throw std::runtime_error("in the validator");
    }
};

} // namespace

/** What the guard adds to its parts, which have tests of their own. */
class DocumentGuardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letsNothingOut();
};

void DocumentGuardTest::letsNothingOut()
{
    Thrower thrower;
    QXmlSchema schema;
    QVERIFY(schema.load(schemaText, QUrl()));
    schema.setMessageHandler(&thrower);
    QVERIFY(DocumentGuard::isValid("<a/>", schema));
    bool isValid = true;
    try {
        isValid = DocumentGuard::isValid("<b/>", schema);
    } catch (const std::runtime_error&) {
        QFAIL("thrown");
    }
    QVERIFY(!isValid);
}

QTEST_GUILESS_MAIN(DocumentGuardTest)
#include "DocumentGuardTest.moc"
