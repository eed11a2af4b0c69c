// SPDX-License-Identifier: MIT
#include "StepActions.h"

#include "../window/ActionText.h"

#include <QAction>
#include <QUndoStack>

namespace Panorel::Kit::Detail {

QAction* StepActions::createUndo(const QUndoStack& stack, QObject* parent)
{
    QAction* action = stack.createUndoAction(parent);
    const auto name = [action](const QString& step) {
        action->setText(step.isEmpty() ? tr("Undo") : tr("Undo: %1").arg(actionText(step)));
    };
    name(stack.undoText());
    // After Qt's own text, which is set at the same signal.
    QObject::connect(&stack, &QUndoStack::undoTextChanged, action, name);
    return action;
}

QAction* StepActions::createRedo(const QUndoStack& stack, QObject* parent)
{
    QAction* action = stack.createRedoAction(parent);
    const auto name = [action](const QString& step) {
        action->setText(step.isEmpty() ? tr("Redo") : tr("Redo: %1").arg(actionText(step)));
    };
    name(stack.redoText());
    QObject::connect(&stack, &QUndoStack::redoTextChanged, action, name);
    return action;
}

} // namespace Panorel::Kit::Detail
