// SPDX-License-Identifier: MIT
#include "HelpMenu.h"

#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>

namespace Panorel::Plugin {

namespace {

const QSet<QString>& helpWords()
{
    static const QSet<QString> words{
        QStringLiteral("?"),        QStringLiteral("help"),     QStringLiteral("hilfe"),
        QStringLiteral("aide"),     QStringLiteral("ayuda"),    QStringLiteral("aiuto"),
        QStringLiteral("ajuda"),    QStringLiteral("hjälp"),    QStringLiteral("hjælp"),
        QStringLiteral("hjelp"),    QStringLiteral("ohje"),     QStringLiteral("pomoc"),
        QStringLiteral("nápověda"), QStringLiteral("pomocník"), QStringLiteral("súgó"),
        QStringLiteral("ajutor"),   QStringLiteral("справка"),  QStringLiteral("помощь"),
        QStringLiteral("довідка"),  QStringLiteral("допомога"), QStringLiteral("yardım"),
        QStringLiteral("βοήθεια"),  QStringLiteral("עזרה"),     QStringLiteral("مساعدة"),
        QStringLiteral("تعليمات"),  QStringLiteral("المساعدة"), QStringLiteral("ヘルプ"),
        QStringLiteral("도움말"),   QStringLiteral("帮助"),     QStringLiteral("幫助"),
        QStringLiteral("說明"),     QStringLiteral("輔助說明"), QStringLiteral("求助")};
    return words;
}

// "帮助(&H)" and "&Help" as they are read.
QString withoutMnemonic(QString text)
{
    static const QRegularExpression added(QStringLiteral("\\(&.\\)"));
    return text.remove(added).remove(QLatin1Char('&')).trimmed();
}

bool isHelp(const QAction& entry)
{
    const QLatin1String help("help");
    return helpWords().contains(withoutMnemonic(entry.text()).toLower()) ||
           entry.objectName().contains(help, Qt::CaseInsensitive) ||
           (entry.menu() && entry.menu()->objectName().contains(help, Qt::CaseInsensitive));
}

} // namespace

QAction* helpEntry(const QMenuBar& bar)
{
    const QList<QAction*> entries = bar.actions();
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        if (isHelp(**entry))
            return *entry;
    }
    return nullptr;
}

} // namespace Panorel::Plugin
