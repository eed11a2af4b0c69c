// SPDX-License-Identifier: MIT
#pragma once

#include "support/MessageWatch.h"
#include "support/SignalLog.h"
#include "ui/FileDialogUser.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace Panorel::Tests {

/**
 * An extended menu on a Manager with the views "own", which is active, and "n", and a folder for
 * files. A test fails when anything is logged.
 */
class MenuFileFixture : public QObject
{
    Q_OBJECT

public:
    static void initMain() { FileDialogUser::prepareProcess(); }

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    /** Opens the menu, clicks on the entry and uses the dialog that comes; false if none does. */
    bool use(const char* entryText, const FileDialogUser::Use& use,
             QMessageBox::StandardButton answer = QMessageBox::NoButton);
    /** The same, and chooses a file in it. */
    bool choose(const char* entryText, const QString& fileName,
                QMessageBox::StandardButton answer = QMessageBox::NoButton);
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    /** The name of a file that holds @p content. */
    QString fileWith(const QByteArray& content) const;
    QByteArray content(const QString& fileName) const;

    /** What the Manager's views are as a document. */
    static QByteArray document();
    /** The same with another name in place of "n". */
    static QByteArray documentWith(const char* view);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Menu> m_menu;
    std::unique_ptr<SignalLog> m_signals;

private:
    MessageWatch m_watch;
};

} // namespace Panorel::Tests
