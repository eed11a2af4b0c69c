// SPDX-License-Identifier: MIT
#include "Thumbnails.h"

#include "LayoutPicture.h"

#include <QPainter>

namespace Panorel::Kit::Detail {

namespace {

// In KiB, enough for some screens full of pictures.
constexpr int mostKept = 16 * 1024;
// It is drawn larger and made smaller, so that title bars leave room for more.
constexpr qreal detail = 2;
// For the shadows of floating windows.
constexpr qreal margin = 4;

} // namespace

Thumbnails::Thumbnails(QObject* parent)
    : QObject(parent)
    , m_pixmaps(mostKept)
{
    setObjectName(QStringLiteral("thumbnails"));
}

Thumbnails::~Thumbnails() = default;

QPixmap Thumbnails::pixmap(const StateMap& states, const QSize& size, qreal ratio, bool isDark)
{
    const Key key{states, size * ratio, isDark};
    if (const QPixmap* const kept = m_pixmaps.object(key))
        return *kept;
    QPixmap pixmap(key.pixels);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(1 / detail, 1 / detail);
    const QRectF target(QPointF(), detail * QSizeF(size));
    LayoutPicture(states).paint(painter, target.adjusted(margin, margin, -margin, -margin), isDark);
    painter.end();
    Q_EMIT drawn();
    constexpr int bytesOfPixel = 4;
    const int cost = 1 + key.pixels.width() * key.pixels.height() * bytesOfPixel / 1024;
    m_pixmaps.insert(key, new QPixmap(pixmap), cost);
    return pixmap;
}

bool operator==(const Thumbnails::Key& a, const Thumbnails::Key& b)
{
    return a.pixels == b.pixels && a.isDark == b.isDark && a.states == b.states;
}

uint qHash(const Thumbnails::Key& key, uint seed)
{
    uint hash = seed ^ uint(key.pixels.width() * 31 + key.pixels.height());
    for (const QByteArray& state : key.states)
        hash = 31 * hash + qHash(state, seed);
    return hash;
}

} // namespace Panorel::Kit::Detail
