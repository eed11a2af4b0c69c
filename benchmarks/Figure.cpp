// SPDX-License-Identifier: MIT
#include "Figure.h"

#include <algorithm>
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
    return values.at(static_cast<int>(share * last + 0.5));
}

} // namespace

Result measure(const Figure& figure, int rounds)
{
    Result result;
    result.name = figure.name;
    result.goal = figure.goal;
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
