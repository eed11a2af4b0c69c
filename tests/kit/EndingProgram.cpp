// SPDX-License-Identifier: MIT
//
// EndingProgram FILE WAY
//
// A program that keeps its layouts in FILE, floats the dock widget "left" and ends in some WAY.
// With "saving" it saves one thing after the other until it is killed.
#include "FourSidesWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QApplication>
#include <QTimer>

#include <csignal>
#include <memory>

#include <unistd.h>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

struct Program
{
    std::unique_ptr<Manager> manager =
        std::make_unique<Manager>(QStringList("G"_s), /*mergeOnApply=*/true);
    std::unique_ptr<Layouts> layouts = std::make_unique<Layouts>(*manager);
    std::unique_ptr<FourSidesWindow> window = std::make_unique<FourSidesWindow>();
    std::unique_ptr<QMainWindow> second = std::make_unique<QMainWindow>();

    void start(const QString& fileName)
    {
        layouts->addWindow(*window, "main"_s);
        window->show();
        layouts->start(fileName);
        QCoreApplication::processEvents();
        window->left->setFloating(true);
        window->left->setGeometry(50, 60, 210, 220);
    }

    void end(const QString& way)
    {
        if (way == "close"_s)
            window->close();
        else if (way == "closeAll"_s)
            QApplication::closeAllWindows();
        else if (way == "closeTwo"_s) {
            layouts->addWindow(*second, "second"_s);
            second->show();
            window->close();
            QTimer::singleShot(0, second.get(), &QWidget::close);
        } else if (way == "hide"_s) {
            window->hide();
            QCoreApplication::quit();
        } else if (way == "deleteWindow"_s) {
            (void)layouts->save();
            window.reset();
            QCoreApplication::quit();
        } else if (way == "killed"_s) {
            (void)layouts->save();
            std::raise(SIGKILL);
        } else
            QCoreApplication::quit();
    }
};

// Tells by a byte whenever all is saved.
[[noreturn]] void saveForEver(const QString& fileName)
{
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    Layouts layouts(manager);
    layouts.addWindow(window, "main"_s);
    layouts.start(fileName);
    for (;;) {
        window.rearrangeDocks();
        manager.saveCurrentViewAs("a"_s);
        (void)layouts.save();
        window.addDockWidget(Qt::TopDockWidgetArea, window.left);
        manager.saveCurrentViewAs("b"_s);
        (void)layouts.save();
        (void)!write(STDOUT_FILENO, "", 1);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QString way = application.arguments().at(2);
    if (way == "saving"_s)
        saveForEver(application.arguments().at(1));
    Program program;
    program.start(application.arguments().at(1));
    if (way == "withoutExec"_s) {
        program.layouts.reset();
        return 0;
    }
    QTimer::singleShot(0, [&] { program.end(way); });
    const int result = QApplication::exec();
    if (way == "managerFirst"_s)
        program.manager.reset();
    return result;
}
