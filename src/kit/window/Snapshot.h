// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Panorel::Kit::Detail {

/** All that a Manager keeps, as values: what its document says, read and written without it. */
struct Snapshot
{
    struct View
    {
        QString name;
        bool isActive = false;
        StateMap states;
        QString userData;
    };
    struct Group
    {
        QString name;
        QVector<View> views;
        View current;

        /** Null if there is none of this name. */
        const View* find(const QString& view) const;
        /** @p wanted, or with a number after it if it is taken. */
        QString freeName(const QString& wanted) const;
    };

    QString version;
    StateMap toolBarStates;
    QVector<Group> groups;

    /** Reads a document that a Manager accepts; of another one as much as is there. */
    static Snapshot fromXml(const QByteArray& document);
    /** The document as Manager::toXml() writes it. */
    QByteArray toXml() const;

    /** Null if there is none of this name. */
    Group* find(const QString& group);
    const Group* find(const QString& group) const;

    /**
     * @p ours with the views that others have added, changed or deleted in @p theirs since both
     * were @p base. A view that both have changed is kept twice, theirs under a free name.
     */
    static Snapshot merged(const Snapshot& base, const Snapshot& ours, const Snapshot& theirs);
};

/** Whether both have the same layout and user data; the mark of the active one may differ. */
bool operator==(const Snapshot::View& a, const Snapshot::View& b);
/** Whether both have the same views in the same order. */
bool haveSameViews(const Snapshot& a, const Snapshot& b);

} // namespace Panorel::Kit::Detail
