// SPDX-License-Identifier: MIT
#include "Lock.h"

#include "Actions.h"
#include "Keeper.h"
#include "Parts.h"
#include "WindowOwner.h"
#include "Windows.h"

#include <QAction>
#include <QMainWindow>
#include <QMouseEvent>
#include <QTabBar>
#include <QToolBar>

#include <utility>

namespace Panorel::Kit::Detail {

namespace {

const QLatin1String lockedKey("locked");

constexpr QDockWidget::DockWidgetFeatures lockedFeatures = QDockWidget::DockWidgetMovable |
                                                           QDockWidget::DockWidgetFloatable |
                                                           QDockWidget::DockWidgetClosable;

// Qt turns the entry in the window's menu on and off with the feature to be closed.
void setFeatures(QDockWidget& dock, QDockWidget::DockWidgetFeatures features)
{
    const bool isEnabled = dock.toggleViewAction()->isEnabled();
    dock.setFeatures(features);
    dock.toggleViewAction()->setEnabled(isEnabled);
}

// What a floating part does without any feature: Qt drags it, and desktops close it.
bool isRefused(const QWidget& part, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::Close:
        // Not by the program, which may be closing all its windows.
        return part.isWindow() && event.spontaneous();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonDblClick:
        return part.isWindow();
    case QEvent::MouseMove:
        // Tabs are dragged out of their bar and inside it.
        return qobject_cast<const QTabBar*>(&part) &&
               static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
    default:
        return false;
    }
}

} // namespace

Lock::Lock(WindowOwner& owner, Windows& windows, Keeper& keeper, const Actions& actions)
    : m_owner(owner)
    , m_keeper(keeper)
    , m_action(*actions.lock)
{
    m_action.setText(tr("Loc&k Layout"));
    m_action.setToolTip(tr("Nothing can be moved, floated or closed by accident"));
    m_action.setCheckable(true);
    m_action.setEnabled(true);
    connect(&m_action, &QAction::toggled, this, &Lock::setLocked);
    connect(&windows, &Windows::added, this, &Lock::lockAll);
    connect(&keeper, &Keeper::loaded, this, &Lock::load);
}

Lock::~Lock()
{
    unlockAll();
    m_action.setEnabled(false);
}

void Lock::setLocked(bool locked)
{
    if (std::exchange(m_isLocked, locked) == locked)
        return;
    m_action.setChecked(locked);
    if (locked)
        lockAll();
    else
        unlockAll();
    store();
    Q_EMIT lockedChanged(locked);
}

bool Lock::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_isLocked)
        return false;
    if (qobject_cast<QMainWindow*>(watched)) {
        if (event->type() == QEvent::ChildAdded || event->type() == QEvent::LayoutRequest)
            lockSoon();
        return false;
    }
    const bool refused = isRefused(*qobject_cast<QWidget*>(watched), *event);
    if (refused)
        event->ignore();
    return refused;
}

void Lock::load()
{
    const QJsonValue locked = m_keeper.settings().value(lockedKey);
    if (locked.isBool())
        setLocked(locked.toBool());
    store();
}

void Lock::store()
{
    if (m_isLocked || m_keeper.settings().contains(lockedKey))
        m_keeper.set(lockedKey, m_isLocked);
}

void Lock::lockAll()
{
    m_locksSoon = false;
    if (!m_isLocked)
        return;
    const QList<ManagedWindow> windows = m_owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (managed.window)
            lockParts(*managed.window);
    }
}

// What has come is no dock widget or tool bar yet while it is being constructed.
void Lock::lockSoon()
{
    if (!std::exchange(m_locksSoon, true))
        QMetaObject::invokeMethod(this, &Lock::lockAll, Qt::QueuedConnection);
}

void Lock::lockParts(QMainWindow& window)
{
    window.installEventFilter(this);
    const QList<QWidget*> groups = Parts::floatingTabGroups(window);
    QList<QTabBar*> tabBars = window.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* group : groups) {
        group->installEventFilter(this);
        tabBars += group->findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    }
    for (QTabBar* tabs : qAsConst(tabBars)) {
        if (tabs != window.centralWidget())
            tabs->installEventFilter(this);
    }
    const QList<QWidget*> docks = Parts::dockWidgets(window);
    for (QWidget* dock : docks)
        lockDock(*static_cast<QDockWidget*>(dock));
    const QList<QWidget*> bars = Parts::toolBars(window);
    for (QWidget* bar : bars)
        lockBar(*static_cast<QToolBar*>(bar));
}

void Lock::lockDock(QDockWidget& dock)
{
    if (m_docks.contains(&dock))
        return;
    m_docks.insert(&dock, dock.features());
    dock.installEventFilter(this);
    connect(&dock, &QDockWidget::featuresChanged, this,
            [this, &dock](QDockWidget::DockWidgetFeatures features) {
                onFeaturesChanged(dock, features);
            });
    connect(&dock, &QObject::destroyed, this, [this, &dock] { m_docks.remove(&dock); });
    setFeatures(dock, dock.features() & ~lockedFeatures);
}

void Lock::lockBar(QToolBar& bar)
{
    if (m_bars.contains(&bar))
        return;
    m_bars.insert(&bar, bar.isMovable());
    bar.installEventFilter(this);
    connect(&bar, &QToolBar::movableChanged, this,
            [this, &bar](bool movable) { onMovableChanged(bar, movable); });
    connect(&bar, &QObject::destroyed, this, [this, &bar] { m_bars.remove(&bar); });
    bar.setMovable(false);
}

void Lock::unlockAll()
{
    // A receiver of their signals may destroy parts.
    const QList<QDockWidget*> docks = m_docks.keys();
    for (QDockWidget* dock : docks) {
        if (!m_docks.contains(dock))
            continue;
        disconnect(dock, nullptr, this, nullptr);
        setFeatures(*dock, m_docks.take(dock));
    }
    const QList<QToolBar*> bars = m_bars.keys();
    for (QToolBar* bar : bars) {
        if (!m_bars.contains(bar))
            continue;
        disconnect(bar, nullptr, this, nullptr);
        bar->setMovable(m_bars.take(bar));
    }
}

void Lock::onFeaturesChanged(QDockWidget& dock, QDockWidget::DockWidgetFeatures features)
{
    const QDockWidget::DockWidgetFeatures before = m_docks.value(&dock);
    const bool isMeant = (features & lockedFeatures) != 0;
    m_docks.insert(&dock, isMeant ? features : features | (before & lockedFeatures));
    if (isMeant)
        setFeatures(dock, features & ~lockedFeatures);
}

void Lock::onMovableChanged(QToolBar& bar, bool movable)
{
    if (!movable)
        return;
    m_bars.insert(&bar, true);
    bar.setMovable(false);
}

} // namespace Panorel::Kit::Detail
