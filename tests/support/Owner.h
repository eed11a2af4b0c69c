// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/IManagable.h>

#include <QList>

#include <functional>
#include <utility>

namespace Panorel::Tests {

/** A window owner whose answer can be set, and which counts how often it was asked. */
class Owner : public IManagable
{
public:
    explicit Owner(QList<ManagedWindow> entries = {})
        : windows(std::move(entries))
    {}

    QList<ManagedWindow> managedWindows() override
    {
        ++calls;
        if (onAsked)
            onAsked();
        return windows;
    }

    QList<ManagedWindow> windows;
    int calls = 0;
    /** Runs whenever the owner is asked, before it answers. */
    std::function<void()> onAsked;
};

} // namespace Panorel::Tests
