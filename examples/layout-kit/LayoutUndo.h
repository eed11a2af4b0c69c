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

    /** What it takes to go back on one change. */
    struct Step
    {
        QString change;
        QByteArray before;
        QString group;
        Windows windows;
    };

    /** To be called before a change. @param change what it is, such as: Delete "Wide" */
    void remember(const QString& change, Windows windows);

    /** The two halves of remember(), for a change of which nothing may come. */
    Step take(const QString& change, Windows windows);
    void add(const Step& step);

    bool canUndo() const;
    /** The change that undo() goes back on; empty if there is none. */
    QString lastChange() const;

    /** Makes the saved layouts of all groups what they were before the last change. */
    void undo();
    /** The same for a step that was not added. */
    void goBack(const Step& step);

Q_SIGNALS:
    /** There is another last change, or none any more. */
    void lastChangeChanged();

private:
    Panorel::Manager& m_manager;
    QVector<Step> m_steps;
};
