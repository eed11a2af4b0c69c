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
    if (QLocale().textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}
