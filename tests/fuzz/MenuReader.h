// SPDX-License-Identifier: MIT
#pragma once

#include "Fuzz.h"
#include "support/Text.h"

#include <panorel/Menu.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QList>
#include <QStringList>
#include <QWidgetAction>

namespace Panorel::Fuzz {

using namespace Panorel::Tests;

/** What a user sees of an extended menu, and can do with it but for the file dialogs. */
class MenuReader
{
public:
    explicit MenuReader(const Menu& menu)
        : m_menu(menu)
    {}

    /** The entries in front of the first separator. */
    QList<QAction*> viewEntries() const
    {
        QList<QAction*> entries = m_menu.actions();
        for (int i = 0; i < entries.size(); ++i) {
            if (entries[i]->isSeparator())
                return entries.mid(0, i);
        }
        return entries;
    }

    /** Without the line edit. */
    QList<QAction*> saveEntries() const { return subMenu(0).mid(1); }
    QList<QAction*> deleteEntries() const { return subMenu(1); }
    QAction* programStartEntry() const { return m_menu.actions().at(m_menu.actions().size() - 2); }
    QAction* factoryDefaultEntry() const { return m_menu.actions().constLast(); }

    void enterName(const QString& name) const
    {
        auto* action = qobject_cast<QWidgetAction*>(subMenu(0).value(0));
        auto* edit = action ? qobject_cast<QLineEdit*>(action->defaultWidget()) : nullptr;
        if (!edit)
            fail("the save menu begins with a line edit");
        edit->setText(name);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(edit, &enter);
    }

    /** One line for each entry: its text, checked or not, and the two sub-menus. */
    QString text() const
    {
        QString text;
        for (const QAction* entry : viewEntries())
            text += (entry->isChecked() ? "[x] "_s : "[ ] "_s) + shown(entry->text()) + " of "_s +
                    shown(entry->data().toString()) + "\n"_s;
        for (const QAction* entry : saveEntries())
            text += "save "_s + shown(entry->text()) + "\n"_s;
        for (const QAction* entry : deleteEntries())
            text += "delete "_s + shown(entry->text()) + "\n"_s;
        return text;
    }

    /** The same text for what the menu must show; @p checked is null for none. */
    static QString expectedText(const QStringList& names, const QString& checked)
    {
        QString text;
        for (const QString& name : names)
            text += (!checked.isNull() && checked == name ? "[x] "_s : "[ ] "_s) + shown(name) +
                    " of "_s + shown(name) + "\n"_s;
        QStringList sorted = names;
        sorted.sort();
        for (const QString& name : sorted)
            text += "save "_s + shown(name) + "\n"_s;
        for (const QString& name : sorted)
            text += "delete "_s + shown(name) + "\n"_s;
        return text;
    }

private:
    /** An action has no text at all where it was given an empty one. */
    static QString shown(const QString& text) { return "'"_s + text + "'"_s; }

    QList<QAction*> subMenu(int index) const
    {
        for (const QAction* action : m_menu.actions()) {
            if (action->menu() && index-- == 0)
                return action->menu()->actions();
        }
        fail("the menu has two sub-menus");
    }

    const Menu& m_menu;
};

} // namespace Panorel::Fuzz
