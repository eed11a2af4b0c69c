// SPDX-License-Identifier: MIT
#include "Picture.h"

#include <QApplication>
#include <QDockWidget>
#include <QImage>
#include <QMainWindow>
#include <QPainter>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int captionHeight = 22;
constexpr int margin = 12;

// A dock widget has a title bar of its own where Qt does not leave it to a window manager.
bool drawsItsTitle(const QWidget& widget)
{
    const auto* dock = qobject_cast<const QDockWidget*>(&widget);
    return dock && dock->widget()->y() > captionHeight / 2;
}

bool isPopup(const QWidget& widget)
{
    return widget.windowType() == Qt::Popup || widget.windowType() == Qt::ToolTip;
}

QRect frameOf(const QWidget& widget)
{
    const int above = drawsItsTitle(widget) || isPopup(widget) ? 1 : captionHeight;
    return QRect(widget.mapToGlobal(QPoint()), widget.size()).adjusted(-1, -above, 1, 1);
}

void paintWindow(QPainter& painter, const QWidget& widget)
{
    const QRect frame = frameOf(widget);
    painter.fillRect(frame, QColor(0x4a, 0x5a, 0x6a));
    if (!drawsItsTitle(widget) && !isPopup(widget)) {
        painter.setPen(Qt::white);
        painter.drawText(QRect(frame.topLeft(), QSize(frame.width(), captionHeight)),
                         Qt::AlignCenter, widget.windowTitle());
    }
    // QWidget::grab() lays the widget out first, hence not const.
    painter.drawPixmap(widget.mapToGlobal(QPoint()), const_cast<QWidget&>(widget).grab());
}

QImage pictureOf(const QVector<const QWidget*>& shown)
{
    QRect bounds;
    for (const QWidget* widget : shown)
        bounds |= frameOf(*widget);
    bounds.adjust(-margin, -margin, margin, margin);

    const qreal ratio = shown.first()->devicePixelRatioF();
    QImage picture(bounds.size() * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(QColor(0xd8, 0xdc, 0xe2));
    QPainter painter(&picture);
    painter.setFont(shown.first()->font());
    painter.translate(-bounds.topLeft());
    for (const QWidget* widget : shown)
        paintWindow(painter, *widget);
    return picture;
}

// What lies over what: main windows, what floats beside them, dialogs, menus.
int height(const QWidget& widget)
{
    if (isPopup(widget))
        return 3;
    if (widget.windowType() == Qt::Dialog || widget.windowType() == Qt::Sheet)
        return 2;
    return qobject_cast<const QMainWindow*>(&widget) ? 0 : 1;
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
    return pictureOf(shown);
}

QImage pictureOfAll()
{
    QVector<const QWidget*> shown;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->isVisible() && window->windowHandle())
            shown.append(window);
    }
    const auto lower = [](const QWidget* one, const QWidget* other) {
        if (height(*one) != height(*other))
            return height(*one) < height(*other);
        // A sub-menu over its menu.
        return other->parentWidget() == one;
    };
    std::stable_sort(shown.begin(), shown.end(), lower);
    return pictureOf(shown);
}
