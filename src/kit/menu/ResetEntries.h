// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;

namespace Panorel {
class Menu;
} // namespace Panorel

namespace Panorel::Kit::Detail {

struct Session;

/** Puts actions of its own in the place of a menu's "Reset Layout to ...". Each is one step of the
    history, named as the entry. */
class ResetEntries : public QObject
{
    Q_OBJECT

public:
    /** @param menu owns this object and the entries, and is extended. */
    ResetEntries(Menu& menu, Session& session);

private:
    QAction* replace(QAction* entry, bool isEnabled);

    Menu& m_menu;
};

} // namespace Panorel::Kit::Detail
