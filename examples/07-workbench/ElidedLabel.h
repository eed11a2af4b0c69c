// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/** One line of text, shortened where there is no room for it; the tool tip has it whole. */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setPlainText(const QString& text);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
