// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringList>

class QMainWindow;
class QWidget;

namespace Panorel::Kit::Detail {

/** Finds what no layout can hold in a window. */
class Doctor
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::Layouts)

public:
    /** One sentence in the user's language for each finding. */
    static QStringList check(const QMainWindow& window);

    /** Logs the findings of check() as warnings of the category "panorel.kit", each once per
        program. Does nothing in builds without debug information. */
    static void tell(const QMainWindow& window);

private:
    static QStringList checkNames(const QList<QWidget*>& parts, const QString& nameless,
                                  const QString& repeated);
};

} // namespace Panorel::Kit::Detail
