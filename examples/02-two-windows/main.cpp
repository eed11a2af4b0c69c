// SPDX-License-Identifier: MIT
#include "Check.h"
#include "LayoutStore.h"
#include "TwoWindows.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QMessageBox>

namespace {

void show(const QString& problem)
{
    if (!problem.isEmpty())
        QMessageBox::warning(nullptr, QStringLiteral("Layouts"), problem);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions(
        {{QStringLiteral("layouts"), QStringLiteral("Keep the layouts in <file>."),
          QStringLiteral("file"), LayoutStore::defaultFileName()},
         {QStringLiteral("check"), QStringLiteral("Check that all layouts come back, and end.")}});
    options.process(app);

    TwoWindows windows;
    windows.start();
    if (options.isSet(QStringLiteral("check")))
        return allComesBack(windows) ? 0 : 1;

    Panorel::Manager& manager = windows.manager();
    LayoutStore store(options.value(QStringLiteral("layouts")));
    show(store.load(manager));
    // What this run begins with is the other document to come back to.
    manager.setProgramStartView(manager.toXml(/*markActive=*/true));
    const int result = QApplication::exec();
    show(store.save(manager));
    return result;
}
