// SPDX-License-Identifier: MIT
#pragma once

#include "Contents.h"

#include <panorel/StateMap.h>

#include <QString>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class WindowOwner;

/**
 * The layouts that a Manager has, which it tells in its document only. What is known is kept, with
 * its bytes shared, and the document is read again when something has changed that is not.
 */
class StoredViews
{
public:
    /** Both must outlive this object. */
    StoredViews(Manager& manager, WindowOwner& owner);

    /** All of it. The active group's current view is not kept up to date. */
    const Contents& contents();
    /** The states of a saved view; empty if there is none. */
    StateMap view(const QString& group, const QString& view);
    /** Whether there is a saved view of this name. Not while the Manager emits signals, as it may
        have to be asked. */
    bool has(const QString& group, const QString& view);
    /** The states of the current view of a group other than the active one, as far as known. */
    StateMap current(const QString& group) const;

    /** A view that there is not yet comes last. */
    void setView(const QString& group, const QString& view, const StateMap& states);
    void removeView(const QString& group, const QString& view);
    /** There are no views in any group. */
    void removeViews();
    void setCurrent(const QString& group, const StateMap& states);
    /** The active view of the active group is @p view; null if there is none. */
    void setActive(const QString& group, const QString& view);

    /** The saved views are read again when one is needed. */
    void forgetViews() { m_knowsViews = false; }
    /** The current views are read again by readCurrents(). */
    void forgetCurrents() { m_knowsCurrents = false; }
    /** Reads current views that are not known. Not while the Manager switches groups or reads a
        document, because asking for its document overwrites the active group's current view. */
    void readCurrents();
    /** Takes all from @p snapshot, which is what the Manager has. */
    void read(const Snapshot& snapshot);
    void set(const Contents& contents);

private:
    void fetchViews();
    void fetch();

    Manager& m_manager;
    WindowOwner& m_owner;
    Contents m_contents;
    bool m_knowsViews = false;
    bool m_knowsCurrents = false;
};

} // namespace Panorel::Kit::Detail
