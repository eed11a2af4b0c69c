// SPDX-License-Identifier: MIT
#include "NameField.h"

#include "MenuParts.h"

#include <panorel/Menu.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>
#include <QWidgetAction>

namespace Panorel::Kit::Detail {

NameField::NameField(Menu& menu)
    : QObject(&menu)
    , m_saveAs(MenuParts(menu).saveAs())
{
    connect(m_saveAs, &QMenu::aboutToShow, this, &NameField::prepare);
}

void NameField::prepare()
{
    const MenuParts::NameField field = MenuParts::nameField(*m_saveAs);
    if (!field.edit)
        return;
    const QString placeholder = tr("New name, then Return");
    field.edit->clear();
    field.edit->setPlaceholderText(placeholder);
    field.edit->setAccessibleName(tr("Name of the new layout"));
    const int margins = 4 * field.edit->fontMetrics().averageCharWidth();
    field.edit->setMinimumWidth(field.edit->fontMetrics().horizontalAdvance(placeholder) + margins);
    // The menu knows of another width only if the action itself changes.
    field.action->setText(placeholder);
    field.edit->installEventFilter(this);
    // When the menu is open, because it gives the focus to itself while it opens.
    QTimer::singleShot(0, field.edit, [saveAs = m_saveAs, field] {
        saveAs->setActiveAction(field.action);
        field.edit->setFocus(Qt::PopupFocusReason);
    });
}

bool NameField::eventFilter(QObject* watched, QEvent* event)
{
    const auto* edit = qobject_cast<QLineEdit*>(watched);
    if (!edit || event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    if (refuses(edit->text()))
        return true;
    leaveMenuBarLater();
    return false;
}

// A layout without a name cannot be chosen, and cycling stops at it.
bool NameField::refuses(const QString& name)
{
    if (!name.trimmed().isEmpty())
        return false;
    Q_EMIT message(tr("A layout needs a name: type one, then press Return."));
    return true;
}

// The menu bar keeps the keyboard otherwise, and the next letter opens one of its menus.
void NameField::leaveMenuBarLater()
{
    QTimer::singleShot(0, this, [] {
        auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
        if (!bar || QApplication::activePopupWidget())
            return;
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &escape);
    });
}

} // namespace Panorel::Kit::Detail
