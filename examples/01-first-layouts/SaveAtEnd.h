// SPDX-License-Identifier: MIT
#pragma once

//! [save-at-end]
#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QPointer>

#include <algorithm>
#include <functional>

// Calls a function before each window is closed and before the program ends. Qt closes floating
// dock widgets, too, when a program ends, in any order and before exec() returns. So the layouts
// must be saved before the first window is closed. Create it after QApplication.
class SaveAtEnd : public QObject
{
public:
    explicit SaveAtEnd(const std::function<void()>& save)
        : m_save(save)
    {
        qApp->installEventFilter(this);
        connect(qApp, &QGuiApplication::commitDataRequest, this, &SaveAtEnd::saveOnce);
        connect(qApp, &QCoreApplication::aboutToQuit, this, &SaveAtEnd::saveOnce);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (widget && event->type() == QEvent::Close) {
            // Main windows and floating dock widgets, but not dialogs.
            const Qt::WindowType type = widget->windowType();
            if (type == Qt::Window || type == Qt::Tool)
                saveOnce();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void saveOnce()
    {
        // Without a visible main window, Qt is closing the rest. What was saved before is right.
        if (m_saved || !isAnyMainWindowVisible())
            return;
        // What is closed together is saved once. A deleted object tells when the event loop goes
        // on, because the event loop of a dialog such as "Save changes?" does not delete it.
        m_saved = new QObject(this);
        m_saved->deleteLater();
        m_save();
    }

    static bool isAnyMainWindowVisible()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
            return window->isVisible() && qobject_cast<const QMainWindow*>(window);
        });
    }

    std::function<void()> m_save;
    QPointer<QObject> m_saved;
};
//! [save-at-end]
