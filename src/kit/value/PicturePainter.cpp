// SPDX-License-Identifier: MIT
#include "value/PicturePainter.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace Panorel::Kit::Detail {

namespace {

constexpr qreal smallest = 4; // what is thinner is a bare line
constexpr qreal padding = 4;
constexpr int longestName = 120; // no label has room for more

// Labels are as large as in a window where the drawing is as large as it, and stay legible where it
// is smaller.
QFont fontFor(qreal scale, QFont font)
{
    font.setPixelSize(qRound(qBound(8.0, 14 * std::sqrt(scale), 18.0)));
    return font;
}

qreal radiusFor(const QRectF& rect)
{
    return qMin(3.0, qMin(rect.width(), rect.height()) / 4);
}

} // namespace

PictureColors::PictureColors(bool isDark)
    : window(isDark ? 0xff2b2f36 : 0xffe6e9ee)
    , windowBorder(isDark ? 0xff5b626d : 0xffa3abb8)
    , central(isDark ? 0xff1d2025 : 0xffffffff)
    , dock(isDark ? 0xff343a44 : 0xfff6f8fb)
    , title(isDark ? 0xff465266 : 0xffd3dff0)
    , border(isDark ? 0xff5f6f88 : 0xff9fb3d1)
    , backTab(isDark ? 0xff2a2f37 : 0xffdde3ec)
    , toolBar(isDark ? 0xff383d46 : 0xfff1f3f6)
    , grip(isDark ? 0xff7c8695 : 0xffa3abb8)
    , text(isDark ? 0xffe8ecf2 : 0xff1f2a3a)
    , faintText(isDark ? 0xffaab3c0 : 0xff5a6677)
    , floatingTitle(isDark ? 0xff3f74b8 : 0xff3b6db0)
    , floatingText(0xffffffff)
    , shadow(0, 0, 0, isDark ? 60 : 26)
{}

PicturePainter::PicturePainter(QPainter& painter, const QPointF& origin, qreal scale, bool isDark)
    : m_painter(painter)
    , m_origin(origin)
    , m_scale(scale)
    , m_colors(isDark)
    , m_font(fontFor(scale, painter.font()))
    , m_metrics(m_font)
{
    painter.setFont(m_font);
    painter.setRenderHint(QPainter::Antialiasing);
}

// On half pixels, where lines one pixel wide are sharp.
QRectF PicturePainter::mapped(const QRect& rect) const
{
    const QPointF topLeft = QPointF(rect.topLeft()) * m_scale + m_origin;
    const QPointF bottomRight = QPointF(rect.right() + 1, rect.bottom() + 1) * m_scale + m_origin;
    return QRectF(QPointF(std::round(topLeft.x()) + 0.5, std::round(topLeft.y()) + 0.5),
                  QPointF(std::round(bottomRight.x()) - 0.5, std::round(bottomRight.y()) - 0.5));
}

void PicturePainter::paintWindow(const QRect& window)
{
    paintBox(mapped(window), m_colors.window, m_colors.windowBorder);
}

void PicturePainter::paint(const Picture::Part& part)
{
    switch (part.kind) {
    case Picture::Part::Kind::Central:
        paintCentral(mapped(part.rect));
        break;
    case Picture::Part::Kind::DockWidget:
        paintDock(part);
        break;
    case Picture::Part::Kind::ToolBar:
        paintToolBar(part);
        break;
    case Picture::Part::Kind::FloatingWindow:
        paintFloating(part);
    }
}

void PicturePainter::paintCentral(const QRectF& rect)
{
    paintBox(rect.adjusted(1, 1, -1, -1), m_colors.central, m_colors.central);
}

void PicturePainter::paintDock(const Picture::Part& part)
{
    paintTitled(mapped(part.rect), part.name, m_colors.title, m_colors.border, m_colors.text);
    paintTabs(part);
}

void PicturePainter::paintFloating(const Picture::Part& part)
{
    const QRectF rect = mapped(part.rect);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(m_colors.shadow);
    for (const qreal spread : {1.0, 2.5, 4.0})
        m_painter.drawRoundedRect(rect.adjusted(-spread, 1 - spread, spread, 2 + spread), 5, 5);
    paintTitled(rect, part.name, m_colors.floatingTitle, m_colors.floatingTitle,
                m_colors.floatingText);
    paintTabs(part);
}

// A box with a title bar. One that is too small for more is all title.
void PicturePainter::paintTitled(const QRectF& rect, const QString& name, const QColor& title,
                                 const QColor& border, const QColor& text)
{
    const qreal bar = lineHeight() + padding;
    paintBox(rect, title, border);
    if (rect.height() < 2 * bar) {
        paintText(rect, name, text, Qt::AlignLeft);
        return;
    }
    m_painter.fillRect(rect.adjusted(0.5, bar, -0.5, -1.5), m_colors.dock);
    paintText(QRectF(rect.topLeft(), QSizeF(rect.width(), bar)), name, text, Qt::AlignLeft);
}

void PicturePainter::paintToolBar(const Picture::Part& part)
{
    const qreal inset = part.isFloating ? 0 : qMin(2.0, 2 * m_scale);
    const QRectF rect = mapped(part.rect).adjusted(inset, inset, -inset, -inset);
    paintBox(rect, m_colors.toolBar, part.isFloating ? m_colors.floatingTitle : m_colors.border);
    paintGrip(rect, part.isVertical);
    const qreal margin = 2 * padding;
    if (part.isVertical)
        paintVerticalText(rect.adjusted(0, margin, 0, 0), part.name, m_colors.faintText);
    else
        paintText(rect.adjusted(margin, 0, 0, 0), part.name, m_colors.faintText, Qt::AlignLeft);
}

// The dots by which a tool bar is moved.
void PicturePainter::paintGrip(const QRectF& rect, bool isVertical)
{
    const qreal across = isVertical ? rect.width() : rect.height();
    if (across < 2 * smallest || qMax(rect.width(), rect.height()) < 4 * smallest)
        return;
    constexpr int step = 3;
    const int count = static_cast<int>((across - 2 * padding) / step) + 1;
    for (int i = 0; i < count; ++i) {
        const qreal at = padding + i * step;
        const QPointF dot = isVertical ? QPointF(at, padding) : QPointF(padding, at);
        m_painter.fillRect(QRectF(rect.topLeft() + dot, QSizeF(1, 1)), m_colors.grip);
    }
}

void PicturePainter::paintTabs(const Picture::Part& part)
{
    if (part.tabs.isEmpty())
        return;
    const QRectF bar = mapped(part.tabBar);
    qreal widest = 0;
    for (const QString& name : part.tabs)
        widest = qMax(widest, m_metrics.horizontalAdvance(name.left(longestName)));
    const int count = part.tabs.size();
    const qreal width = qMin(widest + 4 * padding, (bar.width() + 1) / count);
    for (int i = 0; i < count && width >= 2; ++i) {
        const QRectF tab(bar.x() + std::round(i * width), bar.y(), std::floor(width) - 1,
                         bar.height());
        paintTab(tab, part.tabs[i], part.tabs[i] == part.name);
    }
}

void PicturePainter::paintTab(const QRectF& rect, const QString& name, bool isFront)
{
    const QRectF tab = isFront ? rect : rect.adjusted(0, 0, 0, -qMin(2.0, rect.height() / 4));
    paintBox(tab, isFront ? m_colors.dock : m_colors.backTab, m_colors.border);
    if (isFront)
        m_painter.fillRect(QRectF(tab.x(), tab.bottom() - 1, tab.width(), 2),
                           m_colors.floatingTitle);
    const qreal margin = padding / 2;
    paintText(tab.adjusted(-margin, 0, margin, 0), name,
              isFront ? m_colors.text : m_colors.faintText, Qt::AlignHCenter);
}

void PicturePainter::paintBox(const QRectF& rect, const QColor& fill, const QColor& border)
{
    if (rect.width() < smallest || rect.height() < smallest) {
        m_painter.fillRect(rect.adjusted(-0.5, -0.5, 0.5, 0.5), border);
        return;
    }
    m_painter.setPen(border);
    m_painter.setBrush(fill);
    const qreal radius = radiusFor(rect);
    m_painter.drawRoundedRect(rect, radius, radius);
}

// Right-to-left text is aligned and cut at its own end.
void PicturePainter::paintText(const QRectF& rect, const QString& text, const QColor& color,
                               int alignment)
{
    const QRectF room = rect.adjusted(padding, 0, -padding, 0);
    if (room.width() < lineHeight() || rect.height() < m_metrics.ascent())
        return;
    const QString shown =
        m_metrics.elidedText(text.left(longestName), Qt::ElideRight, room.width());
    if (alignment == Qt::AlignLeft && text.isRightToLeft())
        alignment = Qt::AlignRight;
    m_painter.setPen(color);
    m_painter.drawText(room, alignment | static_cast<int>(Qt::AlignVCenter) | Qt::TextSingleLine,
                       shown);
}

void PicturePainter::paintVerticalText(const QRectF& rect, const QString& text, const QColor& color)
{
    m_painter.save();
    m_painter.translate(rect.topRight());
    m_painter.rotate(90);
    paintText(QRectF(0, 0, rect.height(), rect.width()), text, color, Qt::AlignLeft);
    m_painter.restore();
}

} // namespace Panorel::Kit::Detail
