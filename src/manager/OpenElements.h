// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>

#include <vector>

namespace Panorel::Detail {

/**
 * The elements that are open at one place of a document, and the namespace prefixes in scope.
 *
 * For each element call open(), declare() for each of its namespace declarations, isPossible()
 * once, and close() at its end. All texts are UTF-8. The memory is a multiple of what is open.
 */
class OpenElements
{
public:
    /** An element, except its namespace declarations. */
    struct Tag
    {
        QByteArray qualifiedName;
        int attributeCount = 0;
        /** Value of the xsi:type, if there is one. */
        QByteArray type;
        /** False if the caller cannot tell whether there is an xsi:type, and which. */
        bool isTypeKnown = true;
    };

    static bool isInstanceNamespace(const QByteArray& uri);

    void open();
    void declare(const QByteArray& prefix, const QByteArray& uri);
    void close();

    bool isInstancePrefix(const QByteArray& prefix);
    /**
     * Whether some valid document can have @p tag as the element that was opened last, and the
     * validator bears its depth.
     */
    bool isPossible(const Tag& tag);

private:
    struct Declaration
    {
        QByteArray prefix;
        bool isInstance;
        /** Index of the declaration that this one hides, or -1. Set once it is indexed. */
        int hidden;
    };

    void enterRoot(const Tag& tag);
    bool isTypeDeclared(const Tag& tag);
    int innermost(const QByteArray& prefix);

    std::vector<Declaration> m_declarations;
    /** Number of declarations before each open element. */
    std::vector<int> m_starts;
    /** Indexes by prefix, of the first m_indexed declarations. */
    QHash<QByteArray, int> m_innermost;
    std::size_t m_indexed = 0;
    bool m_isAnything = false;
};

} // namespace Panorel::Detail
