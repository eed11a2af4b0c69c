// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QObject>
#include <QPointer>

class QDialog;

namespace Panorel {
class Menu;
} // namespace Panorel

namespace Panorel::Kit {
class Layouts;
} // namespace Panorel::Kit

namespace Panorel::Kit::Detail {

struct Session;

/** The kit's own entries, after those that every Panorel::Menu has. */
class KitEntries : public QObject
{
    Q_OBJECT

public:
    /**
     * Adds the entries; what they call may be destroyed first.
     * @param menu owns this object and the entries.
     */
    KitEntries(Menu& menu, Layouts& layouts, Session& session);
    ~KitEntries() override;

private:
    /** @param entry may be the menu's or anybody's. */
    void add(QAction* entry);
    void addGroups();
    void addSaveAndBack();
    void addUndoAndRedo();
    void addActions();
    void addDialog(Layouts& layouts);
    void openDialog(Layouts& layouts);
    void disable();

    Menu& m_menu;
    Session& m_session;
    /** Without its Manager the menu deletes them. */
    QList<QPointer<QAction>> m_entries;
    /** Of a menu without a window. */
    QPointer<QDialog> m_dialog;
};

} // namespace Panorel::Kit::Detail
