// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/PanorelExport.h>

#include <QToolButton>

namespace Panorel {

class Manager;
class Menu;

/**
 * A tool button for quick access to the saved views of a Manager's active group: a click goes to
 * the next view, as Menu::toggleView() does; the arrow opens a Menu that is not extended.
 *
 * The Manager is not owned and must outlive the button. The text stays as given; icon and style are
 * the application's to set. GUI thread only.
 */
class PANOREL_EXPORT ViewButton : public QToolButton
{
    Q_OBJECT

public:
    /**
     * Constructs a button with a menu of the Manager's views.
     *
     * @param manager not null; not owned, and must outlive the button.
     * @param text shown as it is, whichever view is active.
     * @param parent deletes the button with itself; may be null.
     */
    ViewButton(Manager* manager, const QString& text, QWidget* parent = nullptr);
    /** Destroys the button with its menu; the Manager stays. */
    ~ViewButton() override;

private:
    Menu* m_menu;
};

} // namespace Panorel
