// SPDX-License-Identifier: MIT
#pragma once

class QVariant;

namespace Panorel {

/** Whether a view with this user data is passed over when cycling. Invalid data: it is not. */
bool isSkippedView(const QVariant& userData);

} // namespace Panorel
