// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>

#include <malloc.h>

namespace {

constexpr int viewCount = 1000;

// With what the allocator adds to each piece.
std::size_t heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

Result memoryOfViews(int dockCount)
{
    Windows windows(2, dockCount);
    Panorel::Manager manager({QStringLiteral("a")}, /*mergeOnApply=*/false);
    manager.registerManagable(windows);
    double blobBytes = 0;
    const QVector<QByteArray> states = windows.arrangement(0);
    for (const QByteArray& state : states)
        blobBytes += state.size();
    manager.createView(QStringLiteral("the first, which warms up"));

    const std::size_t before = heapBytes();
    for (int i = 0; i < viewCount; ++i)
        manager.createView(QStringLiteral("view %1").arg(i));
    Result result;
    result.name = QStringLiteral("memory of 1,000 views, 2 x %1 docks").arg(dockCount);
    result.unit = QStringLiteral("bytes");
    result.goal = 1.15;
    result.subject = static_cast<double>(heapBytes() - before);
    result.baseline = blobBytes * viewCount;
    result.ratio = result.subject / result.baseline;
    result.lowerQuartile = result.ratio;
    result.upperQuartile = result.ratio;
    result.sameWork = manager.views().size() == viewCount + 1 && windows.save() == states;
    return result;
}
