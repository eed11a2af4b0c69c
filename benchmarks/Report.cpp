// SPDX-License-Identifier: MIT
#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

void printHeader()
{
    std::printf("%-46s %11s %11s %7s %15s %6s\n", "figure", "panorel us", "bare us", "ratio",
                "quartiles", "goal");
}

void printResult(const Result& result)
{
    const QByteArray name = result.name.toUtf8();
    if (!result.sameWork) {
        std::printf("%-46s does other work than what it is measured against\n", name.constData());
        return;
    }
    std::printf("%-46s %11.2f %11.2f %7.3f %7.3f-%7.3f %6.2f %s\n", name.constData(),
                result.subject * 1e6, result.baseline * 1e6, result.ratio, result.lowerQuartile,
                result.upperQuartile, result.goal, result.ratio <= result.goal ? "" : "above");
    std::fflush(stdout);
}

QByteArray toJson(const QVector<Result>& results, int rounds)
{
    QJsonArray figures;
    for (const Result& result : results) {
        figures.append(QJsonObject{{QStringLiteral("name"), result.name},
                                   {QStringLiteral("goal"), result.goal},
                                   {QStringLiteral("subjectSeconds"), result.subject},
                                   {QStringLiteral("baselineSeconds"), result.baseline},
                                   {QStringLiteral("ratio"), result.ratio},
                                   {QStringLiteral("lowerQuartile"), result.lowerQuartile},
                                   {QStringLiteral("upperQuartile"), result.upperQuartile},
                                   {QStringLiteral("sameWork"), result.sameWork}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("rounds"), rounds},
                                     {QStringLiteral("qt"), QString::fromLatin1(qVersion())},
                                     {QStringLiteral("figures"), figures}})
        .toJson();
}
