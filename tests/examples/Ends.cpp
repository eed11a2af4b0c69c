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
// In milliseconds. A window manager on a busy machine answers late.
constexpr int patience = 60000;

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
        if (!QTest::qWaitForWindowExposed(dock, patience))
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

// Has xdotool act as mouse or keyboard on the first main window, until the program ends: what comes
// while the window manager is busy may be lost.
void useMouseOrKeys(const QStringList& arguments)
{
    // The dock widget was shown last and may become active later than Qt hears that the window is.
    const QString window = QString::number(mainWindows().constFirst()->winId());
    const QStringList all =
        QStringList{QStringLiteral("windowactivate"), QStringLiteral("--sync"), window} + arguments;
    // As a child, because the window of the next program may get the same number.
    auto* xdotool = new QProcess(qApp);
    QObject::connect(xdotool, &QProcess::errorOccurred, [](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            qFatal("xdotool cannot be started");
    });
    const auto act = [xdotool, all] {
        if (xdotool->state() == QProcess::NotRunning)
            xdotool->start(QStringLiteral("xdotool"), all);
    };
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, act);
    timer->start(2000);
    act();
}

void pressAltF4()
{
    useMouseOrKeys({QStringLiteral("key"), QStringLiteral("alt+F4")});
}

void clickCloseButton()
{
    const QMainWindow* window = mainWindows().constFirst();
    const QWindow* handle = window->windowHandle();
    const auto hasTitleBar = [handle] { return handle->frameMargins().top() > 0; };
    if (!QTest::qWaitFor(hasTitleBar, patience))
        qFatal("the window has no title bar");
    // The last button of openbox there. Relative to the window, because Qt may not know where it
    // is.
    const QPoint corner(window->width() + handle->frameMargins().right(),
                        -handle->frameMargins().top());
    const QPoint button = corner + QPoint(-11, 11);
    const QString arguments = QStringLiteral("mousemove --window %1 -- %2 %3 click 1");
    useMouseOrKeys(
        arguments.arg(window->winId()).arg(button.x()).arg(button.y()).split(QLatin1Char(' ')));
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

bool floatingDocksAreBack()
{
    // On X11, Qt may take the window for one at (0, 0) if its manager answers late.
    const bool isPlaceKnown = QGuiApplication::platformName() == QLatin1String("offscreen");
    const QList<QDockWidget*> all = docks();
    return QTest::qWaitFor(
        [&] {
            return std::all_of(all.begin(), all.end(), [&](const QDockWidget* dock) {
                return dock->isFloating() && dock->isVisible() &&
                       dock->size() == firstPlace.size() &&
                       (!isPlaceKnown || dock->geometry() == firstPlace);
            });
        },
        patience);
}

bool floatingDocksAreClosed()
{
    const QList<QDockWidget*> all = docks();
    return QTest::qWaitFor(
        [&all] {
            return std::all_of(all.begin(), all.end(), [](const QDockWidget* dock) {
                return dock->isFloating() && !dock->isVisible();
            });
        },
        patience);
}

} // namespace Panorel::Tests::Ends
