// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace Panorel::Tests {

namespace {

Message readMessage(QXmlStreamReader& xml, const QString& context)
{
    Message message;
    message.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.state = xml.attributes().value(QLatin1String("type")).toString();
            message.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

void readContext(QXmlStreamReader& xml, QVector<Message>& messages)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            messages.append(readMessage(xml, context));
        else
            xml.skipCurrentElement();
    }
}

} // namespace

QString Message::key() const
{
    return context + QLatin1Char('/') + source;
}

Catalogue Catalogue::read(const QString& file)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return Catalogue();
    Catalogue catalogue;
    QXmlStreamReader xml(&device);
    if (xml.readNextStartElement() && xml.name() == QLatin1String("TS")) {
        catalogue.m_language = xml.attributes().value(QLatin1String("language")).toString();
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("context"))
                readContext(xml, catalogue.m_messages);
            else
                xml.skipCurrentElement();
        }
    }
    return xml.hasError() ? Catalogue() : catalogue;
}

QString Catalogue::translation(const QString& context, const QString& source) const
{
    for (const Message& message : m_messages) {
        if (message.context == context && message.source == source)
            return message.translation;
    }
    return QString();
}

QStringList catalogueLanguages()
{
    const QDir folder(QStringLiteral(CATALOGUE_DIR), QStringLiteral("panorel_*.ts"));
    QStringList languages;
    const QStringList files = folder.entryList(QDir::Files, QDir::Name);
    for (const QString& file : files)
        languages.append(file.mid(8).chopped(3));
    return languages;
}

QString catalogueFile(const QString& language)
{
    return QStringLiteral(CATALOGUE_DIR "/panorel_%1.ts").arg(language);
}

QString compiledCatalogueFile(const QString& language)
{
    return QStringLiteral(COMPILED_CATALOGUE_DIR "/panorel_%1.qm").arg(language);
}

} // namespace Panorel::Tests
