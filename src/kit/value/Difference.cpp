// SPDX-License-Identifier: MIT
#include <panorel/kit/Difference.h>

#include "value/DockDifferences.h"

#include <panorel/kit/WindowState.h>

#include <QCoreApplication>
#include <QLocale>
#include <QRect>
#include <QSize>

namespace Panorel::Kit {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Panorel::Kit::Difference", text);
}

QString sideText(const QVariant& side)
{
    const char* const sides[] = {QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "left"),
                                 QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "right"),
                                 QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "top"),
                                 QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "bottom")};
    for (const char* const known : sides) {
        if (side.toString() == QLatin1String(known))
            return translated(known);
    }
    return side.toString();
}

QString quoted(const QString& name)
{
    return name.isEmpty()
               ? translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "(without a name)"))
               : translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "\"%1\"")).arg(name);
}

QString listed(const QStringList& names)
{
    QStringList list;
    for (const QString& name : names)
        list += quoted(name);
    return QLocale().createSeparatedList(list);
}

QString sizeText(const QVariant& size)
{
    if (size.type() == QVariant::Int)
        return QString::number(size.toInt());
    return QStringLiteral("%1 \u00d7 %2").arg(size.toSize().width()).arg(size.toSize().height());
}

QString tabsText(const Difference& difference, const QString& name)
{
    const QStringList to = difference.to.toStringList();
    if (to.isEmpty())
        return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 is no longer a tab"))
            .arg(name);
    if (to == QStringList(difference.name))
        return translated(
                   QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "The tab %1 is now in front"))
            .arg(name);
    return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 is now a tab beside %2"))
        .arg(name, listed(to));
}

QString floatingText(const Difference& difference, const QString& name)
{
    if (difference.to.type() == QVariant::Rect)
        return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 moved on the desktop"))
            .arg(name);
    return (difference.to.toBool()
                ? translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference",
                                               "%1 is now a window of its own"))
                : translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference",
                                               "%1 is no longer a window of its own")))
        .arg(name);
}

QString orderText(const Difference& difference, const QString& name)
{
    const bool isTurned =
        difference.to.type() == QVariant::String && difference.from != difference.to;
    if (isTurned && difference.to.toString() == QLatin1String("beside"))
        return translated(
                   QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 is now beside its neighbours"))
            .arg(name);
    if (isTurned)
        return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference",
                                            "%1 is now above or below its neighbours"))
            .arg(name);
    return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference",
                                        "%1 has another place among its neighbours"))
        .arg(name);
}

QString lineText(const Difference& difference, const QString& name)
{
    // Users count from one.
    return translated(
               QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 moved from line %2 to line %3"))
        .arg(name, QString::number(difference.from.toInt() + 1),
             QString::number(difference.to.toInt() + 1));
}

} // namespace

QString Difference::text(const QString& title) const
{
    const QString shown = quoted(title.isEmpty() ? name : title);
    switch (aspect) {
    case Aspect::Added:
        return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 was added")).arg(shown);
    case Aspect::Removed:
        return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 was removed"))
            .arg(shown);
    case Aspect::Area:
        return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 moved from %2 to %3"))
            .arg(shown, sideText(from), sideText(to));
    case Aspect::Tabs:
        return tabsText(*this, shown);
    case Aspect::Floating:
        return floatingText(*this, shown);
    case Aspect::Visible:
        return (to.toBool()
                    ? translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 is open"))
                    : translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference", "%1 is closed")))
            .arg(shown);
    case Aspect::Size:
        return translated(QT_TRANSLATE_NOOP("Panorel::Kit::Difference",
                                            "%1 changed its size from %2 to %3"))
            .arg(shown, sizeText(from), sizeText(to));
    case Aspect::Line:
        return lineText(*this, shown);
    case Aspect::Order:
        break;
    }
    return orderText(*this, shown);
}

QString identifierOf(Difference::Part part)
{
    return part == Difference::Part::DockWidget ? QStringLiteral("dock")
                                                : QStringLiteral("toolBar");
}

QString identifierOf(Difference::Aspect aspect)
{
    const char* const identifiers[] = {"added",   "removed", "area", "tabs", "floating",
                                       "visible", "size",    "line", "order"};
    return QLatin1String(identifiers[static_cast<int>(aspect)]);
}

QVector<Difference> differences(const WindowState& a, const WindowState& b)
{
    QVector<Difference> found;
    const Detail::Arrangement first(Detail::treeOf(a));
    const Detail::Arrangement second(Detail::treeOf(b));
    Detail::DockDifferences(first, second, found).find();
    Detail::compareBars(first, second, found);
    return found;
}

} // namespace Panorel::Kit
