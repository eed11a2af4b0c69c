// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/kit/Picture.h>

#include <QDataStream>
#include <QImage>
#include <QPainter>

#include <memory>

namespace {

using Panorel::Kit::Picture;
using Panorel::Kit::WindowState;

const QSize thumbnail(320, 200);

// Rounded rectangles with labels, as many as there are dock widgets and as large.
class Boxes
{
public:
    explicit Boxes(int count)
        : m_count(count)
    {}

    void paint(QPainter& painter) const
    {
        constexpr int columns = 10;
        const int rows = (m_count + columns - 1) / columns;
        const QSizeF size(qreal(thumbnail.width()) / columns, qreal(thumbnail.height()) / rows);
        QFont font = painter.font();
        font.setPixelSize(8);
        painter.setFont(font);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::lightGray);
        for (int i = 0; i < m_count; ++i) {
            const int row = i / columns;
            const QRectF box(QPointF(size.width() * (i % columns), size.height() * row),
                             size - QSizeF(1, 1));
            painter.drawRoundedRect(box, 3, 3);
            painter.drawText(box, Qt::AlignCenter, QStringLiteral("dock %1").arg(i));
        }
    }

private:
    int m_count;
};

template<typename Paint>
void draw(QImage& image, Paint paint)
{
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter);
}

Figure pictureFigure(int docks)
{
    const auto image = std::make_shared<QImage>(thumbnail, QImage::Format_ARGB32_Premultiplied);
    Windows windows(1, docks);
    const QByteArray bytes = windows.save().first();
    Figure figure;
    figure.name = QStringLiteral("picture of %1 docks at 320 x 200").arg(docks);
    figure.goal = docks == 80 ? 2 : 0;
    figure.steps = {{QStringLiteral("picture by docks"), double(docks)}};
    figure.subject = [image, bytes] {
        const Picture picture((WindowState(bytes)));
        draw(*image, [&](QPainter& painter) { picture.paint(painter, image->rect()); });
    };
    figure.baseline = [image, docks] {
        draw(*image, [&](QPainter& painter) { Boxes(docks).paint(painter); });
    };
    figure.check = [bytes] { return Picture(WindowState(bytes)).parts().size() > 4; };
    return figure;
}

// All dock widgets beside and below each other, so that each is drawn with its name.
QByteArray gridState(int docks)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    constexpr int rows = 8;
    stream << 255 << 0 << quint8(0xFD) << 1 << 0 << QSize(1900, 1100);
    stream << quint8(0xFC) << quint8(Qt::Vertical) << rows;
    for (int row = 0; row < rows; ++row) {
        stream << quint8(0xFC) << row * 130 << 124 << 0 << 0;
        stream << quint8(0xFC) << quint8(Qt::Horizontal) << docks / rows;
        for (int i = 0; i < docks / rows; ++i)
            stream << quint8(0xFB) << QStringLiteral("dock %1").arg(row * (docks / rows) + i)
                   << quint8(1) << i * 190 << 184 << 0 << 0;
    }
    stream << QSize(0, 0) << 4 << 4 << 8 << 8;
    return bytes;
}

Figure gridFigure(int docks)
{
    const auto image = std::make_shared<QImage>(thumbnail, QImage::Format_ARGB32_Premultiplied);
    const QByteArray bytes = gridState(docks);
    Figure figure;
    figure.name = QStringLiteral("picture of %1 docks in a grid at 320 x 200").arg(docks);
    figure.goal = 2;
    figure.subject = [image, bytes] {
        const Picture picture((WindowState(bytes)));
        draw(*image, [&](QPainter& painter) { picture.paint(painter, image->rect()); });
    };
    figure.baseline = [image, docks] {
        draw(*image, [&](QPainter& painter) { Boxes(docks).paint(painter); });
    };
    figure.check = [bytes, docks] { return Picture(WindowState(bytes)).parts().size() == docks; };
    return figure;
}

} // namespace

QVector<Figure> pictureFigures()
{
    return {pictureFigure(10), pictureFigure(20), pictureFigure(80), gridFigure(80)};
}
