// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

/**
 * Shows Qt's own texts, such as those of buttons, in the user's language as long as it lives, and
 * windows from right to left where the language is written so. Panorel's texts need no help.
 */
class UserLanguage
{
public:
    /** The application must exist. */
    UserLanguage();

private:
    QTranslator m_qtTexts;
};
