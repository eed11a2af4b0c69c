// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

namespace Panorel::Kit::Detail {

class Giver;

/**
 * Watches one window: when it is on the screen at its real size, to get its layout for good then;
 * when its user rearranges it; and when it is closed, because Qt closes floating dock widgets with
 * the last window, before the program has ended.
 */
class WindowWatch : public QObject
{
    Q_OBJECT

public:
    WindowWatch(const QString& id, QMainWindow& window, Giver& giver);
    ~WindowWatch() override;

    QString id() const { return m_id; }
    /** Null as soon as the window is being destroyed. */
    QMainWindow* window() const { return qobject_cast<QMainWindow*>(m_widget.data()); }

    /** Size and place at the start, of saveGeometry(). Qt moves them to a screen that is there. */
    void setGeometry(const QByteArray& geometry);
    /** Gives the window @p state now, so that it appears with it, and again when it has its real
        size. */
    void setState(const QByteArray& state);
    /** The window has got @p state from elsewhere. */
    void noteGiven(const QByteArray& state);

    /** What the window shows, or showed when it was closed. */
    QByteArray state();
    /** Its saveGeometry(), or what that was. */
    QByteArray geometry();

Q_SIGNALS:
    /** Something in the window may have been rearranged. */
    void touched();
    /** It is about to be closed, if it agrees. */
    void closing();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchParts();
    void windowEvent(QEvent* event);
    void partEvent(QEvent* event);
    bool isOnScreen() const;
    void settleSoon();
    void settle();
    void endSettling();
    void keepBeforeClosing();
    bool isClosed() const;
    bool isRearranged();

    QString m_id;
    // Not of a main window, which it is no longer while its parts are destroyed.
    QPointer<QWidget> m_widget;
    Giver& m_giver;
    /** What it is to get at its real size; empty if it has it. */
    QByteArray m_pending;
    /** How it was arranged right after it got that. */
    QStringList m_shown;
    QByteArray m_state;
    /** What m_state was before the first dock widget was closed, until control returns to the event
        loop. */
    QByteArray m_beforeClosing;
    QByteArray m_geometry;
    bool m_isSettling = true;
    bool m_settlesSoon = false;
    bool m_isGiving = false;
    bool m_wasClosed = false;
};

} // namespace Panorel::Kit::Detail
