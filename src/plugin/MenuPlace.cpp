// SPDX-License-Identifier: MIT
#include "MenuPlace.h"

#include "HelpMenu.h"

#include <panorel/kit/Layouts.h>

#include <QEvent>

#include <utility>

namespace Panorel::Plugin {

QMenuBar* menuBarOf(const QMainWindow& window)
{
    if (auto* const bar = qobject_cast<QMenuBar*>(window.menuWidget()))
        return bar;
    // It may be in a widget of the program's own, or in no layout at all.
    if (window.menuWidget())
        return window.menuWidget()->findChild<QMenuBar*>();
    return window.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
}

MenuPlace::MenuPlace(QMainWindow& window, Kit::Layouts& layouts)
    : m_widget(&window)
    , m_layouts(layouts)
    , m_buttonBar(window, layouts)
{
    window.installEventFilter(this);
    place();
}

MenuPlace::~MenuPlace()
{
    delete m_menu;
}

bool MenuPlace::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
        if (watched == m_bar)
            placeSoon();
        break;
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
        // The menu bar may be another one.
        if (watched == m_widget)
            placeSoon();
        break;
    default:
        break;
    }
    return false;
}

// Once the program has done all that it does to its menus.
void MenuPlace::placeSoon()
{
    if (std::exchange(m_placesSoon, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_placesSoon = false;
            place();
        },
        Qt::QueuedConnection);
}

void MenuPlace::place()
{
    if (!window())
        return;
    QMenuBar* const bar = menuBarOf(*window());
    if (!bar)
        return;
    if (bar != m_bar || !m_menu)
        makeMenu(*bar);
    QAction* const help = helpEntry(*bar);
    const QList<QAction*> entries = bar->actions();
    const int index = entries.indexOf(m_menu->menuAction());
    const bool isInPlace = index >= 0 && (!help || entries.value(index + 1) == help);
    if (!isInPlace)
        bar->insertMenu(help, m_menu);
}

void MenuPlace::makeMenu(QMenuBar& bar)
{
    delete m_menu;
    if (m_bar)
        m_bar->removeEventFilter(this);
    m_bar = &bar;
    m_menu = m_layouts.createMenu(&bar);
    m_menu->addSeparator();
    m_menu->addAction(m_buttonBar.entry());
    bar.installEventFilter(this);
}

} // namespace Panorel::Plugin
