// SPDX-License-Identifier: MIT
#include <panorel/kit/Picture.h>

#include "value/PictureLayout.h"
#include "value/PicturePainter.h"

#include <QPainter>

namespace Panorel::Kit {

Picture::Picture(const WindowState& state, const QSize& size)
{
    if (!state.isReadable())
        return;
    const Detail::Arrangement arrangement(Detail::treeOf(state));
    Detail::PictureLayout layout(arrangement);
    m_parts = layout.parts(size.isEmpty() ? layout.windowSize() : size);
    m_window = layout.window();
    QRect whole = m_window;
    for (const Part& part : qAsConst(m_parts))
        whole |= part.rect;
    for (Part& part : m_parts) {
        part.rect.translate(-whole.topLeft());
        part.tabBar.translate(-whole.topLeft());
    }
    m_window.translate(-whole.topLeft());
    m_size = whole.size();
}

QSize Picture::windowSize(const WindowState& state)
{
    if (!state.isReadable())
        return QSize();
    const Detail::Arrangement arrangement(Detail::treeOf(state));
    return Detail::PictureLayout(arrangement).windowSize();
}

QSize Picture::size() const
{
    return m_size;
}

QRect Picture::window() const
{
    return m_window;
}

const QVector<Picture::Part>& Picture::parts() const
{
    return m_parts;
}

void Picture::paint(QPainter& painter, const QRectF& target, const Colors& colors) const
{
    if (m_size.isEmpty() || target.isEmpty())
        return;
    const qreal scale = qMin(target.width() / m_size.width(), target.height() / m_size.height());
    const QSizeF size = QSizeF(m_size) * scale;
    const QPointF origin = target.center() - QPointF(size.width() / 2, size.height() / 2);
    painter.save();
    Detail::PicturePainter picture(painter, origin, scale, colors.isDark);
    picture.paintWindow(m_window);
    for (const Part& part : m_parts)
        picture.paint(part);
    painter.restore();
}

void Picture::paint(QPainter& painter, const QRectF& target) const
{
    paint(painter, target, Colors());
}

} // namespace Panorel::Kit
