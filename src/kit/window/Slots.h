// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QString>

class QAction;
class QJsonObject;

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Keeper;
class StoredViews;
class Windows;
struct Actions;

/**
 * Nine numbered slots for layouts of all groups, each with an action that activates its layout and
 * a shortcut. They are kept in the file.
 *
 * A slot knows its layout by name. Where the layout is gone the slot is empty, and has it again
 * when a layout of that name, or of one that it had before it was renamed, is back, such as by
 * undo; until the next start.
 */
class Slots : public QObject
{
    Q_OBJECT

public:
    static constexpr int count = 9;

    /** All must outlive this object. The windows have the actions that have a
        shortcut. */
    Slots(Manager& manager, StoredViews& stored, Windows& windows, Keeper& keeper,
          const Actions& actions);
    ~Slots() override;

    /** The slot of a layout, 1 to count; 0 if it has none. */
    int slotOf(const QString& group, const QString& view) const;
    /** Gives @p slot to a layout, which loses the one that it had; 0 gives it none. */
    void assign(int slot, const QString& group, const QString& view);
    /** The layout of @p slot has got another name or group; nothing for 0. To be called after the
        Manager has changed, with the slot that the layout had before. */
    void follow(int slot, const QString& group, const QString& view);

    /** Off at first. */
    bool areShortcutsEnabled() const { return m_hasShortcuts; }
    /** Gives each action its shortcut, Ctrl+Alt and the number, or takes it away. One that the
        application has set stays. */
    void setShortcutsEnabled(bool enabled);
    /** What to press for a layout, in the user's language; empty if nothing. */
    QString shortcutText(const QString& group, const QString& view) const;

Q_SIGNALS:
    /** Another slot has another layout, or shortcuts were turned on or off. */
    void changed();

private:
    struct Layout
    {
        QString group;
        QString view;

        bool operator==(const Layout& other) const
        {
            return group == other.group && view == other.view;
        }
    };
    struct Slot
    {
        /** Its layout is the first that exists. */
        QList<Layout> names;
        Layout layout;
        QAction* action = nullptr;
        bool isInWindows = false;
    };

    void updateWindows(Slot& slot);
    void onWindowAdded(QMainWindow* window);
    void load();
    void store();
    void takeAway(const Layout& layout);
    void onGroupModified();
    void updateAll();
    void update(Slot& slot, const Layout& layout);
    Layout firstExisting(const Slot& slot) const;
    bool exists(const Layout& layout) const;
    QString textOf(const Slot& slot) const;
    void activate(int index);

    Manager& m_manager;
    StoredViews& m_stored;
    Keeper& m_keeper;
    QAction& m_shortcuts;
    Slot m_slots[count];
    QList<QPointer<QMainWindow>> m_windows;
    bool m_hasShortcuts = false;
    bool m_updatesSoon = false;
};

} // namespace Panorel::Kit::Detail
