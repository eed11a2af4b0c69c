// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QToolBar>

namespace Panorel::Kit {
class Layouts;
} // namespace Panorel::Kit

namespace Panorel::Plugin {

/**
 * The tool bar with the button of a window's layouts, and the entry of the menu that turns it on;
 * it is off at first. It leaves the window before the program handles that it is closed, because
 * most programs save their own state there and are to save it without the tool bar.
 */
class ButtonBar : public QObject
{
    Q_OBJECT

public:
    /** @param layouts is used until the last event that this object gets; the window may end first.
     */
    ButtonBar(QMainWindow& window, Kit::Layouts& layouts);
    ~ButtonBar() override;

    QAction* entry() { return &m_entry; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow* window() const { return qobject_cast<QMainWindow*>(m_widget.data()); }
    void setOn(bool isOn);
    void show();
    void leave();
    void comeBackIfRefused(int loopLevel);
    void comeBack();

    QPointer<QWidget> m_widget;
    Kit::Layouts& m_layouts;
    QAction m_entry;
    QPointer<QToolBar> m_bar;
    Qt::ToolBarArea m_area = Qt::TopToolBarArea;
    bool m_isAway = false;
};

} // namespace Panorel::Plugin
