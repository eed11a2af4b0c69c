// SPDX-License-Identifier: MIT
#include "NameList.h"

#include <QLocale>

namespace Panorel::Kit::Detail {

namespace {

constexpr int mostNames = 5;

} // namespace

QString nameList(const QStringList& names)
{
    QStringList quoted;
    const QStringList shown = names.mid(0, mostNames);
    for (const QString& name : shown)
        quoted.append(QStringLiteral("\"%1\"").arg(name));
    if (shown.size() < names.size())
        quoted.append(QStringLiteral("\u2026"));
    return QLocale().createSeparatedList(quoted);
}

} // namespace Panorel::Kit::Detail
