// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractMessageHandler>

namespace Panorel::Detail {

/** Drops every message of a validation: the caller sees the result only. */
class DefaultMessageHandler : public QAbstractMessageHandler
{
public:
    DefaultMessageHandler() = default;
    ~DefaultMessageHandler() override = default;

protected:
    void handleMessage(QtMsgType type, const QString& description, const QUrl& identifier,
                       const QSourceLocation& sourceLocation) override
    {
        Q_UNUSED(type)
        Q_UNUSED(description)
        Q_UNUSED(identifier)
        Q_UNUSED(sourceLocation)
    }
};

} // namespace Panorel::Detail
