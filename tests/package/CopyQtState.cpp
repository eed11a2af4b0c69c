// SPDX-License-Identifier: MIT
#include <panorel/QtState.h>

bool isCopyNull(const Panorel::QtState& state)
{
#ifdef ASSIGN
    Panorel::QtState copy;
    copy = state;
#else
    const Panorel::QtState copy(state);
#endif
    return copy.isNull();
}
