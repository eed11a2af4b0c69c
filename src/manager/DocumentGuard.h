// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;

namespace Panorel::Detail {

/** Keeps documents from Qt's validator with which it cannot cope, none of them a valid one. */
class DocumentGuard
{
public:
    DocumentGuard() = delete;

    /**
     * False if @p data has an xsi:type whose prefix is not declared, on which the validator
     * crashes, or a tag with more attributes than any valid one. Qt's reader compares the
     * attributes of a tag in pairs, so one refusal here saves as much time again in every later
     * pass. What follows an error in the XML is not looked at.
     */
    static bool mayBeValidated(const QByteArray& data);
};

} // namespace Panorel::Detail
