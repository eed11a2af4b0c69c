// SPDX-License-Identifier: MIT
//
// PlainProgram SETTINGS WAY
//
// A program that knows nothing of the plugin. It keeps geometry and state of its window in
// SETTINGS, rearranges the window and ends in some WAY. With "--wait" as the last argument it does
// so once the window has the menu of the plugin. Before it ends it prints where its dock widget is.
#include "ProgramMenu.h"
#include "support/SmallWindow.h"

#include <QApplication>
#include <QSettings>
#include <QTimer>
#include <QWindow>

#include <csignal>
#include <cstdio>
#include <cstdlib>

using namespace Panorel::Tests;

namespace {

class Window : public SmallWindow
{
public:
    explicit Window(const QString& settings)
        : m_settings(settings, QSettings::IniFormat)
    {
        menuBar()->addMenu("&File"_s);
        auto* nameless = new QDockWidget(this);
        addDockWidget(Qt::BottomDockWidgetArea, nameless);
        resize(500, 400);
    }

    void restoreOwn()
    {
        restoreGeometry(m_settings.value("geometry"_s).toByteArray());
        restoreState(m_settings.value("state"_s).toByteArray());
    }

protected:
    void closeEvent(QCloseEvent*) override
    {
        m_settings.setValue("geometry"_s, saveGeometry());
        m_settings.setValue("state"_s, saveState());
        m_settings.sync();
    }

private:
    QSettings m_settings;
};

Window* lateWindow = nullptr;

// After Qt has unloaded its plugins.
void useLateWindow()
{
    QEvent event(QEvent::User);
    if (lateWindow)
        QCoreApplication::sendEvent(lateWindow, &event);
}

void end(Window& window, const QString& way)
{
    std::printf("%d\n", window.dockArea());
    (void)std::fflush(stdout);
    if (way == "exitLate"_s)
        lateWindow = &window;
    if (way == "exit"_s || way == "exitLate"_s)
        std::exit(3);
    if (way == "abort"_s)
        std::abort();
    if (way == "terminate"_s)
        (void)std::raise(SIGTERM);
    if (way == "quit"_s)
        QCoreApplication::quit();
    window.close();
}

// Whether a window manager has answered, on which the geometry to keep depends.
bool isPlaced(const QWidget& window)
{
    const QWindow* handle = window.windowHandle();
    return handle->isExposed() &&
           (QGuiApplication::platformName() == "offscreen"_s || handle->frameMargins().top() > 0);
}

void use(Window& window, const QString& way)
{
    if (way == "look"_s)
        return end(window, way);
    window.moveDock(Qt::RightDockWidgetArea);
    window.moveBar(Qt::BottomToolBarArea);
    // As a person would, who lets go of the window before closing it.
    QTimer::singleShot(100, &window, [&window, way] { end(window, way); });
}

} // namespace

int main(int argc, char** argv)
{
    (void)std::atexit(useLateWindow);
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString way = arguments.at(2);
    const bool waits = arguments.constLast() == "--wait"_s;
    Window window(arguments.at(1));
    window.show();
    QTimer::singleShot(0, &window, [&] { window.restoreOwn(); });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &window, [&] {
        if ((waits && !pluginMenu(window)) || !isPlaced(window))
            return;
        timer.stop();
        use(window, way);
    });
    timer.start(50);
    return QApplication::exec();
}
