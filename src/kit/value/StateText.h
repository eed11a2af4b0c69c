// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Panorel::Kit::Detail {

/** Whether @p bytes begin as QMainWindow::saveState() does. */
bool beginsAsState(const QByteArray& bytes);

/**
 * The state whose bytes @p text is, in hexadecimal or base64 (also the one for addresses), with any
 * white space; null for other text.
 */
QByteArray stateFromText(const QByteArray& text);

} // namespace Panorel::Kit::Detail
