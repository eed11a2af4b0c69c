// SPDX-License-Identifier: MIT
#include "LayoutDelegate.h"

#include "LayoutPicture.h"
#include "LayoutTree.h"
#include "Thumbnails.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace Panorel::Kit::Detail {

namespace {

constexpr int margin = 6;
// Of a picture, in lines of text.
constexpr int pictureLines = 4;

QSize pictureSize(const QFontMetrics& metrics)
{
    const int height = pictureLines * metrics.height();
    return QSize(height * 3 / 2, height);
}

QStyle* styleOf(const QStyleOptionViewItem& option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}

QFont nameFont(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QFont font = option.font;
    font.setBold(index.data(LayoutTree::ActiveRole).toBool());
    return font;
}

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem& option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Normal : QPalette::Inactive;
}

// Between text and background, readable on both.
QColor faint(const QColor& text, const QColor& background)
{
    const auto mix = [](int a, int b) { return (2 * a + b) / 3; };
    return QColor(mix(text.red(), background.red()), mix(text.green(), background.green()),
                  mix(text.blue(), background.blue()));
}

} // namespace

LayoutDelegate::LayoutDelegate(Thumbnails& thumbnails, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_thumbnails(thumbnails)
{}

LayoutDelegate::~LayoutDelegate() = default;

LayoutDelegate::Places LayoutDelegate::placesIn(const QStyleOptionViewItem& option,
                                                const QModelIndex& index)
{
    const QRect room = option.rect.adjusted(margin, margin, -margin, -margin);
    int x = room.left();
    Places places;
    if (index.data(Qt::CheckStateRole).isValid()) {
        const int side = styleOf(option)->pixelMetric(QStyle::PM_IndicatorWidth, &option);
        places.check = QRect(x, room.center().y() - side / 2, side, side);
        x += side + 2 * margin;
    }
    places.picture = QRect(QPoint(x, room.top()), pictureSize(option.fontMetrics));
    x += places.picture.width() + 2 * margin;
    const int line = option.fontMetrics.height() + 4;
    const bool hasNote = !index.data(LayoutTree::NoteRole).toString().isEmpty();
    const int top = room.center().y() - (hasNote ? line : line / 2);
    places.name = QRect(x, top, qMax(0, room.right() - x), line);
    places.note = places.name.translated(0, line);
    for (QRect* const rect : {&places.check, &places.picture, &places.name, &places.note})
        *rect = QStyle::visualRect(option.direction, option.rect, *rect);
    return places;
}

void LayoutDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    if (!LayoutTree::isLayout(index)) {
        QStyleOptionViewItem group = option;
        group.font.setBold(true);
        QStyledItemDelegate::paint(painter, group, index);
        return;
    }
    QStyleOptionViewItem background = option;
    styleOf(option)->drawPrimitive(QStyle::PE_PanelItemViewItem, &background, painter,
                                   option.widget);
    paintFocus(*painter, option);
    const Places places = placesIn(option, index);
    paintPicture(*painter, option, places.picture, index);
    QStyleOptionViewItem name = option;
    name.font = nameFont(option, index);
    paintText(*painter, name, places.name, index.data().toString(), /*isFaint=*/false);
    paintText(*painter, option, places.note, index.data(LayoutTree::NoteRole).toString(),
              /*isFaint=*/true);
    paintCheck(*painter, option, places.check, index.data(Qt::CheckStateRole));
}

void LayoutDelegate::paintCheck(QPainter& painter, const QStyleOptionViewItem& option,
                                const QRect& rect, const QVariant& check)
{
    if (!check.isValid())
        return;
    QStyleOptionViewItem box = option;
    box.rect = rect;
    box.state &= ~(QStyle::State_HasFocus | QStyle::State_On | QStyle::State_Off);
    box.state |= check.toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    styleOf(option)->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter,
                                   option.widget);
    // Some styles make the frame darker than the background, which dark ones hide.
    if (LayoutPicture::isDark(option.palette)) {
        painter.setPen(
            faint(option.palette.color(QPalette::Text), option.palette.color(QPalette::Base)));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }
}

// Below all else, because some styles fill it.
void LayoutDelegate::paintFocus(QPainter& painter, const QStyleOptionViewItem& option)
{
    if (!(option.state & QStyle::State_HasFocus))
        return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = option.rect.adjusted(1, 1, -1, -1);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    styleOf(option)->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, option.widget);
}

void LayoutDelegate::paintPicture(QPainter& painter, const QStyleOptionViewItem& option,
                                  const QRect& rect, const QModelIndex& index) const
{
    const auto states = index.data(LayoutTree::StatesRole).value<StateMap>();
    painter.drawPixmap(rect.topLeft(), m_thumbnails.pixmap(states, rect.size(),
                                                           painter.device()->devicePixelRatioF(),
                                                           LayoutPicture::isDark(option.palette)));
}

void LayoutDelegate::paintText(QPainter& painter, const QStyleOptionViewItem& option,
                               const QRect& rect, const QString& text, bool isFaint)
{
    const bool isSelected = option.state & QStyle::State_Selected;
    const QPalette::ColorGroup group = colorGroup(option);
    const QColor color =
        option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor background =
        option.palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);
    painter.save();
    painter.setFont(option.font);
    // A cut name ends where it is read last.
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.setPen(isFaint ? faint(color, background) : color);
    const Qt::Alignment alignment =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(rect, static_cast<int>(alignment | Qt::AlignAbsolute) | Qt::TextSingleLine,
                     QFontMetrics(option.font).elidedText(text, Qt::ElideRight, rect.width()));
    painter.restore();
}

QSize LayoutDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!LayoutTree::isLayout(index))
        return QSize(0, 2 * option.fontMetrics.height());
    const QSize picture = pictureSize(option.fontMetrics);
    return QSize(3 * picture.width(), picture.height() + 2 * margin);
}

QWidget* LayoutDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    Q_UNUSED(option)
    if (!LayoutTree::isLayout(index) || !m_refusal)
        return nullptr;
    const QPersistentModelIndex edited(index);
    return new NameEdit([this, edited](const QString& text) { return m_refusal(edited, text); },
                        parent);
}

// What the user has typed stays when the layout changes meanwhile.
void LayoutDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const edit = static_cast<NameEdit*>(editor);
    if (!edit->isModified())
        edit->setText(index.data(Qt::EditRole).toString());
}

void LayoutDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const
{
    const QRect name = placesIn(option, index).name;
    QRect rect(name.topLeft(), QSize(name.width(), editor->sizeHint().height()));
    rect.moveCenter(name.center());
    editor->setGeometry(rect);
}

bool LayoutDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                               const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isTip = event->type() == QEvent::ToolTip && LayoutTree::isLayout(index);
    if (!isTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QFontMetrics metrics(nameFont(option, index));
    const Places places = placesIn(option, index);
    const QString note = index.data(LayoutTree::NoteRole).toString();
    const bool fits = metrics.horizontalAdvance(index.data().toString()) <= places.name.width() &&
                      option.fontMetrics.horizontalAdvance(note) <= places.note.width();
    if (fits)
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), index.data(Qt::ToolTipRole).toString(), view);
    return true;
}

// A name that cannot be is neither taken nor lost: the field stays open.
bool LayoutDelegate::eventFilter(QObject* editor, QEvent* event)
{
    auto* const edit = qobject_cast<NameEdit*>(editor);
    if (!edit)
        return QStyledItemDelegate::eventFilter(editor, event);
    if (event->type() == QEvent::FocusOut && edit->isVisible() && !edit->check())
        return false;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        const bool ends = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab ||
                          key == Qt::Key_Backtab;
        if (ends && !edit->check())
            return true;
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

bool LayoutDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                 const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QVariant check = index.data(Qt::CheckStateRole);
    if (!check.isValid() || event->type() != QEvent::MouseButtonRelease)
        return false;
    const QRect box = placesIn(option, index).check.adjusted(-margin, -margin, margin, margin);
    const int other = check.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    return box.contains(static_cast<const QMouseEvent*>(event)->pos()) &&
           model->setData(index, other, Qt::CheckStateRole);
}

} // namespace Panorel::Kit::Detail
