// SPDX-License-Identifier: MIT
#include "Slots.h"

#include "ActionText.h"
#include "Actions.h"
#include "Keeper.h"
#include "StoredViews.h"
#include "Windows.h"

#include <panorel/Manager.h>

#include <QAction>
#include <QJsonArray>
#include <QMainWindow>

#include <algorithm>
#include <utility>

namespace Panorel::Kit::Detail {

namespace {

const QLatin1String slotsKey("slots");
const QLatin1String shortcutsKey("slotShortcuts");

QKeySequence shortcutOf(int index)
{
    return QKeySequence(int(Qt::CTRL) + int(Qt::ALT) + int(Qt::Key_1) + index);
}

} // namespace

Slots::Slots(Manager& manager, StoredViews& stored, Windows& windows, Keeper& keeper,
             const Actions& actions)
    : m_manager(manager)
    , m_stored(stored)
    , m_keeper(keeper)
    , m_shortcuts(*actions.shortcuts)
{
    for (int index = 0; index < count; ++index) {
        Slot& slot = m_slots[index];
        slot.action = actions.layouts[index];
        slot.action->setText(textOf(slot));
        connect(slot.action, &QAction::triggered, this, [this, index] { activate(index); });
        connect(slot.action, &QAction::changed, this, [this, &slot] { updateWindows(slot); });
        updateWindows(slot);
    }
    m_shortcuts.setText(tr("Use S&hortcuts"));
    m_shortcuts.setToolTip(tr("%1 to %2 go to the layouts that were given these keys")
                               .arg(shortcutOf(0).toString(QKeySequence::NativeText),
                                    shortcutOf(count - 1).toString(QKeySequence::NativeText)));
    m_shortcuts.setCheckable(true);
    m_shortcuts.setEnabled(true);
    connect(&m_shortcuts, &QAction::toggled, this, &Slots::setShortcutsEnabled);
    connect(&windows, &Windows::added, this, &Slots::onWindowAdded);
    connect(&keeper, &Keeper::loaded, this, &Slots::load);
    connect(&manager, &Manager::groupModified, this, &Slots::onGroupModified);
    connect(&manager, &Manager::groupActivated, this, &Slots::onGroupModified);
}

Slots::~Slots()
{
    for (const Slot& slot : m_slots)
        slot.action->setEnabled(false);
    m_shortcuts.setEnabled(false);
}

int Slots::slotOf(const QString& group, const QString& view) const
{
    for (int index = 0; index < count; ++index) {
        if (!view.isEmpty() && m_slots[index].layout == Layout{group, view})
            return index + 1;
    }
    return 0;
}

void Slots::assign(int slot, const QString& group, const QString& view)
{
    if (slot < 0 || slot > count || view.isEmpty())
        return;
    takeAway({group, view});
    if (slot > 0)
        m_slots[slot - 1].names = {{group, view}};
    updateAll();
}

void Slots::follow(int slot, const QString& group, const QString& view)
{
    if (slot < 1 || slot > count)
        return;
    QList<Layout>& names = m_slots[slot - 1].names;
    const Layout layout{group, view};
    names.removeAll(layout);
    names.prepend(layout);
    updateAll();
}

void Slots::setShortcutsEnabled(bool enabled)
{
    if (std::exchange(m_hasShortcuts, enabled) == enabled)
        return;
    m_shortcuts.setChecked(enabled);
    for (int index = 0; index < count; ++index) {
        QAction& action = *m_slots[index].action;
        const QKeySequence own = enabled ? QKeySequence() : shortcutOf(index);
        if (action.shortcut() == own)
            action.setShortcut(enabled ? shortcutOf(index) : QKeySequence());
    }
    store();
    Q_EMIT changed();
}

// A shortcut works in windows that have its action. Others do not get it, because a window may show
// its actions to the user, such as in its context menu.
void Slots::updateWindows(Slot& slot)
{
    const bool hasShortcut = !slot.action->shortcut().isEmpty();
    if (std::exchange(slot.isInWindows, hasShortcut) == hasShortcut)
        return;
    for (const QPointer<QMainWindow>& window : qAsConst(m_windows)) {
        if (window && hasShortcut)
            window->addAction(slot.action);
        else if (window)
            window->removeAction(slot.action);
    }
}

void Slots::onWindowAdded(QMainWindow* window)
{
    m_windows.removeAll(nullptr); // Those that are gone.
    m_windows.append(window);
    for (const Slot& slot : m_slots) {
        if (slot.isInWindows)
            window->addAction(slot.action);
    }
}

QString Slots::shortcutText(const QString& group, const QString& view) const
{
    const int slot = slotOf(group, view);
    return slot == 0 ? QString()
                     : m_slots[slot - 1].action->shortcut().toString(QKeySequence::NativeText);
}

void Slots::load()
{
    const QJsonObject settings = m_keeper.settings();
    const QJsonObject layouts = settings.value(slotsKey).toObject();
    for (int index = 0; index < count && settings.contains(slotsKey); ++index) {
        const QJsonArray names = layouts.value(QString::number(index + 1)).toArray();
        const Layout layout{names.at(0).toString(), names.at(1).toString()};
        m_slots[index].names.clear();
        if (exists(layout))
            m_slots[index].names.append(layout);
    }
    if (settings.contains(shortcutsKey))
        setShortcutsEnabled(settings.value(shortcutsKey).toBool());
    updateAll();
}

void Slots::store()
{
    QJsonObject layouts;
    for (int index = 0; index < count; ++index) {
        const Slot& slot = m_slots[index];
        if (slot.names.isEmpty())
            continue;
        const Layout layout = firstExisting(slot);
        const Layout kept = layout.view.isEmpty() ? slot.names.constFirst() : layout;
        layouts.insert(QString::number(index + 1), QJsonArray{kept.group, kept.view});
    }
    // A file of a program that does not use them stays as it is.
    if (!layouts.isEmpty() || m_keeper.settings().contains(slotsKey))
        m_keeper.set(slotsKey, layouts);
    if (m_hasShortcuts || m_keeper.settings().contains(shortcutsKey))
        m_keeper.set(shortcutsKey, m_hasShortcuts);
}

void Slots::takeAway(const Layout& layout)
{
    for (Slot& slot : m_slots)
        slot.names.removeAll(layout);
}

// The Manager tells its active group only and must not be asked for more while it emits signals,
// which storing may make it do.
void Slots::onGroupModified()
{
    const QString group = m_manager.activeGroup();
    for (Slot& slot : m_slots) {
        const bool isActive =
            std::all_of(slot.names.cbegin(), slot.names.cend(),
                        [&](const Layout& layout) { return layout.group == group; });
        if (isActive)
            update(slot, firstExisting(slot));
    }
    if (!std::exchange(m_updatesSoon, true))
        QMetaObject::invokeMethod(this, &Slots::updateAll, Qt::QueuedConnection);
}

void Slots::updateAll()
{
    m_updatesSoon = false;
    for (Slot& slot : m_slots)
        update(slot, firstExisting(slot));
    store();
}

void Slots::update(Slot& slot, const Layout& layout)
{
    const bool isOther = !(slot.layout == layout);
    slot.layout = layout;
    slot.action->setEnabled(!layout.view.isEmpty());
    if (!isOther)
        return;
    slot.action->setText(textOf(slot));
    Q_EMIT changed();
}

Slots::Layout Slots::firstExisting(const Slot& slot) const
{
    for (const Layout& layout : slot.names) {
        if (exists(layout))
            return layout;
    }
    return {};
}

bool Slots::exists(const Layout& layout) const
{
    if (layout.group == m_manager.activeGroup())
        return m_manager.views().contains(layout.view);
    return m_stored.has(layout.group, layout.view);
}

QString Slots::textOf(const Slot& slot) const
{
    const Layout& layout = slot.layout;
    if (layout.view.isEmpty()) {
        const auto number = std::distance(&m_slots[0], &slot) + 1;
        return tr("Empty Slot %1").arg(number);
    }
    return actionText(m_manager.groups().size() > 1
                          ? QStringLiteral("%1 (%2)").arg(layout.view, layout.group)
                          : layout.view);
}

void Slots::activate(int index)
{
    const Layout layout = m_slots[index].layout;
    if (layout.group != m_manager.activeGroup())
        (void)m_manager.activateGroup(layout.group); // Without it there is no such view either.
    (void)m_manager.activateView(layout.view);
}

} // namespace Panorel::Kit::Detail
