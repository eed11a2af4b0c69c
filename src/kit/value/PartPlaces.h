// SPDX-License-Identifier: MIT
#pragma once

#include "value/Arrangement.h"

#include <QHash>
#include <QStringList>

namespace Panorel::Kit::Detail {

/** Where a dock widget or tool bar is in an arrangement. */
struct PartPlace
{
    enum Kind { Closed, Docked, Floating };

    /** The objectName, and what tells the part from others, which may have no name. */
    QString name;
    QString key;
    Kind kind = Closed;
    /** Of a docked one: 0 left, 1 right, 2 top, 3 bottom. */
    int side = -1;
    /** With which others it is: the number of its tab group, floating window or line of tool bars.
        For a tool bar's line, it counts from 0 at the edge of its side in `line` too. */
    int group = -1;
    int line = -1;
    /** Place among the parts that are in sight, in stored order. */
    int place = 0;
    /** Of a floating one. */
    QPoint position;
    QSize size;
    /** Of a dock widget: its node. */
    int node = -1;
    /** Of a tool bar: how long it is if that is stored, else 0; and whether it ends its line, which
        makes it as long as there is room. */
    int length = 0;
    bool isLast = false;
    bool hasOwnLength = false;
};

/** All parts of one kind in an arrangement. */
struct PartPlaces
{
    QVector<PartPlace> parts;
    /** From key to index in parts. */
    QHash<QString, int> byKey;

    void add(const QString& name, PartPlace place);
    const PartPlace* find(const QString& key) const;

private:
    int m_nameless = 0;
};

PartPlaces dockPlaces(const Arrangement& arrangement);
PartPlaces barPlaces(const Arrangement& arrangement);

/** The names of those that are tabs with the dock widget at @p place, or in one floating window; 50
    at most, because each of very many may ask. */
QStringList partnersOf(const Arrangement& arrangement, const PartPlace& place);

} // namespace Panorel::Kit::Detail
