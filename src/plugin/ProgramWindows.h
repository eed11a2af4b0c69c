// SPDX-License-Identifier: MIT
#pragma once

#include "ProgramLayouts.h"

#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace Panorel::Plugin {

/**
 * Finds the program's main windows when they are shown, and has them looked after. A window counts
 * if it is one of its own, neither a dialog nor a part of another, and has dock widgets or tool
 * bars. Until there is one with a menu bar nothing is made.
 */
class ProgramWindows : public QObject
{
    Q_OBJECT

public:
    explicit ProgramWindows(bool merges);
    ~ProgramWindows() override;

    /** Leaves the program, whose widgets still exist. */
    void end();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void note(QMainWindow* window);
    void takeNoted();
    void take();

    const bool m_merges;
    /** Those that may count, in the order in which they were shown. */
    QList<QPointer<QMainWindow>> m_noted;
    QTimer m_timer;
    std::unique_ptr<ProgramLayouts> m_layouts;
};

} // namespace Panorel::Plugin
