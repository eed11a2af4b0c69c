// SPDX-License-Identifier: MIT
// The merge flag, side by side: two like windows with the layout "Saved". Close a dock widget and
// hide a tool bar in both, then choose "Saved" in both. On the left all is as it was saved; on the
// right the dock widgets are, and the tool bars stay as you left them.
#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

class Window : public QMainWindow, public Panorel::IManagable
{
public:
    Window(const QString& title, Panorel::Manager& manager)
    {
        setWindowTitle(title);
        manager.registerManagable(*this);
        menuBar()->addMenu(new Panorel::Menu(&manager, /*extended=*/false, this));
        for (const char* name : {"Files", "Outline"}) {
            auto* dock = new QDockWidget(QLatin1String(name), this);
            dock->setObjectName(QLatin1String(name));
            addDockWidget(Qt::LeftDockWidgetArea, dock);
        }
        for (const char* name : {"Edit", "Debug"}) {
            QToolBar* bar = addToolBar(QLatin1String(name));
            bar->setObjectName(QLatin1String(name));
            bar->addAction(QLatin1String(name));
        }
    }
    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("main"), this}};
    }
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Panorel::Manager plain({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    Panorel::Manager merging({QStringLiteral("Editing")}, /*mergeOnApply=*/true);
    Window left(QStringLiteral("As saved"), plain);
    Window right(QStringLiteral("Merged"), merging);
    left.setGeometry(20, 60, 360, 300);
    right.setGeometry(400, 60, 360, 300);
    left.show();
    right.show();
    plain.saveCurrentViewAs(QStringLiteral("Saved"));
    merging.saveCurrentViewAs(QStringLiteral("Saved"));
    return QApplication::exec();
}
