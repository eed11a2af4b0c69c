// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Panorel::Kit::Detail {

/** A line of a settings file that gives a key a value. */
struct SettingsLine
{
    /** "SECTION/KEY" with the escapes of QSettings resolved. */
    QString key;
    /** What is after the equals sign, as it is written. */
    QString value;
};

/**
 * Goes over the lines of an INI-like file. It takes any bytes; lines that are neither a section nor
 * a key with a value are skipped. A backslash at the end of a line joins the next one to it.
 */
class SettingsReader
{
public:
    explicit SettingsReader(const QByteArray& bytes);

    /** Reads the next line with a value into @p line; false if there is none. */
    bool next(SettingsLine& line);

private:
    QByteArray nextLine();
    void enterSection(const QString& line);

    const QByteArray m_bytes;
    int m_position = 0;
    QString m_section;
};

/** The values of the list @p text in QSettings' form, without quotes and escapes. */
QStringList settingsValues(const QString& text);

/** The value @p text in KDE's form, without escapes; null if it has none. */
QString kdeValue(const QString& text);

} // namespace Panorel::Kit::Detail
