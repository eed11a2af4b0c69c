// SPDX-License-Identifier: MIT
#include "ui/FileDialogUser.h"

#include "support/Text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

namespace Panorel::Tests {

namespace {

constexpr int lookInterval = 10;
constexpr int mostLooks = 1000;

} // namespace

FileDialogUser::FileDialogUser(Use use, QMessageBox::StandardButton answer)
    : m_use(std::move(use))
    , m_answer(answer)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.start(lookInterval);
}

void FileDialogUser::prepareProcess()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    static const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
}

void FileDialogUser::look()
{
    QWidget* modal = QApplication::activeModalWidget();
    auto* dialog = qobject_cast<QDialog*>(modal);
    if (!dialog || !dialog->isVisible())
        return;
    if (++m_looks > mostLooks) {
        m_stuck = true;
        dialog->reject();
    } else if (auto* question = qobject_cast<QMessageBox*>(modal)) {
        answer(*question);
    } else if (!m_used) {
        m_used = true;
        // From a timer of its own: a question blocks what caused it, and a timer does not fire
        // again before it has been served.
        auto* fileDialog = qobject_cast<QFileDialog*>(modal);
        QTimer::singleShot(0, fileDialog, [this, fileDialog] { m_use(*fileDialog); });
    } else if (m_answer == QMessageBox::No) {
        // Back from the question.
        dialog->reject();
    }
}

void FileDialogUser::answer(QMessageBox& question)
{
    QAbstractButton* button = question.button(m_answer);
    m_stuck |= !button;
    if (button)
        QTest::mouseClick(button, Qt::LeftButton);
    else
        question.reject();
}

void FileDialogUser::choose(QFileDialog& dialog, const QString& fileName)
{
    auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit"_s);
    edit->setText(fileName);
    QTest::keyClick(edit, Qt::Key_Return);
}

void FileDialogUser::cancel(QFileDialog& dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

} // namespace Panorel::Tests
