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

// By class and title, and by place only among those that have both in common, because a program may
// make its parts in another order next time.
void chooseAmong(const QList<QWidget*>& parts)
{
    QSet<QString> taken;
    for (const QWidget* part : parts)
        taken.insert(nameOf(part));
    for (QWidget* part : parts) {
        if (!nameOf(part).isEmpty())
            continue;
        const QString start = QStringLiteral("unnamed-%1-%2-")
                                  .arg(QLatin1String(part->metaObject()->className()),
                                       part->windowTitle().remove(QStringLiteral("[*]")));
        int number = 1;
        while (taken.contains(start + QString::number(number)))
            ++number;
        const QString name = start + QString::number(number);
        part->setProperty(chosenName, name);
        taken.insert(name);
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
    chooseAmong(Parts::dockWidgets(window));
    chooseAmong(Parts::toolBars(window));
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
