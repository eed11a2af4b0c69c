// SPDX-License-Identifier: MIT
#include "StepText.h"

#include "Delta.h"

#include <QCoreApplication>

namespace Panorel::Kit::Detail {

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::History)
};

QString ofRename(const Delta::View& one, const Delta::View& other)
{
    const Delta::View& gone = one.after ? other : one;
    const Delta::View& come = one.after ? one : other;
    if (!gone.before || gone.after || !come.after || come.before ||
        gone.before->states != come.after->states)
        return QString();
    return Text::tr("Rename \"%1\" to \"%2\"").arg(gone.before->name, come.after->name);
}

QString ofView(const Delta::View& view)
{
    if (!view.before)
        return Text::tr("New \"%1\"").arg(view.after->name);
    if (!view.after)
        return Text::tr("Delete \"%1\"").arg(view.before->name);
    return Text::tr("Save \"%1\"").arg(view.after->name);
}

QString ofGroup(const Delta::Group& group)
{
    if (group.views.size() == 1)
        return ofView(group.views.constFirst());
    QString rename = group.views.size() == 2 ? ofRename(group.views[0], group.views[1]) : QString();
    if (!rename.isEmpty())
        return rename;
    if (group.views.isEmpty() && group.order.before != group.order.after)
        return Text::tr("Reorder Layouts");
    if (group.views.isEmpty() && !group.activeAfter.isNull())
        return Text::tr("Switch to \"%1\"").arg(group.activeAfter);
    return QString();
}

} // namespace

QString StepText::of(const Delta& delta, const Contents& after)
{
    if (delta.groupBefore != delta.groupAfter)
        return Text::tr("Switch to Group \"%1\"").arg(delta.groupAfter);
    const Contents::Group* const shown = after.find(after.activeGroup);
    if (delta.groups.isEmpty() && shown && !shown->active.isNull())
        return Text::tr("Back to \"%1\"").arg(shown->active);
    const QString text = delta.groups.size() == 1 ? ofGroup(delta.groups.constFirst()) : QString();
    return text.isEmpty() ? Text::tr("Change Layouts") : text;
}

QString StepText::ofImport(const QString& file)
{
    return Text::tr("Import \"%1\"").arg(file);
}

} // namespace Panorel::Kit::Detail
