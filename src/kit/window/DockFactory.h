// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <functional>

class QDockWidget;
class QMainWindow;

namespace Panorel::Kit {
class WindowState;
} // namespace Panorel::Kit

namespace Panorel::Kit::Detail {

/** Creates dock widgets that a layout mentions and a window does not have yet. */
class DockFactory
{
public:
    using Create = std::function<QDockWidget*()>;

    /** A second function for a name takes the place of the first. */
    void add(const QString& objectName, Create create);
    /** Whether there is nothing to create. */
    bool isEmpty() const { return m_creators.isEmpty(); }
    /** Creates what @p state mentions and @p window lacks, and adds it to the window in the
        place that is kept for it, or on the side that the state names. @return whether anything was
       created. */
    bool createMissing(QMainWindow& window, const WindowState& state);

private:
    QMap<QString, Create> m_creators;
};

} // namespace Panorel::Kit::Detail
