// SPDX-License-Identifier: MIT
#include <panorel/kit/SettingsStates.h>

#include "SettingsText.h"
#include "StateText.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Panorel::Kit {

namespace {

// The bytes of a text whose characters are bytes; null if one of them is not.
QByteArray bytesOf(const QString& text)
{
    const bool areBytes = std::all_of(text.cbegin(), text.cend(),
                                      [](QChar character) { return character.unicode() <= 0xFF; });
    return areBytes ? text.toLatin1() : QByteArray();
}

// The state that one value of a list is; null for another value.
QByteArray stateOf(const QString& value)
{
    const QLatin1String start("@ByteArray(");
    const bool isByteArray = value.startsWith(start) && value.endsWith(QLatin1Char(')'));
    const QString content =
        isByteArray ? value.mid(start.size(), value.size() - start.size() - 1) : value;
    const QByteArray bytes = bytesOf(content);
    return isByteArray && Detail::beginsAsState(bytes) ? bytes : Detail::stateFromText(bytes);
}

QVector<QByteArray> statesOf(const QString& text)
{
    QVector<QByteArray> states;
    const QStringList values = Detail::settingsValues(text);
    for (const QString& value : values) {
        const QByteArray state = stateOf(value);
        if (!state.isEmpty())
            states.append(state);
    }
    // A value of KDE's has no quotes and lists commas as they are.
    const QByteArray bytes = bytesOf(Detail::kdeValue(text));
    if (states.isEmpty() && Detail::beginsAsState(bytes))
        states.append(bytes);
    return states;
}

/** Gives out keys, each once. */
class Keys
{
public:
    QString unique(const QString& key)
    {
        QString result = key;
        int& number = m_numbers[key];
        while (m_given.contains(result)) {
            number = std::max(number, 1) + 1;
            result = key + QLatin1Char('/') + QString::number(number);
        }
        m_given.insert(result);
        return result;
    }

private:
    QSet<QString> m_given;
    // The last number that followed a key.
    QHash<QString, int> m_numbers;
};

} // namespace

SettingsStates::SettingsStates(const QByteArray& bytes)
{
    Keys keys;
    Detail::SettingsReader reader(bytes);
    Detail::SettingsLine line;
    while (reader.next(line)) {
        const QVector<QByteArray> states = statesOf(line.value);
        for (const QByteArray& state : states)
            m_entries.append({keys.unique(line.key), state});
    }
}

QByteArray SettingsStates::state(const QString& key) const
{
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&](const Entry& entry) { return entry.key == key; });
    return found == m_entries.cend() ? QByteArray() : found->state;
}

} // namespace Panorel::Kit
