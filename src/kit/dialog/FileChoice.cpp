// SPDX-License-Identifier: MIT
#include "FileChoice.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace Panorel::Kit::Detail::FileChoice {

namespace {

// The texts of the main library's menu.
QString menuText(const char* text)
{
    return QCoreApplication::translate("Panorel::Menu", text);
}

} // namespace

void ask(QWidget* parent, Mode mode, const std::function<void(const QString&)>& chosen)
{
    const bool isOpening = mode == Mode::Open;
    auto* dialog = new QFileDialog(parent, menuText(isOpening ? "Load Layouts" : "Save Layouts"),
                                   QString(), menuText("View File (*.views);;All Files (*.*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(isOpening ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog->setFileMode(isOpening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // With it the dialog asks before it overwrites the file that it completes the name to.
    dialog->setDefaultSuffix(QStringLiteral("views"));
    // Later, because what is done with the file may destroy the dialog, which still closes then.
    QObject* const context = parent ? static_cast<QObject*>(parent) : qApp;
    QObject::connect(dialog, &QFileDialog::fileSelected, context, chosen, Qt::QueuedConnection);
    dialog->open();
}

} // namespace Panorel::Kit::Detail::FileChoice
