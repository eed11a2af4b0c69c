// SPDX-License-Identifier: MIT
#include "UserLanguage.h"
#include "Workbench.h"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication app(argc, argv);
    const UserLanguage language;

    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({{QStringLiteral("merge"),
                         QStringLiteral("Leave the tool bars as they are on a switch of layouts.")},
                        {QStringLiteral("layouts"), QStringLiteral("Keep the layouts in <file>."),
                         QStringLiteral("file")}});
    options.process(app);

    Workbench workbench(options.isSet(QStringLiteral("merge")));
    workbench.start(options.value(QStringLiteral("layouts")));
    return QApplication::exec();
}
