// SPDX-License-Identifier: MIT
#pragma once

#include "../window/Transfer.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QAction;
class QWidget;

namespace Panorel {
class Menu;
} // namespace Panorel

namespace Panorel::Kit::Detail {

/**
 * Puts actions of its own in the place of a menu's "Export ...", "Import ..." and "Import & Merge
 * ...". They ask for files in the same way, never damage the file that was there, refuse what is
 * not a document of layouts, and report the result.
 */
class FileEntries : public QObject
{
    Q_OBJECT

public:
    /**
     * @param menu owns this object. A menu without these entries stays as it is.
     * @param transfer may be destroyed first; then the entries do nothing.
     */
    FileEntries(Menu& menu, Transfer& transfer);

Q_SIGNALS:
    /** Why nothing was done, in words. Transfer::message() reports what is done. */
    void message(const QString& text);

private:
    QAction* replace(QAction* entry);
    void exportLayouts();
    void importLayouts(Transfer::Mode mode);
    QWidget* parentOfDialogs() const;
    void report(const QString& problem);

    Menu& m_menu;
    QPointer<Transfer> m_transfer;
};

} // namespace Panorel::Kit::Detail
