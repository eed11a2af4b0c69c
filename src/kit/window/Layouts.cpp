// SPDX-License-Identifier: MIT
#include <panorel/kit/Layouts.h>

#include "Actions.h"
#include "Doctor.h"
#include "Session.h"

#include "../dialog/LayoutsDialog.h"
#include "../menu/MenuFactory.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <utility>

namespace Panorel::Kit {

Layouts::Layouts(Manager& manager, QObject* parent)
    : QObject(parent)
    , m_actions(std::make_unique<Detail::Actions>(*this))
    , m_session(
          std::make_unique<Detail::Session>(manager, *new Detail::WindowOwner(manager), *m_actions))
{
    // While the owner, which is its child, is still there.
    connect(&manager, &QObject::destroyed, this, [this] {
        m_session->keeper.finish();
        const bool wasLocked = isLocked();
        const bool wasModified = isModified();
        m_session.reset();
        if (wasLocked)
            Q_EMIT lockedChanged(false);
        if (wasModified)
            Q_EMIT modifiedChanged(false);
    });
    // Those that are there are looked at when it starts.
    connect(&m_session->windows, &Detail::Windows::added, this, [this](QMainWindow* window) {
        if (m_session->keeper.hasStarted())
            Detail::Doctor::tell(*window);
    });
    connect(&m_session->keeper, &Detail::Keeper::message, this, &Layouts::message);
    connect(&m_session->lock, &Detail::Lock::lockedChanged, this, &Layouts::lockedChanged);
    connect(&m_session->modification, &Detail::Modification::modifiedChanged, this,
            &Layouts::modifiedChanged);
    connect(&m_session->history, &Detail::History::message, this, &Layouts::message);
    connect(&m_session->transfer, &Detail::Transfer::message, this, &Layouts::message);
}

Layouts::~Layouts() = default;

void Layouts::addWindow(QMainWindow& window, const QString& id)
{
    if (!m_session)
        return;
    Detail::Names::choose(window);
    m_session->owner.addWindow(window, id);
    m_session->windows.update();
}

void Layouts::addOwner(IManagable& owner)
{
    if (!m_session)
        return;
    m_session->owner.addOwner(owner);
    m_session->windows.update();
}

void Layouts::addDock(const QString& objectName, std::function<QDockWidget*()> create)
{
    if (!m_session)
        return;
    m_session->docks.add(objectName, std::move(create));
    m_session->giver.createMissingDocks();
}

void Layouts::start(const QString& fileName)
{
    if (!m_session)
        return;
    m_session->keeper.start(fileName);
    const QList<ManagedWindow> windows = m_session->owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (managed.window)
            Detail::Doctor::tell(*managed.window);
    }
}

QMenu* Layouts::createMenu(QWidget* parent)
{
    if (m_session)
        return Detail::MenuFactory::createMenu(*this, *m_session, parent);
    auto* menu = new QMenu(parent);
    menu->setEnabled(false);
    return menu;
}

QToolButton* Layouts::createButton(QWidget* parent)
{
    if (m_session)
        return Detail::MenuFactory::createButton(*this, *m_session, parent);
    auto* button = new QToolButton(parent);
    button->setEnabled(false);
    return button;
}

QDialog* Layouts::createDialog(QWidget* parent)
{
    if (!m_session) {
        auto* dialog = new QDialog(parent);
        dialog->setEnabled(false);
        return dialog;
    }
    auto* dialog = new Detail::LayoutsDialog(*m_session, parent);
    connect(dialog, &Detail::LayoutsDialog::message, this, &Layouts::message);
    return dialog;
}

QList<QAction*> Layouts::slotActions() const
{
    return m_actions->layouts;
}

bool Layouts::areSlotShortcutsEnabled() const
{
    return m_session && m_session->layoutSlots.areShortcutsEnabled();
}

void Layouts::setSlotShortcutsEnabled(bool enabled)
{
    if (m_session)
        m_session->layoutSlots.setShortcutsEnabled(enabled);
}

QAction* Layouts::nextAction() const
{
    return m_actions->next;
}

QAction* Layouts::previousAction() const
{
    return m_actions->previous;
}

bool Layouts::isLocked() const
{
    return m_session && m_session->lock.isLocked();
}

void Layouts::setKeepsGeometry(bool keeps)
{
    if (m_session)
        m_session->windows.setKeepsGeometry(keeps);
}

void Layouts::setLocked(bool locked)
{
    if (m_session)
        m_session->lock.setLocked(locked);
}

bool Layouts::isModified() const
{
    return m_session && m_session->modification.isModified();
}

QUndoStack* Layouts::history() const
{
    return m_actions->history;
}

bool Layouts::importFile(const QString& fileName, QString* problem)
{
    const QString reason =
        m_session ? m_session->transfer.importFrom(fileName, Detail::Transfer::Mode::Add)
                  : QStringLiteral("");
    if (problem)
        *problem = reason;
    return m_session && reason.isNull();
}

bool Layouts::save()
{
    return m_session && m_session->keeper.save();
}

QString Layouts::problem() const
{
    return m_session ? m_session->keeper.problem() : QString();
}

QStringList Layouts::check() const
{
    QStringList found;
    if (!m_session)
        return found;
    const QList<ManagedWindow> windows = m_session->owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (managed.window)
            found += Detail::Doctor::check(*managed.window);
    }
    return found;
}

} // namespace Panorel::Kit
