// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/PanorelKitExport.h>
#include <panorel/kit/WindowState.h>

#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class QPainter;

namespace Panorel::Kit {

/**
 * A drawing of what a state says: where a window of some size shows its central widget, dock
 * widgets, tabs and tool bars. Closed parts are not in it. It is computed once and needs no window
 * and no style; paint() needs a QGuiApplication, because it draws text.
 *
 * In a window of the stored size each part has its stored size. In one of another size it is as a
 * window does it: the sides keep their extent and the central widget takes the rest; what shares a
 * side keeps its proportions. Sizes only go below the stored minimum sizes if nothing else is left;
 * what the content of the parts needs beyond these is not stored, so a very small window may show
 * less of a part than it can.
 *
 * What styles decide is not stored either. The picture takes it from the stored positions as far as
 * these tell it, and else has separators of 6 pixels, tabs 32 pixels high below their pages, and
 * lines of tool bars 36 pixels across. Other sizes are never changed, but numbers that no window
 * writes are brought within bounds: no window is more than 16383 pixels wide or high, and nothing
 * floats more than 8192 pixels left of or above it.
 */
class PANORELKIT_EXPORT Picture
{
public:
    /** Something in the drawing. */
    struct Part
    {
        /** The kinds of parts. */
        enum class Kind { Central, DockWidget, ToolBar, FloatingWindow };
        /** What it is. */
        Kind kind = Kind::Central;
        /** The objectName; of a floating tab group, the name of its page in front. */
        QString name;
        /** Its place in the picture's coordinates. Of a dock widget that is the front page of a tab
            group, the page's place without the tabs; of a floating window, the whole of it. */
        QRect rect;
        /** The names on the tabs and where these are, for the front page of a tab group. Both are
            empty where a group has one page only. */
        QStringList tabs;
        /** Where the tabs are. */
        QRect tabBar;
        /** Of a tool bar: its orientation, and whether it is a window of its own. */
        bool isVertical = false;
        /** Whether a tool bar is a window of its own. */
        bool isFloating = false;
    };

    /** How it is drawn. */
    struct Colors
    {
        /** Light on dark. */
        bool isDark = false;
    };

    /**
     * Computes the picture of a window.
     * @param state what to draw; without a readable one nothing is drawn.
     * @param size size of the main window in the picture, in pixels. An empty one is the window's
     * own size, see windowSize().
     */
    explicit Picture(const WindowState& state, const QSize& size = QSize());

    /** The size of the window that wrote @p state, as far as it says: without the status bar, and
        with the menu bar only if the stored positions allow for it. 640 x 480 and what the tool
       bars need if no size is stored, because the window was never shown; empty for a state that is
       not readable. */
    static QSize windowSize(const WindowState& state);

    /** The size of the whole picture: the window, and beside it what floats outside. */
    QSize size() const;
    /** The place of the main window in the picture. A state does not tell where the window is on
        the desktop. So it is drawn at the desktop's origin, and what floats at its own place on the
        desktop: the window's place is at 0, 0 unless something floats left of or above it. */
    QRect window() const;
    /** All visible parts in the order in which they are drawn: the central widget, dock widgets,
        tool bars, then what floats. A floating window of dock widgets that are not tabs is followed
        by these. */
    const QVector<Part>& parts() const;

    /** Draws it into @p target of @p painter, scaled to fit and centred, with the names as labels.
        The painter is left as it was. */
    void paint(QPainter& painter, const QRectF& target, const Colors& colors) const;
    /** Draws it in light colours. */
    void paint(QPainter& painter, const QRectF& target) const;

private:
    QSize m_size;
    QRect m_window;
    QVector<Part> m_parts;
};

} // namespace Panorel::Kit
