// SPDX-License-Identifier: MIT
#include "ProgramLayouts.h"

#include "ProgramFiles.h"

#include <QLoggingCategory>
#include <QStatusBar>

#include <algorithm>

namespace Panorel::Plugin {

namespace {

constexpr int messageTime = 5000;

QLoggingCategory::CategoryFilter otherFilter = nullptr;

// In a debug build the kit tells developers what is wrong with their windows. Here there are none.
void silenceKit(QLoggingCategory* category)
{
    // Qt calls this for the categories that there are before it says which filter was there.
    if (otherFilter)
        otherFilter(category);
    if (qstrcmp(category->categoryName(), "panorel.kit") == 0)
        category->setEnabled(QtWarningMsg, false);
}

} // namespace

ProgramLayouts::ProgramLayouts(bool merges)
    : m_manager({ProgramFiles::programName()}, merges)
    , m_layouts(m_manager)
{
    if (!otherFilter)
        otherFilter = QLoggingCategory::installFilter(silenceKit);
    QObject::connect(&m_layouts, &Kit::Layouts::message, &m_layouts,
                     [this](const QString& text) { showMessage(text); });
    m_layouts.setKeepsGeometry(false); // Programs do that themselves.
    m_layouts.start(ProgramFiles::layouts());
}

ProgramLayouts::~ProgramLayouts() = default;

bool ProgramLayouts::has(const QMainWindow& window) const
{
    return std::any_of(m_places.cbegin(), m_places.cend(),
                       [&](const auto& place) { return place->window() == &window; });
}

void ProgramLayouts::add(QMainWindow& window)
{
    m_places.erase(std::remove_if(m_places.begin(), m_places.end(),
                                  [](const auto& place) { return !place->window(); }),
                   m_places.end());
    m_places.push_back(std::make_unique<MenuPlace>(window, m_layouts));
    m_layouts.addWindow(window);
}

// Where the program shows its own. A status bar that it has hidden, or does not have, stays so.
void ProgramLayouts::showMessage(const QString& text) const
{
    for (const auto& place : m_places) {
        if (!place->window() || !place->window()->isVisible())
            continue;
        const auto bars =
            place->window()->findChildren<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly);
        for (QStatusBar* bar : bars)
            bar->showMessage(text, messageTime);
    }
}

} // namespace Panorel::Plugin
