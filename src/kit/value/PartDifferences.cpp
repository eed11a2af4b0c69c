// SPDX-License-Identifier: MIT
#include "value/PartDifferences.h"

#include "value/GroupMatch.h"

#include <QRect>
#include <QSize>

#include <map>

namespace Panorel::Kit::Detail {

namespace {

using Aspect = Difference::Aspect;
using Pair = PartDifferences::Pair;

QString sideName(int side)
{
    const char* const names[] = {"left", "right", "top", "bottom"};
    return QLatin1String(names[side]);
}

// Bars that stayed in their line, which has stayed where it was or has not.
class LineDifferences
{
public:
    LineDifferences(PartDifferences& parts, const std::vector<Pair>& pairs)
        : m_parts(parts)
        , m_pairs(pairs)
    {}

    void find()
    {
        std::vector<GroupPair> groups;
        for (const Pair& pair : m_pairs)
            groups.push_back({pair.a->group, pair.b->group, pair.b->place});
        const std::vector<bool> stayed = stayedInGroup(groups);
        for (std::size_t i = 0; i < m_pairs.size(); ++i) {
            if (stayed[i])
                m_lines[m_pairs[i].a->group].push_back(m_pairs[i]);
            else
                addLine(m_pairs[i]);
        }
        compareLines();
        for (const auto& line : m_lines)
            compareInside(line.second);
    }

private:
    void addLine(const Pair& pair)
    {
        m_parts.add(*pair.b, Aspect::Line, pair.a->line, pair.b->line);
    }

    // The lines are numbered side after side, so one order serves for all sides.
    void compareLines()
    {
        std::vector<int> numbers;
        for (const auto& line : m_lines)
            numbers.push_back(line.second.front().b->group);
        const std::vector<bool> stayed = stayedInOrder(numbers);
        std::size_t number = 0;
        for (const auto& line : m_lines) {
            if (stayed[number++])
                continue;
            for (const Pair& pair : line.second)
                addLine(pair);
        }
    }

    void compareInside(const std::vector<Pair>& line)
    {
        std::vector<int> places;
        std::map<int, int> numbers;
        for (const Pair& pair : line) {
            places.push_back(pair.b->place);
            numbers[pair.b->place] = 0;
        }
        int number = 0;
        for (auto& place : numbers)
            place.second = number++;
        const std::vector<bool> stayed = stayedInOrder(places);
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (!stayed[i])
                m_parts.add(*line[i].b, Aspect::Order, static_cast<int>(i), numbers[places[i]]);
            else
                compareLength(line[i]);
        }
    }

    void compareLength(const Pair& pair)
    {
        const bool isSet = pair.a->hasOwnLength || pair.b->hasOwnLength;
        if (isSet && !pair.a->isLast && !pair.b->isLast &&
            isNoticeable(qint64(pair.b->length) - pair.a->length, pair.a->length))
            m_parts.add(*pair.b, Aspect::Size, pair.a->length, pair.b->length);
    }

    PartDifferences& m_parts;
    const std::vector<Pair>& m_pairs;
    std::map<int, std::vector<Pair>> m_lines;
};

} // namespace

PartDifferences::PartDifferences(Difference::Part part, const PartPlaces& a, const PartPlaces& b,
                                 QVector<Difference>& differences)
    : m_part(part)
    , m_a(a)
    , m_b(b)
    , m_differences(differences)
{}

std::vector<PartDifferences::Pair> PartDifferences::compareEach()
{
    m_pairs.clear();
    for (const PartPlace& a : m_a.parts) {
        if (const PartPlace* const b = m_b.find(a.key))
            compare(a, *b);
        else
            add(a, Aspect::Removed, QVariant(), QVariant());
    }
    for (const PartPlace& b : m_b.parts) {
        if (!m_a.find(b.key))
            add(b, Aspect::Added, QVariant(), QVariant());
    }
    return m_pairs;
}

void PartDifferences::compare(const PartPlace& a, const PartPlace& b)
{
    const bool wasOpen = a.kind != PartPlace::Closed;
    const bool isOpen = b.kind != PartPlace::Closed;
    if (wasOpen != isOpen) {
        add(b, Aspect::Visible, wasOpen, isOpen);
    } else if (a.kind != b.kind) {
        add(b, Aspect::Floating, a.kind == PartPlace::Floating, b.kind == PartPlace::Floating);
    } else if (a.side != b.side) {
        add(b, Aspect::Area, sideName(a.side), sideName(b.side));
    } else if (isOpen) {
        m_pairs.push_back({&a, &b});
    }
}

void PartDifferences::add(const PartPlace& place, Difference::Aspect aspect, const QVariant& from,
                          const QVariant& to)
{
    Difference difference;
    difference.part = m_part;
    difference.name = place.name;
    difference.aspect = aspect;
    difference.from = from;
    difference.to = to;
    m_differences.append(difference);
}

void compareFloating(PartDifferences& parts, const PartDifferences::Pair& pair)
{
    const PartPlace& a = *pair.a;
    const PartPlace& b = *pair.b;
    // A window that restores a floating tab group moves it by the width of its frame each time.
    if (isNoticeable(qint64(b.position.x()) - a.position.x(), a.size.width()) ||
        isNoticeable(qint64(b.position.y()) - a.position.y(), a.size.height()))
        parts.add(b, Aspect::Floating, QRect(a.position, a.size), QRect(b.position, b.size));
    if (isNoticeable(qint64(b.size.width()) - a.size.width(), a.size.width()) ||
        isNoticeable(qint64(b.size.height()) - a.size.height(), a.size.height()))
        parts.add(b, Aspect::Size, a.size, b.size);
}

void compareBars(const Arrangement& a, const Arrangement& b, QVector<Difference>& differences)
{
    const PartPlaces placesA = barPlaces(a);
    const PartPlaces placesB = barPlaces(b);
    PartDifferences parts(Difference::Part::ToolBar, placesA, placesB, differences);
    std::vector<Pair> docked;
    for (const Pair& pair : parts.compareEach()) {
        if (pair.a->kind == PartPlace::Floating)
            compareFloating(parts, pair);
        else
            docked.push_back(pair);
    }
    LineDifferences(parts, docked).find();
}

bool isNoticeable(qint64 change, int extent)
{
    return qAbs(change) > 2 && qAbs(change) * 10 > qAbs(qint64(extent));
}

} // namespace Panorel::Kit::Detail
