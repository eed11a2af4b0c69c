// SPDX-License-Identifier: MIT
#include "LayoutsView.h"

#include "LayoutDelegate.h"
#include "LayoutTree.h"
#include "Thumbnails.h"

#include <QPainter>

#include <algorithm>

namespace Panorel::Kit::Detail {

LayoutsView::LayoutsView(LayoutTree& model, QWidget* parent)
    : QTreeView(parent)
    , m_model(model)
    , m_delegate(new LayoutDelegate(*new Thumbnails(this), this))
{
    setModel(&model);
    setItemDelegate(m_delegate);
    setHeaderHidden(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    setExpandsOnDoubleClick(false);
    setIndentation(fontMetrics().height());
    connect(&model, &QAbstractItemModel::modelReset, this, &LayoutsView::showGroups);
    showGroups();
}

LayoutsView::~LayoutsView() = default;

// A single group needs no title.
void LayoutsView::showGroups()
{
    const bool isSingle = m_model.rowCount() == 1;
    setRootIndex(isSingle ? m_model.index(0, 0) : QModelIndex());
    setRootIsDecorated(!isSingle);
    setItemsExpandable(!isSingle);
    if (isSingle)
        setIndentation(0);
    expandAll();
}

LayoutIds LayoutsView::selectedLayouts() const
{
    QModelIndexList indexes = selectedIndexes();
    std::sort(indexes.begin(), indexes.end(), [](const QModelIndex& a, const QModelIndex& b) {
        return qMakePair(a.parent().row(), a.row()) < qMakePair(b.parent().row(), b.row());
    });
    LayoutIds layouts;
    for (const QModelIndex& index : qAsConst(indexes)) {
        if (LayoutTree::isLayout(index))
            layouts.append(m_model.idOf(index));
    }
    return layouts;
}

void LayoutsView::select(const LayoutIds& layouts)
{
    QItemSelection selection;
    QModelIndex first;
    for (const LayoutId& layout : layouts) {
        const QModelIndex index = m_model.indexOf(layout);
        if (!index.isValid())
            continue;
        selection.append(QItemSelectionRange(index));
        if (!first.isValid())
            first = index;
    }
    if (!first.isValid())
        return;
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    scrollTo(first);
}

LayoutId LayoutsView::currentLayout() const
{
    return m_model.idOf(currentIndex());
}

void LayoutsView::resumeEditing(const QModelIndex& index, const QString& text)
{
    if (!index.isValid() || !isVisible())
        return;
    setCurrentIndex(index);
    edit(index);
    if (auto* const editor = qobject_cast<NameEdit*>(indexWidget(index)))
        editor->resume(text);
}

// A picture with room for a name beside it.
QSize LayoutsView::sizeHint() const
{
    return QSize(22, 24) * fontMetrics().height();
}

void LayoutsView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_model.rowCount(rootIndex()) > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    const int margin = fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap,
                     tr("There are no layouts yet. Save one in the menu \"Layouts\"."));
}

void LayoutsView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT chosen();
}

void LayoutsView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    Q_EMIT chosen();
}

} // namespace Panorel::Kit::Detail
