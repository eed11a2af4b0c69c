// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/QtState.h>

#include <QStringList>

namespace Panorel::Tests {

/**
 * A value in the words of the texts beside the recorded blobs. The items that reading repeats in
 * later records are left out, so that the text is about the window.
 */
class Description
{
public:
    static QStringList of(const QtState& state)
    {
        Description text;
        text.m_lines.append(QStringLiteral("version %1").arg(state.m_version));
        for (const DockArea& layout : state.m_dockAreaLayouts)
            text.add(layout);
        for (const QtState::ToolBarAreaLayout& layout : state.m_toolBarAreaLayouts)
            text.add(layout);
        return text.m_lines;
    }

private:
    using DockArea = QtState::DockAreaLayout;
    using Block = DockArea::Dock::Block;

    void add(const DockArea& layout)
    {
        std::size_t repeated = 0;
        for (const DockArea::Dock& dock : layout.docks) {
            m_lines.append(QStringLiteral("docks %1, %2").arg(side(dock.area), size(dock.size)));
            add(dock.block, repeated, 1);
            repeated = dock.block.items.size();
        }
        m_lines.append(QStringLiteral("central widget ") + size(layout.centralWidgetSize));
        QStringList corners;
        for (const int corner : layout.corners)
            corners.append(cornerSide(corner));
        m_lines.append(QStringLiteral("corners ") + corners.join(QStringLiteral(", ")));
    }

    void add(const Block& block, std::size_t firstItem, int level)
    {
        QString line(level * 2, u' ');
        if (block.tabbed)
            line += QStringLiteral("tabs, number %1 on top, ").arg(block.currentIndex);
        line += block.orientation == Qt::Horizontal ? QStringLiteral("beside each other")
                                                    : QStringLiteral("one below another");
        m_lines.append(line);
        for (std::size_t i = firstItem; i < block.items.size(); ++i)
            add(block.items[i], level + 1);
    }

    void add(const Block::Item& item, int level)
    {
        QString line(level * 2, u' ');
        if (item.isSequence)
            line += QStringLiteral("block:");
        else
            line += QStringLiteral("dock widget %1 %2:")
                        .arg(name(item.objectName), flags(item.flags, ", floating"));
        for (const int value : item.values)
            line += u' ' + QString::number(value);
        m_lines.append(line);
        if (item.isSequence)
            add(*item.subBlock, 0, level + 1);
    }

    void add(const QtState::ToolBarAreaLayout& layout)
    {
        std::size_t repeated = 0;
        for (const QtState::ToolBarAreaLayout::Line& line : layout.lines) {
            m_lines.append(QStringLiteral("line ") + side(line.area));
            for (std::size_t i = repeated; i < line.items.size(); ++i)
                add(line.items[i], layout.extended ? 4 : 3);
            repeated = line.items.size();
        }
    }

    void add(const QtState::ToolBarAreaLayout::Item& item, int valueCount)
    {
        QString line = QStringLiteral("  tool bar %1 %2:")
                           .arg(name(item.objectName), flags(item.shown, ", vertical"));
        for (int i = 0; i < valueCount; ++i)
            line += u' ' + QString::number(item.values[i].x());
        m_lines.append(line);
    }

    static QString name(const QString& text)
    {
        return text.isNull() ? QStringLiteral("null") : QString(u'"' + text + u'"');
    }

    static QString flags(int bits, const char* second)
    {
        const QString first = (bits & 1) ? QStringLiteral("shown") : QStringLiteral("hidden");
        return (bits & 2) ? QString(first + QLatin1String(second)) : first;
    }

    static QString size(const QSize& value)
    {
        return QStringLiteral("%1 x %2").arg(value.width()).arg(value.height());
    }

    static QString side(int area)
    {
        const char* const sides[] = {"left", "right", "top", "bottom"};
        return area >= 0 && area < 4 ? QString::fromLatin1(sides[area]) : QString::number(area);
    }

    static QString cornerSide(int corner)
    {
        for (int area = 0; area < 4; ++area) {
            if (corner == 1 << area)
                return side(area);
        }
        return QString::number(corner);
    }

    QStringList m_lines;
};

} // namespace Panorel::Tests
