// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/Problem.h>

#include <QByteArray>

namespace Panorel::Kit::Detail {

/** Why a Manager has refused the document @p bytes: the first place at which it is not well-formed
    or not valid, with the number of the line and a reason in the user's language. */
Problem refusalOf(const QByteArray& bytes);

} // namespace Panorel::Kit::Detail
