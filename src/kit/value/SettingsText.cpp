// SPDX-License-Identifier: MIT
#include "SettingsText.h"

#include <QTextCodec>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

// UTF-8 where it is that, as KDE and QSettings with a codec write it; else a byte is a character.
QString decoded(const QByteArray& line)
{
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForMib(106)->toUnicode(line.constData(), line.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? text : QString::fromLatin1(line);
}

// The value of a digit, or a number that no base has.
uint digit(QChar character)
{
    const uint code = character.unicode();
    if (code - u'0' < 10)
        return code - u'0';
    const uint letter = (code | 0x20) - u'a';
    return letter < 6 ? 10 + letter : 16;
}

// The number whose digits begin at the position, which goes after the last of them.
ushort number(const QString& text, int& position, uint base, int mostDigits)
{
    uint value = 0;
    for (int count = 0; count < mostDigits && position < text.size(); ++count, ++position) {
        const uint next = digit(text.at(position));
        if (next >= base)
            break;
        value = value * base + next;
    }
    return static_cast<ushort>(value);
}

// What QSettings writes in names: %XX and %UXXXX. Others are not resolved, because KDE has none.
QString resolvedName(const QString& name)
{
    QString result;
    for (int i = 0; i < name.size();) {
        const bool isLong = name.midRef(i, 2) == QLatin1String("%U");
        int end = i + (isLong ? 2 : 1);
        const int digits = isLong ? 4 : 2;
        const int start = end;
        const ushort code = name.at(i) == u'%' ? number(name, end, 16, digits) : ushort(0);
        const bool isEscape = name.at(i) == u'%' && end == start + digits;
        result += isEscape ? QChar(code) : name.at(i);
        i = isEscape ? end : i + 1;
    }
    return result;
}

// The character for the escape whose letter is at the position, which goes after it.
QChar resolvedEscape(const QString& text, int& position, int mostDigits)
{
    static const QString letters = QStringLiteral("abfnrtvs");
    static const QString characters = QStringLiteral("\a\b\f\n\r\t\v ");
    const QChar letter = text.at(position);
    if (letter >= u'0' && letter <= u'7')
        return QChar(number(text, position, 8, mostDigits));
    ++position;
    if (letter == u'x')
        return QChar(number(text, position, 16, mostDigits));
    const int known = letters.indexOf(letter);
    return known < 0 ? letter : characters.at(known);
}

/** Divides a list of QSettings into its values. */
class ListReader
{
public:
    explicit ListReader(const QString& text)
        : m_text(text)
    {}

    QStringList values()
    {
        while (m_position < m_text.size() && (m_isQuoted || m_text.at(m_position) != u';'))
            take(m_text.at(m_position));
        endValue();
        return m_values;
    }

private:
    void take(QChar character)
    {
        ++m_position;
        if (character == u'"') {
            m_isQuoted = !m_isQuoted;
            m_kept = m_value.size();
        } else if (character == u',' && !m_isQuoted) {
            endValue();
        } else if (character == u'\\' && m_position < m_text.size()) {
            m_value += resolvedEscape(m_text, m_position, m_text.size());
            m_kept = m_value.size();
        } else if (m_isQuoted || !character.isSpace() || !m_value.isEmpty()) {
            m_value += character;
            m_kept = m_isQuoted || !character.isSpace() ? m_value.size() : m_kept;
        }
    }

    void endValue()
    {
        m_values.append(m_value.left(m_kept));
        m_value.clear();
        m_kept = 0;
    }

    const QString m_text;
    QStringList m_values;
    QString m_value;
    int m_position = 0;
    // Without the white space at the end that is in no quotes.
    int m_kept = 0;
    bool m_isQuoted = false;
};

} // namespace

SettingsReader::SettingsReader(const QByteArray& bytes)
    : m_bytes(bytes)
    , m_position(bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0)
{}

bool SettingsReader::next(SettingsLine& line)
{
    while (m_position < m_bytes.size()) {
        const QString text = decoded(nextLine().trimmed());
        if (text.startsWith(u'[')) {
            enterSection(text);
            continue;
        }
        const int equals = text.indexOf(u'=');
        if (equals <= 0 || text.startsWith(u';') || text.startsWith(u'#'))
            continue;
        QString key = text.left(equals).trimmed();
        // What KDE says about a key, such as [$i].
        key.truncate(key.contains(QLatin1String("[$")) ? key.indexOf(QLatin1String("[$"))
                                                       : key.size());
        line.key = m_section + resolvedName(key.replace(u'\\', u'/'));
        line.value = text.mid(equals + 1);
        return true;
    }
    return false;
}

// The bytes up to the next line end that no backslash precedes, without those that one does.
QByteArray SettingsReader::nextLine()
{
    QByteArray line;
    int start = m_position;
    for (; m_position < m_bytes.size(); ++m_position) {
        const char character = m_bytes.at(m_position);
        if (character == '\n' || character == '\r')
            break;
        const int size = m_bytes.mid(m_position + 1, 2) == "\r\n" ? 3 : 2;
        const char next = m_position + 1 < m_bytes.size() ? m_bytes.at(m_position + 1) : '\0';
        if (character != '\\')
            continue;
        if (next == '\n' || next == '\r') {
            line += m_bytes.mid(start, m_position - start);
            start = m_position + size;
            m_position = start - 1;
        } else {
            ++m_position;
        }
    }
    const int end = std::min(m_position, m_bytes.size());
    line += m_bytes.mid(start, end - start);
    m_position = end + 1;
    return line;
}

void SettingsReader::enterSection(const QString& line)
{
    m_section.clear();
    for (int start = 0; start < line.size() && line.at(start) == u'[';) {
        const int end = line.indexOf(u']', start);
        if (end < 0)
            return;
        m_section += resolvedName(line.mid(start + 1, end - start - 1)) + u'/';
        start = end + 1;
    }
}

QStringList settingsValues(const QString& text)
{
    return ListReader(text).values();
}

QString kdeValue(const QString& text)
{
    QString value = text.trimmed();
    if (!value.startsWith(QLatin1String("\\x00")))
        return QString();
    QString result;
    for (int i = 0; i < value.size();) {
        const QChar character = value.at(i++);
        const bool isEscape = character == u'\\' && i < value.size();
        result += isEscape ? resolvedEscape(value, i, /*mostDigits=*/2) : character;
    }
    return result;
}

} // namespace Panorel::Kit::Detail
