// SPDX-License-Identifier: MIT
#include "ImportWatch.h"

#include "MenuParts.h"

#include <panorel/Manager.h>

#include <QChildEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

ImportWatch::ImportWatch(Panorel::Menu& menu, Panorel::Manager& manager, LayoutUndo& undo,
                         const LayoutCures::Tell& tell)
    : QObject(&menu)
    , m_manager(manager)
    , m_undo(undo)
    , m_tell(tell)
{
    menu.installEventFilter(this);
    const MenuParts parts(menu);
    const QList<const QAction*> imports{parts.import(), parts.importAndMerge()};
    // A menu tells that an action was triggered before those learn it who, like Panorel, connected
    // to the action after it was added.
    connect(&menu, &QMenu::triggered, this, [this, imports](const QAction* action) {
        if (imports.contains(action))
            begin();
    });
    for (const QAction* action : imports) {
        if (action)
            connect(action, &QAction::triggered, this, &ImportWatch::end);
    }
}

// The dialog becomes a child of the menu, and is polished when Qt or the desktop first shows it.
bool ImportWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (auto* dialog = qobject_cast<QFileDialog*>(child))
            connect(dialog, &QFileDialog::fileSelected, this,
                    [this](const QString& fileName) { m_fileName = fileName; });
    }
    return QObject::eventFilter(watched, event);
}

void ImportWatch::begin()
{
    m_fileName.clear();
    m_before = m_undo.take(tr("Import"), LayoutUndo::Windows::GoBack);
}

void ImportWatch::end()
{
    if (m_fileName.isEmpty())
        return;
    const QString name = QFileInfo(m_fileName).fileName();
    QFile file(m_fileName);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        explain(name, LayoutDocument::problemWith(file.readAll()));
    else
        m_tell(tr("\"%1\" cannot be opened; nothing was changed.").arg(name));
}

void ImportWatch::explain(const QString& name, LayoutDocument::Problem problem)
{
    switch (problem) {
    case LayoutDocument::Problem::NotLayouts:
        m_tell(tr("\"%1\" cannot be read; nothing was changed.").arg(name));
        return;
    case LayoutDocument::Problem::OtherVersion:
        m_undo.goBack(m_before);
        m_tell(tr("\"%1\" is of another version; nothing was changed.").arg(name));
        return;
    case LayoutDocument::Problem::None:
        break;
    }
    m_undo.add(m_before);
    if (LayoutDocument::hasViews(m_manager.toXml(/*markActive=*/false)))
        m_tell(tr("Imported the layouts of \"%1\".").arg(name));
    else
        m_tell(tr("\"%1\" has no layouts for this program: none are left.").arg(name));
}
