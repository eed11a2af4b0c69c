// SPDX-License-Identifier: MIT

// The walks over the nested blocks of QtState's items.

#include <panorel/QtState.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <memory>
#include <vector>

namespace Panorel {

using Block = QtState::DockAreaLayout::Dock::Block;
using Item = Block::Item;

namespace {

struct Task
{
    const Block* from;
    Block* to;
};

// A block with as many items, all of them still empty.
std::unique_ptr<Block> outline(const Block& block)
{
    return std::unique_ptr<Block>(new Block{block.tabbed, block.currentIndex, block.orientation,
                                            std::vector<Item>(block.items.size())});
}

// Appends a task for each nested block, which gets its items later.
void copyItems(const Task& task, std::vector<Task>& tasks)
{
    Item* copy = task.to->items.data();
    for (const Item& item : task.from->items) {
        copy->isSequence = item.isSequence;
        if (!item.objectName.isNull())
            copy->objectName = item.objectName;
        copy->flags = item.flags;
        std::copy(std::begin(item.values), std::end(item.values), std::begin(copy->values));
        if (item.subBlock) {
            copy->subBlock = outline(*item.subBlock);
            tasks.push_back({item.subBlock.get(), copy->subBlock.get()});
        }
        ++copy;
    }
}

// The waiting blocks form a list. Its pointers overwrite the values of each block's first item,
// which are no longer used, because a destructor should not allocate memory.
constexpr std::size_t nextSize = sizeof(void*);
static_assert(nextSize <= sizeof(Item::values));

void setNext(Block& block, Block* next)
{
    std::memcpy(block.items.front().values, &next, nextSize);
}

Block* nextOf(const Block& block)
{
    Block* next = nullptr;
    std::memcpy(&next, block.items.front().values, nextSize);
    return next;
}

} // namespace

// Nested blocks are walked with a list of tasks instead of recursion, because they can nest deeper
// than any stack.

std::unique_ptr<Block> Item::clone(const Block& source)
{
    std::unique_ptr<Block> result = outline(source);
    std::vector<Task> tasks;
    copyItems({&source, result.get()}, tasks);
    while (!tasks.empty()) {
        const Task task = tasks.back();
        tasks.pop_back();
        copyItems(task, tasks);
    }
    return result;
}

void Item::release(Block* block) noexcept
{
    Block* waiting = nullptr;
    const auto add = [&](Block* added) {
        if (added->items.empty()) {
            delete added;
        } else {
            setNext(*added, waiting);
            waiting = added;
        }
    };
    add(block);
    while (waiting) {
        const std::unique_ptr<Block> current(waiting);
        waiting = nextOf(*current);
        for (Item& item : current->items) {
            if (item.subBlock)
                add(item.subBlock.release());
        }
    }
}

} // namespace Panorel
