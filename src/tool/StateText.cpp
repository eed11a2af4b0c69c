// SPDX-License-Identifier: MIT
#include "StateText.h"

#include "Sides.h"

#include <panorel/kit/WindowState.h>

#include <QCoreApplication>

#include <algorithm>

namespace Panorel::Tool {

using Kit::WindowState;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::StateText)
};

const QLatin1String indent("  ");

QString shownName(const QString& name)
{
    return name.isEmpty() ? Text::tr("(without a name)") : name;
}

QString shownSize(const QSize& size)
{
    return size.isValid() ? QStringLiteral("%1 x %2").arg(size.width()).arg(size.height())
                          : QString();
}

QString lineOf(const WindowState::DockWidget& dock)
{
    QString line = shownName(dock.name);
    if (dock.size.isValid())
        line += indent + shownSize(dock.size);
    if (dock.isFloating)
        line += indent + Text::tr("at %1, %2").arg(dock.position.x()).arg(dock.position.y());
    if (dock.tab && dock.tab->isFront)
        line += indent + Text::tr("(in front)");
    return line;
}

/** Writes the dock widgets of one place, those of a tab group one step further in. */
class DockLines
{
public:
    void add(const WindowState::DockWidget& dock)
    {
        if (dock.tab && m_group != dock.tab->group)
            m_lines.append(indent + Text::tr("Tabs:"));
        m_group = dock.tab ? dock.tab->group : -1;
        m_lines.append((dock.tab ? QString(indent + indent) : QString(indent)) + lineOf(dock));
    }

    QStringList under(const QString& title) const
    {
        return m_lines.isEmpty() ? QStringList() : QStringList{title} + m_lines;
    }

private:
    QStringList m_lines;
    int m_group = -1;
};

QString titleOfSide(Qt::DockWidgetArea area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return Text::tr("Left:");
    case Qt::RightDockWidgetArea:
        return Text::tr("Right:");
    case Qt::TopDockWidgetArea:
        return Text::tr("Top:");
    case Qt::BottomDockWidgetArea:
        return Text::tr("Bottom:");
    default:
        return Text::tr("On a side that does not exist:");
    }
}

template<typename Belongs>
QStringList dockLines(const QVector<WindowState::DockWidget>& docks, const QString& title,
                      Belongs belongs)
{
    DockLines lines;
    for (const WindowState::DockWidget& dock : docks) {
        if (belongs(dock))
            lines.add(dock);
    }
    return lines.under(title);
}

bool isInFloatingTabs(const WindowState::DockWidget& dock)
{
    return dock.area == Qt::NoDockWidgetArea && !dock.isFloating && dock.tab;
}

QStringList dockWidgetLines(const WindowState& state)
{
    const auto docks = state.dockWidgets();
    QStringList lines;
    for (const Qt::DockWidgetArea area :
         {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea, Qt::TopDockWidgetArea,
          Qt::BottomDockWidgetArea, Qt::NoDockWidgetArea}) {
        lines += dockLines(docks, titleOfSide(area), [area](const auto& dock) {
            return dock.isVisible && !dock.isFloating && dock.area == area &&
                   !isInFloatingTabs(dock);
        });
    }
    lines += dockLines(docks, Text::tr("Floating:"), [](const auto& dock) {
        return dock.isVisible && (dock.isFloating || isInFloatingTabs(dock));
    });
    lines +=
        dockLines(docks, Text::tr("Closed:"), [](const auto& dock) { return !dock.isVisible; });
    return lines;
}

QString lineOf(const WindowState::ToolBar& toolBar)
{
    QString line = shownName(toolBar.name);
    if (toolBar.isFloating)
        line += indent + Text::tr("(floating)");
    if (!toolBar.isVisible)
        line += indent + Text::tr("(hidden)");
    return line;
}

QStringList toolBarLines(const WindowState& state)
{
    QStringList lines;
    QString heading;
    const auto toolBars = state.toolBars();
    for (const WindowState::ToolBar& toolBar : toolBars) {
        const QString side = nameOfSide(toolBar.area);
        const QString place =
            side.isEmpty() ? Text::tr("On a side that does not exist:")
                           : Text::tr("Tool bars, %1, line %2:").arg(side).arg(toolBar.line + 1);
        if (place != heading)
            lines.append(place);
        heading = place;
        lines.append(indent + lineOf(toolBar));
    }
    return lines;
}

} // namespace

QStringList toText(const WindowState& state)
{
    if (!state.isReadable())
        return {
            Text::tr("Not the state of a window, or damaged (size: %1)").arg(state.bytes().size())};
    QStringList lines = dockWidgetLines(state) + toolBarLines(state);
    if (state.centralSize().isValid())
        lines.append(Text::tr("Central area: %1").arg(shownSize(state.centralSize())));
    if (lines.isEmpty())
        lines.append(Text::tr("Neither dock widgets nor tool bars"));
    return lines;
}

} // namespace Panorel::Tool
