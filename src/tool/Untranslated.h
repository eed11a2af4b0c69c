// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace Panorel::Tool {

/** While one exists texts are English, as scripts need them. */
class Untranslated
{
public:
    /** @param isNeeded if false, nothing is done. */
    explicit Untranslated(bool isNeeded)
    {
        if (isNeeded)
            m_translators = QCoreApplication::instance()->findChildren<QTranslator*>();
        for (QTranslator* translator : qAsConst(m_translators))
            QCoreApplication::removeTranslator(translator);
    }
    ~Untranslated()
    {
        for (QTranslator* translator : qAsConst(m_translators))
            QCoreApplication::installTranslator(translator);
    }
    Untranslated(const Untranslated&) = delete;
    Untranslated& operator=(const Untranslated&) = delete;

private:
    QList<QTranslator*> m_translators;
};

} // namespace Panorel::Tool
