// SPDX-License-Identifier: MIT
#pragma once

#include "value/PartPlaces.h"

#include <panorel/kit/Difference.h>

#include <vector>

namespace Panorel::Kit::Detail {

/** Appends to @p differences what is not the same of the parts of one kind, by their places. */
class PartDifferences
{
public:
    PartDifferences(Difference::Part part, const PartPlaces& a, const PartPlaces& b,
                    QVector<Difference>& differences);

    /** A part that is open in both and docked on the same side, or floats in both. */
    struct Pair
    {
        const PartPlace* a;
        const PartPlace* b;
    };

    /** Compares what tells for each part alone: existence, side, floating and visibility. Returns
        the parts whose place is to be compared further, in the order of the first arrangement. */
    std::vector<Pair> compareEach();

    void add(const PartPlace& place, Difference::Aspect aspect, const QVariant& from,
             const QVariant& to);

private:
    void compare(const PartPlace& a, const PartPlace& b);

    const Difference::Part m_part;
    const PartPlaces& m_a;
    const PartPlaces& m_b;
    QVector<Difference>& m_differences;
    std::vector<Pair> m_pairs;
};

/** Compares the geometry of a part that floats in both arrangements. */
void compareFloating(PartDifferences& parts, const PartDifferences::Pair& pair);

/** Compares the tool bars of two arrangements. */
void compareBars(const Arrangement& a, const Arrangement& b, QVector<Difference>& differences);

/** Whether a change is more than a tenth of the extent that something had, and than 2 pixels. */
bool isNoticeable(qint64 change, int extent);

} // namespace Panorel::Kit::Detail
