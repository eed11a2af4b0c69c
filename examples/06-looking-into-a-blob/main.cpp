// SPDX-License-Identifier: MIT
// The codec alone: tells what is in a FILE with the bytes of QMainWindow::saveState().
#include <panorel/QtState.h>

#include <QFile>
#include <QTextStream>

using Panorel::QtState;
using Block = QtState::DockAreaLayout::Dock::Block;

static const char* sideName(int area)
{
    static const char* const names[] = {"left", "right", "top", "bottom"};
    return area >= 0 && area < 4 ? names[area] : "nowhere"; // read() lets any number pass.
}

static void printDocks(const Block& top, std::size_t first, QTextStream& out)
{
    std::vector<const Block*> blocks{&top}; // No recursion: a file may nest them very deep.
    for (; !blocks.empty(); first = 0) {
        const Block* block = blocks.back();
        blocks.pop_back();
        for (std::size_t i = first; i < block->items.size(); ++i) {
            const Block::Item& item = block->items[i];
            if (item.isSequence)
                blocks.push_back(item.subBlock.get());
            else
                out << "  dock widget " << item.objectName
                    << ((item.flags & 1) != 0 ? ", shown\n" : ", closed\n");
        }
    }
}

int main(int argc, char* argv[])
{
    QFile file(argc > 1 ? QFile::decodeName(argv[1]) : QString());
    QTextStream out(stdout);
    QtState state;
    // Real ones have some hundred bytes, and what is read grows with the square.
    if (argc < 2 || !file.open(QIODevice::ReadOnly) || file.size() > 16384 ||
        !state.read(file.readAll())) {
        out << "This is no state of a main window.\n";
        return 1;
    }
    for (const QtState::DockAreaLayout& section : state.m_dockAreaLayouts) {
        std::size_t known = 0; // Each record repeats the items of those before it.
        for (const QtState::DockAreaLayout::Dock& dock : section.docks) {
            out << sideName(dock.area) << '\n';
            printDocks(dock.block, known, out);
            known = dock.block.items.size();
        }
    }
    for (const QtState::ToolBarAreaLayout& section : state.m_toolBarAreaLayouts) {
        std::size_t known = 0; // So does each line.
        for (const QtState::ToolBarAreaLayout::Line& line : section.lines) {
            out << sideName(line.area) << '\n';
            for (; known < line.items.size(); ++known)
                out << "  tool bar " << line.items[known].objectName << '\n';
        }
    }
}
