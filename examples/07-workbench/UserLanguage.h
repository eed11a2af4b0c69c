// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

/**
 * Shows the program's texts and Qt's own, such as those of buttons, in the user's language as long
 * as it lives, and windows from right to left where the language is written so. Panorel loads its
 * texts itself.
 */
class UserLanguage
{
public:
    /** The application must exist. */
    UserLanguage();

private:
    QTranslator m_qtTexts;
    QTranslator m_texts;
};
