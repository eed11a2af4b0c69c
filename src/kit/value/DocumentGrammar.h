// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>
#include <QString>
#include <QVector>

class QXmlStreamReader;

namespace Panorel::Kit::Detail {

/**
 * Finds in words what is not valid in a document that a Manager has refused. It decides nothing:
 * it follows the same schema, but may miss what it does not know.
 */
class DocumentGrammar
{
public:
    /** Looks at the token that the reader has read; false from the first that is wrong. */
    bool accepts(const QXmlStreamReader& reader);

    /** What is wrong there, in the user's language; null if nothing is. */
    QString violation() const { return m_violation; }

private:
    struct Child
    {
        const char* name;
        bool isRequired;
        bool isRepeated;
    };

    struct Rule
    {
        const char* name;
        QVector<Child> children;
        /** Required but for "Active". */
        QVector<QLatin1String> attributes;
        /** Whether it holds the digits of a state. */
        bool hasDigits;
    };

    struct Open
    {
        const Rule* rule = nullptr;
        // The child that may come next, and whether it was there already.
        int next = 0;
        bool wasThere = false;
        QString text;
    };

    static const QVector<Rule>& rules();
    static const Rule* ruleOf(const QString& name);

    void takeStart(const QXmlStreamReader& reader);
    void takeText(const QXmlStreamReader& reader);
    void takeEnd();
    void takeChild(const QString& name);
    void checkAttributes(const Rule& rule, const QXmlStreamReader& reader);
    void violate(const char* text, const QString& first, const QString& second = QString());

    QVector<Open> m_open;
    QString m_violation;
};

} // namespace Panorel::Kit::Detail
