// SPDX-License-Identifier: MIT
#include "Modification.h"

#include "Activity.h"
#include "Giver.h"
#include "StoredViews.h"
#include "WindowOwner.h"
#include "Windows.h"

#include <panorel/kit/WindowState.h>

#include <algorithm>
#include <utility>

namespace Panorel::Kit::Detail {

namespace {

// After the first touch; a drag is many of them.
constexpr int comparingDelay = 150;

QSize sizeOnScreen(const QMainWindow& window)
{
    return window.isVisible() ? window.size() : QSize();
}

} // namespace

Modification::Modification(WindowOwner& owner, StoredViews& stored, Giver& giver,
                           Activity& activity, Windows& windows)
    : m_owner(owner)
    , m_stored(stored)
    , m_giver(giver)
    , m_activity(activity)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(comparingDelay);
    connect(&m_timer, &QTimer::timeout, this, &Modification::compare);
    connect(&activity, &Activity::done, this, &Modification::onDone);
    connect(&activity, &Activity::takenOver, this, [this] { update(Source::Left); });
    connect(&windows, &Windows::touched, this, &Modification::touch);
    // Windows get their layout again at their real size.
    connect(&giver, &Giver::given, this, [this] {
        m_settles = m_settles || !m_isModified;
        touch();
    });
    update(Source::Stored);
}

Modification::~Modification() = default;

bool Modification::isModified()
{
    compare();
    return m_isModified;
}

QVector<Difference> Modification::differences()
{
    return isModified() ? m_differences : QVector<Difference>();
}

void Modification::onDone(const Operation& operation)
{
    const bool isGroup = m_group != m_stored.contents().activeGroup;
    // Documents and groups have working layouts of their own.
    const bool isShown = operation.hasGiven && !operation.isDocument && !isGroup;
    update(isShown ? Source::Shown : Source::Stored);
}

void Modification::update(Source source)
{
    const Contents& contents = m_stored.contents();
    const Contents::Group* const group = contents.find(contents.activeGroup);
    const QString view = group ? group->active : QString();
    const StateMap states = group ? group->activeStates() : StateMap();
    const bool isSame = m_group == contents.activeGroup && m_view == view &&
                        m_view.isNull() == view.isNull() && m_states == states;
    const Left known = m_left.value({contents.activeGroup, view});
    if (!isSame)
        leave();
    m_group = contents.activeGroup;
    m_view = view;
    m_states = states;
    if (source == Source::Shown)
        takeShown();
    else if (!isSame && source == Source::Left && known.states == states && !states.isEmpty())
        takeLeft(known);
    else if (!isSame)
        takeStored(states);
}

void Modification::leave()
{
    const bool isUnknown = m_timer.isActive() && !m_settles;
    m_left.insert({m_group, m_view}, {m_states, m_references, m_isModified || isUnknown});
}

void Modification::takeShown()
{
    const QList<ManagedWindow> windows = m_owner.windows();
    m_references.clear();
    for (const ManagedWindow& managed : windows) {
        if (managed.window)
            m_references.insert(managed.descriptorId,
                                {m_giver.stateOf(*managed.window), sizeOnScreen(*managed.window)});
    }
    set(false);
    // What is moved for it by the event loop is no change of the user's.
    m_settles = true;
    touch();
}

// A step shows what it was when it was left, which may be modified.
void Modification::takeLeft(const Left& left)
{
    m_references = left.references;
    m_compared.clear();
    m_settles = !left.wasModified;
    set(left.wasModified);
    touch();
}

void Modification::takeStored(const StateMap& states)
{
    m_references.clear();
    for (auto state = states.cbegin(); state != states.cend(); ++state)
        m_references.insert(state.key(), {*state, QSize()});
    bool isSaved = true;
    const QList<ManagedWindow> windows = m_owner.windows();
    for (const ManagedWindow& managed : windows) {
        const auto reference = m_references.find(managed.descriptorId);
        if (!managed.window || reference == m_references.end())
            continue;
        const bool isShown = reference->state == m_giver.stateOf(*managed.window);
        isSaved = isSaved && isShown;
        if (isShown)
            reference->size = sizeOnScreen(*managed.window);
    }
    // It has just been saved.
    if (isSaved)
        set(false);
    m_compared.clear();
    m_settles = false;
    touch();
}

void Modification::touch()
{
    if (m_view.isNull())
        set(false);
    else if (!m_timer.isActive())
        m_timer.start();
}

void Modification::compare()
{
    m_timer.stop();
    const bool settles = std::exchange(m_settles, false);
    const QHash<QString, Reference> shown = this->shown();
    if (m_view.isNull() || (shown == m_compared && !settles))
        return;
    m_compared = shown;
    m_differences.clear();
    for (auto window = shown.cbegin(); window != shown.cend(); ++window)
        m_differences += compareWindow(window.key(), *window, settles);
    set(!m_differences.isEmpty());
}

// Those that have a part in the layout. One that was closed shows less than it did.
QHash<QString, Modification::Reference> Modification::shown()
{
    QHash<QString, Reference> result;
    const QList<ManagedWindow> windows = m_owner.windows();
    for (const ManagedWindow& managed : windows) {
        const auto reference = m_references.constFind(managed.descriptorId);
        if (!managed.window || reference == m_references.cend())
            continue;
        const QSize size = sizeOnScreen(*managed.window);
        if (size.isValid() || !reference->size.isValid())
            result.insert(managed.descriptorId, {m_giver.stateOf(*managed.window), size});
    }
    return result;
}

QVector<Difference> Modification::compareWindow(const QString& id, const Reference& shown,
                                                bool settles)
{
    Reference& reference = m_references[id];
    if (shown == reference)
        return {};
    const QVector<Difference> all =
        Kit::differences(WindowState(reference.state), WindowState(shown.state));
    const bool hasSameParts =
        std::none_of(all.cbegin(), all.cend(), [](const Difference& difference) {
            return difference.aspect == Difference::Aspect::Added ||
                   difference.aspect == Difference::Aspect::Removed;
        });
    const bool sizesCount =
        hasSameParts && !settles && shown.size.isValid() && shown.size == reference.size;
    QVector<Difference> found;
    for (Difference difference : all) {
        difference.window = id;
        if (counts(difference, sizesCount))
            found.append(difference);
    }
    // Sizes and parts that have come by themselves are those of the layout from now on. Others stay
    // as they were, or many small changes would be none.
    if (found.isEmpty() && !sizesCount)
        reference = shown;
    return found;
}

bool Modification::counts(const Difference& difference, bool sizesCount) const
{
    using Aspect = Difference::Aspect;
    if (difference.part == Difference::Part::ToolBar && m_activity.merges())
        return false;
    return difference.aspect != Aspect::Added && difference.aspect != Aspect::Removed &&
           (difference.aspect != Aspect::Size || sizesCount);
}

void Modification::set(bool isModified)
{
    if (std::exchange(m_isModified, isModified) != isModified)
        Q_EMIT modifiedChanged(isModified);
}

} // namespace Panorel::Kit::Detail
