// SPDX-License-Identifier: MIT
//
// Measures how Qt's own restoreState() stands damaged blobs:
//
//     DamageBlobs <folder> [<count> [<seed>]]
//
// Each of <count> blobs is one of <folder>'s with one kind of damage, chosen at random: one to four
// bytes with other values, the end cut off, a byte left out or a byte doubled. A child process
// restores it in a window that has the dock widgets and tool bars of the sound blob, with one
// gibibyte of memory and ten seconds of processor time. Linux and other Unixes only.

#include <panorel/QtState.h>

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QRandomGenerator>
#include <QTextStream>
#include <QToolBar>

#include <algorithm>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using Panorel::QtState;
using Block = QtState::DockAreaLayout::Dock::Block;

namespace {

void addDocks(QMainWindow& window, const Block& block)
{
    for (const Block::Item& item : block.items) {
        if (item.isSequence) {
            addDocks(window, *item.subBlock);
        } else if (!window.findChild<QDockWidget*>(item.objectName)) {
            auto* const dock = new QDockWidget(&window);
            dock->setObjectName(item.objectName);
            window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        }
    }
}

void addParts(QMainWindow& window, const QtState& state)
{
    for (const auto& layout : state.m_dockAreaLayouts) {
        for (const auto& dock : layout.docks)
            addDocks(window, dock.block);
    }
    for (const auto& layout : state.m_toolBarAreaLayouts) {
        for (const auto& line : layout.lines) {
            for (const auto& item : line.items) {
                if (!window.findChild<QToolBar*>(item.objectName))
                    window.addToolBar(item.objectName)->setObjectName(item.objectName);
            }
        }
    }
}

enum Damage { Changed, CutOff, LeftOut, Doubled };

QByteArray damaged(QByteArray blob, Damage damage, QRandomGenerator& random)
{
    const int offset = random.bounded(blob.size());
    switch (damage) {
    case Changed:
        for (int i = random.bounded(1, 5); i > 0; --i)
            blob[random.bounded(blob.size())] = static_cast<char>(random.bounded(256));
        return blob;
    case CutOff:
        return blob.left(offset);
    case LeftOut:
        return blob.remove(offset, 1);
    case Doubled:
        return blob.insert(offset, blob[offset]);
    }
    return blob;
}

/** Whether a child process that restores @p blob ends as it should. */
bool survives(const QtState& sound, const QByteArray& blob)
{
    const pid_t child = fork();
    if (child == 0) {
        const rlimit memory{rlim_t(1) << 30, rlim_t(1) << 30};
        const rlimit seconds{10, 10};
        const rlimit none{0, 0};
        (void)setrlimit(RLIMIT_AS, &memory);
        (void)setrlimit(RLIMIT_CPU, &seconds);
        (void)setrlimit(RLIMIT_CORE, &none);
        QMainWindow window;
        addParts(window, sound);
        (void)window.restoreState(blob, sound.m_version);
        _exit(0);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool isArea(int area)
{
    return area >= 0 && area <= 3;
}

bool hasDockAreasOnly(const QtState& state)
{
    for (const auto& layout : state.m_dockAreaLayouts) {
        for (const auto& dock : layout.docks) {
            if (!isArea(dock.area))
                return false;
        }
    }
    return true;
}

bool hasToolBarAreasOnly(const QtState& state)
{
    for (const auto& layout : state.m_toolBarAreaLayouts) {
        for (const auto& line : layout.lines) {
            if (!isArea(line.area))
                return false;
        }
    }
    return true;
}

/** Which of the four groups below a blob belongs to, as the library reads it. */
int readingOf(const QByteArray& blob)
{
    QtState state;
    if (!state.read(blob))
        return 0;
    if (!hasDockAreasOnly(state))
        return 1;
    return hasToolBarAreasOnly(state) ? 3 : 2;
}

struct Tally
{
    const char* kind;
    int tried = 0;
    int crashed = 0;
};

std::vector<QByteArray> readAll(const QString& folder)
{
    std::vector<QByteArray> blobs;
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.blob")}, QDir::Files);
    for (const QString& name : names) {
        QFile file(QDir(folder).filePath(name));
        if (file.open(QIODevice::ReadOnly))
            blobs.push_back(file.readAll());
    }
    return blobs;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream output(stdout);
    const std::vector<QByteArray> blobs = readAll(arguments.value(1));
    if (arguments.size() < 2 || blobs.empty()) {
        output << "Usage: DamageBlobs <folder> [<count> [<seed>]]\n";
        return 2;
    }
    const int count = arguments.value(2, QStringLiteral("1000")).toInt();
    QRandomGenerator random(arguments.value(3, QStringLiteral("1")).toUInt());
    Tally damages[]{{"one to four bytes changed"},
                    {"end cut off"},
                    {"one byte left out"},
                    {"one byte doubled"}};
    Tally readings[]{{"refused by QtState::read()"},
                     {"read, a dock area outside 0 to 3"},
                     {"read, only a tool-bar area outside 0 to 3"},
                     {"read, all areas 0 to 3"}};
    for (int i = 0; i < count; ++i) {
        const QByteArray& blob = blobs[static_cast<std::size_t>(random.bounded(int(blobs.size())))];
        const int damage = random.bounded(4);
        const QByteArray bad = damaged(blob, Damage(damage), random);
        QtState sound;
        (void)sound.read(blob);
        const bool crashed = !survives(sound, bad);
        for (Tally* const tally : {&damages[damage], &readings[readingOf(bad)]}) {
            ++tally->tried;
            tally->crashed += crashed;
        }
    }
    for (const auto& tallies : {damages, readings}) {
        for (int i = 0; i < 4; ++i)
            output << tallies[i].crashed << " of " << tallies[i].tried
                   << " crashed: " << tallies[i].kind << '\n';
    }
    return 0;
}
