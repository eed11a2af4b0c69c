// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

namespace Panorel {
class Menu;
class ViewButton;
} // namespace Panorel

namespace Panorel::Kit {
class Layouts;
} // namespace Panorel::Kit

namespace Panorel::Kit::Detail {

struct Session;

/** Makes the menu and the button of a Layouts, with all cures. */
namespace MenuFactory {

/** The extended menu with the kit's own entries. Its messages are emitted by @p layouts. */
Menu* createMenu(Layouts& layouts, Session& session, QWidget* parent);

/** The button, with a menu that is not extended. */
ViewButton* createButton(Layouts& layouts, Session& session, QWidget* parent);

} // namespace MenuFactory

} // namespace Panorel::Kit::Detail
