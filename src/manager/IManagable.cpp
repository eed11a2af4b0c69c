// SPDX-License-Identifier: MIT
#include <panorel/IManagable.h>

namespace Panorel {

IManagable::~IManagable() = default;

} // namespace Panorel
