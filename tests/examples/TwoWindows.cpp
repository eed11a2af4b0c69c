// SPDX-License-Identifier: MIT
// A program of two windows that keeps its layouts.
#include "01-first-layouts/SaveAtEnd.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QMainWindow>

namespace {

class Windows : public Panorel::IManagable
{
public:
    Windows()
    {
        for (QMainWindow* window : {&m_left, &m_right}) {
            auto* dock = new QDockWidget(QStringLiteral("Files"), window);
            dock->setObjectName(QStringLiteral("files"));
            window->addDockWidget(Qt::LeftDockWidgetArea, dock);
            window->show();
        }
    }

    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("left"), &m_left}, {QStringLiteral("right"), &m_right}};
    }

private:
    QMainWindow m_left;
    QMainWindow m_right;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Panorel::Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    Windows windows;
    manager.registerManagable(windows);
    QFile file(QStringLiteral("layouts.views"));
    if (file.open(QIODevice::ReadOnly))
        manager.fromXml(file.readAll(), /*merge=*/false);
    file.close();
    const SaveAtEnd saveAtEnd([&] {
        if (file.open(QIODevice::WriteOnly))
            file.write(manager.toXml(/*markActive=*/true));
        file.close();
    });
    return QApplication::exec();
}
