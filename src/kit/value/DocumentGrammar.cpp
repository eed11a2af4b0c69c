// SPDX-License-Identifier: MIT
#include "DocumentGrammar.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

const QLatin1String schemaInstance("http://www.w3.org/2001/XMLSchema-instance");
const QLatin1String nameAttribute("Name");
const QLatin1String activeAttribute("Active");
const QLatin1String idAttribute("DescriptorId");

const char noElement[] =
    QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "\"%1\" cannot be here in \"%2\"");
const char noRoot[] =
    QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "\"%1\" is not the root \"ViewData\"");
const char noChild[] =
    QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "\"%1\" is missing in \"%2\"");
const char noAttribute[] =
    QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "\"%2\" lacks the attribute \"%1\"");
const char unknownAttribute[] =
    QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "\"%2\" has the unknown attribute \"%1\"");
const char badActive[] =
    QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "\"Active\" cannot be \"%1\"");
const char noText[] =
    QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument", "There cannot be text in \"%1\"");
const char noDigits[] = QT_TRANSLATE_NOOP("Panorel::Kit::LayoutDocument",
                                          "The state in \"%1\" is not an even number of digits");

bool isHexadecimal(const QString& text)
{
    const QString digits = text.trimmed();
    return digits.size() % 2 == 0 &&
           std::all_of(digits.cbegin(), digits.cend(), [](QChar character) {
               const ushort code = character.unicode();
               return (code >= u'0' && code <= u'9') || (code >= u'a' && code <= u'f') ||
                      (code >= u'A' && code <= u'F');
           });
}

bool isBoolean(const QStringRef& text)
{
    const QStringRef value = text.trimmed();
    return value == QLatin1String("true") || value == QLatin1String("false") ||
           value == QLatin1String("1") || value == QLatin1String("0");
}

} // namespace

const QVector<DocumentGrammar::Rule>& DocumentGrammar::rules()
{
    const QVector<Child> view{{"State", false, true}, {"UserData", false, false}};
    static const QVector<Rule> rules{
        {"ViewData",
         {{"ToolBarState", false, true}, {"Groups", true, false}},
         {QLatin1String("Version")},
         false},
        {"ToolBarState", {}, {idAttribute}, true},
        {"Groups", {{"Group", false, true}}, {}, false},
        {"Group", {{"Views", true, false}, {"CurrentView", true, false}}, {nameAttribute}, false},
        {"Views", {{"View", false, true}}, {}, false},
        {"View", view, {nameAttribute, activeAttribute}, false},
        {"CurrentView", view, {nameAttribute, activeAttribute}, false},
        {"State", {}, {idAttribute}, true},
        {"UserData", {}, {}, false}};
    return rules;
}

const DocumentGrammar::Rule* DocumentGrammar::ruleOf(const QString& name)
{
    const auto found = std::find_if(rules().cbegin(), rules().cend(), [&](const Rule& rule) {
        return name == QLatin1String(rule.name);
    });
    return found == rules().cend() ? nullptr : &*found;
}

bool DocumentGrammar::accepts(const QXmlStreamReader& reader)
{
    if (!m_violation.isNull())
        return false;
    if (reader.isStartElement())
        takeStart(reader);
    else if (reader.isEndElement())
        takeEnd();
    else if (reader.isCharacters() && !m_open.isEmpty())
        takeText(reader);
    return m_violation.isNull();
}

void DocumentGrammar::takeStart(const QXmlStreamReader& reader)
{
    const QString name = reader.qualifiedName().toString();
    const Rule* rule = reader.namespaceUri().isEmpty() ? ruleOf(name) : nullptr;
    if (m_open.isEmpty() && (!rule || rule != rules().constData()))
        return violate(noRoot, name);
    if (!m_open.isEmpty())
        takeChild(name);
    if (!m_violation.isNull())
        return;
    if (!rule)
        return violate(noElement, name, QLatin1String(m_open.last().rule->name));
    checkAttributes(*rule, reader);
    m_open.append({rule, 0, false, QString()});
}

// Goes to the child of this name among those that may still come.
void DocumentGrammar::takeChild(const QString& name)
{
    Open& parent = m_open.last();
    const QVector<Child>& children = parent.rule->children;
    for (; parent.next < children.size(); ++parent.next, parent.wasThere = false) {
        const Child& child = children.at(parent.next);
        const bool isMeant = name == QLatin1String(child.name);
        if (isMeant && (child.isRepeated || !parent.wasThere)) {
            parent.wasThere = true;
            return;
        }
        if (child.isRequired && !parent.wasThere)
            return violate(noChild, QLatin1String(child.name), QLatin1String(parent.rule->name));
    }
    violate(noElement, name, QLatin1String(parent.rule->name));
}

void DocumentGrammar::takeText(const QXmlStreamReader& reader)
{
    Open& open = m_open.last();
    if (open.rule->hasDigits)
        open.text += reader.text();
    else if (!open.rule->children.isEmpty() && !reader.text().trimmed().isEmpty())
        violate(noText, QLatin1String(open.rule->name));
}

void DocumentGrammar::takeEnd()
{
    const Open open = m_open.takeLast();
    const QString name = QLatin1String(open.rule->name);
    const QVector<Child>& children = open.rule->children;
    for (int i = open.next + (open.wasThere ? 1 : 0); i < children.size(); ++i) {
        if (children.at(i).isRequired)
            return violate(noChild, QLatin1String(children.at(i).name), name);
    }
    if (open.rule->hasDigits && !isHexadecimal(open.text))
        violate(noDigits, name);
}

void DocumentGrammar::checkAttributes(const Rule& rule, const QXmlStreamReader& reader)
{
    const QString element = QLatin1String(rule.name);
    const bool hasActive = rule.attributes.contains(activeAttribute);
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QLatin1String& required : rule.attributes) {
        if (required != activeAttribute && !attributes.hasAttribute(required))
            return violate(noAttribute, required, element);
    }
    for (const QXmlStreamAttribute& attribute : attributes) {
        const bool isInstance = attribute.namespaceUri() == schemaInstance;
        const bool isKnown =
            std::any_of(rule.attributes.cbegin(), rule.attributes.cend(),
                        [&](QLatin1String known) { return attribute.qualifiedName() == known; });
        if (!isInstance && !isKnown)
            return violate(unknownAttribute, attribute.qualifiedName().toString(), element);
        if (hasActive && attribute.qualifiedName() == activeAttribute &&
            !isBoolean(attribute.value()))
            return violate(badActive, attribute.value().toString());
    }
}

void DocumentGrammar::violate(const char* text, const QString& first, const QString& second)
{
    const QString sentence = QCoreApplication::translate("Panorel::Kit::LayoutDocument", text);
    m_violation = second.isNull() ? sentence.arg(first) : sentence.arg(first, second);
}

} // namespace Panorel::Kit::Detail
