// SPDX-License-Identifier: MIT
#include "ExampleUser.h"

#include "support/MenuReading.h"

#include "Ends.h"

#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

#include <cstdio>

namespace Panorel::Tests {

namespace {

bool check(bool holds, const char* what)
{
    if (!holds)
        std::fprintf(stderr, "FAILED: %s\n", what);
    return holds;
}

template<typename Part>
Part& part(const QMainWindow& window, const QString& name = QString())
{
    if (auto* found = window.findChild<Part*>(name))
        return *found;
    qFatal("nothing is called \"%s\"", qPrintable(name));
}

QMainWindow& windowWith(const QString& dock, const QString& title = QString())
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<QMainWindow*>(widget);
        if (window && window->findChild<QDockWidget*>(dock) &&
            (title.isNull() || window->windowTitle() == title))
            return *window;
    }
    qFatal("no window has \"%s\"", qPrintable(dock));
}

// The dock widget that most examples have, each under an object name of its own.
QDockWidget& filesDock()
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        for (QDockWidget* dock : window->findChildren<QDockWidget*>()) {
            if (dock->windowTitle() == QLatin1String("Files"))
                return *dock;
        }
    }
    qFatal("no window has a dock widget for files");
}

QMainWindow& windowWithFiles()
{
    return *qobject_cast<QMainWindow*>(filesDock().parent());
}

Panorel::Menu& menuOf(const QMainWindow& window)
{
    for (const QAction* action : window.menuBar()->actions()) {
        if (auto* menu = qobject_cast<Panorel::Menu*>(action->menu()))
            return *menu;
    }
    qFatal("the window has no such menu");
}

bool choose(const QMenu& menu, const QString& text)
{
    QAction* action = entry(&menu, text);
    if (action)
        action->trigger();
    return check(action, qPrintable(QStringLiteral("the menu has an entry ") + text));
}

void saveAs(Panorel::Menu& menu, const QString& name)
{
    QLineEdit* field = nameEdit(menu);
    QTest::keyClicks(field, name);
    QTest::keyClick(field, Qt::Key_Return);
}

bool savesAndSwitches()
{
    Panorel::Menu& menu = menuOf(windowWithFiles());
    QDockWidget& files = filesDock();
    saveAs(menu, QStringLiteral("Wide"));
    files.close();
    return choose(menu, QStringLiteral("Wide")) &&
           check(files.isVisible(), "the layout brings the dock widget back");
}

bool hasLayoutOfLastRun()
{
    const Panorel::Menu& menu = menuOf(windowWithFiles());
    const QAction* wide = entry(&menu, QStringLiteral("Wide"));
    return check(wide, "the layout of the last run is there") &&
           check(wide->isChecked(), "it is the active one, as it was");
}

bool reportsDamagedFile()
{
    const QMainWindow& window = windowWithFiles();
    const QString message = part<QStatusBar>(window).currentMessage();
    return check(!entry(&menuOf(window), QStringLiteral("Wide")),
                 "nothing comes of the damaged file") &&
           check(message.endsWith(QStringLiteral("It is damaged. "
                                                 "It is kept as layouts.views.unreadable-1.")),
                 "the user learns where the damaged file is kept");
}

// Nobody saves a layout: the windows come back as they were left all the same.
bool keepsArrangement()
{
    QMainWindow& window = windowWithFiles();
    part<QDockWidget>(window, QStringLiteral("Outline")).close();
    window.addDockWidget(Qt::RightDockWidgetArea, &filesDock());
    window.resize(640, 400);
    return true;
}

bool hasArrangement()
{
    QMainWindow& window = windowWithFiles();
    QDockWidget& files = filesDock();
    auto& outline = part<QDockWidget>(window, QStringLiteral("Outline"));
    const auto isLeft = [&] {
        return outline.isHidden() && window.dockWidgetArea(&files) == Qt::RightDockWidgetArea;
    };
    const bool isAsLeft = QTest::qWaitFor(isLeft, 30000);
    outline.show();
    return check(isAsLeft, "the dock widgets are as they were left") &&
           check(window.size() == QSize(640, 400), "the window has its size");
}

bool recoversFromDamage()
{
    const QStringList kept = QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
                                 .entryList({QStringLiteral("*.unreadable-1")});
    return check(entry(&menuOf(windowWithFiles()), QStringLiteral("Wide")),
                 "the layout is there from the last good file") &&
           check(kept == QStringList{QStringLiteral("layouts.views.unreadable-1")},
                 "the damaged file is kept");
}

bool switchesGroups()
{
    const QMainWindow& editor = windowWith(QStringLiteral("Outline"));
    Panorel::Menu& menu = menuOf(editor);
    auto& groups = part<QComboBox>(editor);
    auto& outline = part<QDockWidget>(editor, QStringLiteral("Outline"));
    auto& curves =
        part<QDockWidget>(windowWith(QStringLiteral("Curves")), QStringLiteral("Curves"));
    const QString plain = QStringLiteral("Plain");
    outline.close();
    groups.setCurrentText(QStringLiteral("Measuring"));
    outline.show();
    curves.close();
    saveAs(menu, plain);
    groups.setCurrentText(QStringLiteral("Editing"));
    const bool isEditing =
        check(outline.isHidden() && curves.isVisible(), "the first group is as it was left") &&
        check(!entry(&menu, plain), "it has no layout of the other");
    groups.setCurrentText(QStringLiteral("Measuring"));
    return isEditing &&
           check(outline.isVisible() && curves.isHidden(), "so is the second, in both windows") &&
           check(entry(&menu, plain), "it has its layout");
}

struct Seen
{
    bool dock;
    bool bar;
};

Seen afterSwitch(const QString& windowTitle)
{
    const QMainWindow& window = windowWith(QStringLiteral("Files"), windowTitle);
    auto& dock = part<QDockWidget>(window, QStringLiteral("Files"));
    auto& bar = part<QToolBar>(window, QStringLiteral("Edit"));
    dock.close();
    bar.hide();
    choose(menuOf(window), QStringLiteral("Saved"));
    return {dock.isVisible(), bar.isVisible()};
}

bool mergingKeepsToolBars()
{
    const Seen plain = afterSwitch(QStringLiteral("As saved"));
    const Seen merged = afterSwitch(QStringLiteral("Merged"));
    return check(plain.dock && plain.bar, "without merging all is back") &&
           check(merged.dock, "with merging the dock widget is back") &&
           check(!merged.bar, "and the tool bar stays hidden");
}

bool buttonCycles()
{
    const QMainWindow& window = windowWithFiles();
    QDockWidget& files = filesDock();
    auto& button = part<Panorel::ViewButton>(window);
    const bool isHidden = files.isHidden();
    QTest::mouseClick(&button, Qt::LeftButton, {}, {5, 5});
    const bool isVisible = files.isVisible();
    QTest::mouseClick(&button, Qt::LeftButton, {}, {5, 5});
    return check(isHidden, "the second layout is active at first") &&
           check(isVisible, "a click goes on to the first") &&
           check(files.isHidden(), "and another back to the second");
}

} // namespace

bool useExample(const QString& name)
{
    const struct
    {
        const char* name;
        bool (*run)();
    } uses[] = {{"savesAndSwitches", savesAndSwitches},
                {"hasLayoutOfLastRun", hasLayoutOfLastRun},
                {"reportsDamagedFile", reportsDamagedFile},
                {"keepsArrangement", keepsArrangement},
                {"hasArrangement", hasArrangement},
                {"recoversFromDamage", recoversFromDamage},
                {"switchesGroups", switchesGroups},
                {"mergingKeepsToolBars", mergingKeepsToolBars},
                {"buttonCycles", buttonCycles},
                {"floatingDocksAreBack", Ends::floatingDocksAreBack},
                {"floatingDocksAreClosed", Ends::floatingDocksAreClosed}};
    for (const auto& known : uses) {
        if (name == QLatin1String(known.name))
            return known.run();
    }
    return check(false, "there is no such use");
}

} // namespace Panorel::Tests
