// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QList>
#include <QMainWindow>
#include <QStringList>

class QDockWidget;
class QToolBar;

namespace Panorel::Tests {

/** Where the dock widgets and tool bars of any window are, as a user sees it. */
class PartPlaces
{
public:
    explicit PartPlaces(QMainWindow& window);

    /** In the order in which they are made, those in floating tab groups included. */
    QList<QDockWidget*> dockWidgets() const;
    QList<QToolBar*> toolBars() const;

    /** Each part by a name that it keeps, with all that is to be compared. */
    QJsonObject describe() const;

    /** Whether the window has another size. The program gives it that, and what is docked follows.
     */
    static bool isResized(const QJsonObject& expected, const QJsonObject& actual);
    /** What differs, one line for each part and property; not sizes of what follows the window. */
    static QStringList differences(const QJsonObject& expected, const QJsonObject& actual);

private:
    QJsonObject describe(QDockWidget& dock) const;
    QJsonObject describe(QToolBar& bar) const;
    /** Lets each part have a name of the test's, which it keeps. */
    QString keyOf(QWidget& part) const;

    QMainWindow& m_window;
};

} // namespace Panorel::Tests
