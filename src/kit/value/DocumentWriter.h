// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentModel.h"

#include <QByteArray>
#include <QString>

namespace Panorel::Kit::Detail {

class DocumentText;

// New text of a document, in the form in which a Manager writes it. What the encoding of a given
// document lacks becomes a character reference; without one it is UTF-8.

/** Whether XML can carry all characters of @p text. */
bool isWritable(const QString& text);

/** The text for an attribute in these quotes; for an element's content the quote is null. */
QString escaped(const QString& text, QChar quote, const DocumentText* document);

/** A user-data element. */
QString writeUserData(const QString& text, const DocumentText* document);

/** The states and user data of a view, each after the white space @p lead, and @p closingLead
    before the end tag; nothing at all for a view without any. */
QString writeViewContent(const LayoutDocument::View& view, const QString& lead,
                         const QString& closingLead, const DocumentText* document);

/** The element of a saved view, not active, after the white space @p lead; what it holds is
    @p step further in. */
QString writeView(const LayoutDocument::View& view, const QString& lead, const QString& step,
                  const DocumentText* document);

/** A whole document in UTF-8, element by element the same. */
QByteArray writeDocument(const DocumentModel& model);

} // namespace Panorel::Kit::Detail
