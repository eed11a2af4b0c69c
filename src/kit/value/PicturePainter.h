// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/Picture.h>

#include <QColor>
#include <QFont>
#include <QFontMetricsF>

namespace Panorel::Kit::Detail {

/** The colours of a drawing. */
struct PictureColors
{
    explicit PictureColors(bool isDark);

    QColor window;
    QColor windowBorder;
    QColor central;
    QColor dock;
    QColor title;
    QColor border;
    QColor backTab;
    QColor toolBar;
    QColor grip;
    QColor text;
    QColor faintText;
    QColor floatingTitle;
    QColor floatingText;
    QColor shadow;
};

/**
 * Draws the parts of a picture. It only draws what is large enough to be seen, so a thumbnail is
 * simpler than a large drawing.
 */
class PicturePainter
{
public:
    /** @param scale pixels of the target for one of the picture, whose corner is at @p origin. */
    PicturePainter(QPainter& painter, const QPointF& origin, qreal scale, bool isDark);

    void paintWindow(const QRect& window);
    void paint(const Picture::Part& part);

private:
    QRectF mapped(const QRect& rect) const;
    void paintCentral(const QRectF& rect);
    void paintDock(const Picture::Part& part);
    void paintFloating(const Picture::Part& part);
    void paintToolBar(const Picture::Part& part);
    void paintGrip(const QRectF& rect, bool isVertical);
    void paintTitled(const QRectF& rect, const QString& name, const QColor& title,
                     const QColor& border, const QColor& text);
    void paintTabs(const Picture::Part& part);
    void paintTab(const QRectF& rect, const QString& name, bool isFront);
    void paintBox(const QRectF& rect, const QColor& fill, const QColor& border);
    void paintText(const QRectF& rect, const QString& text, const QColor& color, int alignment);
    void paintVerticalText(const QRectF& rect, const QString& text, const QColor& color);
    qreal lineHeight() const { return m_metrics.height(); }

    QPainter& m_painter;
    const QPointF m_origin;
    const qreal m_scale;
    const PictureColors m_colors;
    const QFont m_font;
    const QFontMetricsF m_metrics;
};

} // namespace Panorel::Kit::Detail
