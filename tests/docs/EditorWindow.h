// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/IManagable.h>

#include <QDockWidget>
#include <QMainWindow>
#include <QTextEdit>
#include <QToolBar>

//! [window]
class EditorWindow : public QMainWindow, public Panorel::IManagable
{
public:
    EditorWindow()
    {
        setCentralWidget(new QTextEdit);
        addDock(QStringLiteral("files"), QStringLiteral("Files"), Qt::LeftDockWidgetArea);
        addDock(QStringLiteral("outline"), QStringLiteral("Outline"), Qt::LeftDockWidgetArea);
        addDock(QStringLiteral("output"), QStringLiteral("Output"), Qt::BottomDockWidgetArea);
        addToolBar(QStringLiteral("Edit"))->setObjectName(QStringLiteral("edit"));
    }

    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("editor"), this}};
    }

private:
    void addDock(const QString& name, const QString& title, Qt::DockWidgetArea area)
    {
        auto* dock = new QDockWidget(title, this);
        dock->setObjectName(name);
        dock->setWidget(new QTextEdit);
        addDockWidget(area, dock);
    }
};
//! [window]

/** The dock widget of a name, which is there. */
inline QDockWidget* dockOf(const QMainWindow& window, const QString& name)
{
    return window.findChild<QDockWidget*>(name);
}
