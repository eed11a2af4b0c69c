// SPDX-License-Identifier: MIT
#include "Keeper.h"

#include "Activity.h"
#include "Geometries.h"
#include "StoredViews.h"
#include "WindowOwner.h"
#include "Windows.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/WindowState.h>

#include <QApplication>
#include <QFileInfo>
#include <QPointer>
#include <QSessionManager>

#include <algorithm>
#include <utility>

namespace Panorel::Kit::Detail {

namespace {

constexpr auto version = "1.1.0";
const QLatin1String groupKey("group");
// After the first change; what comes meanwhile is saved with it.
constexpr int savingDelay = 500;
// While the file cannot be written.
constexpr int retryDelay = 30000;

// Drops what would harm a window, and what merging has repeated. Whether anything was dropped that
// a user may miss.
bool tidy(StateMap& states)
{
    bool dropped = false;
    for (auto state = states.begin(); state != states.end();) {
        const WindowState read(*state);
        if (read.isSound()) {
            *state = read.tidied();
            ++state;
            continue;
        }
        dropped = true;
        state = states.erase(state);
    }
    return dropped;
}

bool tidy(Snapshot& snapshot)
{
    bool dropped = tidy(snapshot.toolBarStates);
    for (Snapshot::Group& group : snapshot.groups) {
        dropped = tidy(group.current.states) || dropped;
        for (Snapshot::View& view : group.views)
            dropped = tidy(view.states) || dropped;
    }
    return dropped;
}

QJsonObject settingsOf(const Snapshot& snapshot)
{
    return snapshot.groups.isEmpty()
               ? QJsonObject()
               : Geometries::settingsIn(snapshot.groups.constFirst().current.userData);
}

// Theirs, with what has changed in ours since both were the base.
QJsonObject mergedSettings(const QJsonObject& base, const QJsonObject& ours,
                           const QJsonObject& theirs)
{
    QJsonObject result = theirs;
    QStringList keys = ours.keys();
    keys += base.keys();
    for (const QString& key : qAsConst(keys)) {
        const QJsonValue own = ours.value(key);
        const QJsonValue other = theirs.value(key);
        if (own.isObject() && other.isObject())
            result.insert(
                key, mergedSettings(base.value(key).toObject(), own.toObject(), other.toObject()));
        else if (own != base.value(key))
            result.insert(key, own); // One that is undefined is removed.
    }
    return result;
}

bool isOurs(const QByteArray& bytes)
{
    const LayoutDocument document(bytes);
    return document.isReadable() && document.version() == QLatin1String(version);
}

bool hasViews(const Snapshot& snapshot)
{
    return std::any_of(snapshot.groups.cbegin(), snapshot.groups.cend(),
                       [](const Snapshot::Group& group) { return !group.views.isEmpty(); });
}

} // namespace

Keeper::Keeper(Manager& manager, WindowOwner& owner, StoredViews& stored, Activity& activity,
               Windows& windows)
    : m_manager(manager)
    , m_owner(owner)
    , m_stored(stored)
    , m_activity(activity)
    , m_windows(windows)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Keeper::save);
    connect(&m_activity, &Activity::changed, this, [this] { m_viewsChanged = true; });
    manager.installEventFilter(this);
}

Keeper::~Keeper()
{
    (void)save(); // There is nobody left to tell.
}

void Keeper::start(const QString& fileName)
{
    (void)save(); // Where it was kept until now; a failure has been reported.
    stop();
    m_problem.clear();
    m_storage = std::make_unique<Storage>(fileName);
    m_name = m_storage->readableName();
    m_windows.update();
    if (load())
        Q_EMIT replaced();
    Q_EMIT loaded();
    connect(&m_activity, &Activity::changed, this, &Keeper::saveSoon, Qt::UniqueConnection);
    connect(&m_windows, &Windows::touched, this, &Keeper::saveSoon, Qt::UniqueConnection);
    connect(&m_windows, &Windows::closing, this, &Keeper::saveSoon, Qt::UniqueConnection);
    // The first of them before Qt closes floating dock widgets, the last when the program quits
    // without closing its windows.
    connect(qApp, &QGuiApplication::lastWindowClosed, this, &Keeper::save, Qt::UniqueConnection);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &Keeper::save, Qt::UniqueConnection);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Keeper::save, Qt::UniqueConnection);
    emitMessages();
}

void Keeper::stop()
{
    m_storage.reset();
    m_timer.stop();
    m_known.clear();
    m_fileSettings = m_savedSettings = QJsonObject();
    m_foreign.clear();
    m_savedStates.clear();
    m_viewsChanged = true;
    m_isOtherVersion = false;
}

void Keeper::finish()
{
    const StateMap states = m_windows.states();
    noteSettings();
    Snapshot snapshot = Snapshot::fromXml(m_known);
    if (m_storage && !isSaved(states) && snapshot.find(m_activity.group())) {
        noteWindows(snapshot, states);
        const Storage::Lock lock(*m_storage);
        QString problem;
        const QByteArray bytes = m_storage->read(&problem);
        if (bytes != m_known && isOurs(bytes)) {
            const Snapshot others = Snapshot::fromXml(bytes);
            snapshot = Snapshot::merged(Snapshot::fromXml(m_known), snapshot, others);
            m_fileSettings = settingsOf(others);
        }
        m_foreign.clear(); // It has them.
        if (problem.isEmpty() && (bytes.isNull() || isOurs(bytes)))
            (void)write(documentOf(snapshot)); // A failure is reported.
    }
    stop();
    emitMessages();
}

// It is still whole then, unlike when it is deleted at once.
bool Keeper::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_manager && event->type() == QEvent::DeferredDelete)
        (void)save(); // A failure has been reported.
    return false;
}

void Keeper::set(const QString& key, const QJsonValue& value)
{
    if (m_settings.value(key) == value)
        return;
    m_settings.insert(key, value);
    saveSoon();
}

bool Keeper::load()
{
    const Storage::Lock lock(*m_storage);
    QString problem;
    QByteArray bytes = m_storage->read(&problem);
    if (bytes.isNull() && problem.isEmpty())
        return false;
    if (problem.isEmpty()) {
        const LayoutDocument document(bytes);
        if (document.isReadable() && document.version() != QLatin1String(version)) {
            m_isOtherVersion = true;
            tell(tr("The layouts in %1 are of another version of this program. They stay as they "
                    "are.")
                     .arg(m_name));
            return false;
        }
        if (document.isReadable()) {
            m_known = bytes;
            m_storage->keepCopy(bytes);
            takeOver(bytes);
            return true;
        }
        problem = tr("It is damaged.");
    }
    bytes = m_storage->newestCopy(isOurs);
    moveAway(problem);
    if (bytes.isNull())
        return false;
    takeOver(bytes);
    return true;
}

void Keeper::takeOver(const QByteArray& document)
{
    Snapshot snapshot = Snapshot::fromXml(document);
    m_foreign = foreignGroups(snapshot);
    if (tidy(snapshot))
        tell(tr("Some of the layouts in %1 are damaged and were left out.").arg(m_name));
    const Activity::Takeover takeover(m_activity);
    if (!snapshot.groups.isEmpty())
        m_settings = settingsOf(snapshot);
    m_fileSettings = m_savedSettings = settingsOf(snapshot);
    const QString group = m_settings.value(groupKey).toString();
    if (group != m_manager.activeGroup()) {
        const WindowOwner::Silence silence(m_owner);
        (void)m_manager.activateGroup(group); // One that is gone is not activated.
    }
    giveToManager(snapshot); // Afterwards, because a group that is left keeps nothing of it.
    if (const Snapshot::Group* const active = snapshot.find(m_manager.activeGroup()))
        m_windows.begin(Geometries::withToolBars(active->current.states, snapshot.toolBarStates),
                        Geometries::read(m_settings));
}

// The Manager gets the layouts without the windows, each of which gets its part at its own time.
void Keeper::giveToManager(const Snapshot& snapshot)
{
    const Activity::Takeover takeover(m_activity);
    const WindowOwner::Silence silence(m_owner);
    (void)m_manager.fromXml(snapshot.toXml(), /*merge=*/false); // It is valid.
    // A receiver of its signals may have changed them, and it does not take groups of others.
    m_stored.read(Snapshot::fromXml(m_manager.toXml(/*markActive=*/true)));
}

Snapshot Keeper::current(const StateMap& states)
{
    Snapshot snapshot;
    {
        const WindowOwner::Silence silence(m_owner);
        snapshot = Snapshot::fromXml(m_manager.toXml(/*markActive=*/true));
    }
    m_stored.read(snapshot);
    noteWindows(snapshot, states);
    return snapshot;
}

void Keeper::noteSettings()
{
    Geometries::write(m_settings, m_windows.geometries());
    m_settings.insert(groupKey, m_activity.group());
}

void Keeper::noteWindows(Snapshot& snapshot, const StateMap& states) const
{
    if (Snapshot::Group* const active = snapshot.find(m_activity.group()))
        active->current.states = states;
    if (m_activity.merges())
        snapshot.toolBarStates = states;
}

// What this program has changed stays. Its windows and its group stay in any case.
void Keeper::adoptSettings(const QJsonObject& theirs)
{
    m_fileSettings = theirs;
    m_settings = mergedSettings(m_savedSettings, m_settings, theirs);
    noteSettings();
}

QVector<Snapshot::Group> Keeper::foreignGroups(const Snapshot& file) const
{
    const QStringList own = m_manager.groups();
    QVector<Snapshot::Group> foreign;
    for (const Snapshot::Group& group : file.groups) {
        if (!own.contains(group.name))
            foreign.append(group);
    }
    return foreign;
}

// With all that is in the file beside the Manager's layouts.
QByteArray Keeper::documentOf(Snapshot snapshot) const
{
    QString& userData = snapshot.groups.first().current.userData;
    userData = Geometries::withSettings(
        userData, mergedSettings(m_savedSettings, m_settings, m_fileSettings));
    snapshot.groups += m_foreign;
    return snapshot.toXml();
}

bool Keeper::isSaved(const StateMap& states) const
{
    return states == m_savedStates && m_settings == m_savedSettings;
}

bool Keeper::save()
{
    m_timer.stop();
    if (!m_storage)
        return false;
    const StateMap states = m_windows.states();
    noteSettings();
    // Most of what touches a window changes nothing, and the document may be large.
    if (!m_viewsChanged && isSaved(states))
        return m_problem.isEmpty();
    const QJsonObject settings = m_settings;
    // First, because a receiver of the signals of merging may change more.
    m_viewsChanged = false;
    Snapshot snapshot = current(states);
    const bool isKnown = documentOf(snapshot) == m_known;
    const bool isLeft = m_isOtherVersion && !hasViews(snapshot);
    const bool isDone = isKnown || isLeft || saveWithOthers(snapshot);
    if (isDone) {
        m_savedStates = states;
        m_savedSettings = m_settings;
    } else {
        m_viewsChanged = true;
    }
    if (m_settings != settings)
        Q_EMIT loaded();
    const bool isGood = isDone && (m_problem.isEmpty() || isLeft);
    emitMessages();
    return isGood;
}

bool Keeper::saveWithOthers(Snapshot& snapshot)
{
    const Storage::Lock lock(*m_storage);
    mergeOthers(snapshot);
    return m_storage && write(documentOf(snapshot));
}

void Keeper::mergeOthers(Snapshot& snapshot)
{
    QString problem;
    const QByteArray bytes = m_storage->read(&problem);
    if (problem.isEmpty() && (bytes.isNull() || bytes == m_known))
        return;
    if (!isOurs(bytes)) {
        m_isOtherVersion = false;
        moveAway(problem.isEmpty() ? tr("It is of another version of this program, or damaged.")
                                   : problem);
        return;
    }
    Snapshot others = Snapshot::fromXml(bytes);
    m_foreign = foreignGroups(others);
    adoptSettings(settingsOf(others));
    (void)tidy(others); // It was reported when it was written.
    // As ours was, so that tidying is no change.
    Snapshot base = Snapshot::fromXml(m_known);
    (void)tidy(base);
    const Snapshot merged = Snapshot::merged(base, snapshot, others);
    if (haveSameViews(merged, snapshot))
        return;
    snapshot = merged;
    giveToManager(snapshot);
}

bool Keeper::write(const QByteArray& document)
{
    const QString problem = m_storage->write(document);
    if (problem.isEmpty()) {
        m_known = document;
        m_fileSettings = mergedSettings(m_savedSettings, m_settings, m_fileSettings);
        m_problem.clear();
        return true;
    }
    tell(tr("The layouts could not be saved in %1: %2").arg(m_name, problem));
    m_timer.start(retryDelay);
    return false;
}

// Nobody overwrites it then, and the user can still look into it.
void Keeper::moveAway(const QString& reason)
{
    const QString name = m_storage->moveAway();
    const QString problem =
        tr("The file with your layouts, %1, cannot be read. %2").arg(m_name, reason);
    if (!name.isEmpty()) {
        tell(problem + QLatin1Char(' ') + tr("It is kept as %1.").arg(QFileInfo(name).fileName()));
        return;
    }
    tell(problem + QLatin1Char(' ') +
         tr("It stays as it is, and layouts are not saved in this run."));
    stop();
}

void Keeper::saveSoon()
{
    // Not later than what is due already, such as a retry.
    if (m_storage && (!m_timer.isActive() || m_timer.remainingTime() > savingDelay))
        m_timer.start(savingDelay);
}

void Keeper::tell(const QString& problem)
{
    if (problem == m_problem)
        return;
    m_problem = problem;
    m_messages.append(problem);
}

// Not before the file is free for other programs, because a receiver may wait for the user, and not
// before this object is done, because one may use or destroy it.
void Keeper::emitMessages()
{
    const QPointer<Keeper> self(this);
    const QStringList messages = std::exchange(m_messages, {});
    for (const QString& text : messages) {
        if (self)
            Q_EMIT message(text);
    }
}

} // namespace Panorel::Kit::Detail
