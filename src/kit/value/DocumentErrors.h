// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/LayoutDocument.h>

#include <QString>
#include <QStringList>

/** The reasons for which operations on a document are refused, in the user's language. */
namespace Panorel::Kit::Detail::DocumentErrors {

using Error = LayoutDocument::Error;

Error notReadable();
Error otherVersion(const QString& version);
Error unknownGroup(const QString& name, const QStringList& known);
Error unknownView(const QString& group, const QString& name, const QStringList& known);
Error unknownWindow(const QString& id, const QStringList& known);
Error viewNameTaken(const QString& group, const QString& name);
Error windowIdTaken(const QString& id, const QString& newId);
Error emptyName();
Error notWritable();
/** @p problem is one of a state of the document. */
Error unsound(const Problem& problem);
Error notAccepted();

} // namespace Panorel::Kit::Detail::DocumentErrors
