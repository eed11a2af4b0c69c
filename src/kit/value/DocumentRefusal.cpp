// SPDX-License-Identifier: MIT
#include "DocumentRefusal.h"

#include "DocumentGrammar.h"
#include "DocumentText.h"
#include "TagReader.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

// No element may have more, and Qt's reader takes minutes for very many in one tag.
constexpr int mostAttributes = 6;

QString tr(const char* text)
{
    return QCoreApplication::translate("Panorel::Kit::LayoutDocument", text);
}

// Where the first tag with too many attributes begins; -1 if there is none.
int overfullTag(const QString& text)
{
    TagReader tags(text);
    while (tags.next()) {
        if (tags.attributeCount() > mostAttributes)
            return tags.start();
    }
    return -1;
}

Problem problemAt(ProblemCode code, const DocumentText& document, qint64 place,
                  const QString& reason)
{
    const QString text = document.text();
    const int position = static_cast<int>(std::clamp<qint64>(place, 0, text.size()));
    const int line = 1 + text.leftRef(position).count(u'\n');
    Problem problem;
    problem.code = code;
    problem.offset = document.byteOffset(position);
    problem.detail = tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "line %1: %2"))
                         .arg(QString::number(line), reason);
    return problem;
}

// Where the tag begins that the reader has just read.
qint64 tagBefore(const QString& text, qint64 end)
{
    return text.lastIndexOf(u'<', static_cast<int>(std::min<qint64>(end, text.size())) - 1);
}

} // namespace

Problem refusalOf(const QByteArray& bytes)
{
    const DocumentText document(bytes);
    const int overfull = overfullTag(document.text());
    if (overfull >= 0)
        return problemAt(
            ProblemCode::NotValid, document, overfull,
            tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "A tag has too many attributes")));
    DocumentGrammar grammar;
    qint64 place = -1;
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        reader.readNext();
        if (place < 0 && !reader.hasError() && !grammar.accepts(reader))
            place = tagBefore(document.text(), reader.characterOffset());
    }
    if (reader.hasError())
        return problemAt(ProblemCode::NotWellFormed, document, reader.characterOffset(),
                         reader.errorString());
    if (place >= 0)
        return problemAt(ProblemCode::NotValid, document, place, grammar.violation());
    Problem problem;
    problem.code = ProblemCode::NotValid;
    problem.detail = tr(QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "no place is known"));
    return problem;
}

} // namespace Panorel::Kit::Detail
