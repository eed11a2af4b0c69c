// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QCoreApplication>
#include <QDockWidget>
#include <QEvent>
#include <QUndoStack>

#include <malloc.h>

namespace {

constexpr int viewCount = 600;
constexpr int stepCount = 1000;

// With what the allocator adds to each piece.
std::size_t heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

QString viewName(int number)
{
    return QStringLiteral("view %1").arg(number % viewCount);
}

} // namespace

Result memoryOfHistory()
{
    Windows windows(2, 80);
    Panorel::Manager manager({QStringLiteral("a")}, /*mergeOnApply=*/false);
    Panorel::Kit::Layouts layouts(manager);
    const QList<Panorel::ManagedWindow> managed = windows.managedWindows();
    for (const Panorel::ManagedWindow& window : managed)
        layouts.addWindow(*window.window, window.descriptorId);
    for (int i = 0; i < viewCount; ++i)
        manager.createView(viewName(i));
    const double documentBytes = manager.toXml(/*markActive=*/true).size();
    layouts.history()->clear();

    const std::size_t before = heapBytes();
    for (int i = 0; i < stepCount; ++i) {
        // No two arrangements are the same.
        const auto docks = managed[i % 2].window->findChildren<QDockWidget*>();
        docks[i / 4 % docks.size()]->setVisible(i % 4 < 2);
        if (i % 4 == 0)
            manager.saveCurrentViewAs(viewName(i));
        else
            manager.activateView(viewName(7 * i));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    Result result;
    result.name = QStringLiteral("memory of 1,000 steps, document of 7 MB");
    result.unit = QStringLiteral("bytes");
    result.goal = 1;
    result.subject = static_cast<double>(heapBytes() - before);
    result.baseline = 64.0 * 1024 * 1024;
    result.ratio = result.subject / result.baseline;
    result.lowerQuartile = result.ratio;
    result.upperQuartile = result.ratio;
    result.sameWork = layouts.history()->count() >= stepCount - 10 && documentBytes > 7e6;
    return result;
}
