// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QToolBar;

namespace Panorel {
class ViewButton;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Activity;
class Giver;

/**
 * Keeps a view button within reach: if another layout hides the tool bar that it is in, the tool
 * bar is shown again, or there would be no button to leave that layout by. What is stored stays as
 * it is. A tool bar that was hidden before stays hidden.
 */
class ButtonReach : public QObject
{
    Q_OBJECT

public:
    /**
     * @param button owns this object.
     *
     * The others may be destroyed first.
     */
    ButtonReach(ViewButton& button, Activity& activity, Giver& giver);

private:
    void note();
    void keep();
    QToolBar* toolBar() const;

    const ViewButton& m_button;
    /** Whether the tool bar was shown before the layout that is being given. */
    bool m_wasShown = false;
};

} // namespace Panorel::Kit::Detail
