// SPDX-License-Identifier: MIT
#include "DocumentGuard.h"

#include "TagScan.h"

#include <QHash>
#include <QStack>
#include <QXmlStreamReader>

namespace Panorel::Detail {

namespace {

const QLatin1String schemaInstance("http://www.w3.org/2001/XMLSchema-instance");

// The namespace prefixes that are in scope, counted, for an inner element may declare one again.
class PrefixScopes
{
public:
    void enter(const QXmlStreamNamespaceDeclarations& declarations)
    {
        for (const QXmlStreamNamespaceDeclaration& declaration : declarations)
            ++m_counts[declaration.prefix().toString()];
        m_scopes.push(declarations);
    }

    void leave()
    {
        const QXmlStreamNamespaceDeclarations declarations = m_scopes.pop();
        for (const QXmlStreamNamespaceDeclaration& declaration : declarations)
            --m_counts[declaration.prefix().toString()];
    }

    bool contains(const QString& prefix) const { return m_counts.value(prefix) > 0; }

private:
    // Without "xml", which is always declared: no type bears it.
    QHash<QString, int> m_counts;
    QStack<QXmlStreamNamespaceDeclarations> m_scopes;
};

bool isTypeDeclared(const QXmlStreamAttributes& attributes, const PrefixScopes& scopes)
{
    const QString type = attributes.value(schemaInstance, QLatin1String("type")).toString();
    const int colon = type.indexOf(QLatin1Char(':'));
    return colon < 0 || scopes.contains(type.left(colon).trimmed());
}

} // namespace

bool DocumentGuard::mayBeValidated(const QByteArray& data)
{
    PrefixScopes scopes;
    QXmlStreamReader reader(data);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            scopes.enter(reader.namespaceDeclarations());
            const QXmlStreamAttributes attributes = reader.attributes();
            if (attributes.size() > mostAttributes || !isTypeDeclared(attributes, scopes))
                return false;
        } else if (token == QXmlStreamReader::EndElement) {
            scopes.leave();
        }
    }
    return true;
}

} // namespace Panorel::Detail
