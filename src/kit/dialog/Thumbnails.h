// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QSize>

namespace Panorel::Kit::Detail {

/** Small pictures of layouts. Each is drawn when it is asked for, and kept while there is room. */
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    explicit Thumbnails(QObject* parent);
    ~Thumbnails() override;

    /** @param size in device-independent pixels. */
    QPixmap pixmap(const StateMap& states, const QSize& size, qreal ratio, bool isDark);

Q_SIGNALS:
    /** A picture that was not kept was drawn. */
    void drawn();

private:
    struct Key
    {
        StateMap states;
        QSize pixels;
        bool isDark;
    };
    friend bool operator==(const Key& a, const Key& b);
    friend uint qHash(const Key& key, uint seed);

    QCache<Key, QPixmap> m_pixmaps;
};

} // namespace Panorel::Kit::Detail
