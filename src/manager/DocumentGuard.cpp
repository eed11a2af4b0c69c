// SPDX-License-Identifier: MIT
#include "DocumentGuard.h"

#include "CheckedDocument.h"
#include "DocumentEncoding.h"
#include "MarkupScan.h"

#include <QByteArray>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

namespace Panorel::Detail {

namespace {

bool validate(const QByteArray& document, const QXmlSchemaValidator& validator)
{
    return validator.validate(document, QUrl());
}

// For a document whose markup cannot be seen without Qt's reader. It is read as the validator reads
// it, piece by piece.
bool validateChecked(const QByteArray& document, const QXmlSchemaValidator& validator)
{
    CheckedDocument checked(document);
    return validator.validate(&checked, QUrl());
}

// The scan comes first, because it takes a small part of the validator's time and may make the rest
// unnecessary.
//
// Deliberate: the schema hints of a document have no effect, whereas the validator on its own would
// load what they name, from wherever it is.
bool validateGuarded(const QByteArray& document, const QXmlSchemaValidator& validator)
{
    const QByteArray text = DocumentEncoding::textOf(document);
    const bool isCopy = text.constData() != document.constData();
    if (text.isNull())
        return validateChecked(document, validator);
    const MarkupScan scan(text);
    if (scan.result() == MarkupScan::Result::Invalid)
        return false;
    if (scan.result() == MarkupScan::Result::Unclear || (isCopy && scan.hasSchemaHints()))
        return validateChecked(document, validator);
    return validate(scan.hasSchemaHints() ? scan.withoutSchemaHints() : document, validator);
}

} // namespace

bool DocumentGuard::isValid(const QByteArray& document, const QXmlSchema& schema)
{
    try {
        return validateGuarded(document, QXmlSchemaValidator(schema));
    } catch (...) {
        // The memory was not enough, or the validator threw something of its own; it does so for
        // some errors. Either way nothing shows that the document is valid.
        return false;
    }
}

} // namespace Panorel::Detail
