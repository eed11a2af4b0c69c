// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QObject>
#include <QPointer>

class QMenu;

namespace Panorel::Kit::Detail {

struct Session;

/** The entries for a layout that was modified: "Save "Wide"" and "Back to "Wide"", whose tool tip
    says what differs. */
class ModifiedEntries : public QObject
{
    Q_OBJECT

public:
    /** @param menu owns this object and the entries, and does not outlive @p session with them
        enabled. */
    ModifiedEntries(QMenu& menu, Session& session);

    QAction* save() const { return m_save; }
    QAction* back() const { return m_back; }

private:
    void update();
    void describe();

    Session& m_session;
    /** Without its Manager the menu deletes them. */
    QPointer<QAction> m_save;
    QPointer<QAction> m_back;
};

} // namespace Panorel::Kit::Detail
