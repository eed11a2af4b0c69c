// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Panorel::Kit::Detail {

/** Writes @p content in the place of a file, whole or not at all. @return why that failed; null if
    it did not. */
QString writeWholeFile(const QString& fileName, const QByteArray& content);

} // namespace Panorel::Kit::Detail
