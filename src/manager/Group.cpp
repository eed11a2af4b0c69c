// SPDX-License-Identifier: MIT
#include "Group.h"

#include <panorel/Manager.h>

#include <algorithm>

namespace Panorel {

Group::Group(Manager* owner, const QString& groupName)
    : manager(owner)
    , name(groupName)
    , currentView(std::make_unique<View>())
{
    currentView->name = QStringLiteral("__current__");
}

View* Group::findView(const QString& viewName) const
{
    const auto it = std::find_if(views.cbegin(), views.cend(),
                                 [&](const auto& view) { return view->name == viewName; });
    return it == views.cend() ? nullptr : it->get();
}

View* Group::appendView(const QString& viewName)
{
    views.push_back(std::make_unique<View>());
    views.back()->name = viewName;
    views.back()->serial = ++lastSerial;
    return views.back().get();
}

void Group::removeView(quint64 serial)
{
    const auto it = std::find_if(views.cbegin(), views.cend(),
                                 [&](const auto& view) { return view->serial == serial; });
    if (it == views.cend())
        return;
    if (activeView == it->get())
        activeView = nullptr;
    views.erase(it);
}

void Group::removeAllViews()
{
    activeView = nullptr;
    views.clear();
}

void Group::captureCurrentView()
{
    currentView->states = manager->captureStates();
}

void Group::applyCurrentView()
{
    manager->applyStates(currentView->states);
}

void Group::selectView(View* view, bool emitSignal)
{
    // Taken before the windows change, for whoever watches them may delete the view.
    const QString viewName = view ? view->name : QString();
    activeView = view;
    if (view) {
        currentView->states = view->states;
        applyCurrentView();
    }
    if (emitSignal)
        Q_EMIT manager->viewActivated(viewName);
}

} // namespace Panorel
