// SPDX-License-Identifier: MIT
#include "FileEntries.h"

#include "MenuParts.h"

#include <panorel/Menu.h>

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>

namespace Panorel::Kit::Detail {

namespace {

// The texts of the entries that are replaced.
QString menuText(const char* text)
{
    return QCoreApplication::translate("Panorel::Menu", text);
}

QString chooseFile(QWidget* parent, const char* caption, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(parent, menuText(caption), QString(),
                       menuText("View File (*.views);;All Files (*.*)"));
    dialog.setAcceptMode(mode);
    const bool isOpening = mode == QFileDialog::AcceptOpen;
    dialog.setFileMode(isOpening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // With it the dialog asks before it overwrites the file that it completes the name to.
    dialog.setDefaultSuffix(QStringLiteral("views"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

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
    const QString fileName = chooseFile(parentOfDialogs(), "Save Layouts", QFileDialog::AcceptSave);
    if (self && m_transfer && !fileName.isEmpty())
        report(m_transfer->exportTo(fileName));
}

void FileEntries::importLayouts(Transfer::Mode mode)
{
    const QPointer<FileEntries> self(this);
    const QString fileName = chooseFile(parentOfDialogs(), "Load Layouts", QFileDialog::AcceptOpen);
    if (self && m_transfer && !fileName.isEmpty())
        report(m_transfer->importFrom(fileName, mode));
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
