// SPDX-License-Identifier: MIT
#pragma once

#include "StatePool.h"
#include "Step.h"

#include "../window/Contents.h"
#include "../window/Snapshot.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUndoStack>

#include <optional>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Activity;
class Giver;
class StoredViews;
class WindowOwner;
class Windows;
struct Actions;
struct Operation;

/**
 * Keeps each change of a Manager's layouts, also the application's own, as a step to be undone.
 *
 * A step has what it changes and nothing else. When all steps take more than a limit together, the
 * oldest are dropped.
 */
class History : public QObject
{
    Q_OBJECT

public:
    /** All must outlive this object, apart from the stack of @p actions, which gets the steps. */
    History(Manager& manager, WindowOwner& owner, StoredViews& stored, Giver& giver,
            Activity& activity, Windows& windows, const Actions& actions);
    /** Leaves the stack empty, because its steps refer to this object. */
    ~History() override;

    /** The steps; null once it is deleted. */
    QUndoStack* stack() const { return m_stack; }

    /** All layouts as they are now. The current view of the active group is what the windows show.
     */
    Snapshot snapshot();

    /**
     * Makes the layouts of all groups those of @p to, as one step that is named @p text. Views get
     * the order, names and states of @p to, and its marks of the active ones. Groups of other names
     * are skipped. The windows stay as they are, unless the active view of the active group gets
     * other states; then they show them. The active group stays.
     */
    void change(const Snapshot& to, const QString& text);

    /** The next document that the Manager reads is that of a file. */
    void nameImport(const QString& file);
    /** Drops all steps, because the layouts that they would change have been replaced. */
    void forget();
    /** What the next document that the Manager reads is called in its step. */
    void nameDocument(const QString& text) { m_documentName = text; }

    /** For steps: makes the change, gives the windows what they are to show, and emits the
        Manager's signals. @return what the windows showed before. */
    std::optional<StateMap> run(const Delta& delta, const std::optional<Step::Shown>& shown);
    StatePool& pool() { return m_pool; }

Q_SIGNALS:
    /** One sentence for the user. */
    void message(const QString& text);

private:
    void onDone(const Operation& operation);
    void recordLater();
    void record(const Operation& operation);
    void push(Step* step, const QString& text);
    void write(const Contents& from, const Contents& to);
    void dropOldest();
    void keepNewest(int count);

    Manager& m_manager;
    WindowOwner& m_owner;
    StoredViews& m_stored;
    Giver& m_giver;
    Activity& m_activity;
    Windows& m_windows;
    QPointer<QUndoStack> m_stack;
    StatePool m_pool;
    /** What the Manager had after the last step. */
    Contents m_contents;
    /** What it had before the last step. */
    Contents m_beforeLast;
    /** That step; not to be used. */
    const QUndoCommand* m_last = nullptr;
    QString m_documentName;
    bool m_isRunning = false;
};

} // namespace Panorel::Kit::Detail
