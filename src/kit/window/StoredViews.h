// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QHash>
#include <QPair>
#include <QString>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class WindowOwner;
struct Snapshot;

/**
 * The layouts that a Manager has, which it tells in its document only. What is known is kept, with
 * its bytes shared, and the document is read again when something has changed that is not.
 */
class StoredViews
{
public:
    /** Both must outlive this object. */
    StoredViews(Manager& manager, WindowOwner& owner);

    /** The states of a saved view; empty if there is none. */
    StateMap view(const QString& group, const QString& view);
    /** Whether there is a saved view of this name. Not while the Manager emits signals, as it may
        have to be asked. */
    bool has(const QString& group, const QString& view);
    /** The states of the current view of a group other than the active one, as far as known. */
    StateMap current(const QString& group) const { return m_currents.value(group); }

    void setView(const QString& group, const QString& view, const StateMap& states);
    void removeView(const QString& group, const QString& view) { m_views.remove({group, view}); }
    void setCurrent(const QString& group, const StateMap& states);

    /** The saved views are read again when one is needed. */
    void forgetViews() { m_knowsViews = false; }
    /** The current views are read again by readCurrents(). */
    void forgetCurrents() { m_knowsCurrents = false; }
    /** Reads current views that are not known. Not while the Manager switches groups or reads a
        document, because asking for its document overwrites the active group's current view. */
    void readCurrents();
    /** Takes all from @p snapshot, which is what the Manager has. */
    void read(const Snapshot& snapshot);

private:
    using Views = QHash<QPair<QString, QString>, StateMap>;

    void fetchViews();
    void fetch();

    Manager& m_manager;
    WindowOwner& m_owner;
    Views m_views;
    QHash<QString, StateMap> m_currents;
    bool m_knowsViews = false;
    bool m_knowsCurrents = false;
};

} // namespace Panorel::Kit::Detail
