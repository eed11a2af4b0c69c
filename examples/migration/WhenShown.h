// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QList>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <functional>

//! [when-shown]
// Calls a function once, as soon as all windows are on the screen at their real size. To be made
// after their show(), on the heap; it deletes itself. The windows must live until then.
class WhenShown : public QObject
{
public:
    WhenShown(const QList<QWidget*>& windows, const std::function<void()>& function)
        : m_function(function)
    {
        for (const QWidget* window : windows) {
            window->windowHandle()->installEventFilter(this);
            m_windows.append(window->windowHandle());
        }
        callIfShown();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose)
            callIfShown();
        return QObject::eventFilter(watched, event);
    }

private:
    void callIfShown()
    {
        for (const QWindow* window : qAsConst(m_windows)) {
            if (!window->isExposed())
                return;
        }
        for (QWindow* window : qAsConst(m_windows))
            window->removeEventFilter(this);
        // Once the windows have handled the event themselves.
        QTimer::singleShot(0, this, [this] {
            m_function();
            deleteLater();
        });
    }

    QList<QWindow*> m_windows;
    std::function<void()> m_function;
};
//! [when-shown]
