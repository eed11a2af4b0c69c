// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVector>

namespace Panorel {
class Manager;
}

/**
 * The way back from changes of the saved layouts: a Manager's whole document from before each of
 * the last changes. Every change has to be remembered, or undoing an older one loses it.
 */
class LayoutUndo : public QObject
{
    Q_OBJECT

public:
    /** What undoing does to the windows. */
    enum class Windows {
        /** For a change that does not move anything. */
        Stay,
        GoBack
    };

    /** @param manager must outlive this object. */
    explicit LayoutUndo(Panorel::Manager& manager, QObject* parent = nullptr);

    /** To be called before a change. @param change what it is, such as: Delete "Wide" */
    void remember(const QString& change, Windows windows);
    /** To be called after remember() when nothing has come of the change. */
    void forgetLast();

    bool canUndo() const;
    /** The change that undo() goes back on; empty if there is none. */
    QString lastChange() const;

    /** Makes the saved layouts of all groups what they were before the last change. */
    void undo();

Q_SIGNALS:
    /** There is another last change, or none any more. */
    void lastChangeChanged();

private:
    struct Step
    {
        QString change;
        QByteArray before;
        QString group;
        Windows windows;
    };

    Panorel::Manager& m_manager;
    QVector<Step> m_steps;
};
