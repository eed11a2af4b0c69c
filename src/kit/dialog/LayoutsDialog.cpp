// SPDX-License-Identifier: MIT
#include "LayoutsDialog.h"

#include "DetailsPane.h"
#include "DifferencesNow.h"
#include "FileChoice.h"
#include "ImportDialog.h"
#include "ImportSource.h"
#include "LayoutCommands.h"
#include "LayoutDelegate.h"
#include "LayoutEdits.h"
#include "LayoutsModel.h"
#include "LayoutsView.h"
#include "PartTitles.h"

#include "../history/StepActions.h"
#include "../window/ActionText.h"
#include "../window/Session.h"

#include <panorel/Manager.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolBar>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

// While windows are moved and resized, which is told many times.
constexpr int compareDelay = 200;

} // namespace

LayoutsDialog::LayoutsDialog(Session& session, QWidget* parent)
    : QDialog(parent)
    , m_session(&session)
    , m_commands(new LayoutCommands(session, this))
    , m_model(new LayoutsModel(this))
    , m_view(new LayoutsView(*m_model, this))
    , m_details(new DetailsPane(this))
    , m_message(new QLabel(this))
{
    setWindowTitle(tr("Layouts"));
    m_view->setAccessibleName(tr("Layouts"));
    m_view->setDragDropMode(QAbstractItemView::InternalMove);
    m_view->setDefaultDropAction(Qt::MoveAction);
    m_view->delegate().setRefusal([this](const QModelIndex& index, const QString& name) {
        return LayoutEdits::refusal(m_model->snapshot(), m_model->idOf(index), name);
    });
    m_model->setReminder([this](const LayoutId& layout) { return remindersOf(layout); });
    createActions();
    arrange();
    follow();
    updateActions();
    updateDetails();
}

// The list asks for notes and names until its end.
LayoutsDialog::~LayoutsDialog()
{
    delete m_view;
}

LayoutsDialog* LayoutsDialog::find(const QWidget& window, const Session& session)
{
    const auto dialogs = window.findChildren<LayoutsDialog*>(QString(), Qt::FindDirectChildrenOnly);
    for (LayoutsDialog* dialog : dialogs) {
        if (dialog->m_session == &session)
            return dialog;
    }
    return nullptr;
}

void LayoutsDialog::createActions()
{
    if (QUndoStack* const stack = m_session->history.stack()) {
        m_undo = StepActions::createUndo(*stack, this);
        m_undo->setIconText(tr("Undo"));
        m_undo->setIcon(QIcon::fromTheme(QStringLiteral("edit-undo")));
        m_undo->setShortcut(QKeySequence::Undo);
        m_redo = StepActions::createRedo(*stack, this);
        m_redo->setIconText(tr("Redo"));
        m_redo->setIcon(QIcon::fromTheme(QStringLiteral("edit-redo")));
        m_redo->setShortcuts(QKeySequence::Redo);
    }
    m_switch = createAction(tr("&Switch"), "", {});
    m_rename = createAction(tr("Re&name"), "edit-rename", Qt::Key_F2);
    m_duplicate = createAction(tr("Du&plicate"), "edit-copy", int(Qt::CTRL) + int(Qt::Key_D));
    m_delete = createAction(tr("&Delete"), "edit-delete", QKeySequence::Delete);
    m_up = createAction(tr("Move &Up"), "go-up", int(Qt::ALT) + int(Qt::Key_Up));
    m_down = createAction(tr("Move D&own"), "go-down", int(Qt::ALT) + int(Qt::Key_Down));
    createGroupMenu();
    m_export = createAction(tr("&Export..."), "document-export", {});
    connect(m_switch, &QAction::triggered, this,
            [this] { m_commands->activate(m_view->selectedLayouts().value(0)); });
    connect(m_rename, &QAction::triggered, this, &LayoutsDialog::rename);
    connect(m_duplicate, &QAction::triggered, this, &LayoutsDialog::duplicate);
    connect(m_delete, &QAction::triggered, this, &LayoutsDialog::remove);
    connect(m_up, &QAction::triggered, this, [this] { move(-1); });
    connect(m_down, &QAction::triggered, this, [this] { move(+1); });
    connect(m_export, &QAction::triggered, this, &LayoutsDialog::chooseExport);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

// For the keys, which are the list's only, and for its context menu.
QAction* LayoutsDialog::createAction(const QString& text, const char* icon,
                                     const QKeySequence& shortcut)
{
    auto* action = new QAction(QIcon::fromTheme(QLatin1String(icon)), text, this);
    // A tool bar shows no letters for Alt, but Qt leaves those in brackets after the text.
    static const QRegularExpression brackets(QStringLiteral("\\(&.\\)"));
    if (text.contains(brackets))
        action->setIconText(QString(text).remove(brackets));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(action);
    return action;
}

void LayoutsDialog::createGroupMenu()
{
    m_toGroup = createAction(tr("Move to &Group"), "", {});
    const QStringList groups = m_session->manager.groups();
    m_toGroup->setVisible(groups.size() > 1);
    auto* menu = new QMenu(this);
    for (const QString& group : groups) {
        connect(menu->addAction(actionText(group)), &QAction::triggered, this,
                [this, group] { moveToGroup(group); });
    }
    m_toGroup->setMenu(menu);
}

QToolBar* LayoutsDialog::createToolBar()
{
    auto* bar = new QToolBar(tr("Layouts"), this);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({m_rename, m_duplicate, m_delete});
    bar->addSeparator();
    bar->addActions({m_up, m_down});
    if (m_undo) {
        bar->addSeparator();
        bar->addActions({m_undo, m_redo});
    }
    return bar;
}

QDialogButtonBox* LayoutsDialog::createButtons()
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* const import = box->addButton(tr("&Import..."), QDialogButtonBox::ResetRole);
    m_exportButton = box->addButton(m_export->text(), QDialogButtonBox::ResetRole);
    m_switchButton = box->addButton(m_switch->text(), QDialogButtonBox::ActionRole);
    m_switchButton->setToolTip(tr("Arranges the windows as in the chosen layout"));
    m_switchButton->setDefault(true);
    connect(import, &QPushButton::clicked, this, &LayoutsDialog::chooseImport);
    connect(m_exportButton, &QPushButton::clicked, m_export, &QAction::trigger);
    connect(m_switchButton, &QPushButton::clicked, m_switch, &QAction::trigger);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return box;
}

void LayoutsDialog::arrange()
{
    auto* splitter = new QSplitter(this);
    splitter->addWidget(m_view);
    splitter->addWidget(m_details);
    splitter->setChildrenCollapsible(false);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setObjectName(QStringLiteral("message"));
    m_message->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createToolBar());
    layout->addWidget(splitter, 1);
    layout->addWidget(m_message);
    layout->addWidget(createButtons());
    resize(QSize(52, 34) * fontMetrics().height());
    m_view->setFocus();
}

void LayoutsDialog::follow()
{
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &LayoutsDialog::refresh);
    m_compare.setSingleShot(true);
    m_compare.setInterval(compareDelay);
    connect(&m_compare, &QTimer::timeout, this, &LayoutsDialog::updateDifferences);
    // Later, because the Manager also tells when it has not yet done it.
    const auto refreshSoon = [this] {
        if (isVisible())
            m_refresh.start();
    };
    connect(&m_session->manager, &Manager::groupModified, this, refreshSoon);
    connect(&m_session->manager, &Manager::groupActivated, this, refreshSoon);
    connect(&m_session->manager, &Manager::viewActivated, this, refreshSoon);
    connect(&m_session->windows, &Windows::touched, this, [this] {
        if (isVisible() && !m_compare.isActive())
            m_compare.start();
    });
    connect(&m_session->layoutSlots, &Slots::changed, this, [this] {
        m_model->updateReminders();
        updateDetails();
    });
    connect(&m_session->modification, &Modification::modifiedChanged, m_model,
            &LayoutsModel::updateReminders);
    connect(m_details, &DetailsPane::slotChosen, this, &LayoutsDialog::assignSlot);
    connect(&m_session->history, &QObject::destroyed, this, &LayoutsDialog::retire);
    connect(m_model, &LayoutsModel::renamed, m_commands, &LayoutCommands::rename);
    connect(m_model, &LayoutsModel::refused, this,
            [this](const QPersistentModelIndex& index, const QString& text) {
                // The list is about to close the field.
                QTimer::singleShot(0, this,
                                   [this, index, text] { m_view->resumeEditing(index, text); });
            });
    connect(m_model, &LayoutsModel::dropped, this, &LayoutsDialog::moveTo);
    connect(m_commands, &LayoutCommands::message, this, &LayoutsDialog::tell);
    connect(m_view, &LayoutsView::chosen, this, [this] {
        updateActions();
        updateDetails();
    });
}

// Nothing may be called in what is being destroyed.
void LayoutsDialog::retire()
{
    m_session = nullptr;
    m_commands->end();
    m_refresh.stop();
    m_compare.stop();
    qDeleteAll(findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly));
    setEnabled(false);
    close();
}

void LayoutsDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous() && m_session) {
        refresh();
        m_message->hide();
        if (!m_view->currentIndex().isValid())
            m_view->select({{m_session->manager.activeGroup(), m_session->manager.activeView()}});
    }
    QDialog::showEvent(event);
}

void LayoutsDialog::refresh()
{
    if (!m_session)
        return;
    m_refresh.stop();
    {
        // Once is enough, however many of the selected layouts go.
        const QSignalBlocker blocker(m_view);
        m_model->setSnapshot(m_session->history.snapshot());
    }
    updateActions();
    updateDetails();
}

void LayoutsDialog::updateActions()
{
    if (!m_session)
        return;
    const LayoutIds layouts = m_view->selectedLayouts();
    const bool isAny = !layouts.isEmpty();
    const bool isOne = layouts.size() == 1;
    const bool isOfOneGroup = std::all_of(layouts.cbegin(), layouts.cend(), [&](const auto& one) {
        return one.group == layouts[0].group;
    });
    m_switch->setEnabled(isOne);
    m_switchButton->setEnabled(isOne);
    m_rename->setEnabled(isOne);
    for (QAction* action : {m_duplicate, m_delete, m_toGroup, m_export})
        action->setEnabled(isAny);
    m_exportButton->setEnabled(isAny);
    for (QAction* action : {m_up, m_down})
        action->setEnabled(isAny && isOfOneGroup);
}

void LayoutsDialog::updateDetails()
{
    const QModelIndex current = m_view->currentIndex();
    if (!m_session || !LayoutsModel::isLayout(current)) {
        m_details->clear();
        return;
    }
    m_details->show(current.data().toString(),
                    current.data(LayoutsModel::StatesRole).value<StateMap>(),
                    PartTitles(m_session->owner));
    const LayoutId layout = m_model->idOf(current);
    m_details->setSlot(m_session->layoutSlots.slotOf(layout.group, layout.name), slotNames());
    updateDifferences();
}

// The layouts in the slots; those of slots that are free are empty.
QStringList LayoutsDialog::slotNames() const
{
    QVector<QString> names(Slots::count);
    for (const Snapshot::Group& group : m_model->snapshot().groups) {
        for (const Snapshot::View& view : group.views) {
            if (const int slot = m_session->layoutSlots.slotOf(group.name, view.name))
                names[slot - 1] = view.name;
        }
    }
    return names.toList();
}

QStringList LayoutsDialog::remindersOf(const LayoutId& layout) const
{
    QStringList reminders;
    if (!m_session)
        return reminders;
    if (isShown(layout) && m_session->modification.wasModified())
        reminders.append(tr("modified"));
    const Slots& slotsOfLayouts = m_session->layoutSlots;
    const int slot = slotsOfLayouts.slotOf(layout.group, layout.name);
    const QString shortcut = slotsOfLayouts.shortcutText(layout.group, layout.name);
    if (slot > 0)
        reminders.append(shortcut.isEmpty() ? tr("Slot %1").arg(slot) : shortcut);
    return reminders;
}

// Whether the windows have got this layout last.
bool LayoutsDialog::isShown(const LayoutId& layout) const
{
    const Manager& manager = m_session->manager;
    return layout == LayoutId{manager.activeGroup(), manager.activeView()};
}

void LayoutsDialog::assignSlot(int slot)
{
    const LayoutId layout = m_view->currentLayout();
    if (m_session)
        m_session->layoutSlots.assign(slot, layout.group, layout.name);
}

void LayoutsDialog::updateDifferences()
{
    const QModelIndex current = m_view->currentIndex();
    if (!m_session || !LayoutsModel::isLayout(current))
        return;
    // What windows cannot show exactly is no difference.
    const bool isSame = isShown(m_model->idOf(current)) && !m_session->modification.isModified();
    const auto states = current.data(LayoutsModel::StatesRole).value<StateMap>();
    m_details->setDifferences(isSame ? QStringList() : DifferencesNow::texts(*m_session, states));
}

void LayoutsDialog::tell(const QString& text)
{
    m_message->setText(text);
    m_message->show();
    Q_EMIT message(text);
}

void LayoutsDialog::rename()
{
    m_view->setFocus();
    m_view->edit(m_view->currentIndex());
}

// The next layout is chosen then, so that several can be deleted one by one.
void LayoutsDialog::remove()
{
    const LayoutIds layouts = m_view->selectedLayouts();
    if (!m_session || layouts.isEmpty())
        return;
    const QModelIndex last = m_model->indexOf(layouts.constLast());
    QModelIndex next = m_view->indexBelow(last);
    if (!LayoutsModel::isLayout(next))
        next = m_view->indexAbove(m_model->indexOf(layouts.constFirst()));
    const LayoutId chosen = m_model->idOf(next);
    m_commands->remove(layouts);
    showResult({chosen});
}

void LayoutsDialog::duplicate()
{
    showResult(m_commands->duplicate(m_view->selectedLayouts()));
}

// By one place; beyond the end of a group into the next one.
void LayoutsDialog::move(int step)
{
    const LayoutIds layouts = m_view->selectedLayouts();
    if (layouts.isEmpty())
        return;
    const QModelIndex edge =
        m_model->indexOf(step < 0 ? layouts.constFirst() : layouts.constLast());
    const QModelIndex group = edge.parent();
    const int row = step < 0 ? edge.row() - 1 : edge.row() + 2;
    if (row >= 0 && row <= m_model->rowCount(group)) {
        moveTo(layouts, group.data().toString(), row);
        return;
    }
    const QModelIndex other = group.sibling(group.row() + step, 0);
    if (other.isValid())
        moveTo(layouts, other.data().toString(), step < 0 ? m_model->rowCount(other) : 0);
}

void LayoutsDialog::moveTo(const LayoutIds& layouts, const QString& group, int row)
{
    showResult(m_commands->move(layouts, group, row));
}

void LayoutsDialog::moveToGroup(const QString& group)
{
    const Snapshot::Group* const target = m_model->snapshot().find(group);
    if (target)
        moveTo(m_view->selectedLayouts(), group, target->views.size());
}

void LayoutsDialog::showResult(const LayoutIds& layouts)
{
    refresh();
    m_view->select(layouts);
}

void LayoutsDialog::chooseExport()
{
    const LayoutIds layouts = m_view->selectedLayouts();
    FileChoice::ask(this, FileChoice::Mode::Save, [this, layouts](const QString& fileName) {
        if (m_session)
            m_commands->exportTo(fileName, layouts);
    });
}

void LayoutsDialog::chooseImport()
{
    FileChoice::ask(this, FileChoice::Mode::Open,
                    [this](const QString& fileName) { openImport(fileName); });
}

void LayoutsDialog::openImport(const QString& fileName)
{
    if (!m_session)
        return;
    const ImportSource source(m_session->transfer.read(fileName), m_session->manager.groups());
    if (!source.problem().isNull()) {
        tell(source.problem());
        return;
    }
    auto* dialog =
        new ImportDialog(source, m_session->history.snapshot(), PartTitles(m_session->owner), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, fileName] {
        if (!m_session)
            return;
        const ImportModel::Result result = dialog->importInto(m_session->history.snapshot());
        m_commands->import(result.snapshot, result.layouts, fileName);
        showResult(result.layouts);
    });
    dialog->open();
}

} // namespace Panorel::Kit::Detail
