// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/PanorelKitExport.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QAction;
class QDialog;
class QDockWidget;
class QMainWindow;
class QMenu;
class QToolButton;
class QUndoStack;
class QWidget;

namespace Panorel {
class IManagable;
class Manager;
} // namespace Panorel

namespace Panorel::Kit {

namespace Detail {
struct Actions;
struct Session;
} // namespace Detail

/**
 * Looks after the layouts of an application's main windows on top of a Manager.
 *
 * It registers an owner of its own with the Manager, once, at construction, and through it takes
 * part in every capture and restore, whoever asks for it. The Manager keeps working as it is
 * documented.
 *
 * Manager, Layouts, windows and everything made by Layouts may be destroyed in any order. What the
 * Manager still needs after that is its child. Without its Manager a Layouts does nothing; without
 * Layouts the Manager goes on with the windows that are left. GUI thread only. Nothing throws.
 */
class PANORELKIT_EXPORT Layouts : public QObject
{
    Q_OBJECT

public:
    /**
     * Looks after the layouts of @p manager.
     * @param manager not owned. Its windows are added here, not by Manager::registerManagable().
     * @param parent deletes this object with itself; may be null.
     */
    explicit Layouts(Manager& manager, QObject* parent = nullptr);
    /** Saves what has changed since the last time. */
    ~Layouts() override;

    /**
     * Adds a window, which need not be shown yet; not owned. A window that is there already is not
     * added again.
     * @param id names the window in every stored layout, so keep it stable between runs; where it
     * is empty, the window's objectName is taken, or else "window", "window-2" and so on in the
     * order of the calls.
     */
    void addWindow(QMainWindow& window, const QString& id = QString());

    /**
     * Adds the windows of an owner that the application has already, which is not registered with
     * the Manager as well. It is asked as IManagable says and must outlive the Manager's last
     * capture and restore; one that is a QObject too may be deleted at any time.
     */
    void addOwner(IManagable& owner);

    /**
     * Creates a dock widget as soon as a layout that a window has or gets mentions it and the
     * window does not have it; it gets its place in the layout. That may be at once. A dock widget
     * that nobody creates keeps its place for later, also in layouts that are saved meanwhile.
     * @param objectName the name in the layouts; the new dock widget gets it.
     * @param create returns the dock widget, which may be in the window already, or null. The
     * window takes it over. Called for each window that mentions the name.
     */
    void addDock(const QString& objectName, std::function<QDockWidget*()> create);

    /**
     * Loads the layouts and keeps them in the file from now on: they are saved soon after each
     * change, when the windows are closed and when the program ends. Call it before or after the
     * windows are added and shown; each gets its size and place at once, and its layout as soon as
     * it is on the screen at its real size. A window that is added later gets its part then.
     *
     * The file is written whole or not at all, and what it was at the last three starts is kept
     * beside it. A file that cannot be read is renamed and reported, and the newest good one is
     * used in its place. One of another version stays, and changes nothing, until there are
     * layouts to save; then it is renamed too. Layouts that another program has saved in it
     * meanwhile are taken over; one that both have changed is kept twice. Slots, their shortcuts
     * and the lock are taken over too, unless this program has changed them itself. Groups that
     * the Manager does not have stay in the file. Called again, it saves in the file before and
     * goes on with the other one.
     *
     * If the Manager is deleted before this object, its changes of the last half second, such as a
     * new layout, are not saved; the arrangement of the windows is. Call save() before, or delete
     * the Manager by deleteLater(): then all is saved.
     * @param fileName where; an empty one is "layouts.views" in the usual folder,
     * QStandardPaths::AppDataLocation.
     */
    void start(const QString& fileName = QString());
    /** Whether size and place of the windows are kept and given as well. They are at first; an
        application that does so itself turns it off before start() and addWindow(). */
    void setKeepsGeometry(bool keeps);

    /**
     * Makes a menu: a Panorel::Menu with all entries, with a field for new names that is ready for
     * typing, names as they are, and exports and imports that damage no file and refuse what is not
     * sound. message() reports what is done. Any number can be made; each may outlive this
     * object and the Manager, and is disabled without the latter.
     * @param parent deletes the menu; may be null.
     */
    QMenu* createMenu(QWidget* parent);
    /** Makes a tool button in the same way: a Panorel::ViewButton whose tool tip names the active
        layout. If a switch would hide the tool bar that it is in, the tool bar stays; the stored
        layout is not changed. */
    QToolButton* createButton(QWidget* parent);

    /**
     * Makes the dialog "Layouts": all layouts of all groups with a picture of each, to switch to,
     * rename, drag into another order or group, duplicate and delete, to export some of them and to
     * import chosen ones of a file. It says what differs from the windows, shows changes from
     * elsewhere, and each of its own can be undone. message() reports what is done.
     *
     * It is not shown yet and need not be modal. Any number can be made. Each may outlive this
     * object and the Manager; when one of them is deleted, the dialog closes and is disabled.
     * @param parent deletes the dialog; may be null.
     */
    QDialog* createDialog(QWidget* parent);

    /**
     * Nine actions, called slots. The user assigns a layout to a slot, also one of another group.
     * The action then has its name and activates it; an empty slot is disabled. Owned by this
     * object; each window has those that have a shortcut, so that it works there. The layouts of
     * the slots are kept in the file.
     */
    QList<QAction*> slotActions() const;
    /** Whether the actions have shortcuts. */
    bool areSlotShortcutsEnabled() const;
    /**
     * Gives the actions the shortcuts Ctrl+Alt+1 to Ctrl+Alt+9, which common programs leave free,
     * or removes them. Off until the application or the user turns them on. This is kept in the
     * file, and start() reads it from there. A shortcut that the application sets itself always
     * stays as it is.
     */
    void setSlotShortcutsEnabled(bool enabled);

    /** Activates the next layout of the active group in the Manager's order, after the last one the
        first; disabled if there is no other. Owned by this object; without a shortcut. */
    QAction* nextAction() const;
    /** Activates the previous layout in the same way. */
    QAction* previousAction() const;

    /** Whether the windows are locked. */
    bool isLocked() const;
    /**
     * Locks the windows, also those and the parts of them that come later: dock widgets cannot be
     * moved, floated or closed, tool bars cannot be moved, tabs cannot be dragged, and floating
     * parts stay where they are. Menus still show and hide parts, sizes can be changed, and layouts
     * be switched. Kept in the file: start() takes over what the file says, if anything.
     *
     * Unlocking gives each part back what it allowed before; so does deleting the Manager or this
     * object. While the windows are locked, QDockWidget::features() and QToolBar::isMovable()
     * return less. If the application sets them meanwhile, a part gets what was set when it is
     * unlocked. But what the application only removes is removed already, so it comes back.
     */
    void setLocked(bool locked);

    /**
     * Undo and redo of all changes of the layouts and of each switch between them, no matter what
     * made them. Owned by this object. It may be shown in a QUndoView and added to a QUndoGroup.
     * The actions in the menu have no shortcuts. When start() loads layouts, the steps before it
     * are dropped. A layout that another program has saved in the file meanwhile stays; what undo
     * brings back in its place gets a number after its name. Empty without the Manager.
     */
    QUndoStack* history() const;

    /**
     * Whether the user has rearranged something since the windows got the active layout, or it was
     * saved, and has not put it back. What a user sees counts: sizes by more than a tenth, and only
     * as long as the window has the same size; with mergeOnApply no tool bars. Parts that the
     * application adds and removes do not count. False without an active layout and without the
     * Manager.
     */
    bool isModified() const;

    /**
     * Adds the layouts of a file to those that are there, in place of those of the same name, and
     * shows its working layout. Parts that are not sound are left out.
     * @param problem if not null, gets why nothing was changed, in the user's language, or an empty
     * text without the Manager; else null.
     * @return false if nothing was changed. Anything is refused that is not a document of layouts
     * for one of the Manager's groups.
     */
    bool importFile(const QString& fileName, QString* problem = nullptr);

    /** Saves now if anything has changed. @return false if that fails, see problem(), and before
        start(). What could not be saved is tried again at the next change and every 30 seconds. */
    bool save();

    /** Why the layouts were not loaded or could not be saved, in the user's language; empty once
        they are saved. */
    QString problem() const;

    /**
     * What no layout can hold in the windows as they are now, one sentence in the user's language
     * for each: parts without a name, names that two parts have, dock widgets that are in none of
     * the window's areas, a missing central widget. Empty if all is well; a test can demand that.
     */
    QStringList check() const;

Q_SIGNALS:
    /** Emitted after the windows were locked or unlocked. */
    void lockedChanged(bool locked);
    /** Emitted when isModified() returns another value than before, a moment after the change. */
    void modifiedChanged(bool modified);
    /** One sentence for the user, such as for a status bar. A problem() is reported once. */
    void message(const QString& text);

private:
    const std::unique_ptr<Detail::Actions> m_actions;
    /** Null once the Manager is gone. */
    std::unique_ptr<Detail::Session> m_session;
};

} // namespace Panorel::Kit
