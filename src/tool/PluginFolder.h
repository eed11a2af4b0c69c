// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Panorel::Tool {

/** The folder of Qt plugins in which the plugin for other programs is: the one that was installed
    with this command, or else one in which Qt looks by itself. */
class PluginFolder
{
public:
    PluginFolder();

    bool isFound() const { return m_isFound; }
    /** Lets Qt find the plugin in programs that are started from now on. */
    void addToEnvironment() const;

private:
    bool m_isFound = false;
    /** Empty if Qt looks there by itself. */
    QString m_path;
};

} // namespace Panorel::Tool
