// SPDX-License-Identifier: MIT
#include "Doctor.h"

#include "Parts.h"

#include <QDockWidget>
#include <QLoggingCategory>
#include <QMainWindow>
#include <QMap>
#include <QSet>

namespace Panorel::Kit::Detail {

namespace {

#ifndef QT_NO_DEBUG
Q_LOGGING_CATEGORY(kitLog, "panorel.kit")
#endif

bool isOutside(const QMainWindow& window, const QWidget* part)
{
    auto* dock = qobject_cast<QDockWidget*>(const_cast<QWidget*>(part));
    return dock->parentWidget() == &window && window.dockWidgetArea(dock) == Qt::NoDockWidgetArea;
}

} // namespace

QStringList Doctor::check(const QMainWindow& window)
{
    const QList<QWidget*> docks = Parts::dockWidgets(window);
    QStringList found = checkNames(docks, tr("The dock widget \"%1\" has no object name."),
                                   tr("Several dock widgets have the object name \"%1\"."));
    found += checkNames(Parts::toolBars(window), tr("The tool bar \"%1\" has no object name."),
                        tr("Several tool bars have the object name \"%1\"."));
    for (const QWidget* dock : docks) {
        if (isOutside(window, dock))
            found += tr("The dock widget \"%1\" is in none of the window's areas.")
                         .arg(dock->objectName());
    }
    if (!window.centralWidget())
        found += tr("The window \"%1\" has no central widget.").arg(window.windowTitle());
    return found;
}

QStringList Doctor::checkNames(const QList<QWidget*>& parts, const QString& nameless,
                               const QString& repeated)
{
    QStringList found;
    QMap<QString, int> count;
    for (const QWidget* part : parts) {
        if (part->objectName().isEmpty())
            found += nameless.arg(part->windowTitle());
        else if (++count[part->objectName()] == 2)
            found += repeated.arg(part->objectName());
    }
    return found;
}

void Doctor::tell(const QMainWindow& window)
{
#ifndef QT_NO_DEBUG
    static QSet<QString> told;
    const QStringList found = check(window);
    for (const QString& finding : found) {
        if (!told.contains(finding))
            qCWarning(kitLog, "%s", qUtf8Printable(finding));
        told.insert(finding);
    }
#else
    Q_UNUSED(window)
#endif
}

} // namespace Panorel::Kit::Detail
