// SPDX-License-Identifier: MIT
#pragma once

#include "../window/Snapshot.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUndoStack>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Giver;
class StoredViews;
class WindowOwner;
class Windows;
struct Actions;

/** Makes changes of a Manager's layouts steps that can be undone and done again. */
class History : public QObject
{
    Q_OBJECT

public:
    /** All must outlive this object. */
    History(Manager& manager, WindowOwner& owner, StoredViews& stored, Giver& giver,
            Windows& windows, const Actions& actions);
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

    /** Makes the layouts those of @p to without a step. */
    void apply(const Snapshot& to);

Q_SIGNALS:
    /** One sentence for the user. */
    void message(const QString& text);

private:
    Manager& m_manager;
    WindowOwner& m_owner;
    StoredViews& m_stored;
    Giver& m_giver;
    Windows& m_windows;
    QPointer<QUndoStack> m_stack;
};

} // namespace Panorel::Kit::Detail
