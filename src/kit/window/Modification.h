// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>
#include <panorel/kit/Difference.h>

#include <QHash>
#include <QObject>
#include <QPair>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QVector>

namespace Panorel::Kit::Detail {

class Activity;
class Giver;
class StoredViews;
class WindowOwner;
class Windows;
struct Operation;

/**
 * Whether the windows are arranged in another way than the active layout has them.
 *
 * They are compared with what they showed when they got the layout or it was saved, because a
 * window never shows all sizes exactly as they are stored. What a user sees counts, not bytes:
 * sizes count only as long as the window has its size, parts that come and go do not count, and
 * tool bars do only if layouts give them. Nothing is compared until somebody has touched a window.
 */
class Modification : public QObject
{
    Q_OBJECT

public:
    /** All must outlive this object. */
    Modification(WindowOwner& owner, StoredViews& stored, Giver& giver, Activity& activity,
                 Windows& windows);
    ~Modification() override;

    /** As of now. False without an active layout. */
    bool isModified();
    /** As of the last time that it was looked at. */
    bool wasModified() const { return m_isModified; }
    /** What differs, from the layout to the windows. */
    QVector<Difference> differences();

Q_SIGNALS:
    void modifiedChanged(bool modified);

private:
    struct Reference
    {
        QByteArray state;
        /** Of the window then; invalid if it is not known or was not on the screen. */
        QSize size;

        bool operator==(const Reference& other) const
        {
            return state == other.state && size == other.size;
        }
    };

    /** What was known of a layout when another one became the active one. */
    struct Left
    {
        /** Its own, by which it is recognised. */
        StateMap states;
        QHash<QString, Reference> references;
        bool wasModified = false;
    };

    /** What the windows are compared with: what they show now, what they were when the layout was
        left if that is known, or what is stored. */
    enum class Source { Shown, Left, Stored };

    void onDone(const Operation& operation);
    void update(Source source);
    void leave();
    void takeShown();
    void takeLeft(const Left& left);
    void takeStored(const StateMap& states);
    void touch();
    void compare();
    QHash<QString, Reference> shown();
    QVector<Difference> compareWindow(const QString& id, const Reference& shown, bool settles);
    bool counts(const Difference& difference, bool sizesCount) const;
    void set(bool isModified);

    WindowOwner& m_owner;
    StoredViews& m_stored;
    Giver& m_giver;
    Activity& m_activity;
    /** The active layout, to recognise another one. */
    QString m_group;
    QString m_view;
    StateMap m_states;
    QHash<QString, Reference> m_references;
    /** By group and view. */
    QHash<QPair<QString, QString>, Left> m_left;
    /** What was looked at last, and what it was. */
    QHash<QString, Reference> m_compared;
    QVector<Difference> m_differences;
    QTimer m_timer;
    bool m_isModified = false;
    bool m_settles = false;
};

} // namespace Panorel::Kit::Detail
