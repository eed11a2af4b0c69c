// SPDX-License-Identifier: MIT

// Reads any bytes as the kit's value for a window's state:
// - it reads what the codec reads, and floating tab groups beside; each part is where the reference
//   reader, which shares no code with it, finds it;
// - a sound state stays sound when it is tidied and gets no longer; its named dock widgets and its
//   tool bars stay as they are; nothing is left to tidy;
// - merging a sound state with itself is tidying it with its tool bars last.

#include "Fuzz.h"
#include "support/ReferenceReader.h"

#include <panorel/kit/WindowState.h>

#include <QHash>

using namespace Panorel;
using namespace Panorel::Tests;
using Kit::WindowState;

namespace {

/** The named parts of a section as they are found; a later one of the same name is left out. */
class FoundParts
{
public:
    void beginSection() { m_section.clear(); }

    void add(const QString& name, const QString& text)
    {
        if (!name.isEmpty() && m_section.contains(name))
            return;
        m_section.append(name);
        for (QString& part : m_parts) {
            if (!name.isEmpty() && part.startsWith(name + QLatin1Char('\n')))
                part.clear();
        }
        m_parts.append(name + QLatin1Char('\n') + text);
    }

    QStringList parts() const
    {
        QStringList parts = m_parts;
        parts.removeAll(QString());
        return parts;
    }

private:
    QStringList m_section;
    QStringList m_parts;
};

QString dockText(int area, bool isVisible, bool isFloating)
{
    return QStringLiteral("%1 %2 %3").arg(area).arg(isVisible).arg(isFloating);
}

int areaFlag(int side)
{
    return side >= 0 && side <= 3 ? 1 << side : 0;
}

void addDocks(FoundParts& found, const Block& block, int side)
{
    for (const DockItem& item : block.items) {
        if (item.isSequence)
            addDocks(found, *item.subBlock, side);
        else
            found.add(item.objectName, dockText(areaFlag(side), item.flags & 1, item.flags & 2));
    }
}

QStringList docksOf(const QtState& state)
{
    FoundParts found;
    for (const DockArea& area : state.m_dockAreaLayouts) {
        found.beginSection();
        for (const Dock& dock : area.docks)
            addDocks(found, dock.block, dock.area);
    }
    return found.parts();
}

QStringList toolBarsOf(const QtState& state)
{
    FoundParts found;
    for (const ToolBarArea& area : state.m_toolBarAreaLayouts) {
        found.beginSection();
        for (const Line& line : area.lines) {
            for (const ToolBarItem& item : line.items)
                found.add(item.objectName,
                          dockText(areaFlag(line.area), item.shown & 1, item.shown & 2));
        }
    }
    return found.parts();
}

QStringList docksOf(const WindowState& state, bool withNameless)
{
    QStringList parts;
    for (const WindowState::DockWidget& dock : state.dockWidgets()) {
        if (withNameless || !dock.name.isEmpty())
            parts += dock.name + QLatin1Char('\n') +
                     dockText(dock.area, dock.isVisible, dock.isFloating);
    }
    return parts;
}

QStringList toolBarsOf(const WindowState& state)
{
    QStringList parts;
    for (const WindowState::ToolBar& bar : state.toolBars())
        parts += bar.name + QLatin1Char('\n') + dockText(bar.area, bar.isVisible, bar.isVertical);
    return parts;
}

void requireSameParts(const QStringList& actual, const QStringList& expected, const char* property)
{
    requireSame(actual.join(QLatin1String("\n\n")), expected.join(QLatin1String("\n\n")), property);
}

void checkReading(const QByteArray& input, const WindowState& state)
{
    const Reading reference = ReferenceReader::read(input, Records::AsStored);
    if (reference.ok)
        require(state.isReadable(), "what the reference reader accepts is readable");
    if (!state.isReadable()) {
        require(!state.isSound(), "what cannot be read is not sound");
        require(state.dockWidgets().isEmpty() && state.toolBars().isEmpty(),
                "what cannot be read has no parts");
        return;
    }
    if (!state.floatingTabs().isEmpty())
        return;
    require(reference.ok, "only floating tab groups are read beside");
    requireSameParts(docksOf(state, /*withNameless=*/true), docksOf(reference.state),
                     "dock widgets are where the reference reader finds them");
    requireSameParts(toolBarsOf(state), toolBarsOf(reference.state),
                     "tool bars are where the reference reader finds them");
}

void checkTidying(const WindowState& state)
{
    const WindowState tidied(state.tidied());
    require(tidied.isSound(), "a sound state stays sound");
    require(tidied.bytes().size() <= state.bytes().size(), "tidying makes nothing longer");
    require(tidied.tidied() == tidied.bytes(), "nothing is left to tidy");
    requireSameParts(docksOf(tidied, /*withNameless=*/false),
                     docksOf(state, /*withNameless=*/false), "dock widgets stay");
    requireSameParts(toolBarsOf(tidied), toolBarsOf(state), "tool bars stay");
    for (const Kit::Problem& problem : tidied.check())
        require(problem.code != Kit::ProblemCode::Repeats, "no repeats are left");

    const WindowState merged(WindowState::merged(state, state));
    require(merged.isSound(), "sound states are merged");
    requireSameParts(docksOf(merged, /*withNameless=*/false),
                     docksOf(state, /*withNameless=*/false), "dock widgets are the stored ones");
    requireSameParts(toolBarsOf(merged), toolBarsOf(state), "tool bars are the live ones");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input = bytes(data, size);
    const WindowState state(input);
    require(state.bytes() == input, "the bytes are kept");
    checkReading(input, state);
    if (state.isSound())
        checkTidying(state);
    else
        require(state.tidied() == input, "what is not sound stays as it is");
    return 0;
}
