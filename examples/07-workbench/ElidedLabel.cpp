// SPDX-License-Identifier: MIT
#include "ElidedLabel.h"

#include <QPainter>

void ElidedLabel::setPlainText(const QString& text)
{
    setTextFormat(Qt::PlainText);
    setText(text);
    setToolTip(QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()));
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 4, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
}
