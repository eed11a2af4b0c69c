// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QMainWindow;

namespace Panorel::Kit::Detail {

/**
 * Gives dock widgets and tool bars without an object name one while a layout is taken or given,
 * because Qt stores and finds them by it. The names are made of class and title, and among those
 * that have both in common of the order in which they are made, so they are the same in every run.
 */
class Names : public QObject
{
    Q_OBJECT

public:
    Names();
    ~Names() override;

    /** Fixes the names of the parts that are there, without giving them yet. */
    static void choose(QMainWindow& window);
    /** From now on the parts have names; until takeBack(), or until control returns to the event
        loop. */
    void give(QMainWindow& window);
    /** The parts have no names any more. A name that the application has set stays. */
    void takeBack();

    /** The parts of a window have names while one exists. Those that had them before keep them. */
    class Loan
    {
    public:
        Loan(Names& names, QMainWindow& window);
        ~Loan();
        Loan(const Loan&) = delete;
        Loan& operator=(const Loan&) = delete;

    private:
        Names& m_names;
        const bool m_isFirst;
    };

private:
    QList<QPointer<QWidget>> m_named;
};

} // namespace Panorel::Kit::Detail
