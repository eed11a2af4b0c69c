// SPDX-License-Identifier: MIT
#include "Names.h"

#include "Parts.h"

#include <QMainWindow>
#include <QSet>
#include <QVariant>

namespace Panorel::Kit::Detail {

namespace {

// Kept at the part itself, because the order of a window's children changes when one is raised.
constexpr auto chosenName = "_panorel_kit_name";

QString nameOf(const QWidget* part)
{
    const QString chosen = part->property(chosenName).toString();
    return chosen.isEmpty() ? part->objectName() : chosen;
}

void chooseAmong(const QList<QWidget*>& parts, const QString& pattern)
{
    QSet<QString> taken;
    for (const QWidget* part : parts)
        taken.insert(nameOf(part));
    int number = 1;
    for (QWidget* part : parts) {
        if (!nameOf(part).isEmpty())
            continue;
        while (taken.contains(pattern.arg(number)))
            ++number;
        part->setProperty(chosenName, pattern.arg(number));
        taken.insert(pattern.arg(number));
    }
}

QList<QWidget*> namelessParts(const QMainWindow& window)
{
    QList<QWidget*> nameless;
    const QList<QWidget*> parts = Parts::dockWidgets(window) + Parts::toolBars(window);
    for (QWidget* part : parts) {
        if (part->objectName().isEmpty())
            nameless.append(part);
    }
    return nameless;
}

} // namespace

Names::Names() = default;

Names::~Names()
{
    takeBack();
}

void Names::choose(QMainWindow& window)
{
    chooseAmong(Parts::dockWidgets(window), QStringLiteral("unnamed-dock-widget-%1"));
    chooseAmong(Parts::toolBars(window), QStringLiteral("unnamed-tool-bar-%1"));
}

void Names::give(QMainWindow& window)
{
    const QList<QWidget*> nameless = namelessParts(window);
    if (nameless.isEmpty())
        return;
    choose(window);
    const bool isFirst = m_named.isEmpty();
    for (QWidget* part : nameless) {
        part->setObjectName(part->property(chosenName).toString());
        m_named.append(part);
    }
    if (isFirst)
        QMetaObject::invokeMethod(this, &Names::takeBack, Qt::QueuedConnection);
}

void Names::takeBack()
{
    for (const QPointer<QWidget>& part : qAsConst(m_named)) {
        if (part && part->objectName() == part->property(chosenName).toString())
            part->setObjectName(QString());
    }
    m_named.clear();
}

Names::Loan::Loan(Names& names, QMainWindow& window)
    : m_names(names)
    , m_isFirst(names.m_named.isEmpty())
{
    m_names.give(window);
}

Names::Loan::~Loan()
{
    if (m_isFirst)
        m_names.takeBack();
}

} // namespace Panorel::Kit::Detail
