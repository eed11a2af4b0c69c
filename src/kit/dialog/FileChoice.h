// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

/** Asks for the name of a file with layouts. */
namespace Panorel::Kit::Detail::FileChoice {

enum class Mode { Open, Save };

/**
 * Opens a file dialog over @p parent and returns at once, so that anything may be destroyed while
 * it is open.
 * @param parent may be null.
 * @param chosen called with the name once the dialog is closed; not called if the user cancels or
 * @p parent is destroyed.
 */
void ask(QWidget* parent, Mode mode, const std::function<void(const QString&)>& chosen);

} // namespace Panorel::Kit::Detail::FileChoice
