// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/** All that the library offers. */
namespace Panorel {

/**
 * One layout: for every managed window its DescriptorId and the bytes that
 * QMainWindow::saveState(0) gave for it. Keys are compared case-sensitively.
 */
using StateMap = QMap<QString, QByteArray>;

} // namespace Panorel
