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
 * Catches every Qt message between start() and finish(), so that a test can require silence:
 *
 *     void init() { m_watch.start(); }
 *     void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }
 *
 * or during a part of a test:
 *
 *     const MessageWatch watch(MessageWatch::Started);
 *     ...
 *     QCOMPARE(watch.messages(), QStringList());
 *
 * One watch at a time; messages of other threads are not expected. What Qt's platforms say of
 * windows is left out.
 */
class MessageWatch
{
public:
    enum Start { Later, Started };

    explicit MessageWatch(Start start = Later)
    {
        if (start == Started)
            this->start();
    }
    ~MessageWatch() { finish(); }
    MessageWatch(const MessageWatch&) = delete;
    MessageWatch& operator=(const MessageWatch&) = delete;

    void start()
    {
        s_messages.clear();
        m_previous = qInstallMessageHandler(&MessageWatch::keep);
    }

    /** The messages that came, oldest first. */
    QStringList finish()
    {
        // Not without a start, such as when init() failed before it.
        if (m_previous)
            qInstallMessageHandler(std::exchange(m_previous, nullptr));
        return std::exchange(s_messages, QStringList());
    }

    /** Those so far. */
    QStringList messages() const { return s_messages; }

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
