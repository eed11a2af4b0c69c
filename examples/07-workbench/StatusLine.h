// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class ElidedLabel;
class QAction;
class QStatusBar;
class QToolButton;

/** Says in a status bar what has just happened, how to undo it, and which layout is active. */
class StatusLine : public QObject
{
    Q_OBJECT

public:
    explicit StatusLine(QStatusBar& bar);

    void setUndoAction(QAction* action);

    /** For screen readers too. */
    void tell(const QString& message);
    /** @param view empty if none is active. */
    void showActive(const QString& group, const QString& view);

    QString message() const;
    QToolButton* undoButton() const { return m_undo; }

private:
    ElidedLabel* m_message;
    QToolButton* m_undo;
    ElidedLabel* m_active;
};
