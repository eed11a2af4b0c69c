// SPDX-License-Identifier: MIT
#include "StartClock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>
#include <ctime>

#include <unistd.h>

namespace Panorel::Tests {

namespace {

constexpr int restTime = 1000;

qint64 sinceStart()
{
    return QDateTime::currentMSecsSinceEpoch() - qEnvironmentVariable("TRY_START").toLongLong();
}

qint64 processorTime()
{
    return static_cast<qint64>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

} // namespace

StartClock::StartClock()
{
    qApp->installEventFilter(this);
}

bool StartClock::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint || m_hasPainted)
        return false;
    const auto* window = qobject_cast<QMainWindow*>(watched);
    if (!window || !window->isWindow())
        return false;
    m_hasPainted = true;
    // When the window has been painted with all that is in it.
    QTimer::singleShot(0, this, [this] { finish(sinceStart()); });
    return false;
}

void StartClock::finish(qint64 painted)
{
    const qint64 processor = processorTime();
    QTimer::singleShot(restTime, this, [painted, processor] {
        std::fprintf(stdout, "\ntry: %lld %lld %lld\n", static_cast<long long>(painted),
                     static_cast<long long>(processor), static_cast<long long>(processorTime()));
        (void)std::fflush(stdout);
        _exit(0);
    });
}

} // namespace Panorel::Tests
