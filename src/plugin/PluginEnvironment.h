// SPDX-License-Identifier: MIT
#pragma once

namespace Panorel::Plugin {

/**
 * Takes out of the environment what has loaded the plugin, so that programs which this one starts
 * run without it: its entries in QT_QPA_GENERIC_PLUGINS, and the folder PANOREL_PLUGIN_PATH in
 * QT_PLUGIN_PATH.
 */
void leaveEnvironment();

} // namespace Panorel::Plugin
