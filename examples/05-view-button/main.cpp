// SPDX-License-Identifier: MIT
// A tool button for the layouts: a click goes to the next one, the arrow opens the menu.
#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/ViewButton.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QStyle>
#include <QToolBar>

class Window : public QMainWindow, public Panorel::IManagable
{
public:
    explicit Window(Panorel::Manager& manager)
    {
        m_files->setObjectName(QStringLiteral("files"));
        addDockWidget(Qt::LeftDockWidgetArea, m_files);

        QToolBar* bar = addToolBar(QStringLiteral("Layouts"));
        bar->setObjectName(QStringLiteral("layouts"));
        auto* button = new Panorel::ViewButton(&manager, QStringLiteral("Next Layout"), bar);
        // Icon, style and keys are the application's choice.
        button->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setShortcut(QStringLiteral("Ctrl+L"));
        bar->addWidget(button);
    }
    void closeFiles() { m_files->close(); }
    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("main"), this}};
    }

private:
    QDockWidget* m_files = new QDockWidget(QStringLiteral("Files"), this);
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    Window window(manager);
    manager.registerManagable(window);
    window.show();
    manager.saveCurrentViewAs(QStringLiteral("With files"));
    window.closeFiles();
    manager.saveCurrentViewAs(QStringLiteral("Without files"));
    return QApplication::exec();
}
