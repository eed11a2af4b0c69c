// SPDX-License-Identifier: MIT
#include <panorel/QtState.h>

#include <QByteArray>
#include <QXmlStreamReader>

// Whether a window can be given this state without harm: it is no larger than any real one, all of
// it is understood, and every dock record and tool-bar line stands on one of the four sides.
inline bool isHarmless(const QByteArray& blob)
{
    const int largest = 16 * 1024;
    Panorel::QtState state;
    if (blob.size() > largest || !state.read(blob))
        return false;
    const auto isSide = [](int area) { return area >= 0 && area <= 3; };
    for (const auto& layout : state.m_dockAreaLayouts) {
        for (const auto& dock : layout.docks) {
            if (!isSide(dock.area))
                return false;
        }
    }
    for (const auto& layout : state.m_toolBarAreaLayouts) {
        for (const auto& line : layout.lines) {
            if (!isSide(line.area))
                return false;
        }
    }
    return true;
}

// Whether this holds of every window's state in a document. Ask it before fromXml(), and before
// setFactoryDefaultView() and setProgramStartView(), when the document comes from elsewhere.
inline bool isHarmlessDocument(const QByteArray& document)
{
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const bool holdsState = reader.name() == QLatin1String("State") ||
                                reader.name() == QLatin1String("ToolBarState");
        if (!holdsState)
            continue;
        const QByteArray blob = QByteArray::fromHex(reader.readElementText().toUtf8());
        if (!blob.isEmpty() && !isHarmless(blob))
            return false;
    }
    return !reader.hasError();
}
