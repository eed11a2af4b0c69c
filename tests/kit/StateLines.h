// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <panorel/kit/WindowState.h>

#include <QStringList>

namespace Panorel::Tests {

inline QString sideText(int area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return "left"_s;
    case Qt::RightDockWidgetArea:
        return "right"_s;
    case Qt::TopDockWidgetArea:
        return "top"_s;
    case Qt::BottomDockWidgetArea:
        return "bottom"_s;
    default:
        return "none"_s;
    }
}

/** All that @p dock says, such as "'files' left 200x361 tab 0.1 front at 0". */
inline QString lineOf(const Kit::WindowState::DockWidget& dock)
{
    QString line = quoted(dock.name) + " "_s + sideText(dock.area);
    if (dock.size.isValid())
        line += " %1x%2"_s.arg(dock.size.width()).arg(dock.size.height());
    if (!dock.isVisible)
        line += " closed"_s;
    if (dock.isFloating)
        line += " floating %1,%2"_s.arg(dock.position.x()).arg(dock.position.y());
    if (dock.tab)
        line += " tab %1.%2"_s.arg(dock.tab->group).arg(dock.tab->index);
    if (dock.tab && dock.tab->isFront)
        line += " front"_s;
    return line + " at %1"_s.arg(dock.offset);
}

/** All that @p toolBar says, such as "'edit' top 0 at 94". */
inline QString lineOf(const Kit::WindowState::ToolBar& toolBar)
{
    QString line = quoted(toolBar.name) + " "_s + sideText(toolBar.area);
    line += " %1"_s.arg(toolBar.line);
    if (!toolBar.isVisible)
        line += " closed"_s;
    if (toolBar.isVertical)
        line += " vertical"_s;
    if (toolBar.isFloating)
        line += " floating %1,%2"_s.arg(toolBar.position.x()).arg(toolBar.position.y());
    return line + " at %1"_s.arg(toolBar.offset);
}

template<typename Parts>
QStringList linesOf(const Parts& parts)
{
    QStringList result;
    for (const auto& part : parts)
        result.append(lineOf(part));
    return result;
}

} // namespace Panorel::Tests
