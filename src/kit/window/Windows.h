// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class QMainWindow;

namespace Panorel::Kit::Detail {

class Giver;
class WindowOwner;
class WindowWatch;

/** All windows with what each of them shows, shows next or showed last. */
class Windows : public QObject
{
    Q_OBJECT

public:
    /** Both must outlive this object. */
    Windows(WindowOwner& owner, Giver& giver);
    ~Windows() override;

    /** Watches the windows that have come since the last call, and gives them their parts. */
    void update();
    /** What the windows begin with, those included that are still to come. */
    void begin(const StateMap& states, const QMap<QString, QByteArray>& geometries);

    /** What each window shows, or showed when it was closed, or is to show. */
    StateMap states();
    /** Whether windows get their size and place, and it is asked what they are; at first they do.
        What is known of them stays. */
    void setKeepsGeometry(bool keeps) { m_keepsGeometry = keeps; }
    /** Size and place of each window, as of QMainWindow::saveGeometry(). */
    QMap<QString, QByteArray> geometries();

Q_SIGNALS:
    /** @p window is watched from now on. */
    void added(QMainWindow* window);
    /** Something may have been rearranged. */
    void touched();
    /** A window is about to be closed. */
    void closing();

private:
    void collect();
    void giveGeometry(WindowWatch& watch);
    void add(const QString& id, QMainWindow& window);
    void onGiven(QMainWindow* window, const QByteArray& state);
    WindowWatch* watchOf(const QMainWindow* window) const;

    WindowOwner& m_owner;
    Giver& m_giver;
    std::vector<std::unique_ptr<WindowWatch>> m_watches;
    StateMap m_states;
    QMap<QString, QByteArray> m_geometries;
    bool m_keepsGeometry = true;
};

} // namespace Panorel::Kit::Detail
