// SPDX-License-Identifier: MIT
#include "LayoutPreview.h"

#include <QPainter>

namespace Panorel::Kit::Detail {

LayoutPreview::LayoutPreview(QWidget* parent)
    : QWidget(parent)
    , m_picture(StateMap())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

LayoutPreview::~LayoutPreview() = default;

void LayoutPreview::setStates(const StateMap& states, const PartTitles& titles)
{
    if (states == m_states)
        return;
    m_states = states;
    m_picture = LayoutPicture(states, titles);
    update();
}

QSize LayoutPreview::sizeHint() const
{
    return QSize(20, 13) * fontMetrics().height();
}

QSize LayoutPreview::minimumSizeHint() const
{
    return QSize(12, 8) * fontMetrics().height();
}

void LayoutPreview::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    m_picture.paint(painter, rect(), LayoutPicture::isDark(palette()));
}

} // namespace Panorel::Kit::Detail
