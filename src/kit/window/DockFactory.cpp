// SPDX-License-Identifier: MIT
#include "DockFactory.h"

#include "Parts.h"

#include <panorel/kit/WindowState.h>

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>
#include <QSet>

#include <utility>

namespace Panorel::Kit::Detail {

namespace {

void place(QDockWidget& widget, QMainWindow& window, Qt::DockWidgetArea area)
{
    if (window.dockWidgetArea(&widget) != Qt::NoDockWidgetArea)
        return;
    widget.setParent(&window);
    // In the place that the window keeps for it, if it does.
    if (!window.restoreDockWidget(&widget))
        window.addDockWidget(area == Qt::NoDockWidgetArea ? Qt::LeftDockWidgetArea : area, &widget);
}

} // namespace

void DockFactory::add(const QString& objectName, Create create)
{
    m_creators[objectName] = std::move(create);
}

bool DockFactory::createMissing(QMainWindow& window, const WindowState& state)
{
    if (isEmpty())
        return false;
    QSet<QString> present;
    for (const QWidget* dock : Parts::dockWidgets(window))
        present.insert(dock->objectName());
    bool created = false;
    const QPointer<QMainWindow> watched(&window);
    const auto docks = state.dockWidgets();
    for (const WindowState::DockWidget& dock : docks) {
        // Copied, because the function may add another one.
        const Create create = m_creators.value(dock.name);
        if (!create || present.contains(dock.name))
            continue;
        QDockWidget* widget = create();
        if (!watched)
            return created;
        if (!widget)
            continue;
        widget->setObjectName(dock.name);
        place(*widget, window, dock.area);
        created = true;
    }
    return created;
}

} // namespace Panorel::Kit::Detail
