// SPDX-License-Identifier: MIT
#include "ImportModel.h"

#include "LayoutEdits.h"

namespace Panorel::Kit::Detail {

ImportModel::ImportModel(const Snapshot& source, const Snapshot& target, QObject* parent)
    : LayoutTree(parent)
    , m_target(target)
{
    for (const Snapshot::Group& group : source.groups)
        m_choices.append(QVector<Choice>(group.views.size(), Choice::Add));
    setSnapshot(source);
    chooseFirst();
    updateNames();
}

ImportModel::~ImportModel() = default;

// What the user has already is not offered again.
void ImportModel::chooseFirst()
{
    for (int number = 0; number < m_choices.size(); ++number) {
        const QModelIndex group = index(number, 0);
        for (int row = 0; row < m_choices[number].size(); ++row) {
            const QModelIndex layout = index(row, 0, group);
            const Snapshot::View* const own = counterpart(layout);
            if (own && *own == viewAt(layout))
                m_choices[number][row] = Choice::Skip;
        }
    }
}

ImportModel::Choice ImportModel::choiceOf(const QModelIndex& index) const
{
    return isLayout(index) ? m_choices[index.parent().row()][index.row()] : Choice::Skip;
}

void ImportModel::store(const QModelIndex& index, Choice choice)
{
    const bool isPossible = choice != Choice::Replace || counterpart(index);
    if (isLayout(index) && isPossible)
        m_choices[index.parent().row()][index.row()] = choice;
}

void ImportModel::setChoice(const QModelIndexList& indexes, Choice choice)
{
    for (const QModelIndex& index : indexes)
        store(index, choice);
    updateNames();
    // The numbers in the names of others may be other ones as well.
    for (int number = 0; number < rowCount(); ++number) {
        const QModelIndex group = index(number, 0);
        const int last = rowCount(group) - 1;
        Q_EMIT dataChanged(index(0, 0, group), index(last, 0, group));
    }
    Q_EMIT choiceChanged();
}

const Snapshot::View* ImportModel::counterpart(const QModelIndex& index) const
{
    const LayoutId layout = idOf(index);
    const Snapshot::Group* const group = m_target.find(layout.group);
    return group ? group->find(layout.name) : nullptr;
}

int ImportModel::count() const
{
    int count = 0;
    for (const QVector<Choice>& choices : m_choices)
        count += choices.size() - choices.count(Choice::Skip);
    return count;
}

ImportModel::Result ImportModel::result(const Snapshot& target) const
{
    LayoutEdits edits(target);
    LayoutIds layouts;
    for (int number = 0; number < m_choices.size(); ++number) {
        const Snapshot::Group& group = snapshot().groups[number];
        for (int row = 0; row < group.views.size(); ++row) {
            const Choice choice = m_choices[number][row];
            if (choice == Choice::Skip)
                continue;
            const auto onTaken = choice == Choice::Replace ? LayoutEdits::OnTaken::Replace
                                                           : LayoutEdits::OnTaken::KeepBoth;
            layouts.append({group.name, edits.add(group.name, group.views[row], onTaken)});
        }
    }
    return {edits.result(), layouts};
}

void ImportModel::updateNames()
{
    const LayoutIds layouts = result(m_target).layouts;
    int next = 0;
    m_names.clear();
    for (const QVector<Choice>& choices : qAsConst(m_choices)) {
        QVector<QString> names(choices.size());
        for (int row = 0; row < choices.size(); ++row) {
            if (choices[row] != Choice::Skip)
                names[row] = layouts[next++].name;
        }
        m_names.append(names);
    }
}

QVariant ImportModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::CheckStateRole && isLayout(index))
        return choiceOf(index) == Choice::Skip ? Qt::Unchecked : Qt::Checked;
    return LayoutTree::data(index, role);
}

bool ImportModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !isLayout(index))
        return false;
    setChoice({index}, value.toInt() == Qt::Checked ? Choice::Add : Choice::Skip);
    return true;
}

Qt::ItemFlags ImportModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = LayoutTree::flags(index);
    return isLayout(index) ? flags | Qt::ItemIsUserCheckable : flags;
}

QString ImportModel::noteOf(const QModelIndex& index) const
{
    const Snapshot::View* const own = counterpart(index);
    switch (choiceOf(index)) {
    case Choice::Replace:
        return tr("Replaces your layout of this name");
    case Choice::Add:
        return own ? tr("Added as \"%1\"").arg(m_names[index.parent().row()][index.row()])
                   : tr("Added");
    case Choice::Skip:
        break;
    }
    if (own && *own == viewAt(index))
        return tr("You have it already");
    return own ? tr("Not imported, the name is taken") : tr("Not imported");
}

} // namespace Panorel::Kit::Detail
