// SPDX-License-Identifier: MIT
#include "NameEdit.h"

#include <QAccessible>
#include <QToolTip>

namespace Panorel::Kit::Detail {

NameEdit::NameEdit(const Refusal& refusal, QWidget* parent)
    : QLineEdit(parent)
    , m_refusal(refusal)
    , m_reason(new QLabel(parent))
{
    setAccessibleName(tr("Name of the layout"));
    setAutoFillBackground(true);
    m_reason->setObjectName(QStringLiteral("reason"));
    m_reason->setPalette(QToolTip::palette());
    m_reason->setAutoFillBackground(true);
    m_reason->setBackgroundRole(QPalette::ToolTipBase);
    m_reason->setForegroundRole(QPalette::ToolTipText);
    m_reason->setFrameStyle(int(QFrame::Box) | QFrame::Plain);
    m_reason->setMargin(3);
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->hide();
    connect(this, &QLineEdit::textChanged, this, [this] { (void)check(); });
}

NameEdit::~NameEdit()
{
    delete m_reason;
}

bool NameEdit::check()
{
    const QString reason = m_refusal(text());
    if (!m_reason)
        return reason.isNull();
    m_reason->setVisible(!reason.isNull());
    m_reason->setText(reason);
    placeReason();
    if (reason != accessibleDescription()) {
        setAccessibleDescription(reason);
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
    return reason.isNull();
}

void NameEdit::resume(const QString& text)
{
    setText(text);
    setModified(true);
    (void)check();
}

void NameEdit::moveEvent(QMoveEvent* event)
{
    QLineEdit::moveEvent(event);
    placeReason();
}

void NameEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    placeReason();
}

// Below the field, or above it where the room ends.
void NameEdit::placeReason()
{
    if (!parentWidget() || !m_reason)
        return;
    m_reason->adjustSize();
    QRect place(QPoint(x(), geometry().bottom() + 2), m_reason->size());
    const QRect room = parentWidget()->rect();
    if (isRightToLeft())
        place.moveRight(geometry().right());
    if (place.bottom() > room.bottom())
        place.moveBottom(y() - 2);
    place.moveLeft(qBound(0, place.left(), qMax(0, room.right() - place.width())));
    m_reason->setGeometry(place);
    m_reason->raise();
}

} // namespace Panorel::Kit::Detail
