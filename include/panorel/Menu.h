// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/PanorelExport.h>

#include <QFont>
#include <QMenu>

class QAction;
class QActionGroup;

namespace Panorel {

class Manager;

/**
 * The "Layouts" menu: switches between the saved views of a Manager's active group, saves the
 * present layout and deletes views. The extended form also exports, imports and merges all layouts
 * as a file, and resets to the Manager's two special documents.
 *
 * It keeps no data of its own and follows the Manager's signals: entries are rebuilt when views or
 * groups change, the check mark moves when a view is activated. An entry's data is the view's name.
 * A view whose user data converts to true is shown in italics as "... (skipped)" and passed over by
 * toggleView(); Manager::viewUserData() reports none so far.
 *
 * The Manager is not owned and must outlive the menu. The menu may be deleted by whoever receives a
 * signal of its actions or of the Manager, but not while one of its file dialogs is open. Nothing
 * asks for confirmation and nothing reports a failure; see the Manager's operations for what each
 * entry does. GUI thread only.
 */
class PANOREL_EXPORT Menu : public QMenu
{
    Q_OBJECT

public:
    /**
     * Constructs a menu of the Manager's views.
     *
     * @param manager not null; not owned, and must outlive the menu.
     * @param extended whether the file and reset entries are there.
     * @param parent deletes the menu with itself; may be null.
     *
     * The title is "Layouts" in the user's language. The fonts of the entries are the application's
     * font at this moment.
     */
    Menu(Manager* manager, bool extended, QWidget* parent = nullptr);
    /** Destroys the menu; the Manager stays. */
    ~Menu() override;

public Q_SLOTS:
    /** Rebuilds the view entries and both sub-menus, then updateSelection(). Text typed but not
        confirmed is lost. The former actions are deleted; one that is being triggered is removed
        at once and deleted when the event is over. */
    void updateMenu();
    /** Puts the check mark on the active view; without one, on none. It stays where it was if no
        entry has the active view's name. */
    void updateSelection();
    /** Activates the next view after the checked one that is not skipped, from the last on to the
        first. Does nothing when there is no other. */
    void toggleView();
    /** Manager::saveCurrentViewAs(name); does nothing for an empty name. */
    void saveCurrentLayoutAs(const QString& name);

private Q_SLOTS:
    void onActionTriggered(QAction* action);
    void onSaveLayoutAsTriggered(const QString& name);
    void onSaveLayoutTriggered();
    void onDeleteLayoutTriggered();
    void onSaveTriggered();
    void onLoadTriggered();
    void onMergeTriggered();

private:
    void addExtendedEntries();
    void connectExtendedEntries();
    QAction* createViewEntry(const QString& name);
    bool isSkipped(const QAction* entry) const;
    void updateSubMenus(QStringList names);
    void importViews(bool merge);

    Manager* m_manager;
    bool m_extended;
    QActionGroup* m_viewGroup;
    QMenu* m_deleteMenu = nullptr;
    QMenu* m_saveAsMenu = nullptr;
    QAction* m_importAction = nullptr;
    QAction* m_exportAction = nullptr;
    QAction* m_mergeAction = nullptr;
    QAction* m_viewSeparator = nullptr;
    QFont m_normalFont;
    QFont m_skippedFont;
};

} // namespace Panorel
