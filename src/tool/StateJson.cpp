// SPDX-License-Identifier: MIT
#include "StateJson.h"

#include "Sides.h"

#include <panorel/kit/WindowState.h>

#include <QJsonArray>

namespace Panorel::Tool {

using Kit::WindowState;

namespace {

// A null name and an empty one are different names to Qt.
QJsonValue nameToJson(const QString& name)
{
    return name.isNull() ? QJsonValue() : QJsonValue(name);
}

QJsonValue sideToJson(const QString& identifier)
{
    return identifier.isEmpty() ? QJsonValue() : QJsonValue(identifier);
}

QJsonValue sizeToJson(const QSize& size)
{
    return size.isValid() ? QJsonValue(QJsonArray{size.width(), size.height()}) : QJsonValue();
}

QJsonValue tabToJson(const std::optional<WindowState::Tab>& tab)
{
    if (!tab)
        return QJsonValue();
    return QJsonObject{{QStringLiteral("group"), tab->group},
                       {QStringLiteral("index"), tab->index},
                       {QStringLiteral("front"), tab->isFront}};
}

QJsonArray dockWidgetsToJson(const WindowState& state)
{
    QJsonArray array;
    const auto dockWidgets = state.dockWidgets();
    for (const WindowState::DockWidget& dock : dockWidgets) {
        array.append(QJsonObject{
            {QStringLiteral("name"), nameToJson(dock.name)},
            {QStringLiteral("area"), sideToJson(identifierOfSide(dock.area))},
            {QStringLiteral("visible"), dock.isVisible},
            {QStringLiteral("floating"), dock.isFloating},
            {QStringLiteral("tabs"), tabToJson(dock.tab)},
            {QStringLiteral("size"), sizeToJson(dock.size)},
        });
    }
    return array;
}

QJsonArray toolBarsToJson(const WindowState& state)
{
    QJsonArray array;
    const auto toolBars = state.toolBars();
    for (const WindowState::ToolBar& toolBar : toolBars) {
        array.append(QJsonObject{
            {QStringLiteral("name"), nameToJson(toolBar.name)},
            {QStringLiteral("area"), sideToJson(identifierOfSide(toolBar.area))},
            {QStringLiteral("line"), toolBar.line},
            {QStringLiteral("visible"), toolBar.isVisible},
            {QStringLiteral("vertical"), toolBar.isVertical},
        });
    }
    return array;
}

QJsonArray cornersToJson(const WindowState& state)
{
    QJsonArray array;
    const auto corners = state.corners();
    for (const Qt::DockWidgetArea corner : corners)
        array.append(sideToJson(identifierOfSide(corner)));
    return array;
}

} // namespace

QJsonObject stateToJson(const WindowState& state)
{
    QJsonObject object{{QStringLiteral("bytes"), state.bytes().size()},
                       {QStringLiteral("sound"), state.isSound()}};
    if (!state.isReadable())
        return object;
    object.insert(QStringLiteral("layoutVersion"), state.layoutVersion());
    object.insert(QStringLiteral("repeats"), state.repeats());
    object.insert(QStringLiteral("central"), sizeToJson(state.centralSize()));
    object.insert(QStringLiteral("corners"), cornersToJson(state));
    object.insert(QStringLiteral("docks"), dockWidgetsToJson(state));
    object.insert(QStringLiteral("toolBars"), toolBarsToJson(state));
    return object;
}

} // namespace Panorel::Tool
