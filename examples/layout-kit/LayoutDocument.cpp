// SPDX-License-Identifier: MIT
#include "LayoutDocument.h"

#include <panorel/Manager.h>

#include <QVector>
#include <QXmlStreamReader>

using Panorel::Manager;

namespace LayoutDocument {

namespace {

struct Range
{
    int start = 0;
    int end = 0;
};

QString versionOf(const QByteArray& document)
{
    QXmlStreamReader reader(document);
    reader.readNextStartElement();
    return reader.attributes().value(QLatin1String("Version")).toString();
}

// Where the "Views" elements are, one for each group. In names and texts "<" is written as an
// entity, so the tags are found as bytes.
QVector<Range> viewsElements(const QByteArray& document)
{
    const QByteArray empty("<Views/>");
    const QByteArray closing("</Views>");
    QVector<Range> found;
    int start = document.indexOf("<Views");
    while (start >= 0) {
        const bool isEmpty = document.mid(start, empty.size()) == empty;
        const QByteArray last = isEmpty ? empty : closing;
        const int end = document.indexOf(last, start) + last.size();
        found.append({start, end});
        start = document.indexOf("<Views", end);
    }
    return found;
}

} // namespace

Problem problemWith(const QByteArray& document)
{
    Manager judge({QString()}, /*mergeOnApply=*/false);
    // Validates it as fromXml() does, and only keeps it.
    if (!judge.setFactoryDefaultView(document))
        return Problem::NotLayouts;
    if (versionOf(document) != versionOf(judge.toXml(/*markActive=*/false)))
        return Problem::OtherVersion;
    return Problem::None;
}

bool hasViews(const QByteArray& document)
{
    return document.contains("<View ");
}

QByteArray withViewsOf(const QByteArray& document, const QByteArray& other)
{
    const QVector<Range> replaced = viewsElements(document);
    const QVector<Range> taken = viewsElements(other);
    if (replaced.size() != taken.size())
        return other;
    QByteArray result;
    int copied = 0;
    for (int i = 0; i < replaced.size(); ++i) {
        result += document.mid(copied, replaced[i].start - copied);
        result += other.mid(taken[i].start, taken[i].end - taken[i].start);
        copied = replaced[i].end;
    }
    return result + document.mid(copied);
}

} // namespace LayoutDocument
