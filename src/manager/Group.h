// SPDX-License-Identifier: MIT
#pragma once

#include "View.h"

#include <QString>

#include <memory>
#include <vector>

namespace Panorel {

class Manager;

/**
 * One group of layouts, owned by the Manager, through which it captures, applies and emits signals.
 */
struct Group
{
    Group(Manager* owner, const QString& groupName);
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;
    ~Group() = default;

    /** The first saved view of exactly this name, or null. */
    View* findView(const QString& viewName) const;
    /** The same, without a search if it still is the last one and has this serial number. */
    View* findView(const QString& viewName, quint64 serial) const;
    /** Appends an empty saved view. */
    View* appendView(const QString& viewName);
    /** Destroys the saved view of this serial number, if the group still has it. */
    void removeView(quint64 serial);
    void removeAllViews();

    /** The live layout becomes the current view's. */
    void captureCurrentView();
    /** The current view's layout goes onto the windows. */
    void applyCurrentView();
    /**
     * Makes @p view, which may be null, the active one, and its layout the current view's and the
     * windows'. With @p emitSignal, emits viewActivated last, with a null name for no view.
     */
    void selectView(View* view, bool emitSignal);

    Manager* manager;
    QString name;
    /** One of views, or null. */
    View* activeView = nullptr;
    /** The saved views in creation order. */
    std::vector<std::unique_ptr<View>> views;
    /** The working layout. It is never among views, so no name leads to it. */
    std::unique_ptr<View> currentView;
    quint64 lastSerial = 0;
};

} // namespace Panorel
