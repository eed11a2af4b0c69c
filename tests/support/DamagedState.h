// SPDX-License-Identifier: MIT
#pragma once

#include "support/ResourceLimits.h"

#include <panorel/kit/WindowState.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QRandomGenerator>
#include <QTextEdit>
#include <QToolBar>

#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Panorel::Tests {

/** What happens to the bytes of a file. */
enum class Damage { Changed, CutOff, LeftOut, Inserted };

constexpr int damages = 4;

/** @p blob, which is not empty, with one kind of damage: up to four bytes are changed. */
inline QByteArray damaged(QByteArray blob, Damage damage, QRandomGenerator& random)
{
    const int offset = random.bounded(blob.size());
    const char any = static_cast<char>(random.bounded(256));
    switch (damage) {
    case Damage::Changed:
        blob[offset] = any;
        for (int i = random.bounded(4); i > 0; --i)
            blob[random.bounded(blob.size())] = static_cast<char>(random.bounded(256));
        return blob;
    case Damage::CutOff:
        return blob.left(offset);
    case Damage::LeftOut:
        return blob.remove(offset, 1);
    case Damage::Inserted:
        return blob.insert(offset, random.bounded(2) == 0 ? blob[offset] : any);
    }
    return blob;
}

/** Gives @p window the dock widgets and tool bars that @p state names. */
inline void addParts(QMainWindow& window, const Kit::WindowState& state)
{
    for (const Kit::WindowState::DockWidget& part : state.dockWidgets()) {
        auto* const dock = new QDockWidget(part.name, &window);
        dock->setObjectName(part.name);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    }
    for (const Kit::WindowState::ToolBar& part : state.toolBars())
        window.addToolBar(part.name)->setObjectName(part.name);
}

/** Restores @p blob in a window with the parts of @p sound, and uses the window. */
inline void restoreAndUse(const Kit::WindowState& sound, const QByteArray& blob, bool isShownBefore)
{
    QMainWindow window;
    window.resize(900, 700);
    window.setCentralWidget(new QTextEdit);
    addParts(window, sound);
    if (isShownBefore)
        window.show();
    QCoreApplication::processEvents();
    (void)window.restoreState(blob, sound.layoutVersion());
    window.show();
    QCoreApplication::processEvents();
    window.resize(800, 600);
    QCoreApplication::processEvents();
    (void)window.restoreState(window.saveState(sound.layoutVersion()), sound.layoutVersion());
    QCoreApplication::processEvents();
}

/**
 * Whether a process of its own, with a gibibyte of memory and ten seconds of processor time, lives
 * through restoreAndUse().
 */
inline bool survives(const Kit::WindowState& sound, const QByteArray& blob, bool isShownBefore)
{
    const pid_t child = fork();
    if (child == 0) {
        const rlimit seconds{10, 10};
        (void)limitMemory(1024 * mebibyte);
        (void)setrlimit(RLIMIT_CPU, &seconds);
        forbidCoreDumps();
        // QtTest would report the crash as one of the test.
        for (const int crash : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL})
            (void)signal(crash, SIG_DFL);
        restoreAndUse(sound, blob, isShownBefore);
        _exit(0);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace Panorel::Tests
