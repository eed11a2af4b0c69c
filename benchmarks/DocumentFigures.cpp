// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>

#include <QFile>
#include <QXmlSchema>
#include <QXmlSchemaValidator>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

using Panorel::Manager;

struct Stage
{
    explicit Stage(int viewCount)
        : windows(2, 10)
        , manager({QStringLiteral("a")}, /*mergeOnApply=*/false)
    {
        manager.registerManagable(windows);
        states = windows.arrangement(0);
        for (int i = 0; i < viewCount; ++i)
            manager.createView(QStringLiteral("view %1").arg(i));
        document = manager.toXml(/*markActive=*/true);
    }

    int viewCount() const { return manager.views().size(); }

    Windows windows;
    Manager manager;
    QVector<QByteArray> states;
    QByteArray document;
};

void writeBareView(QXmlStreamWriter& writer, const QString& element, const QString& name,
                   const QVector<QByteArray>& states)
{
    writer.writeStartElement(element);
    writer.writeAttribute(QStringLiteral("Name"), name);
    for (int i = 0; i < states.size(); ++i) {
        writer.writeStartElement(QStringLiteral("State"));
        writer.writeAttribute(QStringLiteral("DescriptorId"), QStringLiteral("window%1").arg(i));
        writer.writeCharacters(QString::fromLatin1(states.at(i).toHex()));
        writer.writeEndElement();
    }
    writer.writeTextElement(QStringLiteral("UserData"), QString());
    writer.writeEndElement();
}

// The same document, every digit through the writer.
QByteArray writeBare(const Stage& stage, int viewCount)
{
    const QVector<QByteArray> live = stage.windows.save();
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("ViewData"));
    writer.writeAttribute(QStringLiteral("Version"), QStringLiteral("1.1.0"));
    writer.writeStartElement(QStringLiteral("Groups"));
    writer.writeStartElement(QStringLiteral("Group"));
    writer.writeAttribute(QStringLiteral("Name"), QStringLiteral("a"));
    writer.writeStartElement(QStringLiteral("Views"));
    for (int i = 0; i < viewCount; ++i) {
        writeBareView(writer, QStringLiteral("View"), QStringLiteral("view %1").arg(i),
                      stage.states);
    }
    writer.writeEndElement();
    writeBareView(writer, QStringLiteral("CurrentView"), QStringLiteral("__current__"), live);
    writer.writeEndDocument();
    return document;
}

Figure writing(const std::shared_ptr<Stage>& stage, double goal)
{
    const int viewCount = stage->viewCount();
    Figure figure;
    figure.name = QStringLiteral("toXml, %1 views").arg(viewCount);
    figure.goal = goal;
    figure.subject = [stage] { (void)stage->manager.toXml(/*markActive=*/true); };
    figure.baseline = [stage, viewCount] { (void)writeBare(*stage, viewCount); };
    figure.check = [stage, viewCount] {
        return stage->manager.toXml(/*markActive=*/true) == writeBare(*stage, viewCount);
    };
    return figure;
}

bool readBare(Stage& stage)
{
    QFile file(QStringLiteral(":/ViewSettingsXsdSchema"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QXmlSchema schema;
    schema.load(file.readAll(), QUrl());
    const bool valid = QXmlSchemaValidator(schema).validate(stage.document, QUrl());
    QXmlStreamReader reader(stage.document);
    while (!reader.atEnd())
        reader.readNext();
    stage.windows.restore(stage.states);
    return valid && !reader.hasError();
}

Figure reading(const std::shared_ptr<Stage>& stage, bool merge)
{
    const int viewCount = stage->viewCount();
    Figure figure;
    figure.name = (merge ? QStringLiteral("fromXml over the old, %1 views")
                         : QStringLiteral("fromXml anew, %1 views"))
                      .arg(viewCount);
    figure.goal = 1.04;
    figure.subject = [stage, merge] { (void)stage->manager.fromXml(stage->document, merge); };
    figure.baseline = [stage] { (void)readBare(*stage); };
    figure.check = [stage, merge, viewCount] {
        return stage->manager.fromXml(stage->document, merge) && readBare(*stage) &&
               stage->viewCount() == viewCount;
    };
    return figure;
}

} // namespace

QVector<Figure> documentFigures()
{
    struct Size
    {
        int views;
        double writingGoal;
    };
    QVector<Figure> figures;
    for (const Size size : {Size{1, 0.9}, Size{10, 0.6}, Size{100, 0.4}, Size{1000, 0.35}}) {
        const auto stage = std::make_shared<Stage>(size.views);
        figures.append(writing(stage, size.writingGoal));
        figures.append(reading(stage, /*merge=*/false));
        figures.append(reading(stage, /*merge=*/true));
    }
    return figures;
}
