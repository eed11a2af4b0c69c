// SPDX-License-Identifier: MIT
#include <panorel/Manager.h>
#include <panorel/QtState.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>

namespace {

class Windows : public Panorel::IManagable
{
public:
    QList<Panorel::ManagedWindow> managedWindows() override { return {{"main", &window}}; }

    QMainWindow window;
};

} // namespace

// Strings from literals and Qt's keywords are used here on purpose: that the library does without
// them is not the consumer's concern.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Windows windows;
    QDockWidget dock("Dock");
    dock.setObjectName("dock");
    windows.window.addDockWidget(Qt::LeftDockWidgetArea, &dock);

    Panorel::QtState state;
    const QByteArray blob = windows.window.saveState();
    if (!state.read(blob) || state.write() != blob)
        return 1;

    QStringList activated;
    Panorel::Manager manager({"group"}, true);
    manager.registerManagable(windows);
    QObject::connect(&manager, &Panorel::Manager::viewActivated,
                     [&](const QString& name) { activated.append(name); });
    manager.saveCurrentViewAs("left");
    windows.window.addDockWidget(Qt::RightDockWidgetArea, &dock);
    if (!manager.activateView("left"))
        return 2;
    if (windows.window.dockWidgetArea(&dock) != Qt::LeftDockWidgetArea)
        return 3;
    emit manager.groupModified();
    return activated == QStringList{"left", "left"} ? 0 : 4;
}
