// SPDX-License-Identifier: MIT
#include "LayoutTree.h"

#include <QSet>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

QStringList namesOf(const QVector<Snapshot::View>& views)
{
    QStringList names;
    for (const Snapshot::View& view : views)
        names.append(view.name);
    return names;
}

QSet<QString> nameSet(const QVector<Snapshot::View>& views)
{
    QSet<QString> names;
    for (const Snapshot::View& view : views)
        names.insert(view.name);
    return names;
}

bool haveSameGroups(const Snapshot& a, const Snapshot& b)
{
    return std::equal(a.groups.cbegin(), a.groups.cend(), b.groups.cbegin(), b.groups.cend(),
                      [](const auto& one, const auto& other) { return one.name == other.name; });
}

} // namespace

LayoutTree::LayoutTree(QObject* parent)
    : QAbstractItemModel(parent)
{}

LayoutTree::~LayoutTree() = default;

void LayoutTree::setSnapshot(const Snapshot& snapshot)
{
    if (!haveSameGroups(m_snapshot, snapshot)) {
        beginResetModel();
        m_snapshot = snapshot;
        endResetModel();
        return;
    }
    for (int number = 0; number < snapshot.groups.size(); ++number)
        updateGroup(number, snapshot.groups[number].views);
    m_snapshot = snapshot;
}

void LayoutTree::updateGroup(int number, const QVector<Snapshot::View>& views)
{
    if (!isRenaming(number, views)) {
        removeMissing(number, views);
        reorder(number, views);
        insertMissing(number, views);
    }
    replaceContents(number, views);
}

// Whether one layout has another name and all else is in its place.
bool LayoutTree::isRenaming(int number, const QVector<Snapshot::View>& views) const
{
    const QVector<Snapshot::View>& old = m_snapshot.groups[number].views;
    if (old.size() != views.size())
        return false;
    int renamed = -1;
    for (int row = 0; row < views.size(); ++row) {
        if (old[row].name == views[row].name)
            continue;
        if (renamed >= 0)
            return false;
        renamed = row;
    }
    return renamed >= 0;
}

void LayoutTree::removeMissing(int number, const QVector<Snapshot::View>& views)
{
    const QSet<QString> kept = nameSet(views);
    QVector<Snapshot::View>& old = m_snapshot.groups[number].views;
    for (int last = old.size() - 1; last >= 0; --last) {
        int first = last + 1;
        while (first > 0 && !kept.contains(old[first - 1].name))
            --first;
        if (first > last)
            continue;
        beginRemoveRows(groupIndex(number), first, last);
        old.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

void LayoutTree::reorder(int number, const QVector<Snapshot::View>& views)
{
    QVector<Snapshot::View>& old = m_snapshot.groups[number].views;
    const QStringList before = namesOf(old);
    const QSet<QString> known = nameSet(old);
    QStringList after = namesOf(views);
    after.erase(std::remove_if(after.begin(), after.end(),
                               [&](const QString& name) { return !known.contains(name); }),
                after.end());
    if (after == before)
        return;
    Q_EMIT layoutAboutToBeChanged();
    QHash<QString, int> rows;
    for (int row = 0; row < after.size(); ++row)
        rows.insert(after[row], row);
    QVector<Snapshot::View> ordered(old.size());
    for (const Snapshot::View& view : qAsConst(old))
        ordered[rows.value(view.name)] = view;
    old = ordered;
    const QModelIndexList persistent = persistentIndexList();
    for (const QModelIndex& index : persistent) {
        if (isLayout(index) && index.parent().row() == number)
            changePersistentIndex(
                index, createIndex(rows.value(before[index.row()]), 0, index.internalId()));
    }
    Q_EMIT layoutChanged();
}

void LayoutTree::insertMissing(int number, const QVector<Snapshot::View>& views)
{
    const QSet<QString> known = nameSet(m_snapshot.groups[number].views);
    for (int first = 0; first < views.size(); ++first) {
        int last = first - 1;
        while (last + 1 < views.size() && !known.contains(views[last + 1].name))
            ++last;
        if (last < first)
            continue;
        beginInsertRows(groupIndex(number), first, last);
        QVector<Snapshot::View>& old = m_snapshot.groups[number].views;
        for (int row = first; row <= last; ++row)
            old.insert(row, views[row]);
        endInsertRows();
        first = last;
    }
}

void LayoutTree::replaceContents(int number, const QVector<Snapshot::View>& views)
{
    QVector<Snapshot::View>& old = m_snapshot.groups[number].views;
    for (int row = 0; row < views.size(); ++row) {
        const bool isSame = old[row] == views[row] && old[row].isActive == views[row].isActive;
        old[row] = views[row];
        const QModelIndex changed = index(row, 0, groupIndex(number));
        if (!isSame)
            Q_EMIT dataChanged(changed, changed);
    }
}

bool LayoutTree::isLayout(const QModelIndex& index)
{
    return index.isValid() && index.internalId() > 0;
}

LayoutId LayoutTree::idOf(const QModelIndex& index) const
{
    if (!isLayout(index))
        return {};
    return {m_snapshot.groups[index.parent().row()].name, viewAt(index).name};
}

QModelIndex LayoutTree::indexOf(const LayoutId& layout) const
{
    for (int number = 0; number < m_snapshot.groups.size(); ++number) {
        const Snapshot::Group& group = m_snapshot.groups[number];
        const Snapshot::View* const view =
            group.name == layout.group ? group.find(layout.name) : nullptr;
        if (view)
            return index(static_cast<int>(view - group.views.constData()), 0, groupIndex(number));
    }
    return {};
}

// A group has the internal id 0, a layout the number of its group from 1.
QModelIndex LayoutTree::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : quintptr(0));
}

QModelIndex LayoutTree::parent(const QModelIndex& index) const
{
    return isLayout(index) ? groupIndex(static_cast<int>(index.internalId()) - 1) : QModelIndex();
}

int LayoutTree::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_snapshot.groups.size();
    return isLayout(parent) ? 0 : m_snapshot.groups[parent.row()].views.size();
}

int LayoutTree::columnCount(const QModelIndex& parent) const
{
    Q_UNUSED(parent)
    return 1;
}

QVariant LayoutTree::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (!isLayout(index)) {
        const bool isName = role == Qt::DisplayRole || role == Qt::ToolTipRole;
        return isName ? m_snapshot.groups[index.row()].name : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return viewAt(index).name;
    case Qt::ToolTipRole:
        // As it is, and not as rich text.
        return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>")
            .arg(viewAt(index).name.toHtmlEscaped());
    case Qt::AccessibleDescriptionRole:
    case NoteRole:
        return noteOf(index);
    case StatesRole:
        return QVariant::fromValue(viewAt(index).states);
    case ActiveRole:
        return viewAt(index).isActive;
    default:
        return QVariant();
    }
}

Qt::ItemFlags LayoutTree::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags always = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return isLayout(index) ? always | Qt::ItemNeverHasChildren : always;
}

const Snapshot::View& LayoutTree::viewAt(const QModelIndex& index) const
{
    return m_snapshot.groups[index.parent().row()].views[index.row()];
}

QString LayoutTree::noteOf(const QModelIndex& index) const
{
    Q_UNUSED(index)
    return QString();
}

} // namespace Panorel::Kit::Detail
