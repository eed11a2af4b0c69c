// SPDX-License-Identifier: MIT
//
// Measures what unfriendly blobs cost, in time and in peak memory of the process:
//
//     MeasureState depth <levels>     read, copy, write and destroy blocks nested so deep
//     MeasureState counts <count>     read blobs that announce so much and hold nothing
//     MeasureState records <count>    read that many dock records of one item each
//
// Peak memory never falls, so each line tells the highest so far.

#include <panorel/QtState.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include <memory>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

using Panorel::QtState;

namespace {

QTextStream& output()
{
    static QTextStream stream(stdout);
    return stream;
}

/** In mebibytes; -1 if unknown. */
double peakMemory()
{
#ifdef Q_OS_LINUX
    rusage usage{};
    if (getrusage(RUSAGE_SELF, &usage) == 0)
        return static_cast<double>(usage.ru_maxrss) / 1024;
#endif
    return -1;
}

template<typename Action>
void measure(const char* name, Action action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    output() << QStringLiteral("%1 %2 ms, peak %3 MiB\n")
                    .arg(QString::fromLatin1(name), -28)
                    .arg(static_cast<double>(timer.nsecsElapsed()) / 1e6, 9, 'f', 3)
                    .arg(peakMemory(), 8, 'f', 1);
    output().flush();
}

void measureDepth(int levels)
{
    const QByteArray level =
        QByteArray::fromHex("FC 01 00000001 FC 00000000 00000000 00000000 00000000");
    const QByteArray blob =
        QByteArray::fromHex("000000FF 00000000 FD 00000001 00000000 00000001 00000001") +
        level.repeated(levels) + QByteArray::fromHex("FC 01 00000000") + QByteArray(24, '\0');
    output() << "blob of " << blob.size() << " bytes\n";
    auto state = std::make_unique<QtState>();
    std::unique_ptr<QtState> copy;
    QByteArray written;
    bool ok = false;
    measure("start", [] {});
    measure("read", [&] { ok = state->read(blob); });
    measure("write", [&] { written = state->write(); });
    measure("copy", [&] { copy = std::make_unique<QtState>(*state); });
    measure("destroy", [&] { state.reset(); });
    measure("destroy the copy", [&] { copy.reset(); });
    output() << (ok && written == blob ? "same bytes\n" : "OTHER BYTES\n");
}

void measureCounts(int count)
{
    const QByteArray head = QByteArray::fromHex("000000FF 00000000");
    const QByteArray announced =
        QByteArray::fromHex(QByteArray::number(count, 16).rightJustified(8, '0'));
    const QByteArray dock = QByteArray::fromHex("FD 00000001 00000000 00000001 00000001");
    const QByteArray line = QByteArray::fromHex("FC 00000001 00000000");
    const QByteArray even =
        QByteArray::fromHex(QByteArray::number(count & ~1, 16).rightJustified(8, '0'));
    struct Case
    {
        const char* name;
        QByteArray blob;
    };
    const Case cases[] = {
        {"docks", head + QByteArray::fromHex("FD") + announced},
        {"items", head + dock + QByteArray::fromHex("FC 01") + announced},
        {"nested items", head + dock + QByteArray::fromHex("FC 01 00000001 FC") +
                             QByteArray(16, '\0') + QByteArray::fromHex("FC 01") + announced},
        {"name bytes", head + dock + QByteArray::fromHex("FC 01 00000001 FB") + even},
        {"lines", head + QByteArray::fromHex("FC") + announced},
        {"tool bars", head + line + announced},
    };
    measure("start", [] {});
    for (const Case& what : cases) {
        bool ok = true;
        measure(what.name, [&] {
            QtState state;
            ok = state.read(what.blob);
        });
        if (ok)
            output() << "ACCEPTED\n";
    }
}

// The items of earlier records are repeated, so the cost grows with the square.
void measureRecords(int count)
{
    const QByteArray record =
        QByteArray::fromHex("00000000 00000001 00000001 FC 01 00000001 FB 00000002 0041 01"
                            "00000000 00000000 00000000 00000000");
    const QByteArray blob =
        QByteArray::fromHex("000000FF 00000000 FD") +
        QByteArray::fromHex(QByteArray::number(count, 16).rightJustified(8, '0')) +
        record.repeated(count) + QByteArray(24, '\0');
    output() << "blob of " << blob.size() << " bytes\n";
    QtState state;
    measure("start", [] {});
    measure("read", [&] { (void)state.read(blob); });
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1);
    const int count = arguments.value(2).toInt();
    if (what == QStringLiteral("depth"))
        measureDepth(count);
    else if (what == QStringLiteral("counts"))
        measureCounts(count);
    else if (what == QStringLiteral("records"))
        measureRecords(count);
    else
        return 2;
    return 0;
}
