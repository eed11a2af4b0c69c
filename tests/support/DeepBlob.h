// SPDX-License-Identifier: MIT
#pragma once

#include "support/BlobBuilder.h"

namespace Panorel::Tests {

/** A sequence block around @p depth nested ones, each the only item of the one around it. */
inline QByteArray deepBlock(int depth)
{
    const QByteArray level = BlobBuilder().sequence(1, 1).nested({1, 2, 3, 4}).blob();
    return level.repeated(depth) + BlobBuilder().tabs(5, 2, 1).widget("D"_s).blob();
}

/** A blob of @p records dock records that hold one such block each; 23 bytes for each level. */
inline QByteArray deepBlob(int depth, int records = 1)
{
    BlobBuilder blob = soundHead().dockSection(records);
    for (int i = 0; i < records; ++i)
        blob.dock(i, 10, 20).raw(deepBlock(depth));
    return blob.dockTail().blob();
}

} // namespace Panorel::Tests
