// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPair>
#include <QString>

class QMainWindow;

namespace Panorel::Kit::Detail {

class WindowOwner;

/** What the user knows the dock widgets and tool bars of the windows by. */
class PartTitles
{
public:
    /** Without windows each part has its own name. */
    PartTitles() = default;
    /** Reads the titles that there are now. */
    explicit PartTitles(const WindowOwner& owner);

    /** The title of @p part; its name if it has none or does not exist. */
    QString title(const QString& window, const QString& part) const;

private:
    QHash<QPair<QString, QString>, QString> m_titles;
};

} // namespace Panorel::Kit::Detail
