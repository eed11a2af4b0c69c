// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1String>
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
 * One watch at a time; messages of other threads are not expected. What Qt's platforms say of
 * windows is left out.
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
        // Not when init() failed before it began.
        if (m_previous)
            qInstallMessageHandler(std::exchange(m_previous, nullptr));
        return std::exchange(s_messages, QStringList());
    }

protected:
    static QStringList messages() { return s_messages; }

private:
    static void keep(QtMsgType, const QMessageLogContext& context, const QString& message)
    {
        const bool fromPlatform =
            QByteArray(context.category).startsWith("qt.qpa") ||
            message.startsWith(QLatin1String("This plugin does not support "));
        if (!fromPlatform)
            s_messages.append(message);
    }

    inline static QStringList s_messages;
    QtMessageHandler m_previous = nullptr;
};

} // namespace Panorel::Tests
