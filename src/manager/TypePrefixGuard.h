// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;

namespace Panorel::Detail {

/**
 * Keeps from Qt's validator the documents on which it crashes: those with an xsi:type whose prefix
 * is not declared. None of them is valid, for such a type cannot be found.
 */
class TypePrefixGuard
{
public:
    TypePrefixGuard() = delete;

    /** Whether the prefix of every xsi:type in @p data is declared, as far as it is well-formed. */
    static bool allDeclared(const QByteArray& data);
};

} // namespace Panorel::Detail
