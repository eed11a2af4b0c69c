// SPDX-License-Identifier: MIT
#include <panorel/ViewButton.h>

#include <panorel/Menu.h>

namespace Panorel {

ViewButton::ViewButton(Manager* manager, const QString& text, QWidget* parent)
    : QToolButton(parent)
    , m_menu(new Menu(manager, /*extended=*/false, this))
{
    setText(text);
    setMenu(m_menu);
    setPopupMode(QToolButton::MenuButtonPopup);
    connect(this, &QToolButton::clicked, m_menu, &Menu::toggleView);
}

ViewButton::~ViewButton() = default;

} // namespace Panorel
