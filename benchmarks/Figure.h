// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

#include <functional>

/** A point of a curve: the figures of one series differ in this size only. */
struct Step
{
    QString series;
    double size = 0;
};

/** Something the library does, and the bare work that it is measured against. */
struct Figure
{
    QString name;
    /** What the ratio should not exceed; 0 for a figure that only is a step of a series. */
    double goal = 0;
    QVector<Step> steps;
    std::function<void()> subject;
    std::function<void()> baseline;
    /** Run once before any timing: whether both do the same work. */
    std::function<bool()> check;
    /** Run before each timed piece, and not timed; may be empty. */
    std::function<void()> prepare;
};

/**
 * The outcome of one figure. Subject and baseline are process CPU seconds of one call, medians of
 * the rounds, or bytes.
 */
struct Result
{
    QString name;
    QString unit;
    double goal = 0;
    QVector<Step> steps;
    double subject = 0;
    double baseline = 0;
    /** Median of the rounds' own ratios, and their quartiles. */
    double ratio = 0;
    double lowerQuartile = 0;
    double upperQuartile = 0;
    bool sameWork = false;

    bool isWithinGoal() const { return goal == 0 || ratio <= goal; }
};

/**
 * How the time of one series grows: as the size to the power of the exponent, fitted to all steps.
 */
struct Growth
{
    QString series;
    double subject = 0;
    double baseline = 0;
    /** What the subject's exponent should not exceed the baseline's by. */
    double goal = 0.05;

    bool isWithinGoal() const { return subject - baseline <= goal; }
};

/** Times subject and baseline in turn, in rounds, within one run. */
Result measure(const Figure& figure, int rounds);

/** Of each series with more than one step among @p results, in their order. */
QVector<Growth> growths(const QVector<Result>& results);
