// SPDX-License-Identifier: MIT
#include "Tour.h"
#include "TourHands.h"
#include "UserLanguage.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDockWidget>
#include <QPalette>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x38, 0x3c), QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    return palette;
}

bool tour(const QString& file, const QDir& pictures)
{
    Workbench workbench(/*mergeOnApply=*/false);
    workbench.start(file);
    const bool done = Tour(workbench, pictures).run();
    workbench.manager().activateGroup(QStringLiteral("Debugging"));
    workbench.editor().dock(QStringLiteral("Console"))->close();
    TourHands::settle();
    workbench.editor().close();
    return done;
}

// The next run of the program.
bool comesBack(const QString& file)
{
    Workbench workbench(/*mergeOnApply=*/false);
    workbench.start(file);
    const bool group = workbench.manager().activeGroup() == QLatin1String("Debugging");
    const bool windows = workbench.editor().dock(QStringLiteral("Console"))->isHidden();
    workbench.manager().activateGroup(QStringLiteral("Editing"));
    const bool views = workbench.manager().views().contains(QStringLiteral("Wide"));
    QTextStream(stdout) << (group && windows && views
                                ? "The next run has the layouts, the group and the windows.\n"
                                : "FAILED: the next run is not as this one was left\n");
    return group && windows && views;
}

} // namespace

int main(int argc, char* argv[])
{
    // The same look everywhere, so that pictures can be compared.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication app(argc, argv);
    const UserLanguage language;
    QApplication::setFont(QFont(QStringLiteral("sans-serif"), 9));

    QCommandLineParser options;
    options.addHelpOption();
    options.addOption({QStringLiteral("dark"), QStringLiteral("Use a dark palette.")});
    options.addPositionalArgument(QStringLiteral("dir"), QStringLiteral("Where the pictures go."));
    options.process(app);
    if (options.isSet(QStringLiteral("dark")))
        QApplication::setPalette(darkPalette());

    const QDir pictures(options.positionalArguments().value(0, QStringLiteral("tour")));
    const QTemporaryDir layouts;
    if (!pictures.mkpath(QStringLiteral(".")) || !layouts.isValid()) {
        QTextStream(stderr) << "workbench-tour: cannot create " << pictures.path() << '\n';
        return 1;
    }
    // Whatever waits for a menu or dialog that never comes.
    QTimer::singleShot(250000, [] {
        QTextStream(stderr) << "workbench-tour: it does not end\n";
        std::exit(1);
    });
    const QString file = layouts.filePath(QStringLiteral("layouts.views"));
    return tour(file, pictures) && comesBack(file) ? 0 : 1;
}
