// SPDX-License-Identifier: MIT
#include "WindowWatch.h"

#include "Giver.h"

#include <panorel/kit/WindowState.h>

#include <QDockWidget>
#include <QEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

#include <utility>

namespace Panorel::Kit::Detail {

namespace {

// How long after it has appeared a window may still be brought to its real size by the desktop.
constexpr int settlingTime = 500;

// All but the sizes, which the window changes by itself while it gets its own.
QStringList arrangementOf(const QByteArray& bytes)
{
    const WindowState state(bytes);
    QStringList arrangement;
    const auto docks = state.dockWidgets();
    for (const WindowState::DockWidget& dock : docks)
        arrangement += dock.name + QStringLiteral(" %1 %2 %3 %4")
                                       .arg(dock.area)
                                       .arg(dock.isVisible)
                                       .arg(dock.isFloating)
                                       .arg(dock.tab ? dock.tab->isFront : false);
    const auto bars = state.toolBars();
    for (const WindowState::ToolBar& bar : bars)
        arrangement +=
            bar.name + QStringLiteral(" %1 %2 %3").arg(bar.area).arg(bar.line).arg(bar.isVisible);
    return arrangement;
}

} // namespace

WindowWatch::WindowWatch(const QString& id, QMainWindow& window, Giver& giver)
    : m_id(id)
    , m_widget(&window)
    , m_giver(giver)
{
    window.installEventFilter(this);
    watchParts();
    if (window.windowHandle())
        window.windowHandle()->installEventFilter(this);
    if (isOnScreen())
        settleSoon();
}

WindowWatch::~WindowWatch() = default;

void WindowWatch::setGeometry(const QByteArray& geometry)
{
    m_geometry = geometry;
    if (window() && !geometry.isEmpty())
        (void)window()->restoreGeometry(geometry); // One that is refused changes nothing.
}

void WindowWatch::setState(const QByteArray& state)
{
    if (!window() || state.isEmpty())
        return;
    m_giver.giveTo(*window(), state);
}

void WindowWatch::noteGiven(const QByteArray& state)
{
    m_state = state;
    if (!m_isSettling)
        return;
    m_pending = state;
    m_shown = arrangementOf(m_giver.stateOf(*window()));
}

QByteArray WindowWatch::state()
{
    // Out of sight it does not have its real size, so what it is to get tells more than it does.
    if (window() && !isClosed()) {
        const bool showsIt = m_pending.isEmpty() || isOnScreen() || isRearranged();
        m_state = showsIt ? m_giver.stateOf(*window()) : m_pending;
    }
    return m_state;
}

QByteArray WindowWatch::geometry()
{
    if (window() && !isClosed() && (window()->isVisible() || m_geometry.isEmpty()))
        m_geometry = window()->saveGeometry();
    return m_geometry;
}

bool WindowWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (!window())
        return false;
    if (watched == m_widget)
        windowEvent(event);
    else if (watched == window()->windowHandle()) {
        if (event->type() == QEvent::Expose && m_isSettling)
            settleSoon();
    } else
        partEvent(event);
    return false;
}

void WindowWatch::windowEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        // Installing it once more moves it to the front only.
        window()->windowHandle()->installEventFilter(this);
        m_wasClosed = false;
        break;
    case QEvent::Close:
        // Kept as they are now, whatever is asked for later.
        (void)state();
        (void)geometry();
        if (!m_beforeClosing.isEmpty())
            m_state = m_beforeClosing;
        m_wasClosed = true;
        Q_EMIT closing();
        break;
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        if (m_isSettling)
            settleSoon();
        Q_EMIT touched();
        break;
    case QEvent::Move:
    case QEvent::LayoutRequest:
        Q_EMIT touched();
        break;
    case QEvent::ChildPolished:
        watchParts();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        endSettling();
        break;
    default:
        break;
    }
}

void WindowWatch::partEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Close:
        keepBeforeClosing();
        break;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        if (!m_isGiving)
            Q_EMIT touched();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        endSettling();
        break;
    default:
        break;
    }
}

void WindowWatch::watchParts()
{
    const auto children = window()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (qobject_cast<QDockWidget*>(child) || qobject_cast<QToolBar*>(child))
            child->installEventFilter(this);
    }
}

bool WindowWatch::isOnScreen() const
{
    return window() && window()->isVisible() && !window()->isMinimized() &&
           window()->windowHandle() && window()->windowHandle()->isExposed();
}

// Once the window has handled the event itself.
void WindowWatch::settleSoon()
{
    if (std::exchange(m_settlesSoon, true))
        return;
    QTimer::singleShot(0, this, &WindowWatch::settle);
}

void WindowWatch::settle()
{
    m_settlesSoon = false;
    if (!isOnScreen() || !m_isSettling)
        return;
    if (!m_pending.isEmpty() && !isRearranged()) {
        const QScopedValueRollback<bool> giving(m_isGiving, true);
        m_giver.giveTo(*window(), m_pending);
    }
    QTimer::singleShot(settlingTime, this, &WindowWatch::endSettling);
}

void WindowWatch::endSettling()
{
    if (!isOnScreen())
        return;
    m_isSettling = false;
    m_pending.clear();
}

// When all windows are closed, floating dock widgets may be closed before the window, at once.
void WindowWatch::keepBeforeClosing()
{
    if (!m_beforeClosing.isEmpty())
        return;
    m_beforeClosing = state();
    // A deleted object tells when control returns to the event loop, because the event loop of a
    // dialog such as "Save changes?" does not delete it.
    auto* closing = new QObject(this);
    connect(closing, &QObject::destroyed, this, [this] { m_beforeClosing.clear(); });
    closing->deleteLater();
}

bool WindowWatch::isClosed() const
{
    // A window may refuse to be closed.
    return m_wasClosed && !window()->isVisible();
}

bool WindowWatch::isRearranged()
{
    return arrangementOf(m_giver.stateOf(*window())) != m_shown;
}

} // namespace Panorel::Kit::Detail
