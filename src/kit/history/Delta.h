// SPDX-License-Identifier: MIT
#pragma once

#include "../window/Contents.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace Panorel::Kit::Detail {

class StatePool;

/** What is not the same in two Contents, and nothing else of them. */
struct Delta
{
    /** A view that one of them does not have, or that is not the same in both. */
    struct View
    {
        std::optional<Contents::View> before;
        std::optional<Contents::View> after;
    };
    /** The part of a list of names that differs; those before and after it are the same. */
    struct Order
    {
        int first = 0;
        QStringList before;
        QStringList after;
    };
    struct Group
    {
        QString name;
        QVector<View> views;
        Order order;
        QString activeBefore;
        QString activeAfter;
        /** The current view, if it differs. */
        std::optional<StateMap> currentBefore;
        std::optional<StateMap> currentAfter;
    };

    QVector<Group> groups;
    QString groupBefore;
    QString groupAfter;

    /** The current view of a group that is active in one of them does not count. */
    static Delta between(const Contents& before, const Contents& after);

    bool isEmpty() const { return groups.isEmpty() && groupBefore == groupAfter; }
    /** The other way round. */
    Delta reversed() const;
    /** Makes what came before of @p contents what came after. What has changed meanwhile stays: a
        view that is neither what it was before nor what it gets is kept, and what it would get
        comes under a name with a number after it. */
    void apply(Contents& contents) const;
    /** Calls @p function for all states, which it may replace by equal ones. */
    void forEachStates(const std::function<void(StateMap&)>& function);
};

} // namespace Panorel::Kit::Detail
