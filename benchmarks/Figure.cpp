// SPDX-License-Identifier: MIT
#include "Figure.h"

#include <QPointF>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <ctime>

namespace {

// Long enough that the clock's steps and a single interruption do not show.
constexpr double pieceSeconds = 0.02;

double cpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double secondsPerCall(const std::function<void()>& work, const std::function<void()>& prepare,
                      int calls)
{
    double total = 0;
    for (int left = calls; left > 0;) {
        if (prepare)
            prepare();
        // Where every call needs its preparation the calls are timed one by one.
        const int block = prepare ? 1 : left;
        const double start = cpuSeconds();
        for (int i = 0; i < block; ++i)
            work();
        total += cpuSeconds() - start;
        left -= block;
    }
    return total / calls;
}

int callsPerPiece(const Figure& figure)
{
    const double once = secondsPerCall(figure.baseline, figure.prepare, 1);
    return std::clamp(static_cast<int>(pieceSeconds / std::max(once, 1e-7)), 1, 20000);
}

double quantile(QVector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    const int last = values.size() - 1;
    return values.at(static_cast<int>(std::lround(share * last)));
}

// The slope of the line that fits the points best.
double slope(const QVector<QPointF>& points)
{
    QPointF mean;
    for (const QPointF& point : points)
        mean += point / points.size();
    double rise = 0;
    double run = 0;
    for (const QPointF& point : points) {
        rise += (point.x() - mean.x()) * (point.y() - mean.y());
        run += (point.x() - mean.x()) * (point.x() - mean.x());
    }
    return rise / run;
}

double exponent(const QVector<Result>& results, const QString& series, double Result::*time)
{
    QVector<QPointF> points;
    for (const Result& result : results) {
        for (const Step& step : result.steps) {
            if (result.sameWork && step.series == series)
                points.append({std::log(step.size), std::log(result.*time)});
        }
    }
    return slope(points);
}

} // namespace

Result measure(const Figure& figure, int rounds)
{
    Result result;
    result.name = figure.name;
    result.unit = QStringLiteral("s");
    result.goal = figure.goal;
    result.steps = figure.steps;
    result.sameWork = figure.check();
    if (!result.sameWork)
        return result;
    const int calls = callsPerPiece(figure);
    QVector<double> subjects;
    QVector<double> baselines;
    QVector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        // Turn about, so that neither always finds the caches as the other left them.
        double subject = 0;
        if (round % 2 == 0)
            subject = secondsPerCall(figure.subject, figure.prepare, calls);
        const double baseline = secondsPerCall(figure.baseline, figure.prepare, calls);
        if (round % 2 != 0)
            subject = secondsPerCall(figure.subject, figure.prepare, calls);
        subjects.append(subject);
        baselines.append(baseline);
        ratios.append(subject / baseline);
    }
    result.subject = quantile(subjects, 0.5);
    result.baseline = quantile(baselines, 0.5);
    result.ratio = quantile(ratios, 0.5);
    result.lowerQuartile = quantile(ratios, 0.25);
    result.upperQuartile = quantile(ratios, 0.75);
    return result;
}

QVector<Growth> growths(const QVector<Result>& results)
{
    QStringList names;
    for (const Result& result : results) {
        for (const Step& step : result.steps) {
            if (result.sameWork)
                names.append(step.series);
        }
    }
    QVector<Growth> all;
    while (!names.isEmpty()) {
        const QString name = names.first();
        if (names.removeAll(name) < 2)
            continue;
        Growth growth;
        growth.series = name;
        growth.subject = exponent(results, name, &Result::subject);
        growth.baseline = exponent(results, name, &Result::baseline);
        all.append(growth);
    }
    return all;
}
