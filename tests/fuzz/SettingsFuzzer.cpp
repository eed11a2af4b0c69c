// SPDX-License-Identifier: MIT

// Reads any bytes as a file of settings and as a file that may hold layouts:
// - each state begins as a window's state does, and each key is there once;
// - what is recognised has content of its kind, and what is not has a reason;
// - a state that is written as QSettings and KDE write it comes back.

#include "Fuzz.h"
#include "support/Text.h"

#include <panorel/kit/LayoutFile.h>
#include <panorel/kit/SettingsStates.h>

#include <QSet>

using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

const QByteArray marker = "000000ff"_hex;

void checkEntries(const SettingsStates& states)
{
    QSet<QString> keys;
    for (const SettingsStates::Entry& entry : states.entries()) {
        require(entry.state.startsWith(marker), "a state begins with its marker");
        require(!keys.contains(entry.key), "a key is there once");
        require(states.state(entry.key) == entry.state, "a key has its state");
        keys.insert(entry.key);
        if (keys.size() > 100)
            break;
    }
}

void checkKind(const QByteArray& input, bool hasEntries)
{
    const LayoutFile file = LayoutFile::fromBytes(input);
    const bool isRecognised = file.kind() != LayoutFile::Kind::Unrecognised;
    require(file.bytes() == input, "the bytes stay");
    require(file.error().isNull() == isRecognised, "what is not recognised has a reason");
    require(file.state().isEmpty() == (file.kind() != LayoutFile::Kind::State),
            "a state file has a state");
    require(file.kind() != LayoutFile::Kind::Settings || hasEntries, "settings have a state");
}

QByteArray escaped(const QByteArray& state)
{
    QByteArray text;
    for (const char byte : state)
        text += "\\x" + QByteArray(1, byte).toHex();
    return text;
}

void checkForms(const QByteArray& state)
{
    const QByteArray values[] = {state.toHex(), state.toBase64(), escaped(state),
                                 "\"@ByteArray(" + escaped(state) + ")\"",
                                 "text, @ByteArray(" + state.toBase64() + ")"};
    for (const QByteArray& value : values)
        require(SettingsStates("[A][B]\nkey=" + value + "\n").state("A/B/key"_s) == state,
                "a written state comes back");
    require(LayoutFile::fromBytes(state.toBase64()).state() == state, "base64 comes back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    forbidMessages();
    const QByteArray input = bytes(data, size);
    const SettingsStates states(input);
    checkEntries(states);
    checkKind(input, !states.entries().isEmpty());
    checkForms(marker + input);
    return 0;
}
