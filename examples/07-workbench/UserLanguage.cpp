// SPDX-License-Identifier: MIT
#include "UserLanguage.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

UserLanguage::UserLanguage()
{
    if (m_qtTexts.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qtTexts);
    if (m_texts.load(QLocale(), QStringLiteral("workbench"), QStringLiteral("_"),
                     QStringLiteral(":/translations")))
        QCoreApplication::installTranslator(&m_texts);
    if (QLocale().textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}
