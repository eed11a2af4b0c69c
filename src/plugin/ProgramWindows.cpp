// SPDX-License-Identifier: MIT
#include "ProgramWindows.h"

#include "MenuPlace.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QToolBar>

#include <algorithm>

namespace Panorel::Plugin {

namespace {

// After a window is shown, programs may still give it their own layout.
constexpr int patience = 200;

QPointer<ProgramWindows> instance;

// Called when the application object goes, with its widgets still there.
void endInstance()
{
    if (instance)
        instance->end();
}

bool hasParts(const QMainWindow& window)
{
    const auto children = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(children.cbegin(), children.cend(), [](const QWidget* child) {
        return qobject_cast<const QDockWidget*>(child) || qobject_cast<const QToolBar*>(child);
    });
}

bool counts(const QMainWindow& window)
{
    return window.isVisible() && window.isWindow() && window.windowType() == Qt::Window &&
           !window.isModal() && hasParts(window);
}

} // namespace

ProgramWindows::ProgramWindows(bool merges)
    : m_merges(merges)
{
    // Without widgets there are no main windows.
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()) || instance)
        return;
    instance = this;
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ProgramWindows::takeNoted);
    qApp->installEventFilter(this);
    qAddPostRoutine(endInstance);
}

ProgramWindows::~ProgramWindows()
{
    if (instance == this)
        qRemovePostRoutine(endInstance);
}

void ProgramWindows::end()
{
    qApp->removeEventFilter(this);
    m_timer.stop();
    m_layouts.reset();
}

bool ProgramWindows::eventFilter(QObject* watched, QEvent* event)
{
    // Most programs have their parts when they show a window, but some make them later.
    const bool mayCount = event->type() == QEvent::Show || event->type() == QEvent::ChildPolished;
    if (mayCount && watched->isWidgetType()) {
        if (auto* const window = qobject_cast<QMainWindow*>(watched))
            note(window);
    }
    return false;
}

void ProgramWindows::note(QMainWindow* window)
{
    if (m_layouts && m_layouts->has(*window))
        return;
    if (!m_noted.contains(window))
        m_noted.append(window);
    // Not again for each part that comes meanwhile, or a window that changes all the time never
    // gets its menu.
    if (!m_timer.isActive())
        m_timer.start(patience);
}

void ProgramWindows::takeNoted()
{
    m_noted.removeAll(QPointer<QMainWindow>());
    const bool hasMenuBar = std::any_of(m_noted.cbegin(), m_noted.cend(), [](const auto& window) {
        return counts(*window) && menuBarOf(*window);
    });
    if (m_layouts || hasMenuBar)
        take();
}

void ProgramWindows::take()
{
    if (!m_layouts)
        m_layouts = std::make_unique<ProgramLayouts>(m_merges);
    const QList<QPointer<QMainWindow>> noted = m_noted;
    for (const QPointer<QMainWindow>& window : noted) {
        if (!window || !counts(*window))
            continue;
        m_noted.removeAll(window);
        m_layouts->add(*window);
    }
}

} // namespace Panorel::Plugin
