// SPDX-License-Identifier: MIT
#pragma once

#include "Fuzz.h"
#include "support/MenuReading.h"
#include "support/Text.h"

#include <panorel/Menu.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QList>
#include <QStringList>

namespace Panorel::Tests {

/** What a user sees of an extended menu, and can do with it but for the file dialogs. */
class MenuReader
{
public:
    explicit MenuReader(const Menu& menu)
        : m_menu(menu)
    {}

    QList<QAction*> viewEntries() const { return Tests::viewEntries(m_menu); }
    /** Without the line edit. */
    QList<QAction*> saveEntries() const { return saveAsMenu(m_menu)->actions().mid(1); }
    QList<QAction*> deleteEntries() const { return deleteMenu(m_menu)->actions(); }
    QAction* programStartEntry() const { return m_menu.actions().at(m_menu.actions().size() - 2); }
    QAction* factoryDefaultEntry() const { return m_menu.actions().constLast(); }

    void enterName(const QString& name) const
    {
        QLineEdit* edit = nameEdit(m_menu);
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

    const Menu& m_menu;
};

} // namespace Panorel::Tests
