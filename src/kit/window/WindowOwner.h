// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/IManagable.h>

#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

/**
 * The owner that is registered with the Manager, and whose child it is, because a registration
 * cannot be undone. The Manager asks it at the start of every capture and restore, so it is also
 * the hook before each change.
 */
class WindowOwner : public QObject, public IManagable
{
    Q_OBJECT

public:
    /** Registers itself. */
    explicit WindowOwner(Manager& manager);
    ~WindowOwner() override;

    /** Does nothing for a window that is there already. An empty id is replaced by a free one. */
    void addWindow(QMainWindow& window, const QString& id);
    void addOwner(IManagable& owner);

    /** All windows that are alive, those of added owners included. */
    QList<ManagedWindow> windows() const;

    /** Called when the Manager asks; the Manager gets the windows that it returns. */
    using Hook = std::function<QList<ManagedWindow>()>;
    /** Without a hook the Manager gets all windows. */
    void setHook(const Hook& hook) { m_hook = hook; }

    QList<ManagedWindow> managedWindows() override;

    /** While one exists the Manager gets no windows and the hook is not called, so that it neither
        captures nor restores. */
    class Silence
    {
    public:
        explicit Silence(WindowOwner& owner);
        ~Silence();
        Silence(const Silence&) = delete;
        Silence& operator=(const Silence&) = delete;

    private:
        WindowOwner& m_owner;
    };

private:
    struct Window
    {
        QString id;
        // Not of a main window, which it is no longer while its parts are destroyed.
        QPointer<QWidget> widget;
    };
    struct Owner
    {
        IManagable* owner;
        /** The same object, if it is a QObject, which notices its deletion. */
        QPointer<QObject> object;
        bool isObject;
    };

    bool has(const QMainWindow& window) const;
    bool isTaken(const QString& id) const;
    QString freeId(const QString& wanted) const;

    QList<Window> m_windows;
    QList<Owner> m_owners;
    Hook m_hook;
    int m_silences = 0;
};

} // namespace Panorel::Kit::Detail
