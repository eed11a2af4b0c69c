// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/** Questions about the documents of Panorel::Manager::toXml() that a Manager does not answer. */
namespace LayoutDocument {

/** What keeps a Manager from taking over a document. */
enum class Problem {
    None,
    /** It is damaged or something else altogether: Manager::fromXml() returns false. */
    NotLayouts,
    /** Of another version: fromXml() returns true, reads nothing, and drops what was there. */
    OtherVersion
};

/** Asks a Manager of its own, without windows, so nothing changes anywhere. */
Problem problemWith(const QByteArray& document);

/** Whether a document of toXml() has a saved layout in any group. */
bool hasViews(const QByteArray& document);

/**
 * @p document with the saved layouts and active marks of @p other, but its own current views: what
 * the windows show stays. Both must come from toXml() of the same Manager.
 */
QByteArray withViewsOf(const QByteArray& document, const QByteArray& other);

} // namespace LayoutDocument
