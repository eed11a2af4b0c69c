// SPDX-License-Identifier: MIT
// The program after the change; the one before is in MigrationTest.cpp. Called with a folder, which
// it keeps its settings and layouts in.
#include "Program.h"

#include "../01-first-layouts/SaveAtEnd.h"

#include <QApplication>
#include <QDir>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const QDir folder(QApplication::arguments().value(1));
    Program program(folder.filePath(QStringLiteral("settings.ini")),
                    folder.filePath(QStringLiteral("layouts.views")));
    program.start();
    //! [save-at-end]
    const SaveAtEnd saveAtEnd([&] { program.save(); });
    //! [save-at-end]
    return QApplication::exec();
}
