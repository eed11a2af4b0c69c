// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

#include <functional>

/** Something the library does, and the bare work that it is measured against. */
struct Figure
{
    QString name;
    /** What the ratio should not exceed. */
    double goal = 0;
    std::function<void()> subject;
    std::function<void()> baseline;
    /** Run once before any timing: whether both do the same work. */
    std::function<bool()> check;
    /** Run before each timed piece, and not timed; may be empty. */
    std::function<void()> prepare;
};

/** The outcome of one figure. Times are process CPU seconds of one call, medians of the rounds. */
struct Result
{
    QString name;
    double goal = 0;
    double subject = 0;
    double baseline = 0;
    /** Median of the rounds' own ratios, and their quartiles. */
    double ratio = 0;
    double lowerQuartile = 0;
    double upperQuartile = 0;
    bool sameWork = false;
};

/** Times subject and baseline in turn, in rounds, within one run. */
Result measure(const Figure& figure, int rounds);
