// SPDX-License-Identifier: MIT

// The walks over the nested blocks of QtState's items.

#include <panorel/QtState.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace Panorel {

using Block = QtState::DockAreaLayout::Dock::Block;
using Item = Block::Item;

// Nested blocks are walked with a list of what is still to do instead of recursion: they can nest
// deeper than any stack.

std::unique_ptr<Block> Item::clone(const Block& source)
{
    struct Task
    {
        const Block* from;
        Block* to;
    };
    auto result = std::make_unique<Block>();
    std::vector<Task> tasks{{&source, result.get()}};
    while (!tasks.empty()) {
        const Task task = tasks.back();
        tasks.pop_back();
        task.to->tabbed = task.from->tabbed;
        task.to->currentIndex = task.from->currentIndex;
        task.to->orientation = task.from->orientation;
        task.to->items.reserve(task.from->items.size());
        for (const Item& item : task.from->items) {
            Item& copy = task.to->items.emplace_back();
            copy.isSequence = item.isSequence;
            copy.objectName = item.objectName;
            copy.flags = item.flags;
            std::copy(std::begin(item.values), std::end(item.values), std::begin(copy.values));
            if (item.subBlock) {
                copy.subBlock = std::make_unique<Block>();
                tasks.push_back({item.subBlock.get(), copy.subBlock.get()});
            }
        }
    }
    return result;
}

void Item::release(std::unique_ptr<Block> block) noexcept
{
    std::vector<std::unique_ptr<Block>> pending;
    while (block) {
        for (Item& item : block->items) {
            if (item.subBlock)
                pending.push_back(std::move(item.subBlock));
        }
        block.reset();
        if (!pending.empty()) {
            block = std::move(pending.back());
            pending.pop_back();
        }
    }
}

} // namespace Panorel
