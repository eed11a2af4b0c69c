// SPDX-License-Identifier: MIT
#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

const char* mark(bool isWithinGoal)
{
    return isWithinGoal ? "pass" : "over";
}

} // namespace

void printHeader()
{
    std::printf("%-46s %14s %14s %7s %15s %6s\n", "figure", "panorel", "bare", "ratio", "quartiles",
                "goal");
}

void printResult(const Result& result)
{
    const QByteArray name = result.name.toUtf8();
    if (!result.sameWork) {
        std::printf("%-46s does other work than what it is measured against\n", name.constData());
        return;
    }
    const bool isTime = result.unit == QLatin1String("s");
    const double scale = isTime ? 1e6 : 1;
    std::printf("%-46s %11.*f %-2s %11.*f %-2s %7.3f %7.3f-%7.3f", name.constData(), isTime ? 2 : 0,
                result.subject * scale, isTime ? "us" : "B", isTime ? 2 : 0,
                result.baseline * scale, isTime ? "us" : "B", result.ratio, result.lowerQuartile,
                result.upperQuartile);
    if (result.goal > 0)
        std::printf(" %6.2f %s", result.goal, mark(result.isWithinGoal()));
    std::printf("\n");
    std::fflush(stdout);
}

void printGrowths(const QVector<Growth>& growths)
{
    if (growths.isEmpty())
        return;
    std::printf("\n%-46s %14s %14s %7s %15s %6s\n", "exponent of the growth", "panorel", "bare",
                "above", "", "goal");
    for (const Growth& growth : growths) {
        std::printf("%-46s %14.3f %14.3f %7.3f %15s %6.2f %s\n", growth.series.toUtf8().constData(),
                    growth.subject, growth.baseline, growth.subject - growth.baseline, "",
                    growth.goal, mark(growth.isWithinGoal()));
    }
}

QByteArray toJson(const QVector<Result>& results, const QVector<Growth>& growths, int rounds)
{
    QJsonArray figures;
    for (const Result& result : results) {
        figures.append(QJsonObject{{QStringLiteral("name"), result.name},
                                   {QStringLiteral("unit"), result.unit},
                                   {QStringLiteral("goal"), result.goal},
                                   {QStringLiteral("subject"), result.subject},
                                   {QStringLiteral("baseline"), result.baseline},
                                   {QStringLiteral("ratio"), result.ratio},
                                   {QStringLiteral("lowerQuartile"), result.lowerQuartile},
                                   {QStringLiteral("upperQuartile"), result.upperQuartile},
                                   {QStringLiteral("sameWork"), result.sameWork},
                                   {QStringLiteral("pass"), result.isWithinGoal()}});
    }
    QJsonArray exponents;
    for (const Growth& growth : growths) {
        exponents.append(QJsonObject{{QStringLiteral("series"), growth.series},
                                     {QStringLiteral("goal"), growth.goal},
                                     {QStringLiteral("subject"), growth.subject},
                                     {QStringLiteral("baseline"), growth.baseline},
                                     {QStringLiteral("pass"), growth.isWithinGoal()}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("rounds"), rounds},
                                     {QStringLiteral("qt"), QString::fromLatin1(qVersion())},
                                     {QStringLiteral("figures"), figures},
                                     {QStringLiteral("exponents"), exponents}})
        .toJson();
}
