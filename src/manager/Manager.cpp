// SPDX-License-Identifier: MIT
#include <panorel/Manager.h>

#include "Group.h"

#include <panorel/QtState.h>

#include <QMainWindow>
#include <QPointer>

#include <algorithm>
#include <new>

namespace Panorel {

namespace {

// The layout version given to saveState() and restoreState().
constexpr int layoutVersion = 0;

// Empty but not null, which receivers can tell apart.
QString emptyName()
{
    return QLatin1String("");
}

QString nameOf(const View* view)
{
    return view ? view->name : QString();
}

// Deliberate: whether a blob parses is not asked; a broken one takes part as far as it was read,
// and an id without a stored blob gives one that its window refuses. Empty where a hostile blob
// describes more than memory holds; then the window keeps its layout.
QByteArray mergedState(const QByteArray& stored, const QByteArray& live)
{
    try {
        QtState storedState;
        if (!stored.isEmpty())
            (void)storedState.read(stored);
        QtState liveState;
        if (!live.isEmpty())
            (void)liveState.read(live);
        return QtState::merge(storedState, liveState).write();
    } catch (const std::bad_alloc&) {
        return QByteArray();
    }
}

} // namespace

Manager::Manager(const QStringList& groups, bool mergeOnApply, QObject* parent)
    : QObject(parent)
    , m_mergeOnApply(mergeOnApply)
{
    for (const QString& name : groups) {
        if (!findGroup(name))
            m_groups.append(new Group(this, name));
    }
    if (m_groups.isEmpty())
        m_groups.append(new Group(this, QString()));
    m_activeGroup = m_groups.first();
}

Manager::~Manager()
{
    qDeleteAll(m_groups);
}

void Manager::registerManagable(IManagable& managable)
{
    m_managables.append(&managable);
}

QStringList Manager::groups() const
{
    QStringList names;
    for (const Group* group : m_groups)
        names.append(group->name);
    return names;
}

QString Manager::activeGroup() const
{
    return m_activeGroup->name;
}

QStringList Manager::views() const
{
    QStringList names;
    for (const auto& view : m_activeGroup->views)
        names.append(view->name);
    return names;
}

QString Manager::activeView() const
{
    return nameOf(m_activeGroup->activeView);
}

bool Manager::activateGroup(const QString& name)
{
    Group* group = findGroup(name);
    if (!group)
        return false;
    // Deliberate: the group that is active already is captured and applied again, with both
    // signals.
    m_activeGroup->captureCurrentView();
    m_activeGroup = group;
    group->applyCurrentView();
    Q_EMIT groupActivated(group->name);
    Q_EMIT viewActivated(nameOf(group->activeView));
    return true;
}

bool Manager::activateView(const QString& name)
{
    if (name.isEmpty())
        return false;
    View* view = m_activeGroup->findView(name);
    if (!view)
        return false;
    m_activeGroup->selectView(view, /*emitSignal=*/true);
    return true;
}

bool Manager::createView(const QString& name)
{
    if (m_activeGroup->findView(name))
        return false;
    Group* group = m_activeGroup;
    // Copied, because the window owners are asked, who may change the caller's text or replace the
    // view.
    const QString viewName = name;
    const quint64 serial = group->appendView(viewName)->serial;
    const StateMap states = captureStates();
    if (View* view = group->findView(viewName, serial))
        view->states = states;
    Q_EMIT groupModified();
    return true;
}

bool Manager::saveCurrentViewAs(const QString& name)
{
    Group* group = m_activeGroup;
    // Copied, because the window owners and the receivers may change the caller's text.
    const QString viewName = name;
    View* view = group->findView(viewName);
    bool created = !view;
    if (created)
        view = group->appendView(viewName);
    const quint64 serial = view->serial;
    group->captureCurrentView();
    // Looked up again, because the owners that were asked may have deleted it.
    view = group->findView(viewName, serial);
    if (!view) {
        view = group->appendView(viewName);
        created = true;
    }
    view->states = group->currentView->states;
    group->activeView = view;
    if (created)
        Q_EMIT groupModified();
    Q_EMIT viewActivated(viewName);
    return true;
}

void Manager::deleteView(const QString& name)
{
    Group* group = m_activeGroup;
    const View* view = group->findView(name);
    if (!view)
        return;
    // A receiver may delete the view itself and even create one of the same name, so from here on
    // it is identified by its serial number.
    const quint64 serial = view->serial;
    if (view == group->activeView) {
        group->activeView = nullptr;
        Q_EMIT viewActivated(emptyName());
    }
    group->removeView(serial);
    Q_EMIT groupModified();
}

void Manager::clear()
{
    // Deliberate: both signals come here and again below, the first pair before anything changes.
    Q_EMIT viewActivated(emptyName());
    Q_EMIT groupModified();
    const QVector<Group*> groups = m_groups;
    for (Group* group : groups) {
        const bool active = group->name == activeGroup();
        group->activeView = nullptr;
        if (active)
            Q_EMIT viewActivated(QString());
        group->removeAllViews();
        if (active)
            Q_EMIT groupModified();
    }
}

// Deliberate: the user data operations answer without data; it travels through the document only.

QVariant Manager::viewUserData(const QString& name) const
{
    Q_UNUSED(name)
    return QVariant();
}

QVariant Manager::viewUserData() const
{
    return QVariant();
}

bool Manager::setViewUserData(const QVariant& userData)
{
    Q_UNUSED(userData)
    return true;
}

QList<ManagedWindow> Manager::managedWindows()
{
    if (m_managables.size() == 1)
        return m_managables.constFirst()->managedWindows();
    QList<ManagedWindow> windows;
    // An owner that is asked may destroy a window that another one has answered with. An entry
    // without an id is not managed, so its window need not even exist.
    QVector<QPointer<QMainWindow>> watched;
    const QList<IManagable*> managables = m_managables;
    for (IManagable* managable : managables) {
        const QList<ManagedWindow> own = managable->managedWindows();
        windows.append(own);
        for (const ManagedWindow& managed : own)
            watched.append(managed.descriptorId.isEmpty() ? nullptr : managed.window);
    }
    for (int i = 0; i < windows.size(); ++i) {
        if (!windows[i].descriptorId.isEmpty())
            windows[i].window = watched[i];
    }
    return windows;
}

StateMap Manager::captureStates()
{
    StateMap states;
    const QList<ManagedWindow> windows = managedWindows();
    for (const ManagedWindow& managed : windows) {
        if (managed.descriptorId.isEmpty() || !managed.window)
            continue;
        const QByteArray state = managed.window->saveState(layoutVersion);
        // Copied, because the stream that wrote it reserves up to twice its size.
        if (!state.isEmpty())
            states.insert(managed.descriptorId, QByteArray(state.constData(), state.size()));
    }
    return states;
}

void Manager::restoreStates(const StateMap& states)
{
    struct Target
    {
        // Restoring one window may make the application destroy another.
        QPointer<QMainWindow> window;
        QByteArray state;
    };
    QVector<Target> targets;
    const QList<ManagedWindow> windows = managedWindows();
    for (const ManagedWindow& managed : windows) {
        if (!managed.descriptorId.isEmpty())
            targets.append({managed.window, states.value(managed.descriptorId)});
    }
    for (const Target& target : qAsConst(targets)) {
        // A window that refuses the blob keeps the layout it has.
        if (target.window && !target.state.isEmpty())
            (void)target.window->restoreState(target.state, layoutVersion);
    }
}

StateMap Manager::mergeStates(const StateMap& stored, const StateMap& live)
{
    StateMap merged;
    const QStringList ids = stored.keys() + live.keys();
    for (const QString& id : ids) {
        if (merged.contains(id))
            continue;
        merged.insert(id, mergedState(stored.value(id), live.value(id)));
    }
    return merged;
}

void Manager::applyStates(const StateMap& states)
{
    // Copied before any window owner is asked, because they may change the view.
    StateMap working = states;
    if (m_mergeOnApply)
        working = mergeStates(working, captureStates());
    restoreStates(working);
}

Group* Manager::findGroup(const QString& name) const
{
    const auto it = std::find_if(m_groups.cbegin(), m_groups.cend(),
                                 [&](const Group* group) { return group->name == name; });
    return it == m_groups.cend() ? nullptr : *it;
}

} // namespace Panorel
