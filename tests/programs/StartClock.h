// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace Panorel::Tests {

/** Prints how many milliseconds after TRY_START, in the system's clock, the first main window was
    painted, and when it was idle after that for half a second; then ends the program. */
class StartClock : public QObject
{
    Q_OBJECT

public:
    StartClock();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finish(qint64 painted);

    bool m_hasPainted = false;
};

} // namespace Panorel::Tests
