// SPDX-License-Identifier: MIT
#include "ModifiedEntries.h"

#include "../dialog/PartTitles.h"
#include "../window/ActionText.h"
#include "../window/Session.h"

#include <panorel/Manager.h>

#include <QMenu>

namespace Panorel::Kit::Detail {

namespace {

// More than that is no tool tip.
constexpr int maximalLines = 10;

} // namespace

ModifiedEntries::ModifiedEntries(QMenu& menu, Session& session)
    : QObject(&menu)
    , m_session(session)
    , m_save(new QAction(&menu))
    , m_back(new QAction(&menu))
{
    connect(m_save, &QAction::triggered, &session.activity,
            [&session] { session.manager.saveCurrentViewAs(session.manager.activeView()); });
    connect(m_back, &QAction::triggered, &session.activity, &Activity::giveActiveView);
    connect(&session.modification, &Modification::modifiedChanged, this, &ModifiedEntries::update);
    connect(&session.activity, &Activity::changed, this, &ModifiedEntries::update);
    // Connected to something of the session, so that it is not used after its end.
    connect(&menu, &QMenu::aboutToShow, &session.modification,
            [self = QPointer<ModifiedEntries>(this)] {
                if (self)
                    self->describe();
            });
    update();
}

void ModifiedEntries::update()
{
    if (!m_save || !m_back)
        return;
    const QString active = m_session.manager.activeView();
    const QString name = actionText(active);
    const bool isModified = !active.isEmpty() && m_session.modification.wasModified();
    m_save->setText(active.isEmpty() ? tr("Save Layout") : tr("Save \"%1\"").arg(name));
    m_back->setText(active.isEmpty() ? tr("Back to Layout") : tr("Back to \"%1\"").arg(name));
    m_save->setEnabled(isModified);
    m_back->setEnabled(isModified);
    if (!isModified)
        m_back->setToolTip(QString());
}

void ModifiedEntries::describe()
{
    const QVector<Difference> found = m_session.modification.differences();
    update();
    if (found.isEmpty() || !m_back)
        return;
    const PartTitles titles(m_session.owner);
    QStringList lines;
    for (const Difference& difference : found) {
        const QString line = difference.text(titles.title(difference.window, difference.name));
        if (!lines.contains(line))
            lines.append(line);
    }
    if (lines.size() > maximalLines) {
        lines = lines.mid(0, maximalLines - 1);
        lines.append(tr("and more"));
    }
    for (QString& line : lines)
        line = line.toHtmlEscaped();
    m_back->setToolTip(QStringLiteral("<qt>%1</qt>").arg(lines.join(QStringLiteral("<br>"))));
}

} // namespace Panorel::Kit::Detail
