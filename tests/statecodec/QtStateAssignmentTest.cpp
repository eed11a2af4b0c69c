// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"
#include "support/ResourceLimits.h"

#include <panorel/QtState.h>

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <map>
#include <utility>

#ifdef Q_OS_LINUX
#include <csignal>
#include <unistd.h>
#endif

// The assignment is marked deprecated to keep everybody else from it.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#elif defined(_MSC_VER)
#pragma warning(disable : 4996)
#endif

namespace Panorel::Tests {

/**
 * Deliberate: an assignment to itself returns, any other never completes. The others run in a
 * child process, which is this program with the name of the case as its argument.
 */
class QtStateAssignmentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toItselfReturns();
    void childProcessWorks();
    void betweenDistinctValuesNeverReturns_data();
    void betweenDistinctValuesNeverReturns();

private:
    MessageWatch m_watch;
};

namespace {

void assignEmpty()
{
    QtState state;
    const QtState other;
    state = other;
}

void assignFilled()
{
    QtState state;
    QtState other;
    (void)other.read(exampleBlob());
    state = other;
}

void assignEqual()
{
    QtState state;
    (void)state.read(exampleBlob());
    const QtState other(state);
    state = other;
}

void assignTemporary()
{
    QtState state;
    state = QtState();
}

void swapValues()
{
    QtState state;
    QtState other;
    std::swap(state, other);
}

void assignToItself()
{
    QtState state;
    const QtState& alias = state;
    state = alias;
}

using Cases = std::map<QString, void (*)()>;

const Cases& cases()
{
    static const Cases all = {
        {QStringLiteral("empty"), &assignEmpty}, {QStringLiteral("filled"), &assignFilled},
        {QStringLiteral("equal"), &assignEqual}, {QStringLiteral("temporary"), &assignTemporary},
        {QStringLiteral("swap"), &swapValues},   {QStringLiteral("itself"), &assignToItself}};
    return all;
}

#ifdef Q_OS_LINUX
constexpr bool seesOverflow = !hasAddressSanitizer;
#else
constexpr bool seesOverflow = false;
#endif

struct Outcome
{
    bool finished = false;
    bool normalExit = false;
    QByteArray output;
};

Outcome runChild(const QString& name)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--assign"), name});
    Outcome outcome;
    outcome.finished = child.waitForFinished(120000);
    outcome.normalExit = child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0;
    outcome.output = child.readAllStandardOutput();
    return outcome;
}

} // namespace

void QtStateAssignmentTest::toItselfReturns()
{
    m_watch.start();
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    const QtState& alias = state;
    QtState& result = (state = alias);
    QCOMPARE(&result, &state);
    QCOMPARE(difference(state.write(), exampleBlob()), QString());
    QtState empty;
    const QtState& emptyAlias = empty;
    empty = emptyAlias;
    QVERIFY(empty.isNull());
    QCOMPARE(m_watch.finish(), QStringList());
}

// Without this the crashes below could have another cause.
void QtStateAssignmentTest::childProcessWorks()
{
    const Outcome outcome = runChild(QStringLiteral("itself"));
    QVERIFY(outcome.finished);
    QVERIFY(outcome.normalExit);
    QCOMPARE(outcome.output, QByteArray("started returned"));
}

void QtStateAssignmentTest::betweenDistinctValuesNeverReturns_data()
{
    QTest::addColumn<QString>("name");
    for (const auto& entry : cases()) {
        if (entry.first != QStringLiteral("itself"))
            QTest::addRow("%s", qPrintable(entry.first)) << entry.first;
    }
}

void QtStateAssignmentTest::betweenDistinctValuesNeverReturns()
{
    QFETCH(QString, name);
    const Outcome outcome = runChild(name);
    QVERIFY(outcome.finished);
    QVERIFY(!outcome.normalExit);
    // Any other end would be another fault.
    QCOMPARE(outcome.output, QByteArray(seesOverflow ? "started overflow" : "started "));
}

// The process has no stack left for this, so it has one of its own.
void watchForOverflow()
{
#ifdef Q_OS_LINUX
    static char stack[1 << 16];
    stack_t alternate{};
    alternate.ss_sp = stack;
    alternate.ss_size = sizeof stack;
    sigaltstack(&alternate, nullptr);
    static const char* top = nullptr;
    top = reinterpret_cast<const char*>(&alternate);
    struct sigaction action
    {};
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    action.sa_sigaction = [](int, siginfo_t* info, void*) {
        const auto depth = top - static_cast<const char*>(info->si_addr);
        const bool isOverflow =
            depth > std::ptrdiff_t(mebibyte / 2) && depth < 2 * std::ptrdiff_t(mebibyte);
        const char* word = isOverflow ? "overflow" : "fault";
        (void)!write(1, word, std::strlen(word));
        _exit(1);
    };
    sigaction(SIGSEGV, &action, nullptr);
#endif
}

/** The child's part: a small stack makes the end come soon, and there is no core dump. */
int runCase(const QString& name)
{
    forbidCoreDumps();
    (void)limitStack(mebibyte);
    if (seesOverflow)
        watchForOverflow();
    std::fputs("started ", stdout);
    std::fflush(stdout);
    cases().at(name)();
    std::fputs("returned", stdout);
    std::fflush(stdout);
    return 0;
}

} // namespace Panorel::Tests

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == QStringLiteral("--assign"))
        return Panorel::Tests::runCase(arguments[2]);
    Panorel::Tests::QtStateAssignmentTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "QtStateAssignmentTest.moc"
