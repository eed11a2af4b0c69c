// SPDX-License-Identifier: MIT
#include "FileEntries.h"

#include "MenuParts.h"

#include "../dialog/FileChoice.h"

#include <panorel/Menu.h>

#include <QAction>

namespace Panorel::Kit::Detail {

FileEntries::FileEntries(Menu& menu, Transfer& transfer)
    : QObject(&menu)
    , m_menu(menu)
    , m_transfer(&transfer)
{
    const MenuParts parts(menu);
    if (!parts.exportation())
        return;
    QAction* exportation = replace(parts.exportation());
    exportation->setToolTip(tr("Writes all layouts to a file"));
    connect(exportation, &QAction::triggered, this, &FileEntries::exportLayouts);
    QAction* import = replace(parts.import());
    import->setToolTip(tr("Replaces all layouts by those of a file"));
    connect(import, &QAction::triggered, this, [this] { importLayouts(Transfer::Mode::Replace); });
    QAction* merge = replace(parts.importAndMerge());
    merge->setToolTip(tr("Adds the layouts of a file, in place of those of the same name"));
    connect(merge, &QAction::triggered, this, [this] { importLayouts(Transfer::Mode::Add); });
    menu.setToolTipsVisible(true);
}

// The entry itself cannot be kept, because what the menu has connected to it is private.
QAction* FileEntries::replace(QAction* entry)
{
    auto* action = new QAction(entry->text(), &m_menu);
    m_menu.insertAction(entry, action);
    m_menu.removeAction(entry);
    return action;
}

void FileEntries::exportLayouts()
{
    const QPointer<FileEntries> self(this);
    FileChoice::ask(parentOfDialogs(), FileChoice::Mode::Save, [self](const QString& fileName) {
        if (self && self->m_transfer)
            self->report(self->m_transfer->exportTo(fileName));
    });
}

void FileEntries::importLayouts(Transfer::Mode mode)
{
    const QPointer<FileEntries> self(this);
    FileChoice::ask(parentOfDialogs(), FileChoice::Mode::Open,
                    [self, mode](const QString& fileName) {
                        if (self && self->m_transfer)
                            self->report(self->m_transfer->importFrom(fileName, mode));
                    });
}

// Not the menu, which may be deleted while a dialog is open.
QWidget* FileEntries::parentOfDialogs() const
{
    return m_menu.parentWidget() ? m_menu.parentWidget()->window() : nullptr;
}

void FileEntries::report(const QString& problem)
{
    if (!problem.isEmpty())
        Q_EMIT message(problem);
}

} // namespace Panorel::Kit::Detail
