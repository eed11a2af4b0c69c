// SPDX-License-Identifier: MIT
#pragma once

#include "Snapshot.h"

#include <panorel/StateMap.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace Panorel::Kit::Detail {

/** What a Manager has. Unlike in a Snapshot, a switch changes a single member of it, and so copies
    no views. */
struct Contents
{
    struct View
    {
        QString name;
        StateMap states;
        QString userData;
    };
    struct Group
    {
        QString name;
        QVector<View> views;
        /** The active view; null if there is none. */
        QString active;
        /** The current view; of the active group as it was last, because the windows show it. */
        StateMap current;
        QString currentUserData;

        QStringList names() const;
        /** The place of a view; -1 if there is none of this name. */
        int indexOf(const QString& view) const;
        /** Null if there is none of this name. */
        const View* find(const QString& view) const;
        /** The states of the active view; empty if there is none. */
        StateMap activeStates() const;
    };

    QVector<Group> groups;
    QString activeGroup;

    /** Null if there is none of this name. */
    Group* find(const QString& group);
    const Group* find(const QString& group) const;

    static Contents of(const Snapshot& snapshot, const QString& activeGroup);
    Snapshot toSnapshot() const;
};

bool operator==(const Contents::View& a, const Contents::View& b);

} // namespace Panorel::Kit::Detail
