// SPDX-License-Identifier: MIT
#include "Check.h"

#include "Arrangement.h"
#include "TwoWindows.h"

#include <QApplication>
#include <QDockWidget>
#include <QTextStream>

namespace {

struct Both
{
    Arrangement editor;
    Arrangement plot;
};

Both shown(TwoWindows& windows)
{
    QApplication::sync();
    QApplication::processEvents();
    return {Arrangement::of(windows.editor()), Arrangement::of(windows.plot())};
}

void disturb(TwoWindows& windows)
{
    windows.editor().dock(QStringLiteral("Project"))->close();
    windows.plot().dock(QStringLiteral("Stations"))->close();
}

bool check(bool isSo, const char* what)
{
    QTextStream(stdout) << (isSo ? "ok: " : "FAILED: ") << what << '\n';
    return isSo;
}

bool isAsBefore(const Both& expected, TwoWindows& windows, const char* what)
{
    const Both now = shown(windows);
    const QString wrong = difference(expected.editor.docks, now.editor.docks) +
                          difference(expected.editor.toolBars, now.editor.toolBars) +
                          difference(expected.plot.docks, now.plot.docks) +
                          difference(expected.plot.toolBars, now.plot.toolBars);
    if (!wrong.isEmpty())
        QTextStream(stdout) << wrong << QLatin1Char('\n');
    return check(wrong.isEmpty(), what);
}

bool viewsComeBack(TwoWindows& windows, const Both& editing)
{
    disturb(windows);
    windows.manager().activateView(QStringLiteral("Standard"));
    return isAsBefore(editing, windows, "a view brings both windows back");
}

bool groupsComeBack(TwoWindows& windows, const Both& editing)
{
    Panorel::Manager& manager = windows.manager();
    manager.activateGroup(QStringLiteral("Measuring"));
    const Both measuring = shown(windows);
    const bool differs = !difference(editing.editor.docks, measuring.editor.docks).isEmpty() &&
                         !difference(editing.plot.docks, measuring.plot.docks).isEmpty();
    manager.activateGroup(QStringLiteral("Editing"));
    const bool isBack = isAsBefore(editing, windows, "the first group is as it was left");
    manager.activateGroup(QStringLiteral("Measuring"));
    return check(differs, "the other group is arranged otherwise, in both windows") && isBack &&
           isAsBefore(measuring, windows, "the second group is as it was left") &&
           manager.activateGroup(QStringLiteral("Editing"));
}

bool documentsComeBack(TwoWindows& windows, const Both& editing)
{
    Panorel::Manager& manager = windows.manager();
    disturb(windows);
    manager.saveCurrentViewAs(QStringLiteral("Disturbed"));
    const Both disturbed = shown(windows);
    manager.setProgramStartView(manager.toXml(/*markActive=*/true));
    manager.activateFactoryDefaultView();
    return isAsBefore(editing, windows, "the factory default brings both windows back") &&
           check(manager.views() == QStringList{QStringLiteral("Standard")},
                 "the factory default has its own views only") &&
           check(manager.activateProgramStartView(), "the program start is set") &&
           isAsBefore(disturbed, windows, "the program start brings both windows back") &&
           check(manager.activeView() == QLatin1String("Disturbed"),
                 "the view that was active at program start is so again");
}

} // namespace

bool allComesBack(TwoWindows& windows)
{
    const Both editing = shown(windows);
    return viewsComeBack(windows, editing) && groupsComeBack(windows, editing) &&
           documentsComeBack(windows, editing);
}
