// SPDX-License-Identifier: MIT
#include "DocumentErrors.h"

#include <QCoreApplication>

namespace Panorel::Kit::Detail::DocumentErrors {

namespace {

using Code = Error::Code;

// The most names that a sentence lists.
constexpr int mostNames = 50;

QString tr(const char* text)
{
    return QCoreApplication::translate("Panorel::Kit::LayoutDocument", text);
}

QString listed(const QStringList& names)
{
    if (names.isEmpty())
        return tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "There are none."));
    QStringList quoted;
    for (const QString& name : names.mid(0, mostNames))
        quoted.append(QLatin1Char('"') + name + QLatin1Char('"'));
    if (names.size() > mostNames)
        quoted.append(QStringLiteral("\u2026"));
    return tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "There are: %1"))
        .arg(quoted.join(QLatin1String(", ")));
}

Error unknown(Code code, const QString& text, const QStringList& known)
{
    return {code, text + QLatin1Char(' ') + listed(known)};
}

} // namespace

Error notReadable()
{
    return {Code::NotReadable,
            tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                 "This is not a document of layouts, or it is damaged"))};
}

Error otherVersion(const QString& version)
{
    return {Code::OtherVersion, tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                                     "The document has the unknown version \"%1\""))
                                    .arg(version)};
}

Error unknownGroup(const QString& name, const QStringList& known)
{
    return unknown(
        Code::UnknownGroup,
        tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "There is no group \"%1\"."))
            .arg(name),
        known);
}

Error unknownView(const QString& group, const QString& name, const QStringList& known)
{
    return unknown(Code::UnknownView,
                   tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                        "There is no layout \"%1\" in the group \"%2\"."))
                       .arg(name, group),
                   known);
}

Error unknownWindow(const QString& id, const QStringList& known)
{
    return unknown(
        Code::UnknownWindow,
        tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "There is no window \"%1\".")).arg(id),
        known);
}

Error viewNameTaken(const QString& group, const QString& name)
{
    return {Code::NameTaken,
            tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                 "There is a layout \"%1\" in the group \"%2\" already"))
                .arg(name, group)};
}

Error windowIdTaken(const QString& id, const QString& newId)
{
    return {Code::NameTaken,
            tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                 "A layout has a state for the window \"%1\" already, beside that "
                                 "for \"%2\""))
                .arg(newId, id)};
}

Error emptyName()
{
    return {Code::EmptyName,
            tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "The name is empty"))};
}

Error notWritable()
{
    return {Code::NotWritable,
            tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                 "The text has characters that a document cannot hold"))};
}

Error unsound(const Problem& problem)
{
    const QString view =
        problem.isInToolBarState
            ? tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                   "The tool-bar state of the window \"%1\" is not sound: %2"))
                  .arg(problem.window, problem.text())
        : problem.isInCurrentView
            ? tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                   "The state of the window \"%1\" in the working layout of the "
                                   "group \"%2\" is not sound: %3"))
                  .arg(problem.window, problem.group, problem.text())
            : tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                   "The state of the window \"%1\" in the layout \"%2\" of the "
                                   "group \"%3\" is not sound: %4"))
                  .arg(problem.window, problem.view, problem.group, problem.text());
    return {Code::Unsound, view};
}

Error notAccepted()
{
    return {Code::NotAccepted,
            tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                 "The result would not be a document that can be read"))};
}

} // namespace Panorel::Kit::Detail::DocumentErrors
