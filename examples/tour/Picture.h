// SPDX-License-Identifier: MIT
#pragma once

class QImage;
class QMainWindow;

/**
 * The window and its floating dock widgets where they are on the screen, under captions
 * painted here, because the offscreen platform has no window manager that draws them.
 */
QImage pictureOf(const QMainWindow& window);

/** The same of all windows, dialogs and menus that are open now. */
QImage pictureOfAll();
