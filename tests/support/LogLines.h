// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QStringList>
#include <QtGlobal>

namespace Panorel::Tests {

/** Collects what is logged while it lives, so that a test can insist on silence. One at a time. */
class LogLines
{
public:
    LogLines()
    {
        collected().clear();
        m_previous = qInstallMessageHandler(collect);
    }
    ~LogLines() { qInstallMessageHandler(m_previous); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    QStringList lines() const { return collected(); }

private:
    static QStringList& collected()
    {
        static QStringList lines;
        return lines;
    }

    static void collect(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        // The offscreen platform says so for every window that is shown.
        if (!message.startsWith("This plugin does not support "_s))
            collected().append(message);
    }

    QtMessageHandler m_previous = nullptr;
};

} // namespace Panorel::Tests
