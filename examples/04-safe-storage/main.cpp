// SPDX-License-Identifier: MIT
// Layouts that no crash, full disk or wrong file can lose. LayoutStore writes beside the old file
// and changes places when all is written, and puts a file that it cannot read aside.
// explainImports() tells what came of an import and takes back one that read nothing.
#include "../01-first-layouts/SaveAtEnd.h"
#include "LayoutCures.h"
#include "LayoutStore.h"
#include "LayoutUndo.h"

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
    LayoutUndo undo(manager); // Before the menu, which uses it.
    Panorel::Menu menu(&manager, /*extended=*/true);
    window.menuBar()->addMenu(&menu);
    LayoutCures::explainImports(menu, manager, undo,
                                [&](const QString& message) { window.tell(message); });

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
