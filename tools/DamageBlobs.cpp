// SPDX-License-Identifier: MIT
//
// Measures what Qt's own restoreState() does with damaged states, and how well check() finds those
// that crash it:
//
//     DamageBlobs [--all] [<count> [<seed>]] <folder>...
//
// Each of <count> states is one of the recorded ones of the folders, or one of an arrangement with
// floating tabs, with one kind of damage, chosen at random. A process of its own restores it in a
// window that has the dock widgets and tool bars of the sound state, shows it, resizes it, and
// restores what it saves. Only those that check() lets through are tried, or all with --all, which
// takes far longer. The exit status is 1 if a state that check() lets through
// crashes or hangs. Linux and other Unixes only.

#include "support/ArrangementGenerator.h"
#include "support/DamagedState.h"
#include "support/RecordedBlobs.h"

#include <QApplication>
#include <QTextStream>

#include <vector>

using namespace Panorel::Tests;
using Panorel::Kit::WindowState;

namespace {

struct Tally
{
    const char* kind;
    int tried = 0;
    int crashed = 0;
};

/** Which of the four groups below a state belongs to. */
int verdictOn(const WindowState& state)
{
    const QVector<Panorel::Kit::Problem> problems = state.check();
    if (problems.isEmpty())
        return 3;
    int verdict = 2;
    for (const Panorel::Kit::Problem& problem : problems) {
        if (problem.severity() == Panorel::Kit::Severity::Harmful)
            return 0;
        if (problem.severity() == Panorel::Kit::Severity::Refused)
            verdict = 1;
    }
    return verdict;
}

std::vector<QByteArray> soundStates(const QStringList& folders)
{
    std::vector<QByteArray> states;
    for (const QString& folder : folders) {
        for (const RecordedBlob& blob : recordedBlobs(folder))
            states.push_back(blob.bytes);
    }
    const std::size_t recorded = states.size();
    for (quint32 seed = 0; recorded > 0 && states.size() < recorded + 10; ++seed) {
        const QByteArray state = ArrangedWindow(seed).saveState();
        if (!WindowState(state).floatingTabs().isEmpty())
            states.push_back(state);
    }
    return states;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool triesAll = arguments.removeAll(QStringLiteral("--all")) > 0;
    bool isNumber = false;
    int numbers[]{1000, 1};
    for (int& number : numbers) {
        const int given = arguments.value(0).toInt(&isNumber);
        if (isNumber) {
            number = given;
            arguments.removeFirst();
        }
    }
    QTextStream output(stdout);
    const std::vector<QByteArray> states = soundStates(arguments);
    if (states.empty()) {
        output << "Usage: DamageBlobs [--all] [<count> [<seed>]] <folder>...\n";
        return 2;
    }
    QRandomGenerator random(static_cast<quint32>(numbers[1]));
    Tally kinds[damages]{{"one to four bytes changed"},
                         {"end cut off"},
                         {"one byte left out"},
                         {"one byte inserted"}};
    Tally verdicts[]{{"harmful"}, {"refused"}, {"only notes"}, {"no problem"}};
    for (int i = 0; i < numbers[0]; ++i) {
        const QByteArray& state =
            states[static_cast<std::size_t>(random.bounded(static_cast<int>(states.size())))];
        const int kind = random.bounded(damages);
        const QByteArray bad = damaged(state, static_cast<Damage>(kind), random);
        Tally& verdict = verdicts[verdictOn(WindowState(bad))];
        const bool isLetThrough = &verdict >= &verdicts[2];
        const bool crashed =
            (triesAll || isLetThrough) && !survives(WindowState(state), bad, i % 2 == 0);
        if (crashed && isLetThrough)
            output << "let through, crashed: " << bad.toHex() << '\n';
        for (Tally* const tally : {&kinds[kind], &verdict}) {
            ++tally->tried;
            tally->crashed += crashed;
        }
    }
    for (const auto& tallies : {kinds, verdicts}) {
        for (int i = 0; i < 4; ++i)
            output << tallies[i].crashed << " of " << tallies[i].tried
                   << " crashed: " << tallies[i].kind << '\n';
    }
    return verdicts[2].crashed + verdicts[3].crashed > 0 ? 1 : 0;
}
