// SPDX-License-Identifier: MIT
#pragma once

#include "../window/Snapshot.h"
#include "../window/Transfer.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Panorel::Kit::Detail {

/** The layouts of a file among which the user can choose. */
class ImportSource
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::ImportSource)

public:
    /** @param groups those that the program has; layouts of other groups are left out. */
    ImportSource(const Transfer::Content& content, const QStringList& groups);

    /** The name of the file. */
    QString name() const { return m_name; }
    const Snapshot& layouts() const { return m_layouts; }
    /** What was left out, in words; null if nothing. */
    QString leftOut() const;
    /** Why there is nothing to choose from, in words; null if there is. */
    QString problem() const { return m_problem; }

private:
    void addGroup(const Transfer::Content& content, const QString& name);

    QString m_name;
    Snapshot m_layouts;
    QString m_problem;
    /** Layouts without a sound part, and those with some. */
    QStringList m_damaged;
    QStringList m_partlyDamaged;
    QStringList m_foreign;
};

} // namespace Panorel::Kit::Detail
