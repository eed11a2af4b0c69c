// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Report.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>

#include <algorithm>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral(
        "Process CPU time and memory of the library as a ratio to the bare work beside it."));
    options.addHelpOption();
    options.addOptions(
        {{QStringLiteral("rounds"), QStringLiteral("Rounds for each figure."), QStringLiteral("n"),
          QStringLiteral("15")},
         {QStringLiteral("only"), QStringLiteral("Only figures whose names contain <text>."),
          QStringLiteral("text")},
         {QStringLiteral("json"), QStringLiteral("Also write the results to <file>."),
          QStringLiteral("file")}});
    options.process(app);
    const int rounds = std::max(1, options.value(QStringLiteral("rounds")).toInt());
    const QString only = options.value(QStringLiteral("only"));

    QVector<Result> results;
    printHeader();
    for (const auto& figures :
         {codecFigures, managerFigures, documentFigures, guardFigures, menuFigures, stateFigures,
          pictureFigures, layoutDocumentFigures, dialogFigures, kitFigures}) {
        const QVector<Figure> group = figures();
        for (const Figure& figure : group) {
            if (!figure.name.contains(only))
                continue;
            results.append(measure(figure, rounds));
            printResult(results.last());
        }
    }
    for (const int docks : {10, 20, 80}) {
        const Result memory = memoryOfViews(docks);
        if (!memory.name.contains(only))
            continue;
        results.append(memory);
        printResult(memory);
    }
    if (QStringLiteral("memory of 1,000 steps").contains(only)) {
        results.append(memoryOfHistory());
        printResult(results.last());
    }
    const QVector<Growth> exponents = growths(results);
    printGrowths(exponents);

    if (options.isSet(QStringLiteral("json"))) {
        QFile file(options.value(QStringLiteral("json")));
        if (!file.open(QIODevice::WriteOnly) || file.write(toJson(results, exponents, rounds)) < 0)
            return 2;
    }
    return std::all_of(results.cbegin(), results.cend(),
                       [](const Result& result) { return result.sameWork; })
               ? 0
               : 1;
}
