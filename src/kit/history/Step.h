// SPDX-License-Identifier: MIT
#pragma once

#include "Delta.h"

#include <QUndoCommand>

#include <optional>

namespace Panorel::Kit::Detail {

class History;

/** One change of the layouts. It belongs to the stack, and takes part in the memory of its History,
    which must outlive it. */
class Step : public QUndoCommand
{
public:
    /** What the windows are to show. */
    struct Shown
    {
        StateMap states;
        bool hasToolBars = false;
    };

    /** @param shown what the windows get when it is undone, or, if it is still to be done, when it
        is done; each time it becomes what they showed until then. */
    Step(History& history, const Delta& delta, const std::optional<Shown>& shown, bool isDone);
    ~Step() override;

    void undo() override;
    void redo() override;

    /** All have the same, so that a document can be one step with the removal that it begins with.
        Improbable in an application, whose commands on the same stack would be asked to merge. */
    int id() const override { return 0x506b6974; }
    bool mergeWith(const QUndoCommand* other) override;
    /** Gives up what it has; it can no longer be undone. */
    void clear();
    /** The same, as a step that is done. */
    Step* copy() const;
    /** Its change is that of the step before it too. */
    void setContinuing() { m_isContinuing = true; }

private:
    void run(const Delta& delta);
    qint64 ownBytes() const;
    void keep();
    void release();

    History& m_history;
    Delta m_delta;
    std::optional<Shown> m_shown;
    /** What it takes beside its states, as long as it is kept. */
    qint64 m_bytes = 0;
    /** Whether the next redo() is the one by which it gets into the stack. */
    bool m_isDone;
    bool m_isContinuing = false;
};

} // namespace Panorel::Kit::Detail
