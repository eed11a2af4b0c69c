// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryFile>

#include <unistd.h>

namespace Panorel::Tests {

/**
 * Catches what is written to the standard error output, below all C and C++ streams: Qt's schema
 * validator by itself prints there and logs nothing.
 */
class ErrorOutput
{
public:
    explicit ErrorOutput(QTemporaryFile& file)
        : m_saved(::dup(STDERR_FILENO))
    {
        ::dup2(file.handle(), STDERR_FILENO);
    }
    ~ErrorOutput()
    {
        ::dup2(m_saved, STDERR_FILENO);
        ::close(m_saved);
    }
    ErrorOutput(const ErrorOutput&) = delete;
    ErrorOutput& operator=(const ErrorOutput&) = delete;

private:
    int m_saved;
};

} // namespace Panorel::Tests
