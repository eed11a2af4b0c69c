// SPDX-License-Identifier: MIT
#pragma once

#include "Snapshot.h"
#include "Storage.h"

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <memory>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Activity;
class StoredViews;
class WindowOwner;
class Windows;

/** Keeps the Manager's document in a file: loads it at the start, saves it after each change. */
class Keeper : public QObject
{
    Q_OBJECT

public:
    /** All must outlive this object. */
    Keeper(Manager& manager, WindowOwner& owner, StoredViews& stored, Activity& activity,
           Windows& windows);
    ~Keeper() override;

    /** Loads the file and saves in it from now on. */
    void start(const QString& fileName);
    bool hasStarted() const { return m_storage != nullptr; }
    /** Neither loads nor saves any more, and knows nothing of the file. */
    void stop();
    /** Saves what the windows show, now that the Manager is gone and tells nothing any more, and
        stops. */
    void finish();
    /** Saves if anything has changed. @return whether the file is what it should be. */
    bool save();
    /** Why the file could not be read or saved, as long as that is the case. */
    QString problem() const { return m_problem; }

    /** What else is kept in the file; a change is saved with the next one. */
    QJsonObject& settings() { return m_settings; }
    /** Keeps @p value too, and saves it soon. */
    void set(const QString& key, const QJsonValue& value);

Q_SIGNALS:
    /** The Manager's layouts have become those of the file. */
    void replaced();
    /** The settings() are those of the file, if it has any, or have got some of another program. */
    void loaded();
    /** One sentence for the user. The file is not locked then. */
    void message(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /** Whether the Manager got layouts of a file. */
    bool load();
    void takeOver(const QByteArray& document);
    void giveToManager(const Snapshot& snapshot);
    void beginWindows(const Snapshot& snapshot);
    Snapshot current(const StateMap& states);
    void noteSettings();
    void adoptSettings(const QJsonObject& theirs);
    QVector<Snapshot::Group> foreignGroups(const Snapshot& file) const;
    QByteArray documentOf(Snapshot snapshot) const;
    void noteWindows(Snapshot& snapshot, const StateMap& states) const;
    bool isSaved(const StateMap& states) const;
    bool saveWithOthers(Snapshot& snapshot);
    bool write(const QByteArray& document);
    void mergeOthers(Snapshot& snapshot);
    void moveAway(const QString& reason);
    void saveSoon();
    void tell(const QString& problem);
    void emitMessages();

    Manager& m_manager;
    WindowOwner& m_owner;
    StoredViews& m_stored;
    Activity& m_activity;
    Windows& m_windows;
    std::unique_ptr<Storage> m_storage;
    /** Of the file, for messages. */
    QString m_name;
    /** What is in the file as far as this program knows. */
    QByteArray m_known;
    QJsonObject m_settings;
    /** Its settings, and its groups that this Manager does not have. Both may be of another
        program. */
    QJsonObject m_fileSettings;
    QVector<Snapshot::Group> m_foreign;
    /** What of the windows and which settings() were saved last, or loaded. */
    StateMap m_savedStates;
    QJsonObject m_savedSettings;
    /** Whether views may be others than when they were saved last. */
    bool m_viewsChanged = true;
    QString m_problem;
    /** What is still to be told. */
    QStringList m_messages;
    QTimer m_timer;
    /** Whether the file is of another version. It stays until there are layouts to save. */
    bool m_isOtherVersion = false;
};

} // namespace Panorel::Kit::Detail
