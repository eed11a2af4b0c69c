// SPDX-License-Identifier: MIT
#include "MenuEdit.h"

#include <QKeyEvent>

namespace Panorel {

MenuEdit::MenuEdit(const QString& text, QWidget* parent)
    : QLineEdit(parent)
{
    setText(text);
}

void MenuEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const QString input = text();
    setText(QString());
    // Last, because the receiver may delete this field.
    Q_EMIT inputAccepted(input);
}

} // namespace Panorel
