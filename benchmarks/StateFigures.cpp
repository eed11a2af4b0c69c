// SPDX-License-Identifier: MIT
#include "Figures.h"

#include <panorel/QtState.h>
#include <panorel/kit/WindowState.h>

namespace {

using Panorel::QtState;
using Panorel::Kit::WindowState;
using Dock = QtState::DockAreaLayout::Dock;

Dock::Block::Item dockWidget(int number)
{
    Dock::Block::Item item;
    item.isSequence = false;
    item.objectName = QStringLiteral("dockWidget%1").arg(number);
    item.flags = 1;
    item.values[1] = 200;
    item.values[2] = 60;
    item.values[3] = 16777215;
    return item;
}

// As a window writes it, with so many dock widgets on each of so many sides.
QByteArray stateOf(int sides, int dockWidgets)
{
    QtState state;
    state.m_versionMarker = QtState::QMainWindowLayout_VersionMarker;
    state.m_version = 0;
    QtState::DockAreaLayout& layout = state.m_dockAreaLayouts.emplace_back();
    layout.centralWidgetSize = QSize(400, 300);
    for (int side = 0; side < sides; ++side) {
        Dock& dock = layout.docks.emplace_back();
        dock.area = side;
        dock.size = QSize(200, 300);
        dock.block.tabbed = false;
        dock.block.orientation = 2;
        for (int i = 0; i < dockWidgets; ++i)
            dock.block.items.push_back(dockWidget(side * dockWidgets + i));
    }
    return state.write();
}

// What merging makes of it in so many rounds, if nothing is saved between them.
QByteArray grown(QByteArray state, int rounds)
{
    for (int i = 0; i < rounds; ++i) {
        QtState value;
        (void)value.read(state);
        state = value.write();
    }
    return state;
}

Figure reading(int dockWidgets)
{
    const QByteArray bytes = stateOf(1, dockWidgets);
    Figure figure;
    figure.name = QStringLiteral("WindowState read, %1 dock widgets").arg(dockWidgets);
    figure.goal = 2;
    figure.steps = {{QStringLiteral("WindowState read"), double(bytes.size())}};
    figure.subject = [bytes] { const WindowState state(bytes); };
    figure.baseline = [bytes] {
        QtState state;
        (void)state.read(bytes);
    };
    figure.check = [bytes, dockWidgets] {
        QtState state;
        return state.read(bytes) && WindowState(bytes).dockWidgets().size() == dockWidgets;
    };
    return figure;
}

// Compared with reading alone, which is linear.
Figure tidying(int rounds)
{
    const QByteArray clean = stateOf(4, 2);
    const QByteArray bytes = grown(clean, rounds);
    const WindowState state(bytes);
    Figure figure;
    figure.name = QStringLiteral("WindowState tidied, %1 KB").arg(bytes.size() / 1000);
    figure.steps = {{QStringLiteral("WindowState tidied"), double(bytes.size())}};
    figure.subject = [state] { (void)state.tidied(); };
    figure.baseline = [bytes] { const WindowState again(bytes); };
    figure.check = [state, clean] { return state.tidied() == clean; };
    return figure;
}

} // namespace

QVector<Figure> stateFigures()
{
    QVector<Figure> figures;
    for (const int dockWidgets : {6, 60, 600, 6000})
        figures.append(reading(dockWidgets));
    for (const int rounds : {4, 8, 16, 32})
        figures.append(tidying(rounds));
    return figures;
}
