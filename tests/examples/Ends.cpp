// SPDX-License-Identifier: MIT
#include "Ends.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace Panorel::Tests::Ends {

namespace {

const QRect firstPlace(420, 260, 230, 140);

QList<QMainWindow*> mainWindows()
{
    QList<QMainWindow*> windows;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* widget : all) {
        if (auto* window = qobject_cast<QMainWindow*>(widget))
            windows.append(window);
    }
    return windows;
}

QList<QDockWidget*> docks()
{
    QList<QDockWidget*> docks;
    const QList<QMainWindow*> windows = mainWindows();
    for (QMainWindow* window : windows)
        docks.append(window->findChild<QDockWidget*>());
    return docks;
}

void floatDocks()
{
    for (QDockWidget* dock : docks()) {
        // Before it is shown, or a window manager first chooses a place of its own.
        dock->hide();
        dock->setFloating(true);
        dock->setGeometry(firstPlace);
        dock->show();
        if (!QTest::qWaitForWindowExposed(dock))
            qFatal("the dock widget is not shown");
    }
}

// What the close button of a window manager leads to.
void closeWindows()
{
    for (QMainWindow* window : mainWindows())
        window->windowHandle()->close();
}

// Each in an event of its own.
void closeOneByOne()
{
    for (QMainWindow* window : mainWindows())
        QTimer::singleShot(0, window, [window] { window->windowHandle()->close(); });
}

// Answers each attempt to close a main window: asks, as for unsaved changes, or refuses.
class Closing : public QObject
{
public:
    Closing(QMainWindow* window, const std::function<bool()>& mayClose)
        : QObject(window)
        , m_mayClose(mayClose)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Close || m_mayClose())
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }

private:
    std::function<bool()> m_mayClose;
};

bool answerQuestion()
{
    QMessageBox question;
    // More than one turn of the dialog's event loop.
    QTimer::singleShot(0, &question, [&question] {
        QTimer::singleShot(0, &question, [&question] { question.accept(); });
    });
    question.exec();
    return true;
}

// One of the orders in which closeAllWindows() may close them.
void closeDocksFirstAndAsk()
{
    for (QMainWindow* window : mainWindows())
        new Closing(window, answerQuestion);
    for (QDockWidget* dock : docks())
        dock->window()->windowHandle()->close();
    closeWindows();
}

// The user answers "Cancel" first, moves something, and closes the program later.
void closeAtSecondTry()
{
    QMainWindow* window = mainWindows().constFirst();
    auto* closing = new Closing(window, [] { return false; });
    docks().constFirst()->setGeometry(firstPlace.translated(-200, 0));
    window->windowHandle()->close();
    QTimer::singleShot(0, window, [closing] {
        delete closing;
        docks().constFirst()->setGeometry(firstPlace);
        closeWindows();
    });
}

void closeAndReopenDock()
{
    QDockWidget* dock = docks().constFirst();
    dock->close();
    QTimer::singleShot(0, dock, [dock] {
        dock->show();
        closeWindows();
    });
}

void closeDock()
{
    docks().constFirst()->close();
    QTimer::singleShot(0, closeWindows);
}

// As a program with an icon in the system tray does.
void closeAndQuitLater()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    closeWindows();
    for (QDockWidget* dock : docks())
        dock->close();
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
}

void useMouseOrKeys(const QStringList& arguments)
{
    QMainWindow* window = mainWindows().constFirst();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window) ||
        !QProcess::startDetached(QStringLiteral("xdotool"), arguments))
        qFatal("the window cannot be closed");
}

void pressAltF4()
{
    useMouseOrKeys({QStringLiteral("key"), QStringLiteral("alt+F4")});
}

void clickCloseButton()
{
    // The last button of openbox in the title bar.
    const QMainWindow* window = mainWindows().constFirst();
    const QPoint corner = window->frameGeometry().topRight() + QPoint(-11, 11);
    const QString arguments = QStringLiteral("mousemove --sync %1 %2 click 1");
    useMouseOrKeys(arguments.arg(corner.x()).arg(corner.y()).split(QLatin1Char(' ')));
}

// The session manager that runs this program waits for the line.
void tellSessionManager(const char* line)
{
    std::puts(line);
    std::fflush(stdout);
}

const struct
{
    const char* name;
    std::function<void()> run;
} ways[] = {{"closeWindows", closeWindows},
            {"closeOneByOne", closeOneByOne},
            {"closeAllWindows", [] { QApplication::closeAllWindows(); }},
            {"closeDocksFirstAndAsk", closeDocksFirstAndAsk},
            {"closeAtSecondTry", closeAtSecondTry},
            {"closeAndReopenDock", closeAndReopenDock},
            {"closeDock", closeDock},
            {"closeAndQuitLater", closeAndQuitLater},
            {"quit", [] { QCoreApplication::quit(); }},
            {"quitEvent", [] { QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit)); }},
            {"pressAltF4", pressAltF4},
            {"clickCloseButton", clickCloseButton},
            {"endSession", [] { tellSessionManager("end"); }},
            {"endSessionByForce", [] { tellSessionManager("force"); }}};

} // namespace

void floatAndEnd(const QString& way)
{
    const auto* found = std::find_if(std::begin(ways), std::end(ways), [&way](const auto& known) {
        return way == QLatin1String(known.name);
    });
    if (found == std::end(ways))
        qFatal("no program ends by \"%s\"", qPrintable(way));
    floatDocks();
    // Not within this call: the program has not ended a turn of its event loop yet.
    QTimer::singleShot(0, qApp, found->run);
}

bool areBack()
{
    // On X11, Qt may take the window for one at (0, 0) if its manager answers late.
    const bool isPlaceKnown = QGuiApplication::platformName() == QLatin1String("offscreen");
    const QList<QDockWidget*> all = docks();
    return QTest::qWaitFor([&] {
        return std::all_of(all.begin(), all.end(), [&](const QDockWidget* dock) {
            return dock->isFloating() && dock->isVisible() && dock->size() == firstPlace.size() &&
                   (!isPlaceKnown || dock->geometry() == firstPlace);
        });
    });
}

bool areClosed()
{
    const QList<QDockWidget*> all = docks();
    return QTest::qWaitFor([&all] {
        return std::all_of(all.begin(), all.end(), [](const QDockWidget* dock) {
            return dock->isFloating() && !dock->isVisible();
        });
    });
}

} // namespace Panorel::Tests::Ends
