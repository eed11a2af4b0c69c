// SPDX-License-Identifier: MIT
#include <panorel/Menu.h>

#include "EntryGroup.h"
#include "MenuEdit.h"
#include "SkippedView.h"

#include <panorel/Manager.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QTextStream>
#include <QWidgetAction>

#include <algorithm>

namespace Panorel {

namespace {

// The constructor of the menu makes the group.
EntryGroup* entryGroup(QActionGroup* group)
{
    return static_cast<EntryGroup*>(group);
}

// The action that shows the name field.
QAction* actionOf(const QMenu* menu, const QObject* field)
{
    const QList<QAction*> actions = menu->actions();
    const auto it = std::find_if(actions.cbegin(), actions.cend(), [&](const QAction* action) {
        const auto* widgetAction = qobject_cast<const QWidgetAction*>(action);
        return widgetAction && widgetAction->defaultWidget() == field;
    });
    return it == actions.cend() ? nullptr : *it;
}

} // namespace

Menu::Menu(Manager* manager, bool extended, QWidget* parent)
    : QMenu(tr("Layouts"), parent)
    , m_manager(manager)
    , m_extended(extended)
    , m_viewGroup(new EntryGroup(this))
    , m_normalFont(QApplication::font())
    , m_skippedFont(m_normalFont)
{
    m_viewGroup->setExclusive(true);
    m_skippedFont.setStyle(QFont::StyleItalic);
    m_viewSeparator = addSeparator();
    m_saveAsMenu = addMenu(tr("Save Current Layout As..."));
    m_deleteMenu = addMenu(tr("Delete Layout..."));
    for (QMenu* menu : {m_saveAsMenu, m_deleteMenu})
        connect(menu, &QMenu::triggered, this,
                [this](QAction* action) { entryGroup(m_viewGroup)->hold(action); });
    if (m_extended)
        addExtendedEntries();
    updateMenu();
    if (m_extended)
        connectExtendedEntries();
    connect(m_viewGroup, &QActionGroup::triggered, this, &Menu::onActionTriggered);
    connect(m_manager, &Manager::groupModified, this, &Menu::updateMenu);
    connect(m_manager, &Manager::groupActivated, this, &Menu::updateMenu);
    connect(m_manager, &Manager::viewUserDataChanged, this, &Menu::updateMenu);
    connect(m_manager, &Manager::viewActivated, this, &Menu::updateSelection);
}

Menu::~Menu() = default;

void Menu::addExtendedEntries()
{
    addSeparator();
    m_exportAction = new QAction(tr("Export ..."), this);
    m_importAction = new QAction(tr("Import ..."), this);
    m_mergeAction = new QAction(tr("Import & Merge ..."), this);
    addActions({m_exportAction, m_importAction, m_mergeAction});
    addSeparator();

    QAction* programStart = addAction(tr("Reset Layout to Program Start"));
    programStart->setEnabled(m_manager->programStartViewSet());
    connect(m_manager, &Manager::programStartViewChanged, programStart, &QAction::setEnabled);
    connect(programStart, &QAction::triggered, m_manager, &Manager::activateProgramStartView);

    QAction* factoryDefault = addAction(tr("Reset Layout to Factory Default"));
    factoryDefault->setEnabled(m_manager->factoryDefaultViewSet());
    connect(m_manager, &Manager::factoryDefaultViewChanged, factoryDefault, &QAction::setEnabled);
    connect(factoryDefault, &QAction::triggered, m_manager, &Manager::activateFactoryDefaultView);
}

void Menu::connectExtendedEntries()
{
    connect(m_exportAction, &QAction::triggered, this, &Menu::onSaveTriggered);
    connect(m_importAction, &QAction::triggered, this, &Menu::onLoadTriggered);
    connect(m_mergeAction, &QAction::triggered, this, &Menu::onMergeTriggered);
}

void Menu::updateMenu()
{
    entryGroup(m_viewGroup)->removeHeld();
    qDeleteAll(m_viewGroup->actions());
    const QStringList names = m_manager->views();
    for (const QString& name : names)
        insertAction(m_viewSeparator, createViewEntry(name));
    updateSubMenus(names);
    // What updateSelection() does, without asking each of the new entries for its name.
    const QString active = m_manager->activeView();
    const int index = active.isEmpty() ? -1 : names.indexOf(active);
    if (QAction* entry = m_viewGroup->actions().value(index))
        entry->setChecked(true);
}

QAction* Menu::createViewEntry(const QString& name)
{
    const bool skipped = isSkippedView(m_manager->viewUserData(name));
    // Deliberate: the one text of the menu that is not translated.
    const QString label = skipped ? QStringLiteral("%1 (skipped)").arg(name) : name;
    auto* entry = new QAction(label, this);
    entry->setFont(skipped ? m_skippedFont : m_normalFont);
    entry->setData(name);
    entry->setCheckable(true);
    m_viewGroup->addAction(entry);
    return entry;
}

void Menu::updateSubMenus(QStringList names)
{
    m_saveAsMenu->clear();
    m_deleteMenu->clear();
    // Deliberate: only the sub-menus are sorted; the view entries keep the Manager's order.
    names.sort(Qt::CaseSensitive);

    auto* edit = new MenuEdit(QString(), m_saveAsMenu);
    auto* editAction = new QWidgetAction(m_saveAsMenu);
    editAction->setDefaultWidget(edit);
    m_saveAsMenu->addAction(editAction);
    for (const QString& name : qAsConst(names)) {
        connect(m_saveAsMenu->addAction(name), &QAction::triggered, this,
                &Menu::onSaveLayoutTriggered);
        connect(m_deleteMenu->addAction(name), &QAction::triggered, this,
                &Menu::onDeleteLayoutTriggered);
    }
    connect(edit, &MenuEdit::inputAccepted, this, &Menu::onSaveLayoutAsTriggered);
}

void Menu::updateSelection()
{
    const QString name = m_manager->activeView();
    if (name.isEmpty()) {
        if (QAction* checked = m_viewGroup->checkedAction())
            checked->setChecked(false);
        return;
    }
    const QList<QAction*> entries = m_viewGroup->actions();
    for (QAction* entry : entries) {
        if (entry->data().toString() == name) {
            entry->setChecked(true);
            return;
        }
    }
}

void Menu::toggleView()
{
    const QAction* firstBefore = nullptr;
    const QAction* firstAfter = nullptr;
    bool passedChecked = false;
    const QList<QAction*> entries = m_viewGroup->actions();
    for (const QAction* entry : entries) {
        if (entry->isChecked()) {
            passedChecked = true;
            continue;
        }
        const QAction*& candidate = passedChecked ? firstAfter : firstBefore;
        if (!candidate && !isSkipped(entry))
            candidate = entry;
    }
    if (const QAction* target = firstAfter ? firstAfter : firstBefore)
        m_manager->activateView(target->data().toString());
}

bool Menu::isSkipped(const QAction* entry) const
{
    return isSkippedView(m_manager->viewUserData(entry->data().toString()));
}

void Menu::saveCurrentLayoutAs(const QString& name)
{
    if (!name.isEmpty())
        m_manager->saveCurrentViewAs(name);
}

void Menu::onActionTriggered(QAction* action)
{
    entryGroup(m_viewGroup)->hold(action);
    m_manager->activateView(action->data().toString());
}

void Menu::onSaveLayoutAsTriggered(const QString& name)
{
    if (QAction* action = actionOf(m_saveAsMenu, sender()))
        entryGroup(m_viewGroup)->hold(action);
    // A watcher of the menu may delete it when it closes.
    Manager* manager = m_manager;
    close();
    // Deliberate: an empty name is passed on too, and the Manager takes it.
    manager->saveCurrentViewAs(name);
}

void Menu::onSaveLayoutTriggered()
{
    if (const auto* action = qobject_cast<QAction*>(sender()))
        m_manager->saveCurrentViewAs(action->text());
}

void Menu::onDeleteLayoutTriggered()
{
    if (const auto* action = qobject_cast<QAction*>(sender()))
        m_manager->deleteView(action->text());
}

void Menu::onSaveTriggered()
{
    const QString fileName = QFileDialog::getSaveFileName(
        this, tr("Save Layouts"), QString(), tr("View File (*.views);;All Files (*.*)"));
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    // Deliberate: text in the stream's own encoding, which is the locale's.
    QTextStream stream(&file);
    stream << QString::fromUtf8(m_manager->toXml(/*markActive=*/false));
}

void Menu::onLoadTriggered()
{
    importViews(/*merge=*/false);
}

void Menu::onMergeTriggered()
{
    importViews(/*merge=*/true);
}

void Menu::importViews(bool merge)
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Load Layouts"), QString(), tr("View File (*.views);;All Files (*.*)"));
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    m_manager->fromXml(file.readAll(), merge);
}

} // namespace Panorel
