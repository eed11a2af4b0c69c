// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <QVector>

class QMainWindow;

/** Where one dock widget or tool bar is in the window, and not in a stored layout. */
struct Place
{
    QString name;
    /** In words, such as "left" or "right behind Search". */
    QString where;
    /** Invalid for what cannot be seen and for what floats, which a window manager may move. */
    QRect geometry;
};

/** The dock widgets and tool bars of a window at one moment. */
struct Arrangement
{
    static Arrangement of(const QMainWindow& window);

    QVector<Place> docks;
    QVector<Place> toolBars;
};

/** "Project left, Outline closed, ..." */
QString describe(const QVector<Place>& places);

/** What differs, in words; empty when everything is where it was. */
QString difference(const QVector<Place>& expected, const QVector<Place>& actual);
