// SPDX-License-Identifier: MIT
#pragma once

#include "value/Arrangement.h"

#include <QPoint>
#include <QSize>

namespace Panorel::Kit::Detail {

/**
 * What a window has from its style and does not store. Where the stored positions tell it, it is
 * taken from these; else it is as Qt's own style has it with a common font.
 */
struct PictureMetrics
{
    explicit PictureMetrics(const Arrangement& arrangement);

    /** Between dock widgets, and between them and the central widget. */
    int separator = 6;
    /** Height of the tabs below a page. */
    int tabBar = 32;
    /** Height of a line of tool bars at the top or bottom, and width of one at the left or right.
     */
    int horizontalLine = 36;
    int verticalLine = 36;
    /** The room for the menu bar, above all tool bars. */
    int menuBar = 0;

    /** Where the dock areas begin in the window. */
    QPoint origin;
    /** How much lies right of the dock areas and below them. */
    QSize beyond;

private:
    void findOrigin(const Arrangement& arrangement);
};

} // namespace Panorel::Kit::Detail
