// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <panorel/kit/LayoutDocument.h>

#include <functional>

// A document to edit, and edits of it.
namespace Panorel::Tests {

using Edit = std::function<Kit::LayoutDocument::Error(Kit::LayoutDocument&)>;
using Kit::LayoutDocument;

// Two groups in the form that a Manager writes.
inline const QByteArray written = R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <ToolBarState DescriptorId="main">01</ToolBarState>
    <Groups>
        <Group Name="Edit">
            <Views>
                <View Name="a">
                    <State DescriptorId="main">02</State>
                    <UserData></UserData>
                </View>
                <View Active="true" Name="b">
                    <State DescriptorId="main">03</State>
                    <UserData>text</UserData>
                </View>
                <View Name="c">
                    <UserData></UserData>
                </View>
            </Views>
            <CurrentView Name="__current__">
                <State DescriptorId="main">04</State>
                <UserData></UserData>
            </CurrentView>
        </Group>
        <Group Name="Watch">
            <Views/>
            <CurrentView Name="__current__">
                <UserData></UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)";

// The element of the view a, b or c in there, with the line end before it.
inline QByteArray element(char name)
{
    const int end = written.indexOf("</View>", written.indexOf(QByteArray("Name=\"") + name)) + 7;
    const int start = written.lastIndexOf("\n                <View", end - 1);
    return written.mid(start, end - start);
}

// The document with one piece of it replaced, which must be there once.
inline QByteArray with(const QByteArray& piece, const QByteArray& other)
{
    QByteArray result = written;
    return result.count(piece) == 1 ? result.replace(piece, other) : QByteArray();
}

inline Edit rename(const char* group, const char* view, const QString& name)
{
    return [=](LayoutDocument& document) {
        return document.renameView(QString::fromLatin1(group), QString::fromLatin1(view), name);
    };
}

inline Edit move(const char* view, const QString& before)
{
    return [=](LayoutDocument& document) {
        return document.moveView("Edit"_s, QString::fromLatin1(view), before);
    };
}

inline Edit data(const char* view, const QString& text)
{
    return [=](LayoutDocument& document) {
        return document.setUserData("Edit"_s, QString::fromLatin1(view), text);
    };
}

inline Edit activate(const QString& view)
{
    return [=](LayoutDocument& document) { return document.setActiveView("Edit"_s, view); };
}

inline Edit add(const char* group, const LayoutDocument::View& view,
                LayoutDocument::OnConflict onConflict = LayoutDocument::OnConflict::Fail)
{
    return [=](LayoutDocument& document) {
        return document.addView(QString::fromLatin1(group), view, onConflict);
    };
}

inline Edit renameWindow(const char* id, const QString& newId)
{
    return [=](LayoutDocument& document) {
        return document.renameWindow(QString::fromLatin1(id), newId);
    };
}

inline QByteArray newView(const QByteArray& start, const QByteArray& content)
{
    return "\n                <View " + start + ">" + content + "\n                </View>";
}

} // namespace Panorel::Tests

Q_DECLARE_METATYPE(Panorel::Tests::Edit)
