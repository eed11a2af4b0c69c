// SPDX-License-Identifier: MIT
// Two windows, switched together, in two groups: each has its layouts and comes back as it was
// left.
#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

struct Window : QMainWindow
{
    explicit Window(const QStringList& docks)
    {
        for (const QString& name : docks) {
            auto* dock = new QDockWidget(name, this);
            dock->setObjectName(name);
            addDockWidget(Qt::LeftDockWidgetArea, dock);
        }
    }
};

struct Windows : Panorel::IManagable
{
    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("editor"), &editor}, {QStringLiteral("plot"), &plot}};
    }
    Window editor{{QStringLiteral("Files"), QStringLiteral("Outline")}};
    Window plot{{QStringLiteral("Curves")}};
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Panorel::Manager manager({QStringLiteral("Editing"), QStringLiteral("Measuring")},
                             /*mergeOnApply=*/false);
    Windows windows; // After the Manager, which has to outlive the menu in them.
    manager.registerManagable(windows);
    windows.editor.menuBar()->addMenu(
        new Panorel::Menu(&manager, /*extended=*/false, &windows.editor));
    QToolBar* bar = windows.editor.addToolBar(QStringLiteral("Groups"));
    bar->setObjectName(QStringLiteral("groups"));
    auto* groups = new QComboBox(bar);
    groups->addItems(manager.groups());
    bar->addWidget(groups);
    QObject::connect(groups, &QComboBox::currentTextChanged, &manager,
                     &Panorel::Manager::activateGroup);
    QObject::connect(&manager, &Panorel::Manager::groupActivated, groups,
                     &QComboBox::setCurrentText);
    windows.editor.show();
    windows.plot.show();
    return QApplication::exec();
}
