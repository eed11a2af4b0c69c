// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/QtState.h>

#include <QByteArray>

#include <algorithm>
#include <initializer_list>

namespace Panorel::Tests {

using DockArea = QtState::DockAreaLayout;
using Dock = DockArea::Dock;
using Block = Dock::Block;
using DockItem = Block::Item;
using ToolBarArea = QtState::ToolBarAreaLayout;
using Line = ToolBarArea::Line;
using ToolBarItem = ToolBarArea::Item;

// Each function below gives an empty text when its arguments are equal, else the first place where
// they differ: QCOMPARE(difference(actual, expected), QString()). Texts are only built on the way
// out, because some tests compare a million states.

inline QString difference(const QByteArray& actual, const QByteArray& expected)
{
    if (actual == expected)
        return QString();
    int offset = 0;
    while (offset < std::min(actual.size(), expected.size()) && actual[offset] == expected[offset])
        ++offset;
    return QStringLiteral("differs at offset %1: %2 instead of %3 (sizes %4 and %5)")
        .arg(offset)
        .arg(QString::fromLatin1(actual.mid(offset, 8).toHex(' ')))
        .arg(QString::fromLatin1(expected.mid(offset, 8).toHex(' ')))
        .arg(actual.size())
        .arg(expected.size());
}

inline QString firstOf(std::initializer_list<QString> differences)
{
    for (const QString& text : differences) {
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

inline QString difference(const char* field, int actual, int expected)
{
    if (actual == expected)
        return QString();
    return QStringLiteral("%1 is %2 instead of %3")
        .arg(QString::fromLatin1(field))
        .arg(actual)
        .arg(expected);
}

inline QString difference(const char* field, const QString& actual, const QString& expected)
{
    if (actual == expected && actual.isNull() == expected.isNull())
        return QString();
    const auto shown = [](const QString& text) {
        return text.isNull() ? QStringLiteral("null") : QString(u'"' + text + u'"');
    };
    return QStringLiteral("%1 is %2 instead of %3")
        .arg(QString::fromLatin1(field), shown(actual), shown(expected));
}

inline QString difference(const char* field, const QSize& actual, const QSize& expected)
{
    return firstOf({difference(field, actual.width(), expected.width()),
                    difference(field, actual.height(), expected.height())});
}

inline QString difference(const char* field, const int (&actual)[4], const int (&expected)[4])
{
    for (int i = 0; i < 4; ++i) {
        if (actual[i] != expected[i])
            return difference(field, actual[i], expected[i]);
    }
    return QString();
}

template<typename T, typename Compare>
QString listDifference(const char* name, const std::vector<T>& actual,
                       const std::vector<T>& expected, Compare compare)
{
    for (std::size_t i = 0; i < std::min(actual.size(), expected.size()); ++i) {
        const QString inner = compare(actual[i], expected[i]);
        if (!inner.isEmpty())
            return QStringLiteral("%1[%2] ").arg(QString::fromLatin1(name)).arg(i) + inner;
    }
    return difference(name, static_cast<int>(actual.size()), static_cast<int>(expected.size()));
}

inline QString difference(const Block& actual, const Block& expected);

/** Name and flags are compared of dock widgets only, because a nested item has none. */
inline QString difference(const DockItem& actual, const DockItem& expected)
{
    QString own =
        firstOf({difference("isSequence", actual.isSequence, expected.isSequence),
                 difference("values", actual.values, expected.values),
                 difference("subBlock", actual.subBlock != nullptr, expected.subBlock != nullptr)});
    if (!own.isEmpty())
        return own;
    if (actual.subBlock)
        return difference(*actual.subBlock, *expected.subBlock);
    return firstOf({difference("objectName", actual.objectName, expected.objectName),
                    difference("flags", actual.flags, expected.flags)});
}

inline QString difference(const Block& actual, const Block& expected)
{
    const auto compare = [](const DockItem& a, const DockItem& e) { return difference(a, e); };
    return firstOf({difference("tabbed", actual.tabbed, expected.tabbed),
                    difference("currentIndex", actual.currentIndex, expected.currentIndex),
                    difference("orientation", actual.orientation, expected.orientation),
                    listDifference("items", actual.items, expected.items, compare)});
}

inline QString difference(const Dock& actual, const Dock& expected)
{
    return firstOf({difference("area", actual.area, expected.area),
                    difference("size", actual.size, expected.size),
                    difference(actual.block, expected.block)});
}

inline QString difference(const DockArea& actual, const DockArea& expected)
{
    const auto compare = [](const Dock& a, const Dock& e) { return difference(a, e); };
    return firstOf(
        {listDifference("docks", actual.docks, expected.docks, compare),
         difference("centralWidgetSize", actual.centralWidgetSize, expected.centralWidgetSize),
         difference("corners", actual.corners, expected.corners)});
}

inline QString difference(const ToolBarItem& actual, const ToolBarItem& expected)
{
    for (int i = 0; i < 4; ++i) {
        if (actual.values[i] != expected.values[i])
            return firstOf({difference("x", actual.values[i].x(), expected.values[i].x()),
                            difference("y", actual.values[i].y(), expected.values[i].y())});
    }
    return firstOf({difference("objectName", actual.objectName, expected.objectName),
                    difference("shown", actual.shown, expected.shown)});
}

inline QString difference(const Line& actual, const Line& expected)
{
    const auto compare = [](const ToolBarItem& a, const ToolBarItem& e) {
        return difference(a, e);
    };
    return firstOf({difference("area", actual.area, expected.area),
                    listDifference("items", actual.items, expected.items, compare)});
}

inline QString difference(const ToolBarArea& actual, const ToolBarArea& expected)
{
    const auto compare = [](const Line& a, const Line& e) { return difference(a, e); };
    return firstOf({difference("extended", actual.extended, expected.extended),
                    listDifference("lines", actual.lines, expected.lines, compare)});
}

inline QString difference(const QtState& actual, const QtState& expected)
{
    const auto dockAreas = [](const DockArea& a, const DockArea& e) { return difference(a, e); };
    const auto toolBars = [](const ToolBarArea& a, const ToolBarArea& e) {
        return difference(a, e);
    };
    return firstOf({difference("marker", actual.m_versionMarker, expected.m_versionMarker),
                    difference("version", actual.m_version, expected.m_version),
                    listDifference("dockAreas", actual.m_dockAreaLayouts,
                                   expected.m_dockAreaLayouts, dockAreas),
                    listDifference("toolBarAreas", actual.m_toolBarAreaLayouts,
                                   expected.m_toolBarAreaLayouts, toolBars)});
}

} // namespace Panorel::Tests
