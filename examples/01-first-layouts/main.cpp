// SPDX-License-Identifier: MIT
#include "SaveAtEnd.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QSaveFile>

// An object that owns main windows tells the Manager which of them to manage.
class MyWindow : public QMainWindow, public Panorel::IManagable
{
public:
    MyWindow()
    {
        auto* files = new QDockWidget(QStringLiteral("Files"), this);
        files->setObjectName(QStringLiteral("files")); // Qt finds it again by this name.
        addDockWidget(Qt::LeftDockWidgetArea, files);
    }
    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("main"), this}}; // The id stays the same in every run.
    }
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    MyWindow window;
    manager.registerManagable(window);
    window.menuBar()->addMenu(new Panorel::Menu(&manager, /*extended=*/true, &window));
    window.show();

    QFile stored(QStringLiteral("layouts.views"));
    if (stored.open(QIODevice::ReadOnly))
        manager.fromXml(stored.readAll(), /*merge=*/false); // The layouts of the last run,
    stored.close();
    const SaveAtEnd saveAtEnd([&] {
        QSaveFile file(stored.fileName());
        if (!file.open(QIODevice::WriteOnly))
            return;
        file.write(manager.toXml(/*markActive=*/true)); // and those of this one.
        if (file.flush())                               // A full disk does not harm the old file.
            file.commit();
    });
    return QApplication::exec();
}
