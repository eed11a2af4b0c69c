// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QAction;
class QObject;

namespace Panorel::Kit::Detail {

/** The actions of a Layouts, which are its children. They do nothing and are disabled until
    something of its Session uses them, and again once that is gone with the Manager. */
struct Actions
{
    explicit Actions(QObject& owner);

    /** One for each slot. */
    QList<QAction*> layouts;
    QAction* shortcuts;
    QAction* next;
    QAction* previous;
};

} // namespace Panorel::Kit::Detail
