// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageLogContext>
#include <QStringList>
#include <QtGlobal>

#include <utility>

namespace Panorel::Tests {

/**
 * Catches every Qt message between start() and finish(), so that a test can demand silence:
 *
 *     void init() { m_watch.start(); }
 *     void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }
 *
 * One watch at a time; messages of other threads are not expected.
 */
class MessageWatch
{
public:
    void start()
    {
        s_messages.clear();
        m_previous = qInstallMessageHandler(&MessageWatch::keep);
    }

    /** The messages that came, oldest first. */
    QStringList finish()
    {
        qInstallMessageHandler(m_previous);
        return std::exchange(s_messages, QStringList());
    }

private:
    static void keep(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        s_messages.append(message);
    }

    inline static QStringList s_messages;
    QtMessageHandler m_previous = nullptr;
};

} // namespace Panorel::Tests
