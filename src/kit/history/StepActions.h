// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

class QAction;
class QObject;
class QUndoStack;

namespace Panorel::Kit::Detail {

/** Actions that undo and redo steps. They name the step in the kit's language, where Qt's own text
    needs the application's translation of Qt, and show ampersands of layouts' names. */
class StepActions
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::StepActions)

public:
    /** @param parent deletes the action. It does nothing once the stack is gone. */
    static QAction* createUndo(const QUndoStack& stack, QObject* parent);
    static QAction* createRedo(const QUndoStack& stack, QObject* parent);
};

} // namespace Panorel::Kit::Detail
