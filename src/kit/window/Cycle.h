// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

struct Actions;

/** Goes to the next and the previous layout of the active group, in the Manager's order, from the
    last on to the first. Where none is active, the next is the first and the previous the last. */
class Cycle : public QObject
{
    Q_OBJECT

public:
    /** Both must outlive this object. */
    Cycle(Manager& manager, const Actions& actions);
    ~Cycle() override;

private:
    void update();
    void go(int step);

    Manager& m_manager;
    QAction& m_next;
    QAction& m_previous;
};

} // namespace Panorel::Kit::Detail
