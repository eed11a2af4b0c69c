// SPDX-License-Identifier: MIT
#include "Parts.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

namespace Panorel::Kit::Detail::Parts {

QList<QWidget*> floatingTabGroups(const QMainWindow& window)
{
    QList<QWidget*> result;
    const QObjectList& children = window.children();
    for (QObject* child : children) {
        auto* const widget = qobject_cast<QWidget*>(child);
        // A class of Qt's own.
        if (widget && widget->isWindow() && widget->inherits("QDockWidgetGroupWindow") &&
            widget->findChild<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
            result.append(widget);
    }
    return result;
}

QList<QWidget*> dockWidgets(const QMainWindow& window)
{
    QList<QWidget*> result;
    const auto add = [&result](const QWidget* parent) {
        const auto docks =
            parent->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QDockWidget* dock : docks)
            result.append(dock);
    };
    add(&window);
    const QList<QWidget*> groups = floatingTabGroups(window);
    for (const QWidget* group : groups)
        add(group);
    return result;
}

QList<QWidget*> toolBars(const QMainWindow& window)
{
    QList<QWidget*> result;
    const auto bars = window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolBar* bar : bars) {
        if (window.toolBarArea(bar) != Qt::NoToolBarArea)
            result.append(bar);
    }
    return result;
}

} // namespace Panorel::Kit::Detail::Parts
