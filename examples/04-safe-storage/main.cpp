// SPDX-License-Identifier: MIT
// Layouts that no crash, full disk or wrong file can lose. LayoutStore writes a new file and then
// replaces the old one with it, and renames a file that it cannot read.
#include "../01-first-layouts/SaveAtEnd.h"
#include "LayoutStore.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

class Window : public QMainWindow, public Panorel::IManagable
{
public:
    Window()
    {
        auto* files = new QDockWidget(QStringLiteral("Files"), this);
        files->setObjectName(QStringLiteral("files"));
        addDockWidget(Qt::LeftDockWidgetArea, files);
    }
    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("main"), this}};
    }
    void tell(const QString& message) { statusBar()->showMessage(message); }
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("safe-storage"));
    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    Window window;
    manager.registerManagable(window);
    window.menuBar()->addMenu(new Panorel::Menu(&manager, /*extended=*/true, &window));
    window.show();
    LayoutStore store(LayoutStore::defaultFileName());
    window.tell(store.load(manager));
    const SaveAtEnd saveAtEnd([&] {
        const QString problem = store.save(manager);
        if (!problem.isEmpty())
            qWarning("%s", qPrintable(problem));
    });
    return QApplication::exec();
}
