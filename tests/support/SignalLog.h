// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <panorel/Manager.h>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <utility>

namespace Panorel::Tests {

/**
 * All signals of one Manager in the order of their emission, one line each, such as
 *     viewActivated('a')    viewActivated('')    viewActivated(null)
 * and, when the model is watched too, with what the Manager tells at that moment:
 *     viewActivated('') [G: a, b; active null]
 * The Manager must outlive the log.
 */
class SignalLog
{
public:
    enum Content { Signals, SignalsAndModel };

    explicit SignalLog(Manager& manager, Content content = Signals)
        : m_manager(manager)
        , m_content(content)
    {
        on(&Manager::groupModified, [this] { add("groupModified"_s, QString()); });
        on(&Manager::groupActivated,
           [this](const QString& name) { add("groupActivated"_s, quoted(name)); });
        on(&Manager::viewActivated,
           [this](const QString& name) { add("viewActivated"_s, quoted(name)); });
        on(&Manager::viewUserDataChanged, [this](const QVariant& userData) {
            add("viewUserDataChanged"_s, quoted(userData.toString()));
        });
        on(&Manager::factoryDefaultViewChanged,
           [this](bool valid) { add("factoryDefaultViewChanged"_s, shown(valid)); });
        on(&Manager::programStartViewChanged,
           [this](bool valid) { add("programStartViewChanged"_s, shown(valid)); });
    }

    QStringList lines() const { return m_lines; }
    /** The lines so far; the log starts again. */
    QStringList take() { return std::exchange(m_lines, QStringList()); }

private:
    template<typename Signal, typename Slot>
    void on(Signal signal, Slot slot)
    {
        QObject::connect(&m_manager, signal, &m_receiver, slot);
    }

    static QString shown(bool value) { return value ? "true"_s : "false"_s; }

    void add(const QString& signal, const QString& argument)
    {
        QString line = signal + "("_s + argument + ")"_s;
        if (m_content == SignalsAndModel)
            line += " ["_s + m_manager.activeGroup() + ": "_s + m_manager.views().join(", "_s) +
                    "; active "_s + quoted(m_manager.activeView()) + "]"_s;
        m_lines.append(line);
    }

    Manager& m_manager;
    Content m_content;
    QStringList m_lines;
    // Last, so that it is gone before what its slots write to.
    QObject m_receiver;
};

} // namespace Panorel::Tests
