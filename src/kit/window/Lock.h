// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QToolBar;

namespace Panorel::Kit::Detail {

class Keeper;
class WindowOwner;
class Windows;
struct Actions;

/**
 * Keeps users from rearranging windows by accident: dock widgets cannot be moved, floated or closed
 * by their title bars and tabs, tool bars have no handle, and floating parts stay where they are.
 * Menus still show and hide them, and layouts can still be switched.
 *
 * What a part allowed before it allows again afterwards. If the application sets a dock widget's
 * features meanwhile, the part gets those instead, as long as they name one of what the lock takes
 * away; otherwise it keeps those of before, as the two cannot be told apart.
 */
class Lock : public QObject
{
    Q_OBJECT

public:
    /** All must outlive this object. */
    Lock(WindowOwner& owner, Windows& windows, Keeper& keeper, const Actions& actions);
    /** Unlocks. */
    ~Lock() override;

    bool isLocked() const { return m_isLocked; }
    void setLocked(bool locked);

Q_SIGNALS:
    void lockedChanged(bool locked);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void load();
    void store();
    void lockAll();
    void lockSoon();
    void lockParts(QMainWindow& window);
    void lockDock(QDockWidget& dock);
    void lockBar(QToolBar& bar);
    void unlockAll();
    void onFeaturesChanged(QDockWidget& dock, QDockWidget::DockWidgetFeatures features);
    void onMovableChanged(QToolBar& bar, bool movable);

    WindowOwner& m_owner;
    Keeper& m_keeper;
    QAction& m_action;
    bool m_isLocked = false;
    bool m_locksSoon = false;
    /** What the locked parts allow when they are not. */
    QHash<QDockWidget*, QDockWidget::DockWidgetFeatures> m_docks;
    QHash<QToolBar*, bool> m_bars;
};

} // namespace Panorel::Kit::Detail
