// SPDX-License-Identifier: MIT
#include <panorel/kit/WindowState.h>

#include "value/StateCheck.h"
#include "value/StateParts.h"
#include "value/StateReader.h"
#include "value/StateTidy.h"

#include <panorel/QtState.h>

namespace Panorel::Kit {

namespace {

// The last dock-area section, because a window keeps its sizes and corners.
const Detail::StateSection* dockAreasOf(const Detail::StateTree& tree)
{
    const Detail::StateSection* found = nullptr;
    for (const Detail::StateSection& section : tree.sections) {
        if (section.marker == QtState::QDockAreaLayout_DockWidgetStateMarker)
            found = &section;
    }
    return found;
}

// Drops repeats until there are none: without them a record may turn out to begin with the rest of
// the one before it.
QByteArray withoutRepeats(QByteArray bytes)
{
    while (true) {
        const Detail::StateTree tree = Detail::StateReader::read(bytes);
        const Detail::StatePlaces places(tree);
        if (!places.hasRepeats)
            return bytes;
        bytes = Detail::StateTidy::tidied(tree, places);
    }
}

// The bytes of all sections of @p tree that hold tool bars, or of all that do not.
QByteArray sectionsOf(const Detail::StateTree& tree, bool holdingToolBars)
{
    QByteArray bytes;
    for (std::size_t i = 0; i < tree.sections.size(); ++i) {
        const int offset = tree.sections[i].offset;
        const int end =
            i + 1 < tree.sections.size() ? tree.sections[i + 1].offset : tree.bytes.size();
        if (Detail::holdsToolBars(tree.sections[i]) == holdingToolBars)
            bytes += tree.bytes.mid(offset, end - offset);
    }
    return bytes;
}

} // namespace

namespace Detail {

const StateTree& treeOf(const WindowState& state)
{
    static const StateTree none;
    return state.m_tree ? *state.m_tree : none;
}

} // namespace Detail

using Detail::treeOf;

WindowState::Limits WindowState::Limits::standard()
{
    return {100, 100000};
}

WindowState::WindowState() = default;

WindowState::WindowState(const QByteArray& bytes)
    : m_tree(new Detail::StateTree(Detail::StateReader::read(bytes)))
{}

WindowState::WindowState(const WindowState& other) = default;
WindowState::WindowState(WindowState&& other) noexcept = default;
WindowState& WindowState::operator=(const WindowState& other) = default;
WindowState& WindowState::operator=(WindowState&& other) noexcept = default;
WindowState::~WindowState() = default;

QByteArray WindowState::bytes() const
{
    return treeOf(*this).bytes;
}

bool WindowState::isReadable() const
{
    return treeOf(*this).isReadable;
}

int WindowState::layoutVersion() const
{
    const Detail::StateTree& tree = treeOf(*this);
    return tree.isReadable ? tree.version : 0;
}

QSize WindowState::centralSize() const
{
    const Detail::StateSection* const docks = dockAreasOf(treeOf(*this));
    return docks ? docks->centralSize : QSize();
}

std::array<Qt::DockWidgetArea, 4> WindowState::corners() const
{
    std::array<Qt::DockWidgetArea, 4> areas{Qt::NoDockWidgetArea, Qt::NoDockWidgetArea,
                                            Qt::NoDockWidgetArea, Qt::NoDockWidgetArea};
    if (const Detail::StateSection* const docks = dockAreasOf(treeOf(*this))) {
        for (std::size_t i = 0; i < areas.size(); ++i)
            areas[i] = static_cast<Qt::DockWidgetArea>(docks->corners[i]);
    }
    return areas;
}

QVector<WindowState::DockWidget> WindowState::dockWidgets() const
{
    return Detail::StateParts(treeOf(*this)).dockWidgets;
}

QVector<WindowState::ToolBar> WindowState::toolBars() const
{
    return Detail::StateParts(treeOf(*this)).toolBars;
}

QVector<WindowState::FloatingTabs> WindowState::floatingTabs() const
{
    return Detail::StateParts(treeOf(*this)).floatingTabs;
}

int WindowState::repeats() const
{
    return Detail::StatePlaces(treeOf(*this)).repeats;
}

QVector<Problem> WindowState::check() const
{
    return Detail::StateCheck(treeOf(*this)).problems;
}

bool WindowState::isSound() const
{
    return Kit::isSound(check());
}

QByteArray WindowState::tidied() const
{
    return isSound() ? withoutRepeats(bytes()) : bytes();
}

QByteArray WindowState::merged(const WindowState& stored, const WindowState& live)
{
    if (!stored.isSound() || !live.isSound())
        return QByteArray();
    const int headSize = 2 * static_cast<int>(sizeof(qint32));
    const QByteArray head = stored.bytes().left(headSize);
    // The order in which a window writes them.
    QByteArray merged = head + sectionsOf(treeOf(stored), /*holdingToolBars=*/false) +
                        sectionsOf(treeOf(live), /*holdingToolBars=*/true);
    return withoutRepeats(merged);
}

} // namespace Panorel::Kit
