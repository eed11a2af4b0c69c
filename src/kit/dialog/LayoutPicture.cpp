// SPDX-License-Identifier: MIT
#include "LayoutPicture.h"

#include "PartTitles.h"

#include "../value/PicturePainter.h"

#include <panorel/kit/WindowState.h>

#include <QPainter>

namespace Panorel::Kit::Detail {

namespace {

// Of more windows nothing can be seen.
constexpr int mostWindows = 6;
// Between two windows, in their own pixels.
constexpr int gap = 60;

// The painter leaves out what has no name, but it still knows the front tab by it.
void hideNames(Picture::Part& part)
{
    const int front = part.tabs.indexOf(part.name);
    part.name.clear();
    for (int i = 0; i < part.tabs.size(); ++i)
        part.tabs[i] = i == front ? QString() : QStringLiteral(" ");
}

} // namespace

LayoutPicture::LayoutPicture(const StateMap& states)
{
    read(states, [](const QString&, Picture::Part& part) { hideNames(part); });
}

LayoutPicture::LayoutPicture(const StateMap& states, const PartTitles& titles)
{
    read(states, [&titles](const QString& window, Picture::Part& part) {
        part.name = titles.title(window, part.name);
        for (QString& tab : part.tabs)
            tab = titles.title(window, tab);
    });
}

void LayoutPicture::read(const StateMap& states, const Naming& name)
{
    for (auto state = states.cbegin(); state != states.cend(); ++state) {
        const WindowState window(*state);
        const Picture picture = window.isSound() ? Picture(window) : Picture(WindowState());
        if (picture.size().isEmpty() || m_pictures.size() == mostWindows)
            continue;
        Drawing drawing{picture.size(), picture.window(), picture.parts()};
        for (Picture::Part& part : drawing.parts)
            name(state.key(), part);
        const int before = m_pictures.isEmpty() ? 0 : m_size.width() + gap;
        m_pictures.append(drawing);
        m_size = QSize(before + drawing.size.width(), qMax(m_size.height(), drawing.size.height()));
    }
}

void LayoutPicture::paint(QPainter& painter, const QRectF& target, bool isDark) const
{
    if (m_size.isEmpty() || target.isEmpty())
        return;
    const qreal scale = qMin(target.width() / m_size.width(), target.height() / m_size.height());
    const QSizeF whole = QSizeF(m_size) * scale;
    QPointF origin = target.center() - QPointF(whole.width() / 2, whole.height() / 2);
    painter.save();
    for (const Drawing& drawing : m_pictures) {
        const qreal free = (m_size.height() - drawing.size.height()) * scale / 2;
        PicturePainter pictures(painter, origin + QPointF(0, free), scale, isDark);
        pictures.paintWindow(drawing.window);
        for (const Picture::Part& part : drawing.parts)
            pictures.paint(part);
        origin.rx() += (drawing.size.width() + gap) * scale;
    }
    painter.restore();
}

bool LayoutPicture::isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

} // namespace Panorel::Kit::Detail
