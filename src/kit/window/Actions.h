// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QUndoStack>

class QAction;
class QObject;

namespace Panorel::Kit::Detail {

/** The actions of a Layouts and its history, which are its children. The actions do nothing and are
   disabled until something of its Session uses them, and again once that is gone with the Manager.
 */
struct Actions
{
    explicit Actions(QObject& owner);

    /** One for each slot. */
    QList<QAction*> layouts;
    QAction* shortcuts;
    QAction* next;
    QAction* previous;
    QAction* lock;
    /** Null if the application has deleted it. */
    QPointer<QUndoStack> history;
};

} // namespace Panorel::Kit::Detail
