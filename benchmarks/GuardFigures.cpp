// SPDX-License-Identifier: MIT
#include "Figures.h"

#include <panorel/Manager.h>

#include <QAbstractMessageHandler>
#include <QFile>
#include <QTextCodec>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

#include <memory>

namespace {

const QByteArray xsi = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";

class Silence : public QAbstractMessageHandler
{
protected:
    void handleMessage(QtMsgType type, const QString& description, const QUrl& identifier,
                       const QSourceLocation& sourceLocation) override
    {
        Q_UNUSED(type)
        Q_UNUSED(description)
        Q_UNUSED(identifier)
        Q_UNUSED(sourceLocation)
    }
};

bool validateBare(const QByteArray& document)
{
    QFile file(QStringLiteral(":/ViewSettingsXsdSchema"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    Silence silence;
    QXmlSchema schema;
    schema.load(file.readAll(), QUrl());
    schema.setMessageHandler(&silence);
    return QXmlSchemaValidator(schema).validate(document, QUrl());
}

QByteArray documentOf(const QByteArray& views, const QByteArray& attributes = {})
{
    return "<ViewData" + attributes + " Version=\"1.1.0\"><Groups><Group Name=\"a\"><Views>" +
           views + "</Views><CurrentView Name=\"c\"/></Group></Groups></ViewData>";
}

QByteArray utf16(const QByteArray& document)
{
    return QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(document));
}

// A document of which only the validation counts, which the figure must not change.
Figure validation(const char* name, const QByteArray& document)
{
    const auto manager = std::make_shared<Panorel::Manager>(QStringList{QStringLiteral("a")},
                                                            /*mergeOnApply=*/false);
    Figure figure;
    figure.name = QStringLiteral("validation, ") + QString::fromLatin1(name);
    figure.goal = 1.3;
    figure.subject = [manager, document] { (void)manager->setFactoryDefaultView(document); };
    figure.baseline = [document] { (void)validateBare(document); };
    figure.check = [manager, document] {
        return manager->setFactoryDefaultView(document) == validateBare(document);
    };
    return figure;
}

QVector<Figure> validFigures()
{
    const QByteArray states = QByteArray("<View Name=\"v\"><State DescriptorId=\"w\">" +
                                         QByteArray(1200, '7') + "</State><UserData/></View>")
                                  .repeated(400);
    const QByteArray tiny = QByteArray("<View Name=\"v\"/>").repeated(8000);
    const QByteArray text =
        "<View Name=\"v\"><UserData>" + QByteArray(1'000'000, 'u') + "</UserData></View>";
    const QByteArray hint = xsi + " xsi:noNamespaceSchemaLocation=\"views.xsd\"";
    const QByteArray entities = "<!DOCTYPE ViewData [<!ENTITY e \"text\">]>";
    const QByteArray markup = "<!DOCTYPE ViewData [<!ENTITY e \"<View Name='v'/>\">]>";
    return {validation("states", documentOf(states)),
            validation("small views", documentOf(tiny)),
            validation("long text", documentOf(text)),
            validation("states, namespaces", documentOf(states, xsi)),
            validation("small views, namespaces", documentOf(tiny, xsi)),
            validation("long text, namespaces", documentOf(text, xsi)),
            validation("long text, schema hint", documentOf(text, hint)),
            validation("long text, entities", entities + documentOf(text)),
            validation("states, UTF-16", utf16(documentOf(states))),
            validation("long text, UTF-16", utf16(documentOf(text))),
            validation("comments", documentOf(QByteArray("<!---->").repeated(50'000))),
            validation("states, entities with tags", markup + documentOf(states)),
            validation("small views, entities with tags", markup + documentOf(tiny)),
            validation("long text, entities with tags", markup + documentOf(text))};
}

QVector<Figure> invalidFigures()
{
    const QByteArray nested = QByteArray("<a xmlns:b=\"u\">").repeated(4000);
    QByteArray overfull = "<ViewData";
    for (int i = 0; i < 3000; ++i)
        overfull += " a" + QByteArray::number(i) + "=\"\"";
    overfull += "/>";
    return {validation("nested namespaces", nested),
            validation("nested namespaces, document type", "<!DOCTYPE a>" + nested),
            validation("nested namespaces, UTF-16", utf16(nested)),
            validation("many attributes", overfull),
            validation("many attributes, document type", "<!DOCTYPE a>" + overfull),
            validation("many attributes, UTF-16", utf16(overfull))};
}

} // namespace

QVector<Figure> guardFigures()
{
    return validFigures() + invalidFigures();
}
