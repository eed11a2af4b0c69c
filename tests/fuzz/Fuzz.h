// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/** What a fuzzer is: called with one input, it returns or aborts. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace Panorel::Tests {

/** What was being done, to be named in the message of a violation. */
inline QString context;

[[noreturn]] inline void fail(const char* property, const QString& detail = QString())
{
    std::fprintf(stderr, "Violated: %s\n%s\n%s\n", property, qUtf8Printable(context),
                 qUtf8Printable(detail));
    std::abort();
}

inline void require(bool holds, const char* property)
{
    if (!holds)
        fail(property);
}

/** For the functions that give an empty text when two values are equal. */
inline void requireEqual(const QString& difference, const char* property)
{
    if (!difference.isEmpty())
        fail(property, difference);
}

/** Fails in place of @p actual and @p expected, which are shown whole. */
template<typename Text>
void requireSame(const Text& actual, const Text& expected, const char* property)
{
    if (actual != expected)
        fail(property, QString::fromUtf8("Is:\n%1\nShould be:\n%2").arg(actual, expected));
}

/** From now on whatever is logged is a violation, because the library logs nothing. */
inline void forbidMessages()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        fail("nothing is logged", message);
    });
}

inline QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

} // namespace Panorel::Tests
