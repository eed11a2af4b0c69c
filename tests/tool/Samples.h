// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Panorel::Tests {

/** The dock widget "AB" on the right and the tool bar "T" at the top: 117 bytes. */
inline QByteArray smallState()
{
    return QByteArray::fromHex("000000ff00000000"
                               "fd00000001"
                               "00000001000000c80000012c"
                               "fc0200000001"
                               "fb0000000400410042"
                               "0100000000000000c80000000000000000"
                               "000001900000012c"
                               "00000001000000020000000100000008"
                               "fc000000010000000200000001"
                               "000000020054"
                               "0100000000ffffffff0000000000000000");
}

/** The same with the dock widget on the left. */
inline QByteArray leftState()
{
    QByteArray state = smallState();
    state[16] = 0;
    return state;
}

/** The same with the dock widget on a side that does not exist, at byte 13. */
inline QByteArray harmfulState()
{
    QByteArray state = smallState();
    state[16] = 9;
    return state;
}

/** The dock widgets "A" on the left and "B" on the right, as merging repeats them: the record of
    "B" has "A" before it. The repeated item begins at byte 86. */
inline QByteArray repeatingState()
{
    return QByteArray::fromHex("000000ff00000000"
                               "fd00000002"
                               "00000000000000640000012c"
                               "fc0200000001"
                               "fb000000020041010000000000000064"
                               "0000000000000000"
                               "00000001000000c80000012c"
                               "fc0200000002"
                               "fb000000020041010000000000000064"
                               "0000000000000000"
                               "fb0000000200420100000000000000c8"
                               "0000000000000000"
                               "000001900000012c"
                               "00000001000000020000000100000008");
}

/** repeatingState() without the repeated item. */
inline QByteArray tidyState()
{
    return QByteArray::fromHex("000000ff00000000"
                               "fd00000002"
                               "00000000000000640000012c"
                               "fc0200000001"
                               "fb000000020041010000000000000064"
                               "0000000000000000"
                               "00000001000000c80000012c"
                               "fc0200000001"
                               "fb0000000200420100000000000000c8"
                               "0000000000000000"
                               "000001900000012c"
                               "00000001000000020000000100000008");
}

/** A document as it is written, with "Wide" (active) and "Narrow" in "Editing", and the empty group
    "Debugging". The window is "main". */
inline QByteArray smallDocument()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<ViewData Version=\"1.1.0\">\n"
           "    <Groups>\n"
           "        <Group Name=\"Editing\">\n"
           "            <Views>\n"
           "                <View Active=\"true\" Name=\"Wide\">\n"
           "                    <State DescriptorId=\"main\">" +
           smallState().toHex() +
           "</State>\n"
           "                    <UserData>true</UserData>\n"
           "                </View>\n"
           "                <View Name=\"Narrow\">\n"
           "                    <State DescriptorId=\"main\">" +
           leftState().toHex() +
           "</State>\n"
           "                    <UserData></UserData>\n"
           "                </View>\n"
           "            </Views>\n"
           "            <CurrentView Name=\"__current__\">\n"
           "                <State DescriptorId=\"main\">" +
           smallState().toHex() +
           "</State>\n"
           "                <UserData></UserData>\n"
           "            </CurrentView>\n"
           "        </Group>\n"
           "        <Group Name=\"Debugging\">\n"
           "            <Views/>\n"
           "            <CurrentView Name=\"__current__\">\n"
           "                <UserData></UserData>\n"
           "            </CurrentView>\n"
           "        </Group>\n"
           "    </Groups>\n"
           "</ViewData>\n";
}

} // namespace Panorel::Tests
