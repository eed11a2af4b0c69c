// SPDX-License-Identifier: MIT
#pragma once

#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QStringList>
#include <QTest>
#include <QUndoStack>

namespace Panorel::Tests {

constexpr auto left = Qt::LeftDockWidgetArea;
constexpr auto right = Qt::RightDockWidgetArea;
constexpr auto top = Qt::TopDockWidgetArea;
constexpr auto bottom = Qt::BottomDockWidgetArea;

/** A program whose window has a dock widget, in groups "G" and "H". */
struct HistoryProgram
{
    explicit HistoryProgram(bool merges = false)
        : manager({"G"_s, "H"_s}, merges)
        , layouts(manager)
        , stack(*layouts.history())
    {
        layouts.addWindow(window, "w"_s);
    }

    void save(const QString& name, Qt::DockWidgetArea area)
    {
        window.moveDock(area);
        manager.saveCurrentViewAs(name);
    }

    /** Where the dock widget is in each view, which of them is active, and that of each group. */
    QStringList views()
    {
        Manager reader({"another"_s, "G"_s, "H"_s}, /*mergeOnApply=*/false);
        SmallWindow small;
        Owner owner(small);
        reader.registerManagable(owner);
        reader.fromXml(manager.toXml(/*markActive=*/true), /*merge=*/false);
        QStringList result;
        for (const QString& group : {"G"_s, "H"_s}) {
            reader.activateGroup(group);
            const QString active = reader.activeView();
            QStringList found;
            for (const QString& view : reader.views()) {
                reader.activateView(view);
                found += (view == active ? "*"_s : QString()) + view + nameOf(small.dockArea());
            }
            result += found.join(QLatin1Char(' '));
        }
        return result;
    }

    static QString nameOf(Qt::DockWidgetArea area)
    {
        return area == left ? "<"_s : area == right ? ">"_s : area == top ? "^"_s : "_"_s;
    }

    SmallWindow window;
    Manager manager;
    Kit::Layouts layouts;
    QUndoStack& stack;

private:
    struct Owner : IManagable
    {
        explicit Owner(QMainWindow& main)
            : window(main)
        {}
        QList<ManagedWindow> managedWindows() override { return {{"w"_s, &window}}; }
        QMainWindow& window;
    };
};

/** The names of all steps. */
inline QStringList texts(const QUndoStack& stack)
{
    QStringList result;
    for (int i = 0; i < stack.count(); ++i)
        result.append(stack.text(i));
    return result;
}

inline void mergingColumn()
{
    QTest::addColumn<bool>("merges");
    QTest::newRow("without merging") << false;
    QTest::newRow("with merging") << true;
}

} // namespace Panorel::Tests
