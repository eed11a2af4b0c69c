// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

namespace Panorel {
class Manager;
class Menu;
class ViewButton;
} // namespace Panorel

namespace Panorel::Kit {
class Layouts;
} // namespace Panorel::Kit

namespace Panorel::Kit::Detail {

class Transfer;

/** Makes the menu and the button of a Layouts, with all cures. */
namespace MenuFactory {

/** The extended menu. Its messages are emitted by @p layouts. */
Menu* createMenu(Layouts& layouts, Manager& manager, Transfer& transfer, QWidget* parent);

/** The button, with a menu that is not extended. */
ViewButton* createButton(Layouts& layouts, Manager& manager, QWidget* parent);

} // namespace MenuFactory

} // namespace Panorel::Kit::Detail
