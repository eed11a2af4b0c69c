// SPDX-License-Identifier: MIT
#pragma once

#include "CheckedStates.h"

#include <panorel/IManagable.h>
#include <panorel/StateMap.h>

#include <QByteArray>
#include <QMainWindow>
#include <QObject>
#include <QPointer>

namespace Panorel::Kit::Detail {

class DockFactory;
class Names;
class WindowOwner;

/** Gives stored layouts to the windows: checked and tidied, and merged if the Manager merges. */
class Giver : public QObject
{
    Q_OBJECT

public:
    /** All must outlive this object. */
    Giver(WindowOwner& owner, Names& names, DockFactory& docks);
    ~Giver() override;

    /** What the windows show now. */
    StateMap live();
    StateMap live(const QList<ManagedWindow>& windows);
    QByteArray stateOf(QMainWindow& window);
    /** Names the parts of windows that somebody else takes and gives layouts of, until control
        returns to the event loop. Otherwise the application sees no such names. */
    void nameParts(const QList<ManagedWindow>& windows);
    /** Gives each window its part of @p stored, with the tool bars of its part of @p toolBars if it
        has one. A window without a part, or whose part is not sound, stays as it is. */
    void give(const StateMap& stored, const StateMap& toolBars);
    /** Call it before somebody else restores a state, or floating tab groups may be lost. */
    void prepareForRestoring();
    /** For each window @p before, if @p live is the same without its floating tab groups; else
        @p live. */
    static StateMap withFloatingTabs(const StateMap& live, const StateMap& before);
    /** Gives one window @p state, as it is but tidied. */
    void giveTo(QMainWindow& window, const QByteArray& state);
    /** Creates the dock widgets for which the windows keep a place. */
    void createMissingDocks();

Q_SIGNALS:
    /** @p window has got @p state. */
    void given(QMainWindow* window, const QByteArray& state);
    /** The part of the window @p id is not sound and was not given. */
    void refused(const QString& id);

private:
    void giveTo(QMainWindow& window, const WindowState& stored, const QByteArray& state);

    WindowOwner& m_owner;
    Names& m_names;
    DockFactory& m_docks;
    CheckedStates m_checked;
};

} // namespace Panorel::Kit::Detail
