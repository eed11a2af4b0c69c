// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QMenu;
class QLineEdit;

namespace Panorel {
class Menu;
} // namespace Panorel

namespace Panorel::Kit::Detail {

/**
 * Makes the field for a new name in "Save Current Layout As..." ready for typing: it has the focus
 * when the sub-menu opens, is empty and wide enough, and says what it is for. Return with an empty
 * name saves nothing. After Return the keyboard goes back to where it was before the menu opened.
 */
class NameField : public QObject
{
    Q_OBJECT

public:
    /** @param menu owns this object. */
    explicit NameField(Menu& menu);

Q_SIGNALS:
    /** Something to tell the user, in words. */
    void message(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void prepare();
    bool refuses(const QString& name);
    void leaveMenuBarLater();

    QMenu* m_saveAs;
};

} // namespace Panorel::Kit::Detail
