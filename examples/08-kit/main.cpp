// SPDX-License-Identifier: MIT
// Layouts that look after themselves: saved, switched, and back in the next run.
#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QTextEdit);
    for (const char* name : {"Files", "Outline", "Output"}) {
        auto* dock = new QDockWidget(QLatin1String(name), &window);
        dock->setObjectName(QLatin1String(name)); // Qt finds it again by this name.
        dock->setWidget(new QTextEdit);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    }
    QToolBar* toolBar = window.addToolBar(QStringLiteral("Layouts"));
    toolBar->setObjectName(QStringLiteral("Layouts"));

    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/true);
    Panorel::Kit::Layouts layouts(manager);
    layouts.addWindow(window);
    window.menuBar()->addMenu(layouts.createMenu(&window));
    toolBar->addWidget(layouts.createButton(&window));
    window.show();
    layouts.start();
    return QApplication::exec();
}
