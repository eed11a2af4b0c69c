// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutId.h"

#include "../window/Snapshot.h"

#include <QCoreApplication>
#include <QString>

namespace Panorel::Kit::Detail {

/** What the dialogs do to a snapshot. Layouts that it does not have are skipped. */
class LayoutEdits
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::LayoutEdits)

public:
    explicit LayoutEdits(const Snapshot& snapshot);

    const Snapshot& result() const { return m_snapshot; }

    /** The name that @p layout gets if the user types @p text: without blanks around it. */
    static QString nameFor(const LayoutId& layout, const QString& text);
    /** Why @p layout cannot get that name, in words; null if it can. */
    static QString refusal(const Snapshot& snapshot, const LayoutId& layout, const QString& text);

    void rename(const LayoutId& layout, const QString& name);
    void remove(const LayoutIds& layouts);
    /** Puts a copy after each. @return the copies. */
    LayoutIds duplicate(const LayoutIds& layouts);
    /** Puts @p layouts, in their order, before the one that is at @p row of @p group now. In
        another group they are not active, and get a free name. @return them with their names. */
    LayoutIds move(const LayoutIds& layouts, const QString& group, int row);
    /** What to do with a layout whose name is taken. */
    enum class OnTaken { Replace, KeepBoth };
    /** Appends @p view to @p group. @return its name there. */
    QString add(const QString& group, Snapshot::View view, OnTaken onTaken);
    /** Drops all but @p layouts, also the layouts that the windows show. */
    void keepOnly(const LayoutIds& layouts);

private:
    struct Taken
    {
        QString group;
        Snapshot::View view;
    };
    QVector<Taken> take(const LayoutIds& layouts);

    Snapshot m_snapshot;
};

} // namespace Panorel::Kit::Detail
