// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutId.h"

#include <QTreeView>

namespace Panorel::Kit::Detail {

class LayoutDelegate;
class LayoutTree;
class Thumbnails;

/** A list of layouts with their pictures, in groups if there are several. Only what is seen is
    drawn. */
class LayoutsView : public QTreeView
{
    Q_OBJECT

public:
    /** @param model must outlive this view. */
    LayoutsView(LayoutTree& model, QWidget* parent);
    ~LayoutsView() override;

    LayoutDelegate& delegate() const { return *m_delegate; }

    /** The selected layouts in the order in which they are shown. */
    LayoutIds selectedLayouts() const;
    /** Selects @p layouts, makes the first one current and shows it. Does nothing without any. */
    void select(const LayoutIds& layouts);
    /** The current layout; without a name if there is none. */
    LayoutId currentLayout() const;
    /** Opens the name of @p index for editing, with a text that was refused. */
    void resumeEditing(const QModelIndex& index, const QString& text);

    QSize sizeHint() const override;

Q_SIGNALS:
    /** The current layout or the selection is another one. */
    void chosen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void showGroups();

    LayoutTree& m_model;
    LayoutDelegate* m_delegate;
};

} // namespace Panorel::Kit::Detail
