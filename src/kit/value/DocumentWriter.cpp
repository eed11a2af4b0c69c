// SPDX-License-Identifier: MIT
#include "DocumentWriter.h"

#include "DocumentText.h"
#include "TagReader.h"

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

QString reference(uint code)
{
    return QLatin1String("&#") + QString::number(code) + QLatin1Char(';');
}

// As QXmlStreamWriter escapes, and a carriage return everywhere, which a reader would make a line
// feed of.
QString escapedUnit(QChar unit, QChar quote)
{
    switch (unit.unicode()) {
    case u'<':
        return QStringLiteral("&lt;");
    case u'>':
        return QStringLiteral("&gt;");
    case u'&':
        return QStringLiteral("&amp;");
    case u'"':
        return QStringLiteral("&quot;");
    case u'\'':
        return quote == u'\'' ? QStringLiteral("&apos;") : QString(unit);
    case u'\r':
        return reference(u'\r');
    case u'\n':
    case u'\t':
        return quote.isNull() ? QString(unit) : reference(unit.unicode());
    default:
        return QString(unit);
    }
}

QString attribute(const char* name, const QString& value, const DocumentText* document)
{
    return QLatin1Char(' ') + QLatin1String(name) + QLatin1String("=\"") +
           escaped(value, u'"', document) + QLatin1Char('"');
}

QString element(const QString& name, const QString& attributes, const QString& content)
{
    const QString start = QLatin1Char('<') + name + attributes;
    return content.isEmpty() ? QString(start + QLatin1String("/>"))
                             : QString(start + QLatin1Char('>') + content + QLatin1String("</") +
                                       name + QLatin1Char('>'));
}

QString writeState(const QString& name, const QString& id, const QByteArray& state,
                   const DocumentText* document)
{
    return element(name, attribute("DescriptorId", id, document),
                   QString::fromLatin1(state.toHex()));
}

// White space before an element of a document that is written as a whole.
QString lead(int level)
{
    return QLatin1Char('\n') + QString(4 * level, u' ');
}

QString writeView(const DocumentView& source, const QString& name, int level)
{
    const LayoutDocument::View view = readView({&source});
    const QString active = source.isMarked ? QStringLiteral(" Active=\"true\"") : QString();
    return lead(level) + element(name, active + attribute("Name", view.name, nullptr),
                                 writeViewContent(view, lead(level + 1), lead(level), nullptr));
}

QString writeGroup(const DocumentGroup& group)
{
    QString views;
    for (const DocumentView& view : group.views)
        views += writeView(view, QStringLiteral("View"), 4);
    views += views.isEmpty() ? QString() : lead(3);
    const QString content = lead(3) + element(QStringLiteral("Views"), QString(), views) +
                            writeView(group.current, QStringLiteral("CurrentView"), 3) + lead(2);
    return lead(2) +
           element(QStringLiteral("Group"), attribute("Name", group.name, nullptr), content);
}

} // namespace

bool isWritable(const QString& text)
{
    return text.isValidUtf16() && std::none_of(text.cbegin(), text.cend(), [](QChar character) {
               const ushort code = character.unicode();
               return (code < 0x20 && !isXmlSpace(character)) || code >= 0xFFFE;
           });
}

QString escaped(const QString& text, QChar quote, const DocumentText* document)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const int size = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        const QString character = text.mid(i, size);
        if (text.at(i).unicode() < 0x80)
            result += escapedUnit(text.at(i), quote);
        else if (!document || document->canEncode(character))
            result += character;
        else
            result += reference(character.toUcs4().at(0));
        i += size - 1;
    }
    return result;
}

QString writeUserData(const QString& text, const DocumentText* document)
{
    return QLatin1String("<UserData>") + escaped(text, QChar(), document) +
           QLatin1String("</UserData>");
}

QString writeViewContent(const LayoutDocument::View& view, const QString& lead,
                         const QString& closingLead, const DocumentText* document)
{
    QString content;
    for (auto it = view.states.cbegin(); it != view.states.cend(); ++it) {
        if (!it.value().isEmpty())
            content += lead + writeState(QStringLiteral("State"), it.key(), it.value(), document);
    }
    if (!view.userData.isNull())
        content += lead + writeUserData(view.userData, document);
    return content.isEmpty() ? content : content + closingLead;
}

QString writeView(const LayoutDocument::View& view, const QString& lead, const QString& step,
                  const DocumentText* document)
{
    return lead + element(QStringLiteral("View"), attribute("Name", view.name, document),
                          writeViewContent(view, lead + step, lead, document));
}

QByteArray writeDocument(const DocumentModel& model)
{
    QString content;
    for (const DocumentState& state : model.toolBarStates)
        content +=
            lead(1) + writeState(QStringLiteral("ToolBarState"), state.id, state.bytes, nullptr);
    QString groups;
    for (const DocumentGroup& group : model.groups)
        groups += writeGroup(group);
    groups += groups.isEmpty() ? QString() : lead(1);
    content += lead(1) + element(QStringLiteral("Groups"), QString(), groups) + lead(0);
    return QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") +
           element(QStringLiteral("ViewData"), attribute("Version", model.version, nullptr),
                   content)
               .toUtf8() +
           '\n';
}

} // namespace Panorel::Kit::Detail
