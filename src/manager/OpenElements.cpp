// SPDX-License-Identifier: MIT
#include "OpenElements.h"

#include <QString>

#include <algorithm>

namespace Panorel::Detail {

namespace {

// The deepest element of the schema is ViewData/Groups/Group/Views/View/State.
constexpr std::size_t mostLevels = 6;

// The validator calls itself for each level under a root that may hold anything: 2,000 levels fit
// into a stack of 512 KB, 4,000 do not.
constexpr std::size_t mostLevelsOfAnything = 1000;

// The schema gives no element more than two attributes, and the schema instance namespace has four.
constexpr int mostAttributes = 6;

} // namespace

bool OpenElements::isInstanceNamespace(const QByteArray& uri)
{
    return uri == "http://www.w3.org/2001/XMLSchema-instance";
}

void OpenElements::open()
{
    m_starts.push_back(static_cast<int>(m_declarations.size()));
}

void OpenElements::declare(const QByteArray& prefix, const QByteArray& uri)
{
    // This ends a default namespace. Only the root's default namespace counts.
    if (prefix.isEmpty() && uri.isEmpty())
        return;
    m_declarations.push_back({prefix, isInstanceNamespace(uri), -1});
}

void OpenElements::close()
{
    if (m_starts.empty())
        return;
    const auto start = static_cast<std::size_t>(m_starts.back());
    m_starts.pop_back();
    for (; m_declarations.size() > start; m_declarations.pop_back()) {
        if (m_declarations.size() > m_indexed)
            continue;
        --m_indexed;
        const Declaration& declaration = m_declarations.back();
        if (declaration.hidden < 0)
            m_innermost.remove(declaration.prefix);
        else
            m_innermost.insert(declaration.prefix, declaration.hidden);
    }
}

// Only now, because most documents have no prefix to look up, however many they declare.
int OpenElements::innermost(const QByteArray& prefix)
{
    for (; m_indexed < m_declarations.size(); ++m_indexed) {
        Declaration& declaration = m_declarations[m_indexed];
        declaration.hidden = m_innermost.value(declaration.prefix, -1);
        m_innermost.insert(declaration.prefix, static_cast<int>(m_indexed));
    }
    return m_innermost.value(prefix, -1);
}

bool OpenElements::isInstancePrefix(const QByteArray& prefix)
{
    const int index = innermost(prefix);
    return index >= 0 && m_declarations[static_cast<std::size_t>(index)].isInstance;
}

bool OpenElements::isPossible(const Tag& tag)
{
    if (m_starts.size() == 1)
        enterRoot(tag);
    if (tag.isTypeKnown && !isTypeDeclared(tag))
        return false;
    if (m_isAnything)
        return m_starts.size() <= mostLevelsOfAnything;
    return m_starts.size() <= mostLevels && tag.attributeCount <= mostAttributes;
}

// The schema declares one root. But the validator takes any other root that names its own type, and
// one of xs:anyType can hold whatever it likes.
void OpenElements::enterRoot(const Tag& tag)
{
    const bool hasNamespace =
        std::any_of(m_declarations.cbegin(), m_declarations.cend(),
                    [](const Declaration& declaration) { return declaration.prefix.isEmpty(); });
    const bool isDeclared = tag.qualifiedName == "ViewData" && !hasNamespace;
    const QString type = QString::fromUtf8(tag.type).trimmed();
    m_isAnything = !isDeclared && (!tag.isTypeKnown || type.endsWith(QLatin1String("anyType")));
}

// The validator crashes on a type whose prefix is not declared.
bool OpenElements::isTypeDeclared(const Tag& tag)
{
    const int colon = tag.type.indexOf(':');
    if (colon < 0)
        return true;
    return innermost(QString::fromUtf8(tag.type.left(colon)).trimmed().toUtf8()) >= 0;
}

} // namespace Panorel::Detail
