// SPDX-License-Identifier: MIT
#pragma once

#include "value/StatePlaces.h"

#include <panorel/kit/WindowState.h>

namespace Panorel::Kit::Detail {

/** Finds what is wrong or worth knowing in one state. */
class StateCheck
{
public:
    explicit StateCheck(const StateTree& tree);

    /** In the order of the bytes. */
    QVector<Problem> problems;

private:
    void checkReadable();
    void checkAreas();
    void checkNesting();
    void checkSize();
    void checkNames();
    template<typename Part>
    void checkNames(const std::vector<Part>& parts, const std::vector<Place>& places);
    void add(ProblemCode code, int offset, const QString& detail = QString());

    const StateTree& m_tree;
    const StatePlaces m_places;
};

} // namespace Panorel::Kit::Detail
