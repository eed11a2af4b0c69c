// SPDX-License-Identifier: MIT
#include <QFileInfo>
#include <QObject>
#include <QProcess>
#include <QtTest>

/**
 * Runs programs in which somebody else has a class TranslationCenter. Whoever's operations
 * Panorel's calls are bound to, nothing is called on a foreign object, each class keeps its own
 * calls, and the program gets its application object. The catalogue beside the programs has "one"
 * for "Layouts".
 */
class NeighbourTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsItsOwnCalls_data();
    void keepsItsOwnCalls();
};

namespace {

QString libraryFile(const QString& name)
{
    if (name == QLatin1String("Panorel"))
        return QFile::decodeName(PANOREL_LIBRARY);
    if (name == QLatin1String("SameFile"))
        return QStringLiteral(PROGRAMS "/same/libTumoAppStartUp.so");
    return QStringLiteral(PROGRAMS "/lib%1.so").arg(name);
}

// Replaces the names of libraries after colons by their files.
QStringList arguments(const QString& steps)
{
    QStringList list = steps.split(QLatin1Char(' '));
    for (QString& step : list) {
        const int colon = step.indexOf(QLatin1Char(':'));
        if (colon > 0)
            step = step.left(colon + 1) + libraryFile(step.mid(colon + 1));
    }
    return list;
}

QString run(const QString& program, const QString& steps)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("de"));
    // A service that outlives its library is one that leaks, and several classes of one name are
    // meant.
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       QStringLiteral("detect_leaks=0:detect_odr_violation=0"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(PROGRAMS "/") + program, arguments(steps));
    if (!process.waitForFinished(60000))
        return QStringLiteral("does not end");
    const QString output = QString::fromUtf8(process.readAll());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return QLatin1String("fails after: ") + output;
    return output.trimmed().replace(QLatin1Char('\n'), QLatin1String(", "));
}

} // namespace

void NeighbourTest::keepsItsOwnCalls_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("output");
    const auto row = [](const char* name, const char* program, const char* steps,
                        const char* output) {
        QTest::newRow(name) << QString::fromLatin1(program) << QString::fromLatin1(steps)
                            << QString::fromLatin1(output);
    };

    row("no neighbour", "Linked", "app text", "one");
    // The class is found before the substitute's, and gets Panorel's calls.
    const char* const programs = "program registers Panorel, Layouts, program registers Own, "
                                 "program has Panorel+Own, program unregisters Own, "
                                 "program unregisters Panorel";
    row("class in the program", "LinkedWithClass", "app text own", programs);
    row("class exported by the program", "LinkedExportingClass", "app text own", programs);
    const char* const libraries =
        "Neighbour registers Panorel, Layouts, Neighbour unregisters Panorel";
    row("library before", "LinkedAfterNeighbour", "app text", libraries);
    row("library after", "LinkedBeforeNeighbour", "app text", libraries);
    // A class that is not there as a whole is left alone.
    const char* const halves = "Layouts, program registers Own, program has Own, "
                               "program unregisters Own";
    row("class with an inline operation", "LinkedWithInlineInstance", "app text own", halves);
    row("class with other operations", "LinkedWithOtherOperations", "app text own", halves);

    // Here the substitute's class is found first.
    const char* const own = "one, Neighbour registers Own, Neighbour has Own, "
                            "Neighbour unregisters Own";
    row("library after the substitute", "LinkedFarBeforeNeighbour",
        "global:Neighbour app text "
        "library:Neighbour",
        own);
    row("library loaded", "Linked", "local:Neighbour app text library:Neighbour", own);
    row("library loaded for all", "Linked", "global:Neighbour app text library:Neighbour", own);
    row("library loaded after the application", "Linked",
        "app text local:Neighbour library:Neighbour", own);
    row("class in the program that is not to be seen", "HostWithClass",
        "global:Panorel app text own",
        "one, program registers Own, program has Own, program unregisters Own");

    row("Panorel loaded", "Host", "local:Panorel app text", "one");
    row("Panorel loaded for all", "Host", "global:Panorel app text", "one");
    row("Panorel loaded after the application", "Host", "app local:Panorel text", "one");
    row("both loaded", "Host", "local:Panorel local:Neighbour app text library:Neighbour", own);
    row("both loaded, Panorel last", "Host",
        "local:Neighbour local:Panorel app text library:Neighbour", own);
    row("both loaded, Panorel for all", "Host",
        "global:Panorel local:Neighbour app text library:Neighbour", own);
    row("both loaded for all", "Host", "global:Panorel global:Neighbour app text library:Neighbour",
        own);
    row("neighbour loaded for all before", "Host",
        "global:Neighbour local:Panorel app text library:Neighbour unload:Panorel",
        "Neighbour registers Panorel, Layouts, Neighbour registers Own, "
        "Neighbour has Panorel+Own, Neighbour unregisters Own, "
        "Neighbour unregisters Panorel, unloaded");
    row("neighbour unloaded", "Host",
        "global:Panorel local:Neighbour library:Neighbour unload:Neighbour app text",
        "Neighbour registers Own, Neighbour has Own, Neighbour unregisters Own, unloaded, one");
    row("Panorel unloaded", "Host",
        "global:Panorel local:Neighbour unload:Panorel app text library:Neighbour",
        "unloaded, Layouts, Neighbour registers Own, Neighbour has Own, "
        "Neighbour unregisters Own");
    row("program with the class loads Panorel", "HostExportingClass",
        "local:Panorel app text own unload:Panorel",
        "program registers Panorel, Layouts, program registers Own, program has Panorel+Own, "
        "program unregisters Own, program unregisters Panorel, unloaded");

    row("object that the neighbour gets from another library", "Host",
        "global:Panorel local:Neighbour local:NeighbourCaller pass:Neighbour unload:Panorel app "
        "text",
        "unloaded, one");
    row("file of the same name", "Host",
        "local:SameFile local:Panorel app text library:SameFile unload:Panorel",
        "SameFile registers Panorel, Layouts, SameFile registers Own, SameFile has Panorel+Own, "
        "SameFile unregisters Own, SameFile unregisters Panorel, unloaded");

    row("plugin with the class", "Host",
        "local:NeighbourPlugin app text library:NeighbourPlugin unload:NeighbourPlugin",
        "NeighbourPlugin registers Panorel, Layouts, NeighbourPlugin registers Own, "
        "NeighbourPlugin has Panorel+Own, NeighbourPlugin unregisters Own, "
        "NeighbourPlugin unregisters Panorel, unloaded");
    row("plugin with the class after Panorel", "Linked",
        "local:NeighbourPlugin app text library:NeighbourPlugin",
        "one, NeighbourPlugin registers Own, NeighbourPlugin has Own, "
        "NeighbourPlugin unregisters Own");
    row("plugin with the class in its library", "Linked",
        "app text local:NeighbourUser library:NeighbourUser", "one, Neighbour registers Panorel");
    row("plugin that takes what there is", "Host",
        "global:Panorel local:NeighbourCaller app text library:NeighbourCaller unload:Panorel text",
        "one, unloaded, one");
}

void NeighbourTest::keepsItsOwnCalls()
{
    QFETCH(const QString, program);
    QFETCH(const QString, steps);
    QFETCH(const QString, output);
    QCOMPARE(run(program, steps), output);
}

QTEST_GUILESS_MAIN(NeighbourTest)
#include "NeighbourTest.moc"
