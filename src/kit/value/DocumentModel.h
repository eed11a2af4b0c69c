// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/LayoutDocument.h>

#include <QByteArray>
#include <QSharedData>
#include <QString>
#include <QVector>

namespace Panorel::Kit::Detail {

// Elements are numbered from 0 in the order of their start tags.

/** The element of one window's state; the bytes may be empty. */
struct DocumentState
{
    QString id;
    QByteArray bytes;
    int element = 0;
};

/** The element of a saved or current view. */
struct DocumentView
{
    QString name;
    QVector<DocumentState> states;
    /** Null without an element of its own, whose number is -1 then. */
    QString userData;
    int userDataElement = -1;
    /** Whether "Active" has one of the values that count. */
    bool isMarked = false;
    int element = 0;
};

/** The element of a group. */
struct DocumentGroup
{
    QString name;
    QVector<DocumentView> views;
    DocumentView current;
    /** The one that holds the saved views. */
    int viewsElement = 0;
};

/** What a document says, element by element: all that occurs again is there again. */
struct DocumentModel : QSharedData
{
    DocumentModel() = default;
    /** Reads @p bytes if a Manager accepts them. */
    explicit DocumentModel(const QByteArray& bytes);
    /** Reads bytes that a Manager has written or accepted, without asking one again, which takes
        most of the time. Of other bytes as much is read as is there. */
    static DocumentModel ofAccepted(const QByteArray& bytes);

    QByteArray bytes;
    bool isReadable = false;
    QString version;
    QVector<DocumentState> toolBarStates;
    QVector<DocumentGroup> groups;
    int elementCount = 0;

    /** The groups of that name in the document's order. */
    QVector<const DocumentGroup*> groupsNamed(const QString& name) const;
    /** The saved views of that name in the groups of that name, in the document's order. */
    QVector<const DocumentView*> viewsNamed(const QString& group, const QString& name) const;
    /** The marked views of the groups of that name; a Manager goes by the last one. */
    QVector<const DocumentView*> markedViews(const QString& group) const;
};

/** What a Manager makes of the elements of one view, each of which replaces the states of those
    before; not active. */
LayoutDocument::View readView(const QVector<const DocumentView*>& elements);

} // namespace Panorel::Kit::Detail
