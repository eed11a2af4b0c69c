// SPDX-License-Identifier: MIT
#include "Arrangement.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

#include <algorithm>

namespace {

QString areaName(int area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return QStringLiteral("left");
    case Qt::RightDockWidgetArea:
        return QStringLiteral("right");
    case Qt::TopDockWidgetArea:
        return QStringLiteral("top");
    default:
        return QStringLiteral("bottom");
    }
}

Place placeOf(const QMainWindow& window, QDockWidget& dock)
{
    Place place{dock.objectName(), QStringLiteral("closed"), QRect()};
    if (dock.isHidden())
        return place;
    if (dock.isFloating()) {
        place.where = QStringLiteral("floating");
        return place;
    }
    place.where = areaName(window.dockWidgetArea(&dock));
    QStringList neighbours;
    const auto tabs = window.tabifiedDockWidgets(&dock);
    for (const QDockWidget* tab : tabs) {
        if (!tab->isHidden())
            neighbours.append(tab->objectName());
    }
    // Only the tab on top is painted.
    const bool behind = dock.visibleRegion().isEmpty();
    if (!neighbours.isEmpty()) {
        place.where += behind ? QStringLiteral(" behind ") : QStringLiteral(" with ");
        place.where += neighbours.join(QStringLiteral(" and "));
    }
    if (!behind)
        place.geometry = dock.geometry();
    return place;
}

Place placeOf(const QMainWindow& window, QToolBar& bar)
{
    Place place{bar.objectName(), QStringLiteral("hidden"), QRect()};
    if (bar.isHidden())
        return place;
    place.where = areaName(window.toolBarArea(&bar));
    if (window.toolBarBreak(&bar))
        place.where += QStringLiteral(" on a new line");
    place.geometry = bar.geometry();
    return place;
}

template<typename Widget>
QVector<Place> placesOf(const QMainWindow& window)
{
    QVector<Place> places;
    const auto widgets = window.findChildren<Widget*>(QString(), Qt::FindDirectChildrenOnly);
    for (Widget* widget : widgets)
        places.append(placeOf(window, *widget));
    // Docking and floating change the order of the children.
    std::sort(places.begin(), places.end(),
              [](const Place& a, const Place& b) { return a.name < b.name; });
    return places;
}

QString inWords(const Place& place)
{
    if (place.geometry.isNull())
        return place.where;
    return QStringLiteral("%1 at %2,%3 size %4x%5")
        .arg(place.where)
        .arg(place.geometry.x())
        .arg(place.geometry.y())
        .arg(place.geometry.width())
        .arg(place.geometry.height());
}

} // namespace

Arrangement Arrangement::of(const QMainWindow& window)
{
    return {placesOf<QDockWidget>(window), placesOf<QToolBar>(window)};
}

QString describe(const QVector<Place>& places)
{
    QStringList words;
    for (const Place& place : places)
        words.append(place.name + QLatin1Char(' ') + place.where);
    return words.join(QStringLiteral(", "));
}

QString difference(const QVector<Place>& expected, const QVector<Place>& actual)
{
    if (expected.size() != actual.size())
        return QStringLiteral("%1 expected, %2 found").arg(expected.size()).arg(actual.size());
    QStringList words;
    for (int i = 0; i < expected.size(); ++i) {
        const QString wanted = inWords(expected[i]);
        const QString found = inWords(actual[i]);
        if (expected[i].name != actual[i].name || wanted != found)
            words.append(
                QStringLiteral("%1 should be %2, is %3").arg(expected[i].name, wanted, found));
    }
    return words.join(QStringLiteral("; "));
}
