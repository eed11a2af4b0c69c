// SPDX-License-Identifier: MIT
#include "PartPlaces.h"

#include <QAction>
#include <QDockWidget>
#include <QJsonArray>
#include <QJsonDocument>
#include <QToolBar>
#include <QVariant>

#include <algorithm>

namespace Panorel::Tests {

namespace {

constexpr auto keyProperty = "_try_key";

QString windowKey()
{
    return QStringLiteral("window");
}

QJsonArray rectangle(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

template<typename Part>
QList<Part*> partsOf(const QMainWindow& window)
{
    QList<Part*> parts = window.findChildren<Part*>(QString(), Qt::FindDirectChildrenOnly);
    const auto children = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children) {
        if (child->inherits("QDockWidgetGroupWindow"))
            parts += child->findChildren<Part*>(QString(), Qt::FindDirectChildrenOnly);
    }
    return parts;
}

template<typename Part>
void sortByKey(QList<Part*>& parts)
{
    std::stable_sort(parts.begin(), parts.end(), [](const Part* a, const Part* b) {
        return a->property(keyProperty).toString() < b->property(keyProperty).toString();
    });
}

} // namespace

PartPlaces::PartPlaces(QMainWindow& window)
    : m_window(window)
{}

QList<QDockWidget*> PartPlaces::dockWidgets() const
{
    QList<QDockWidget*> docks = partsOf<QDockWidget>(m_window);
    for (QDockWidget* dock : docks)
        (void)keyOf(*dock);
    sortByKey(docks);
    return docks;
}

QList<QToolBar*> PartPlaces::toolBars() const
{
    QList<QToolBar*> bars;
    const QList<QToolBar*> all = partsOf<QToolBar>(m_window);
    for (QToolBar* bar : all) {
        if (m_window.toolBarArea(bar) == Qt::NoToolBarArea)
            continue;
        (void)keyOf(*bar);
        bars.append(bar);
    }
    sortByKey(bars);
    return bars;
}

QString PartPlaces::keyOf(QWidget& part) const
{
    const QString known = part.property(keyProperty).toString();
    if (!known.isEmpty())
        return known;
    const QLatin1String kind(qobject_cast<QToolBar*>(&part) ? "bar " : "dock ");
    QString key = kind + part.objectName();
    // The order of a window's children is not the same in every run, but names are.
    if (part.objectName().isEmpty() ||
        m_window.findChildren<QWidget*>(part.objectName()).size() > 1) {
        const int number = m_window.property(keyProperty).toInt() + 1;
        m_window.setProperty(keyProperty, number);
        key += QStringLiteral("%1 %2").arg(part.windowTitle()).arg(number);
    }
    part.setProperty(keyProperty, key);
    return key;
}

QJsonObject PartPlaces::describe() const
{
    QJsonObject all{{windowKey(), QJsonObject{{QStringLiteral("size"),
                                               QJsonArray{m_window.width(), m_window.height()}}}}};
    const QList<QDockWidget*> docks = dockWidgets();
    for (QDockWidget* dock : docks)
        all.insert(keyOf(*dock), describe(*dock));
    const QList<QToolBar*> bars = toolBars();
    for (QToolBar* bar : bars)
        all.insert(keyOf(*bar), describe(*bar));
    return all;
}

QJsonObject PartPlaces::describe(QDockWidget& dock) const
{
    const bool isOpen = !dock.isHidden();
    QJsonObject place{{QStringLiteral("open"), isOpen}};
    // Where a closed one is, nobody sees.
    if (!isOpen)
        return place;
    place.insert(QStringLiteral("floating"), dock.isFloating());
    if (dock.isFloating()) {
        place.insert(QStringLiteral("geometry"), rectangle(dock.geometry()));
        return place;
    }
    place.insert(QStringLiteral("area"), int(m_window.dockWidgetArea(&dock)));
    QStringList tabs;
    const QList<QDockWidget*> others = m_window.tabifiedDockWidgets(&dock);
    for (QDockWidget* other : others) {
        if (!other->isHidden())
            tabs.append(keyOf(*other));
    }
    tabs.sort();
    place.insert(QStringLiteral("tabs"), tabs.join(QLatin1String(", ")));
    // Those that are not in front are outside of the window.
    const bool isInFront = tabs.isEmpty() || dock.geometry().right() >= 0;
    place.insert(QStringLiteral("front"), isInFront);
    if (isInFront)
        place.insert(QStringLiteral("geometry"), rectangle(dock.geometry()));
    return place;
}

QJsonObject PartPlaces::describe(QToolBar& bar) const
{
    const bool isOpen = !bar.isHidden();
    QJsonObject place{{QStringLiteral("open"), isOpen}};
    if (!isOpen)
        return place;
    place.insert(QStringLiteral("floating"), bar.isFloating());
    place.insert(QStringLiteral("area"), int(m_window.toolBarArea(&bar)));
    place.insert(QStringLiteral("break"), m_window.toolBarBreak(&bar));
    place.insert(QStringLiteral("geometry"), rectangle(bar.geometry()));
    return place;
}

bool PartPlaces::isResized(const QJsonObject& expected, const QJsonObject& actual)
{
    return expected.value(windowKey()) != actual.value(windowKey());
}

QStringList PartPlaces::differences(const QJsonObject& expected, const QJsonObject& actual)
{
    QStringList found;
    const bool resized = isResized(expected, actual);
    const auto text = [](const QJsonValue& value) {
        return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    };
    for (auto part = expected.begin(); part != expected.end(); ++part) {
        const QJsonObject before = part.value().toObject();
        const QJsonObject after = actual.value(part.key()).toObject();
        for (auto property = before.begin(); property != before.end(); ++property) {
            const QJsonValue other = after.value(property.key());
            const bool followsWindow = property.key() == QLatin1String("size") ||
                                       (property.key() == QLatin1String("geometry") &&
                                        !before.value(QLatin1String("floating")).toBool());
            if (other != property.value() && !(resized && followsWindow))
                found.append(
                    QStringLiteral("%1: %2 %3, was %4")
                        .arg(part.key(), property.key(), text(other), text(property.value())));
        }
    }
    return found;
}

} // namespace Panorel::Tests
