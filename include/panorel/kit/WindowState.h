// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/PanorelKitExport.h>
#include <panorel/kit/Problem.h>

#include <QByteArray>
#include <QPoint>
#include <QRect>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>
#include <QVector>

#include <array>
#include <optional>

namespace Panorel::Kit {

class WindowState;

namespace Detail {
struct StateTree;
const StateTree& treeOf(const WindowState& state);
} // namespace Detail

/**
 * What the state of one main window says, as Qt means it: the bytes of QMainWindow::saveState() in
 * terms of dock widgets, tab groups and tool bars.
 *
 * A value: it is read once and never changes, and copies share their data. It needs no application
 * object and no window. Nothing here recurses, so blocks may be nested to any depth, and no count
 * in the bytes is believed before the bytes are there. Nothing throws or logs; bytes that cannot be
 * read give a value that says so.
 *
 * Sizes and positions are in device-independent pixels. Reentrant; a value can be read by several
 * threads.
 */
class PANORELKIT_EXPORT WindowState
{
public:
    /** A place in a tab group. */
    struct Tab
    {
        /** Number of the tab group within the state, from 0 in stored order. */
        int group = 0;
        /** Place in the stored group, from 0. */
        int index = 0;
        /** Whether its page is the one in front. */
        bool isFront = false;
    };

    /** A dock widget, or the place that is kept for one. */
    struct DockWidget
    {
        /** The objectName; null and empty are kept apart. */
        QString name;
        /** Its side of the window; NoDockWidgetArea inside a floating tab group, and for a side
            that does not exist. */
        Qt::DockWidgetArea area = Qt::NoDockWidgetArea;
        /** False for a closed one. A page that another one of its tab group covers is visible. */
        bool isVisible = false;
        /** Whether it is a window of its own. Like QDockWidget::isFloating(), false inside a
            floating tab group. */
        bool isFloating = false;
        /** Its place in a tab group; none outside of one. */
        std::optional<Tab> tab;
        /** Its size; of a page of a tab group, that of the group with its tabs. Invalid where the
            state does not tell it. */
        QSize size;
        /** The position of a floating one on the desktop. */
        QPoint position;
        /** Where the item begins, in bytes. */
        qint64 offset = 0;
    };

    /** A tool bar. */
    struct ToolBar
    {
        /** The objectName; null and empty are kept apart. */
        QString name;
        /** Its side of the window; NoToolBarArea for a side that does not exist. */
        Qt::ToolBarArea area = Qt::NoToolBarArea;
        /** Line within the side, from 0 at the window's edge. */
        int line = 0;
        /** False for a hidden one. */
        bool isVisible = false;
        /** Whether its tools are below each other. */
        bool isVertical = false;
        /** Whether it is a window of its own; then position is where. */
        bool isFloating = false;
        /** The position of a floating one on the desktop. */
        QPoint position;
        /** Where the item begins, in bytes. */
        qint64 offset = 0;
    };

    /** A window of its own that holds dock widgets as tabs. */
    struct FloatingTabs
    {
        /** Its geometry on the desktop. */
        QRect geometry;
        /** The tab group, as in Tab::group; -1 if its dock widgets are not tabs. */
        int group = -1;
    };

    /** Of what one state may at most consist before check() calls it harmful. */
    struct Limits
    {
        /** Levels of nested blocks that QMainWindow::restoreState() can handle; tabs count as two.
           Many deep blocks have a lower limit together. */
        int nesting;
        /** Items that a window can be made of, as merging spells them out: each dock record and
            line of tool bars has those of the ones before it. Merging's own repeats in a state
            that a window wrote do not count. */
        qint64 items;
        /** The limits that are in force. How they were measured is in docs/state-checks.md. */
        static Limits standard();
    };

    /** A state without bytes; it is not readable. */
    WindowState();
    /** Reads @p bytes. */
    explicit WindowState(const QByteArray& bytes);
    /** Shares the data. */
    WindowState(const WindowState& other);
    /** Leaves @p other for destruction only. */
    WindowState(WindowState&& other) noexcept;
    /** Shares the data. */
    WindowState& operator=(const WindowState& other);
    /** Leaves @p other for destruction only. */
    WindowState& operator=(WindowState&& other) noexcept;
    /** Others that share the data keep it. */
    ~WindowState();

    /** The bytes that were read. */
    QByteArray bytes() const;
    /** Whether the bytes parse to their end. All that follows is empty if they do not. */
    bool isReadable() const;

    /** The layout version, which is the argument of saveState(). */
    int layoutVersion() const;
    /** The size of the central widget's area; invalid if the state has none. */
    QSize centralSize() const;
    /** The areas that own the corners top-left, top-right, bottom-left and bottom-right. */
    std::array<Qt::DockWidgetArea, 4> corners() const;
    /**
     * The dock widgets in the order in which Qt takes them, each name once: its first place. But
     * a window looks for all of them again in each section, so that one in a floating tab group is
     * there and not at the place that its side of the window keeps for it. Those without a name
     * are all there.
     */
    QVector<DockWidget> dockWidgets() const;
    /** The tool bars in stored order, each name once as above. */
    QVector<ToolBar> toolBars() const;
    /** The floating tab groups in stored order. */
    QVector<FloatingTabs> floatingTabs() const;
    /** How many items have a name that occurred before in their section: dock widgets and tool
     * bars. */
    int repeats() const;

    /** All that is wrong or worth knowing, in the order of the bytes. */
    QVector<Problem> check() const;
    /** Whether check() finds nothing worse than notes. */
    bool isSound() const;

    /**
     * The state without the items that merging has repeated. A window makes the same of it as of
     * bytes(). Without repeats, and for a state that is not sound, it is bytes() itself. Two dock
     * widgets of one name that are not merging's doing stay, and so do tool bars without a name,
     * since a window gives each of those the next one that it has.
     */
    QByteArray tidied() const;

    /**
     * The dock widgets and floating tab groups of @p stored with the tool bars of @p live, tidied.
     * Version, corners and sizes are those of @p stored. Where one of them is not sound the result
     * is empty, and a window is best left as it is.
     */
    static QByteArray merged(const WindowState& stored, const WindowState& live);

private:
    friend const Detail::StateTree& Detail::treeOf(const WindowState& state);

    QSharedDataPointer<Detail::StateTree> m_tree;
};

} // namespace Panorel::Kit
