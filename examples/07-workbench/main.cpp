// SPDX-License-Identifier: MIT
#include "LayoutStore.h"
#include "Workbench.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication app(argc, argv);
    // Panorel's texts are translated already; this is for Qt's, such as those of the buttons.
    QTranslator qtTexts;
    if (qtTexts.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qtTexts);
    if (QLocale().textDirection() == Qt::RightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);

    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({{QStringLiteral("merge"),
                         QStringLiteral("Leave the tool bars as they are on a switch of layouts.")},
                        {QStringLiteral("layouts"), QStringLiteral("Keep the layouts in <file>."),
                         QStringLiteral("file"), LayoutStore::defaultFileName()}});
    options.process(app);

    Workbench workbench(options.value(QStringLiteral("layouts")),
                        options.isSet(QStringLiteral("merge")));
    workbench.start();
    return QApplication::exec();
}
