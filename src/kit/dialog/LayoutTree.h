// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutId.h"

#include "../window/Snapshot.h"

#include <QAbstractItemModel>

namespace Panorel::Kit::Detail {

/** Groups and, below each, its layouts. Follows a snapshot with as few changes as possible, so that
    a view keeps its selection and an open editor. */
class LayoutTree : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role {
        /** The StateMap of a layout. */
        StatesRole = Qt::UserRole,
        /** A second line below the name. */
        NoteRole,
        /** Whether the layout is the active one of its group. */
        ActiveRole
    };

    explicit LayoutTree(QObject* parent);
    ~LayoutTree() override;

    const Snapshot& snapshot() const { return m_snapshot; }
    void setSnapshot(const Snapshot& snapshot);

    /** Whether @p index is a layout, and not a group. */
    static bool isLayout(const QModelIndex& index);
    /** The layout at @p index; without a name if it is none. */
    LayoutId idOf(const QModelIndex& index) const;
    /** Invalid if there is none. */
    QModelIndex indexOf(const LayoutId& layout) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    const Snapshot::View& viewAt(const QModelIndex& index) const;
    /** A second line below the name of @p index, which is a layout. */
    virtual QString noteOf(const QModelIndex& index) const;

private:
    void updateGroup(int number, const QVector<Snapshot::View>& views);
    bool isRenaming(int number, const QVector<Snapshot::View>& views) const;
    void removeMissing(int number, const QVector<Snapshot::View>& views);
    void reorder(int number, const QVector<Snapshot::View>& views);
    void insertMissing(int number, const QVector<Snapshot::View>& views);
    void replaceContents(int number, const QVector<Snapshot::View>& views);
    QModelIndex groupIndex(int number) const { return createIndex(number, 0, quintptr(0)); }

    Snapshot m_snapshot;
};

} // namespace Panorel::Kit::Detail
