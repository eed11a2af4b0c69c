// SPDX-License-Identifier: MIT
#include "ImportDialog.h"

#include "ImportSource.h"
#include "LayoutPreview.h"
#include "LayoutsView.h"

#include "../window/ActionText.h"

#include <QAction>
#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace Panorel::Kit::Detail {

using Choice = ImportModel::Choice;

ImportDialog::ImportDialog(const ImportSource& source, const Snapshot& target,
                           const PartTitles& titles, QWidget* parent)
    : QDialog(parent)
    , m_titles(titles)
    , m_model(new ImportModel(source.layouts(), target, this))
    , m_view(new LayoutsView(*m_model, this))
    , m_theirs(new LayoutPreview(this))
    , m_own(new LayoutPreview(this))
    , m_ownTitle(new QLabel(tr("Yours of the same name:"), this))
    , m_choiceBox(new QWidget(this))
    , m_choices(new QButtonGroup(this))
{
    setWindowTitle(tr("Import Layouts"));
    auto* splitter = new QSplitter(this);
    splitter->addWidget(createList(source));
    splitter->addWidget(createDetails());
    splitter->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(createButtons());
    resize(QSize(50, 32) * fontMetrics().height());
    follow();
    m_view->setFocus();
    m_view->setCurrentIndex(m_model->index(0, 0, m_model->index(0, 0)));
    updateDetails();
    updateButton();
}

// The list may tell of another current layout until its end.
ImportDialog::~ImportDialog()
{
    delete m_view;
}

QWidget* ImportDialog::createList(const ImportSource& source)
{
    auto* title = new QLabel(tr("&Layouts in \"%1\":").arg(actionText(source.name())));
    title->setTextFormat(Qt::PlainText);
    title->setBuddy(m_view);
    m_view->setAccessibleName(tr("Layouts of the file"));
    auto* leftOut = new QLabel(source.leftOut());
    leftOut->setObjectName(QStringLiteral("leftOut"));
    leftOut->setTextFormat(Qt::PlainText);
    leftOut->setWordWrap(true);
    leftOut->setVisible(!source.leftOut().isNull());
    auto* list = new QWidget(this);
    auto* layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(m_view, 1);
    layout->addWidget(leftOut);
    return list;
}

QWidget* ImportDialog::createDetails()
{
    auto* details = new QWidget(this);
    auto* layout = new QVBoxLayout(details);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(tr("In the file:")));
    layout->addWidget(m_theirs, 1);
    layout->addWidget(m_ownTitle);
    layout->addWidget(m_own, 1);
    layout->addWidget(createChoices());
    return details;
}

QWidget* ImportDialog::createChoices()
{
    m_choiceBox->setObjectName(QStringLiteral("choices"));
    auto* layout = new QVBoxLayout(m_choiceBox);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(tr("The name is taken:")));
    const auto add = [&](const QString& text, Choice choice) {
        auto* button = new QRadioButton(text);
        button->setAccessibleDescription(tr("The name is taken:"));
        layout->addWidget(button);
        m_choices->addButton(button, static_cast<int>(choice));
    };
    add(tr("&Keep both"), Choice::Add);
    add(tr("&Replace yours"), Choice::Replace);
    add(tr("&Skip"), Choice::Skip);
    return m_choiceBox;
}

QLayout* ImportDialog::createButtons()
{
    auto* all = new QPushButton(tr("Select &All"), this);
    auto* none = new QPushButton(tr("Select &None"), this);
    connect(all, &QPushButton::clicked, this, [this] { checkAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { checkAll(false); });
    auto* box = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_import = box->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    m_import->setDefault(true);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QHBoxLayout;
    layout->addWidget(all);
    layout->addWidget(none);
    layout->addWidget(box, 1);
    return layout;
}

void ImportDialog::follow()
{
    connect(m_view, &LayoutsView::chosen, this, &ImportDialog::updateDetails);
    connect(m_model, &ImportModel::choiceChanged, this, &ImportDialog::updateChoices);
    connect(m_model, &ImportModel::choiceChanged, this, &ImportDialog::updateButton);
    connect(m_choices, &QButtonGroup::idClicked, this, &ImportDialog::choose);
    auto* toggle = new QAction(this);
    toggle->setShortcut(Qt::Key_Space);
    toggle->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(toggle);
    connect(toggle, &QAction::triggered, this, &ImportDialog::toggleSelected);
}

void ImportDialog::checkAll(bool checked)
{
    QModelIndexList layouts;
    for (int number = 0; number < m_model->rowCount(); ++number) {
        const QModelIndex group = m_model->index(number, 0);
        for (int row = 0; row < m_model->rowCount(group); ++row) {
            const QModelIndex layout = m_model->index(row, 0, group);
            const bool isChecked = m_model->choiceOf(layout) != Choice::Skip;
            if (isChecked != checked)
                layouts.append(layout);
        }
    }
    m_model->setChoice(layouts, checked ? Choice::Add : Choice::Skip);
}

// For all selected layouts whose names are taken.
void ImportDialog::choose(int choice)
{
    QModelIndexList layouts;
    const QModelIndexList selected = m_view->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : selected) {
        if (m_model->counterpart(index))
            layouts.append(index);
    }
    m_model->setChoice(layouts, static_cast<Choice>(choice));
}

// All of them become what the current one does.
void ImportDialog::toggleSelected()
{
    const bool isChecked = m_model->choiceOf(m_view->currentIndex()) != Choice::Skip;
    const QModelIndexList selected = m_view->selectionModel()->selectedIndexes();
    QModelIndexList layouts;
    for (const QModelIndex& index : selected) {
        if ((m_model->choiceOf(index) != Choice::Skip) == isChecked)
            layouts.append(index);
    }
    m_model->setChoice(layouts, isChecked ? Choice::Skip : Choice::Add);
}

void ImportDialog::updateDetails()
{
    const QModelIndex current = m_view->currentIndex();
    const QString name = current.data().toString();
    m_theirs->setStates(current.data(ImportModel::StatesRole).value<StateMap>(), m_titles);
    m_theirs->setAccessibleName(tr("Picture of \"%1\" in the file").arg(name));
    const Snapshot::View* const own = m_model->counterpart(current);
    m_own->setStates(own ? own->states : StateMap(), m_titles);
    m_own->setAccessibleName(tr("Picture of your \"%1\"").arg(name));
    m_own->setVisible(own);
    m_ownTitle->setVisible(own);
    updateChoices();
}

void ImportDialog::updateChoices()
{
    const QModelIndex current = m_view->currentIndex();
    m_choiceBox->setVisible(m_model->counterpart(current));
    const int choice = static_cast<int>(m_model->choiceOf(current));
    if (QAbstractButton* const button = m_choices->button(choice))
        button->setChecked(true);
}

void ImportDialog::updateButton()
{
    m_import->setEnabled(m_model->count() > 0);
}

} // namespace Panorel::Kit::Detail
