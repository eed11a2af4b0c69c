// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace Panorel::Tests {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool hasAddressSanitizer = true;
#elif defined(__has_feature)
constexpr bool hasAddressSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool hasAddressSanitizer = false;
#endif

constexpr quint64 mebibyte = quint64(1024) * 1024;

#ifdef Q_OS_UNIX
inline bool lowerLimit(decltype(RLIMIT_CORE) resource, quint64 bytes)
{
    rlimit limit{};
    if (getrlimit(resource, &limit) != 0)
        return false;
    limit.rlim_cur = std::min<rlim_t>(limit.rlim_cur, bytes);
    return setrlimit(resource, &limit) == 0;
}
#endif

/** Gives the main thread a stack of at most @p bytes, where the platform can do it. */
inline bool limitStack(quint64 bytes)
{
#ifdef Q_OS_UNIX
    return lowerLimit(RLIMIT_STACK, bytes);
#else
    Q_UNUSED(bytes)
    return true;
#endif
}

/**
 * Lets no allocation succeed that would take the process over @p bytes, where the platform can do
 * it. AddressSanitizer reserves far more for itself and limits single allocations on its own.
 */
inline bool limitMemory(quint64 bytes)
{
#ifdef Q_OS_UNIX
    return hasAddressSanitizer || lowerLimit(RLIMIT_AS, bytes);
#else
    Q_UNUSED(bytes)
    return true;
#endif
}

inline void forbidCoreDumps()
{
#ifdef Q_OS_UNIX
    (void)lowerLimit(RLIMIT_CORE, 0);
#endif
}

} // namespace Panorel::Tests
