// SPDX-License-Identifier: MIT
#include "Picture.h"

#include <QDockWidget>
#include <QImage>
#include <QMainWindow>
#include <QPainter>

namespace {

constexpr int captionHeight = 22;
constexpr int margin = 12;

// A dock widget has a title bar of its own where Qt does not leave it to a window manager.
bool drawsItsTitle(const QWidget& widget)
{
    const auto* dock = qobject_cast<const QDockWidget*>(&widget);
    return dock && dock->widget()->y() > captionHeight / 2;
}

QRect frameOf(const QWidget& widget)
{
    const int above = drawsItsTitle(widget) ? 1 : captionHeight;
    return QRect(widget.mapToGlobal(QPoint()), widget.size()).adjusted(-1, -above, 1, 1);
}

void paintWindow(QPainter& painter, const QWidget& widget)
{
    const QRect frame = frameOf(widget);
    painter.fillRect(frame, QColor(0x4a, 0x5a, 0x6a));
    if (!drawsItsTitle(widget)) {
        painter.setPen(Qt::white);
        painter.drawText(QRect(frame.topLeft(), QSize(frame.width(), captionHeight)),
                         Qt::AlignCenter, widget.windowTitle());
    }
    // QWidget::grab() lays the widget out first, hence not const.
    painter.drawPixmap(widget.mapToGlobal(QPoint()), const_cast<QWidget&>(widget).grab());
}

} // namespace

QImage pictureOf(const QMainWindow& window)
{
    QVector<const QWidget*> shown{&window};
    const auto docks = window.findChildren<QDockWidget*>();
    for (const QDockWidget* dock : docks) {
        if (dock->isFloating() && dock->isVisible())
            shown.append(dock);
    }
    QRect bounds;
    for (const QWidget* widget : qAsConst(shown))
        bounds |= frameOf(*widget);
    bounds.adjust(-margin, -margin, margin, margin);

    QImage picture(bounds.size(), QImage::Format_RGB32);
    picture.fill(QColor(0xd8, 0xdc, 0xe2));
    QPainter painter(&picture);
    painter.setFont(window.font());
    painter.translate(-bounds.topLeft());
    for (const QWidget* widget : qAsConst(shown))
        paintWindow(painter, *widget);
    return picture;
}
