// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

namespace Panorel::Tests {

/** One text of a catalogue. */
struct Message
{
    QString context;
    QString source;
    QString translation;
    /** What Linguist says of it: "unfinished", "vanished" and the like; empty when it is done. */
    QString state;

    /** Context and source, which identify the text. */
    QString key() const;
};

/** The content of a .ts file. */
class Catalogue
{
public:
    /** The catalogue in @p file; empty if it cannot be read or is no such file. */
    static Catalogue read(const QString& file);

    /** As the file has it, "de_DE". */
    const QString& language() const { return m_language; }
    /** In the order of the file. */
    const QVector<Message>& messages() const { return m_messages; }
    /** A null string for a text that the catalogue does not have. */
    QString translation(const QString& context, const QString& source) const;

private:
    QString m_language;
    QVector<Message> m_messages;
};

/** The languages that have a .ts file, "de", "pt_BR" and so on, sorted. */
QStringList catalogueLanguages();
/** The .ts file of @p language. */
QString catalogueFile(const QString& language);
/** The .qm file that the build makes of it. */
QString compiledCatalogueFile(const QString& language);

} // namespace Panorel::Tests
