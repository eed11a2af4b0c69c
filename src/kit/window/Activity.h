// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/IManagable.h>
#include <panorel/StateMap.h>

#include <QObject>
#include <QString>
#include <QStringList>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Giver;
class StoredViews;
class WindowOwner;

/** What the Manager has done to the windows, apart from what it has. */
struct Operation
{
    /** Whether the windows were given a layout. */
    bool hasGiven = false;
    /** What they showed before that. */
    StateMap before;
    /** Whether their tool bars were part of it. */
    bool hasGivenToolBars = false;
    /** What was reported last was only its beginning. */
    bool continuesLast = false;
    /** Views came from a document. */
    bool isDocument = false;
};

/**
 * Watches what the Manager does, by its signals and by when it asks for windows, and takes over
 * what it would do to them.
 *
 * When the Manager asks, a switch is recognised by the active view or group, which is already the
 * new one; a capture comes before anything changes. In a switch the windows get the layout here and
 * the Manager gets none, so it has nothing to merge and to restore. Only activating what is active
 * already looks like a capture, and a document is restored by the Manager too; what that does wrong
 * is repaired afterwards.
 */
class Activity : public QObject
{
    Q_OBJECT

public:
    /** All must outlive this object, which is the hook of @p owner until then. */
    Activity(Manager& manager, WindowOwner& owner, StoredViews& stored, Giver& giver);
    ~Activity() override;

    /** Whether the Manager was made with mergeOnApply. */
    bool merges() const { return m_merges; }
    /** The group that is active, or was when the Manager was destroyed. */
    QString group() const { return m_group; }

    /** While one exists, the Manager does what the kit itself wants, which is no operation of the
        user. What the Manager has after it must be known to StoredViews. */
    class Takeover
    {
    public:
        explicit Takeover(Activity& activity);
        ~Takeover();
        Takeover(const Takeover&) = delete;
        Takeover& operator=(const Takeover&) = delete;

    private:
        Activity& m_activity;
    };

    /** While one exists, the Manager reads a document, which is one operation, or does nothing. */
    class Reading
    {
    public:
        explicit Reading(Activity& activity);
        ~Reading();
        Reading(const Reading&) = delete;
        Reading& operator=(const Reading&) = delete;

    private:
        Activity& m_activity;
    };

    /** Gives the windows the active view again and makes the Manager tell so. */
    void giveActiveView();
    /** Emits the Manager's signals for what was done while they were blocked: groupModified if
        @p views, groupActivated if @p group, and viewActivated. */
    void announce(bool views, bool group);

Q_SIGNALS:
    /** The Manager is about to capture the windows, or to restore them by itself. */
    void capturing();
    /** The windows are about to get another layout; they still show the one before. */
    void switching();
    /** Views, the active view or the active group may have changed. */
    void changed();
    /** An operation of the Manager is over, and what it has now is known. The windows may show
        another layout even if nothing else has changed. */
    void done(const Panorel::Kit::Detail::Operation& operation);
    /** The last Takeover is over. */
    void takenOver();

private:
    QList<ManagedWindow> asked();
    bool isSwitch();
    void switchWindows();
    void noteActive();
    void noteCreation();
    void noteBefore();
    void forgetSoon();
    void forget();
    void onGroupModified();
    void onGroupActivated();
    void onViewActivated(const QString& name);
    void noteViews();
    bool noteRemoval(bool mayBeClearing, const QStringList& before);
    bool noteCreatedView(const QStringList& before);
    bool noteDeletedView(const QStringList& before);
    void noteActivation();
    void noteDocument();
    void noteSameView();
    void finish();
    void resynchronize();

    Manager& m_manager;
    WindowOwner& m_owner;
    StoredViews& m_stored;
    Giver& m_giver;
    const bool m_merges;
    /** What is known to be active. */
    QString m_group;
    QString m_view;
    QStringList m_views;
    /** The windows when the Manager asked last. */
    StateMap m_asked;
    /** How often it has asked since its last signal, apart from switches. */
    int m_asks = 0;
    /** The new view that it had when it asked; null if it had none. */
    QString m_created;
    StateMap m_createdStates;
    /** Whether it was reported as created, and no other signal has come since. */
    bool m_hasCreated = false;
    /** Whether all views were removed, and nothing else has happened since. */
    bool m_hasRemoved = false;
    /** The windows when the Manager asked first after that. */
    StateMap m_askedFirst;
    /** Whether it will ask once more for the switch that is already done. */
    bool m_asksAgain = false;
    /** Whether a switch was done for which viewActivated is still to come. */
    bool m_hasSwitched = false;
    /** Whether the active group was activated, for which viewActivated is still to come. */
    bool m_hasReactivated = false;
    /** Whether a document was read for which viewActivated is still to come. */
    bool m_hasRead = false;
    /** Whether the active view's end was told, as at the begin of clear(). */
    bool m_mayBeClearing = false;
    bool m_isClearing = false;
    bool m_forgetsSoon = false;
    int m_takeovers = 0;
    int m_readings = 0;
    /** Whether the next signal is one of announce(). */
    bool m_isAnnouncing = false;
    Operation m_operation;
};

} // namespace Panorel::Kit::Detail
