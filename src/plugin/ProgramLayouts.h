// SPDX-License-Identifier: MIT
#pragma once

#include "MenuPlace.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QMainWindow>
#include <QString>

#include <memory>
#include <vector>

namespace Panorel::Plugin {

/** The layouts of this program, which are kept in the user's data folder under its name. */
class ProgramLayouts
{
public:
    explicit ProgramLayouts(bool merges);
    ~ProgramLayouts();

    bool has(const QMainWindow& window) const;
    void add(QMainWindow& window);

private:
    void showMessage(const QString& text) const;

    Manager m_manager;
    // Before the layouts, which at their end save the windows as they are, tool bars of the places
    // included, and may tell that they could not.
    std::vector<std::unique_ptr<MenuPlace>> m_places;
    Kit::Layouts m_layouts;
};

} // namespace Panorel::Plugin
