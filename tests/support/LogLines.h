// SPDX-License-Identifier: MIT
#pragma once

#include "support/MessageWatch.h"

namespace Panorel::Tests {

/** A watch that lasts as long as it lives, for a test or a part of one that insists on silence. */
class LogLines : private MessageWatch
{
public:
    LogLines() { start(); }
    ~LogLines() { finish(); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    QStringList lines() const { return messages(); }
};

} // namespace Panorel::Tests
