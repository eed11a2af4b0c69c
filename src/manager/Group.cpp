// SPDX-License-Identifier: MIT
#include "Group.h"

#include <panorel/Manager.h>

#include <algorithm>
#include <cstring>

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
    // Beside many views this is most of the work, so the names are not compared by a call of Qt's.
    const auto size = static_cast<std::size_t>(viewName.size());
    const auto isNamed = [&](const std::unique_ptr<View>& view) {
        return view->name.size() == viewName.size() &&
               std::memcmp(view->name.constData(), viewName.constData(), size * sizeof(QChar)) == 0;
    };
    const auto it = std::find_if(views.cbegin(), views.cend(), isNamed);
    return it == views.cend() ? nullptr : it->get();
}

View* Group::findView(const QString& viewName, quint64 serial) const
{
    if (!views.empty() && views.back()->serial == serial)
        return views.back().get();
    return findView(viewName);
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
    // Copied before the windows change, because their watchers may delete the view.
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
