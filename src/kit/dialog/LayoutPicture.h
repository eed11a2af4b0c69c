// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>
#include <panorel/kit/Picture.h>

#include <QPalette>
#include <QVector>

#include <functional>

class QPainter;

namespace Panorel::Kit::Detail {

class PartTitles;

/** The drawing of a layout: the pictures of its windows side by side, in one scale. */
class LayoutPicture
{
public:
    /** Without names, which do not fit a small drawing. */
    explicit LayoutPicture(const StateMap& states);
    /** With the titles of the parts. */
    LayoutPicture(const StateMap& states, const PartTitles& titles);

    /** Draws it into @p target, scaled to fit and centred. */
    void paint(QPainter& painter, const QRectF& target, bool isDark) const;
    bool isEmpty() const { return m_pictures.isEmpty(); }

    /** Whether light is written on dark. */
    static bool isDark(const QPalette& palette);

private:
    struct Drawing
    {
        QSize size;
        QRect window;
        QVector<Picture::Part> parts;
    };

    using Naming = std::function<void(const QString& window, Picture::Part& part)>;
    void read(const StateMap& states, const Naming& name);

    QVector<Drawing> m_pictures;
    QSize m_size;
};

} // namespace Panorel::Kit::Detail
