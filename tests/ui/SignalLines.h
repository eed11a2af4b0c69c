// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <panorel/Manager.h>

#include <QObject>
#include <QStringList>

#include <utility>

namespace Panorel::Tests {

/** The Manager's signals of views and groups, one line each, in the order of their emission. */
class SignalLines
{
public:
    explicit SignalLines(Manager& manager)
    {
        QObject::connect(&manager, &Manager::groupModified, &m_receiver,
                         [this] { m_lines.append("modified"_s); });
        QObject::connect(&manager, &Manager::groupActivated, &m_receiver,
                         [this](const QString& name) { m_lines.append("group "_s + name); });
        QObject::connect(&manager, &Manager::viewActivated, &m_receiver,
                         [this](const QString& name) { m_lines.append("view "_s + name); });
    }

    /** The lines so far; the log starts anew. */
    QStringList take() { return std::exchange(m_lines, QStringList()); }

private:
    QStringList m_lines;
    // Last, so that it is gone before what its slots write to.
    QObject m_receiver;
};

} // namespace Panorel::Tests
