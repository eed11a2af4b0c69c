// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/IManagable.h>

#include <QMainWindow>

#include <memory>
#include <vector>

/** Shown main windows with dock widgets on four sides, some of them tabbed, and tool bars. */
class Windows : public Panorel::IManagable
{
public:
    Windows(int windowCount, int dockCount);

    QList<Panorel::ManagedWindow> managedWindows() override;

    /** Lays the docks of each area out as tabs, @p shift areas further on, and saves that. */
    QVector<QByteArray> arrangement(int shift);

    QVector<QByteArray> save() const;
    /** Area, tabs or place, and visibility of each dock widget and tool bar. */
    QStringList places() const;
    void restore(const QVector<QByteArray>& states);

private:
    std::vector<std::unique_ptr<QMainWindow>> m_windows;
};
