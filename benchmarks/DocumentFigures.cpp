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
    Stage(int viewCount, int windowCount, int dockCount)
        : windows(windowCount, dockCount)
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
        writer.writeAttribute(QStringLiteral("DescriptorId"),
                              QStringLiteral("window%1").arg(i, 2, 10, QLatin1Char('0')));
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

Figure writing(const std::shared_ptr<Stage>& stage)
{
    const int viewCount = stage->viewCount();
    Figure figure;
    figure.name = QStringLiteral("toXml");
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
    figure.name = merge ? QStringLiteral("fromXml, merging") : QStringLiteral("fromXml, replacing");
    figure.goal = 1.04;
    figure.subject = [stage, merge] { (void)stage->manager.fromXml(stage->document, merge); };
    figure.baseline = [stage] { (void)readBare(*stage); };
    figure.check = [stage, merge, viewCount] {
        return stage->manager.fromXml(stage->document, merge) && readBare(*stage) &&
               stage->viewCount() == viewCount;
    };
    return figure;
}

// A document, and the series of documents that it is a step of.
struct Setup
{
    int views;
    int windows;
    int docks;
    double writingGoal;
    QVector<Step> steps;
};

QVector<Setup> setups()
{
    const QString views = QStringLiteral("views");
    const QString windows = QStringLiteral("windows");
    const QString docks = QStringLiteral("docks");
    // Goals for writing are set for the usual two windows of ten docks only.
    return {{1, 2, 10, 0.9, {{views, 1}}},
            {10, 2, 10, 0.6, {{views, 10}}},
            {100, 2, 10, 0.4, {{views, 100}, {windows, 2}, {docks, 10}}},
            {1000, 2, 10, 0.35, {{views, 1000}}},
            {100, 8, 10, 0, {{windows, 8}}},
            {100, 20, 10, 0, {{windows, 20}}},
            {100, 2, 40, 0, {{docks, 40}}},
            {100, 2, 80, 0, {{docks, 80}}}};
}

void append(QVector<Figure>& figures, Figure figure, const Setup& setup)
{
    for (const Step& step : setup.steps)
        figure.steps.append({figure.name + QStringLiteral(", ") + step.series, step.size});
    figure.name += QStringLiteral(", %1 views").arg(setup.views);
    if (setup.writingGoal == 0)
        figure.name += QStringLiteral(" of %1 x %2 docks").arg(setup.windows).arg(setup.docks);
    figures.append(figure);
}

} // namespace

QVector<Figure> documentFigures()
{
    QVector<Figure> figures;
    const QVector<Setup> all = setups();
    for (const Setup& setup : all) {
        const auto stage = std::make_shared<Stage>(setup.views, setup.windows, setup.docks);
        Figure toXml = writing(stage);
        toXml.goal = setup.writingGoal;
        append(figures, toXml, setup);
        append(figures, reading(stage, /*merge=*/false), setup);
        append(figures, reading(stage, /*merge=*/true), setup);
    }
    return figures;
}
