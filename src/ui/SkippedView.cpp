// SPDX-License-Identifier: MIT
#include "SkippedView.h"

#include <QVariant>

namespace Panorel {

bool isSkippedView(const QVariant& userData)
{
    return userData.isValid() && userData.toBool();
}

} // namespace Panorel
