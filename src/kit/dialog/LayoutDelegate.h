// SPDX-License-Identifier: MIT
#pragma once

#include "NameEdit.h"

#include <QModelIndex>
#include <QString>
#include <QStyledItemDelegate>

#include <functional>

namespace Panorel::Kit::Detail {

class Thumbnails;

/** Draws a layout as its picture with its name beside it, and edits the name in place. */
class LayoutDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param thumbnails must outlive this object. */
    LayoutDelegate(Thumbnails& thumbnails, QObject* parent);
    ~LayoutDelegate() override;

    /** Gives the reason why the layout at an index cannot have a name, null if it can. */
    using Refusal = std::function<QString(const QModelIndex&, const QString&)>;
    void setRefusal(const Refusal& refusal) { m_refusal = refusal; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    /** Where a layout's parts are, from left to right or from right to left. */
    struct Places
    {
        QRect check;
        QRect picture;
        QRect name;
        QRect note;
    };
    static Places placesIn(const QStyleOptionViewItem& option, const QModelIndex& index);
    static void paintFocus(QPainter& painter, const QStyleOptionViewItem& option);
    static void paintCheck(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect,
                           const QVariant& check);
    static void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect,
                          const QString& text, bool isFaint);
    void paintPicture(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect,
                      const QModelIndex& index) const;

    Thumbnails& m_thumbnails;
    Refusal m_refusal;
};

} // namespace Panorel::Kit::Detail
