// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutTree.h"

#include <QList>
#include <QPersistentModelIndex>

#include <functional>

namespace Panorel::Kit::Detail {

/** The layouts of a Manager, which can be renamed and dragged. What is to be done is only told. */
class LayoutsModel : public LayoutTree
{
    Q_OBJECT

public:
    explicit LayoutsModel(QObject* parent);
    ~LayoutsModel() override;

    /** Gives what else is said of a layout, such as its shortcut. */
    using Reminder = std::function<QStringList(const LayoutId&)>;
    void setReminder(const Reminder& reminder) { m_reminder = reminder; }
    /** Something else is said of some layouts. */
    void updateReminders();

    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /** The user wants another name for @p layout, one that it can have. */
    void renamed(const Panorel::Kit::Detail::LayoutId& layout, const QString& name);
    /** @p text cannot be the name of the layout at @p index. */
    void refused(const QModelIndex& index, const QString& text);
    /** The user has dropped @p layouts before @p row of @p group. */
    void dropped(const Panorel::Kit::Detail::LayoutIds& layouts, const QString& group, int row);

protected:
    QString noteOf(const QModelIndex& index) const override;

private:
    Reminder m_reminder;
    /** What was dragged last. */
    mutable QList<QPersistentModelIndex> m_dragged;
};

} // namespace Panorel::Kit::Detail
