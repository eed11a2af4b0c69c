// SPDX-License-Identifier: MIT
#include <panorel/IManagable.h>
#include <panorel/Manager.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>

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
    MyWindow window;
    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    manager.registerManagable(window);
    window.show();

    manager.saveCurrentViewAs(QStringLiteral("Wide")); // Keep the layout,
    window.removeDockWidget(window.findChild<QDockWidget*>(QStringLiteral("files")));
    manager.activateView(QStringLiteral("Wide")); // and bring it back.
    return QApplication::exec();
}
