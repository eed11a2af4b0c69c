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

/**
 * Watches what the Manager does, by its signals and by when it asks for windows, and takes over
 * what it would do to them.
 *
 * When the Manager asks, a switch is recognised by the active view or group, which is already the
 * new one; a capture comes before anything changes. In a switch the windows get the layout here and
 * the Manager gets none, so it has nothing to merge and to restore. Only activating what is active
 * already looks like a capture; there the Manager restores, and a merge is repaired afterwards.
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

Q_SIGNALS:
    /** The Manager is about to capture the windows, or to restore what they show already. */
    void capturing();
    /** The windows are about to get another layout; they still show the one before. */
    void switching();
    /** Views, the active view or the active group may have changed. */
    void changed();

private:
    QList<ManagedWindow> asked();
    bool isSwitch() const;
    void switchWindows();
    void noteActive();
    void onGroupModified();
    void onGroupActivated();
    void onViewActivated(const QString& name);
    void noteViews();
    void repair(const QString& view);

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
    /** Whether it will ask once more for the switch that is already done. */
    bool m_asksAgain = false;
    /** Whether a switch was done for which viewActivated is still to come. */
    bool m_hasSwitched = false;
    /** Whether views have come from somewhere else, such as a document. */
    bool m_wasReplaced = false;
};

} // namespace Panorel::Kit::Detail
