// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QStringList>
#include <QTabBar>
#include <QToolBar>

namespace Panorel::Tests {

inline QString textOf(const QRect& rect)
{
    return "%1,%2 %3x%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

/**
 * All that a user sees of the arrangement of @p window, which must be shown, a line for each part:
 * place, size, visibility and area of each dock widget and tool bar, of whatever tab bars there are
 * the tabs and the one in front, and the corners.
 */
inline QStringList shownArrangement(QMainWindow& window)
{
    QCoreApplication::processEvents();
    QStringList shown;
    for (const QDockWidget* const dock : window.findChildren<QDockWidget*>()) {
        shown += "dock '%1' area %2 %3%4%5"_s.arg(dock->objectName())
                     .arg(window.dockWidgetArea(const_cast<QDockWidget*>(dock)))
                     .arg(textOf(dock->isHidden() ? QRect() : dock->geometry()))
                     .arg(dock->isHidden() ? " closed"_s : QString())
                     .arg(dock->isFloating() ? " floating"_s : QString());
        if (dock->parentWidget() != &window)
            shown.last() += " in "_s + textOf(dock->parentWidget()->geometry());
    }
    for (const QToolBar* const bar : window.findChildren<QToolBar*>()) {
        shown += "bar '%1' area %2 %3%4%5"_s.arg(bar->objectName())
                     .arg(window.toolBarArea(const_cast<QToolBar*>(bar)))
                     .arg(textOf(bar->isHidden() ? QRect() : bar->geometry()))
                     .arg(bar->isHidden() ? " closed"_s : QString())
                     .arg(window.toolBarBreak(const_cast<QToolBar*>(bar)) ? " break"_s : QString());
    }
    for (const QTabBar* const tabs : window.findChildren<QTabBar*>()) {
        // A tab group of nothing but empty places has a tab bar without tabs.
        if (!tabs->isVisible() || tabs->count() == 0)
            continue;
        QStringList texts;
        for (int i = 0; i < tabs->count(); ++i)
            texts += tabs->tabText(i);
        shown += "tabs %1 front %2"_s.arg(texts.join(QLatin1Char('|'))).arg(tabs->currentIndex());
    }
    for (const Qt::Corner corner :
         {Qt::TopLeftCorner, Qt::TopRightCorner, Qt::BottomLeftCorner, Qt::BottomRightCorner})
        shown += "corner %1: %2"_s.arg(corner).arg(window.corner(corner));
    shown.sort();
    return shown;
}

} // namespace Panorel::Tests
