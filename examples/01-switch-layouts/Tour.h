// SPDX-License-Identifier: MIT
#pragma once

#include "Arrangement.h"

#include <QString>

class EditorWindow;
class QDockWidget;

namespace Panorel {
class IManagable;
class Manager;
} // namespace Panorel

/**
 * Shows in steps what saved layouts do, and checks each: prints a line on what was done and what is
 * so, and writes a picture of the window. The window and its owner must outlive it.
 */
class Tour
{
public:
    Tour(EditorWindow& window, Panorel::IManagable& owner, const QString& directory);

    /** False as soon as a layout does not come back or a picture cannot be written. */
    bool run();

private:
    void placeWindow();
    void disturbDocks();

    bool showSwitching();
    bool showViews(Panorel::Manager& manager);
    bool showMerging();
    bool step(const QString& picture, const QString& text);
    bool step(const QString& picture, const QString& text, const Arrangement& expected);
    bool savePicture(const QString& name);
    Arrangement settled() const;

    EditorWindow& m_window;
    Panorel::IManagable& m_owner;
    QString m_directory;
    int m_steps = 0;
};
