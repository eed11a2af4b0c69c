// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/IManagable.h>
#include <panorel/PanorelExport.h>
#include <panorel/StateMap.h>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

class QAbstractMessageHandler;
class QXmlSchema;
class QXmlStreamReader;
class QXmlStreamWriter;

namespace Panorel {

struct Group;
struct View;

/**
 * Keeps the layouts of an application's main windows under names.
 *
 * A saved layout is a view. Views belong to groups, whose names are given at construction; one
 * group is active, and all view operations act on it. Each group has its saved views in creation
 * order, at most one of which is its active view, and a working layout of its own, the current
 * view, which is never among the saved ones. Only the live windows are shared by all groups.
 *
 * The Manager owns its groups and views and nothing else: registered objects and their windows
 * must be alive whenever a layout is captured or restored. It stores nothing outside memory; take
 * toXml() and keep it.
 *
 * Use it on the GUI thread only. Signals are emitted synchronously, after the model has changed
 * unless said otherwise. A failed operation returns false, changes nothing and emits nothing;
 * nothing throws or logs.
 *
 * A receiver, and an owner that is asked for its windows, may call any operation again and destroy
 * windows, but not delete the Manager. The operation that was under way goes on by its own steps
 * afterwards, on the group and the view that it had found; a signal that follows may therefore name
 * a view that is gone. saveCurrentViewAs() creates its view again if an owner has deleted it.
 *
 * View names are compared exactly and never checked: an empty name is stored like any other, and so
 * is "__current__", the internal name of the current view.
 */
class PANOREL_EXPORT Manager : public QObject, private IManagable
{
    Q_OBJECT

public:
    /**
     * Constructs a Manager with a group for each name and without saved views.
     *
     * @param groups names of the groups; a name that occurs again is skipped. The first group
     * becomes active. Give at least one: without any there is a single group without a name.
     * @param mergeOnApply when true, restoring a layout brings back its dock widgets while the tool
     * bars stay as they are; when false, both come back.
     * @param parent deletes the Manager with itself; may be null.
     *
     * Touches no window and emits nothing.
     */
    Manager(const QStringList& groups, bool mergeOnApply, QObject* parent = nullptr);
    /** Deletes groups and views. Nothing is captured or stored, no window is touched. */
    ~Manager() override;

    /**
     * From now on captures from and restores to the windows of @p managable, which must outlive
     * the Manager or at least its last capture and restore. Not checked for duplicates: what is
     * registered twice is captured and restored twice. Cannot be undone.
     */
    void registerManagable(IManagable& managable);

    /** Names of all groups in the order given at construction. */
    QStringList groups() const;
    /** Name of the group that all view operations act on. */
    QString activeGroup() const;

    /** Names of the active group's saved views in creation order. */
    QStringList views() const;
    /** Name of the active group's active view; null when there is none. */
    QString activeView() const;

    /**
     * Saves the live layout as a new view of the active group, after all others. The active view
     * and the windows stay as they are.
     * @return false for a name that a saved view of the group has already.
     *
     * Emits groupModified().
     */
    bool createView(const QString& name);

    /**
     * Saves the live layout under @p name, in a new view or over the existing one, and makes that
     * view the active one. The windows stay as they are.
     * @return true, always.
     *
     * Emits groupModified() if the view is new, then viewActivated(name).
     */
    bool saveCurrentViewAs(const QString& name);

    /**
     * Removes the saved view, if there is one of this name, and does nothing otherwise; the windows
     * stay as they are.
     *
     * Emits viewActivated with an empty string if it was the active view, while views() still
     * names it, then groupModified().
     */
    void deleteView(const QString& name);

    /**
     * Removes all saved views of all groups. Current views, windows, registered objects and the two
     * special documents stay.
     *
     * Emits viewActivated with an empty string and groupModified(), both before anything changes;
     * then viewActivated with a null string while the active group's views still exist, and
     * groupModified() once they are gone.
     */
    void clear();

    /** An invalid QVariant, whatever the name: user data travels through the document only. */
    QVariant viewUserData(const QString& name) const;
    /** An invalid QVariant. */
    QVariant viewUserData() const;
    /** Changes nothing, emits nothing and returns true. */
    bool setViewUserData(const QVariant& userData);

    /**
     * The whole model as one XML document in UTF-8. The live layout becomes the active group's
     * current view first; nothing is emitted. Cannot fail.
     * @param markActive whether each group's active view is marked, so that fromXml() finds it.
     *
     * User data is written as text; a value that has no text form is written empty. Characters that
     * XML cannot carry are lost from names; half of a surrogate pair becomes a question mark.
     */
    QByteArray toXml(bool markActive);

    /**
     * Reads a document written by toXml() and restores the active group's current view. With
     * mergeOnApply the windows first get the tool-bar states that the document holds.
     * @param data the bytes of the document, in UTF-8 or what they declare.
     * @param merge false: the document replaces all saved views. true: it is laid over them; views
     * it does not name stay, and so does a group's active view if the document marks none.
     * @return false for a document that does not satisfy the schema; nothing has changed then and
     * nothing is emitted. Groups are never added, removed, or activated: what the document says of
     * groups that this Manager does not have is skipped.
     *
     * Mind that a document of another version than "1.1.0" is not read, and yet the result is true:
     * with @p merge false the saved views are gone then. Keep a toXml() to go back to.
     *
     * Emits the signals of clear() with @p merge false, before anything is read; then
     * groupModified(), and when the windows show the layout viewActivated() with the active group's
     * active view, null if none. Opens no file and no network connection, whatever the document
     * refers to.
     */
    bool fromXml(const QByteArray& data, bool merge);

    /**
     * Whether every saved view of every group holds a layout for exactly the windows that are there
     * now. Always true with mergeOnApply false.
     */
    bool viewsValid() const;

    /**
     * Keeps a document of toXml() as the factory default, in place of an earlier one; it is not
     * read yet.
     * @return false, with the earlier one kept, for empty data and for a document that does not
     * satisfy the schema.
     *
     * Emits factoryDefaultViewChanged(true).
     */
    bool setFactoryDefaultView(const QByteArray& data);
    /** As setFactoryDefaultView(), for the program start; emits programStartViewChanged(true). */
    bool setProgramStartView(const QByteArray& data);
    /** True when a factory-default document is kept. */
    bool factoryDefaultViewSet() const;
    /** True when a program-start document is kept. */
    bool programStartViewSet() const;

Q_SIGNALS:
    /** The list of views has changed; see the operations for when. */
    void groupModified();
    /** The group is active and its current view is on the windows. */
    void groupActivated(const QString& name);
    /** The view is active and on the windows. The name is empty or null when no view is active:
        empty from deleteView() and at the start of clear(), null from the other operations. */
    void viewActivated(const QString& name);
    /** Never emitted. */
    void viewUserDataChanged(const QVariant& userData);
    /** A factory-default document was set; @p valid is always true. */
    void factoryDefaultViewChanged(bool valid);
    /** A program-start document was set; @p valid is always true. */
    void programStartViewChanged(bool valid);

public Q_SLOTS:
    /**
     * Keeps the live layout as the current view of the group that is left, and restores the current
     * view of group @p name, in full even if that group is active already.
     * @return false for a name that no group has.
     *
     * Emits groupActivated(name), then viewActivated with the group's active view, null if none.
     */
    bool activateGroup(const QString& name);

    /**
     * Makes a saved view of the active group its active and its current view and restores it. The
     * live layout is not saved first.
     * @return false for an empty name and for one that no saved view has.
     *
     * Emits viewActivated(name) last, when the windows already show the layout.
     */
    bool activateView(const QString& name);

    /**
     * Replaces all saved views by the factory-default document, as fromXml(document, false) does,
     * with its signals.
     * @return false, with nothing changed and nothing emitted, when none is set; else what
     * fromXml() returns, so a document of another version gives true and leaves no saved views.
     */
    bool activateFactoryDefaultView();
    /** As activateFactoryDefaultView(), for the program-start document. */
    bool activateProgramStartView();

private:
    friend struct Group;

    QList<ManagedWindow> managedWindows() override;

    StateMap captureStates();
    void restoreStates(const StateMap& states);
    StateMap mergeStates(const StateMap& stored, const StateMap& live);
    void applyStates(const StateMap& states);

    QXmlSchema loadSchema() const;
    bool validateDocument(const QByteArray& data, QAbstractMessageHandler* handler = nullptr) const;
    void writeGroup(const Group& group, QXmlStreamWriter& writer, bool markActive) const;
    void writeView(const View& view, QXmlStreamWriter& writer) const;
    void readDocument(QXmlStreamReader& reader, StateMap& toolBarStates);
    void readGroups(QXmlStreamReader& reader);
    void readGroup(Group& group, QXmlStreamReader& reader);
    void readViews(Group& group, QXmlStreamReader& reader);
    void readView(View& view, QXmlStreamReader& reader);

    Group* findGroup(const QString& name) const;

    QList<IManagable*> m_managables;
    QVector<Group*> m_groups;
    Group* m_activeGroup = nullptr;
    bool m_mergeOnApply;
    QByteArray m_factoryDefaultView;
    QByteArray m_programStartView;
};

} // namespace Panorel
