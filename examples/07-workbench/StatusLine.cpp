// SPDX-License-Identifier: MIT
#include "StatusLine.h"

#include "ElidedLabel.h"

#include <QAccessible>
#include <QAction>
#include <QStatusBar>
#include <QToolButton>

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar)
    , m_message(new ElidedLabel)
    , m_undo(new QToolButton)
    , m_active(new ElidedLabel)
{
    m_undo->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_undo->setFocusPolicy(Qt::TabFocus);
    m_active->setContentsMargins(8, 0, 4, 0);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_active->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    bar.addWidget(m_message, 1);
    bar.addPermanentWidget(m_undo);
    bar.addPermanentWidget(m_active);
}

void StatusLine::setUndoAction(QAction* action)
{
    m_undo->setDefaultAction(action);
    const auto update = [this, action] { m_undo->setVisible(action->isEnabled()); };
    connect(action, &QAction::changed, this, update);
    update();
}

void StatusLine::tell(const QString& message)
{
    m_message->setPlainText(message);
    QAccessibleEvent event(m_message, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void StatusLine::showActive(const QString& group, const QString& view)
{
    m_active->setPlainText(view.isEmpty() ? tr("%1: no layout").arg(group)
                                          : tr("%1: %2").arg(group, view));
}

QString StatusLine::message() const
{
    return m_message->text();
}
