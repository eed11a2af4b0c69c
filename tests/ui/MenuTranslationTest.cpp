// SPDX-License-Identifier: MIT
#include "NameDialog.h"

#include "support/MenuReading.h"
#include "support/Text.h"
#include "ui/FileDialogUser.h"
#include "ui/ReportedUserData.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTranslator>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Which texts go through translation, and under which context. */
class MenuTranslationTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { FileDialogUser::prepareProcess(); }

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void menu();
    void skippedLabelIsNotTranslated();
    void fileDialogs_data();
    void fileDialogs();
    void nameDialog();
    void nameDialogMessages();

private:
    std::unique_ptr<QTranslator> m_translator;
};

namespace {

/** Translates every text of the library's classes into itself with a letter for its class. */
class Marker : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override
    {
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        if (qstrcmp(context, "Panorel::Menu") == 0)
            return "M:"_s + QString::fromUtf8(source);
        if (qstrcmp(context, "Panorel::NameDialog") == 0)
            return "N:"_s + QString::fromUtf8(source);
        return QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void MenuTranslationTest::initTestCase()
{
    m_translator = std::make_unique<Marker>();
    QVERIFY(QCoreApplication::installTranslator(m_translator.get()));
}

void MenuTranslationTest::cleanupTestCase()
{
    m_translator.reset();
}

void MenuTranslationTest::menu()
{
    Manager manager({"G"_s}, false);
    QVERIFY(manager.createView("a"_s));
    const Menu menu(&manager, true, nullptr);
    QCOMPARE(menu.title(), "M:Layouts"_s);
    QCOMPARE(entries(menu),
             lines({"a", "---", "M:Save Current Layout As... >", "M:Delete Layout... >", "---",
                    "M:Export ...", "M:Import ...", "M:Import & Merge ...", "---",
                    "M:Reset Layout to Program Start (off)",
                    "M:Reset Layout to Factory Default (off)"}));
}

void MenuTranslationTest::skippedLabelIsNotTranslated()
{
    reportedUserData().insert("a"_s, true);
    Manager manager({"G"_s}, false);
    QVERIFY(manager.createView("a"_s));
    const Menu menu(&manager, false, nullptr);
    QCOMPARE(entries(menu).first(), "a (skipped)"_s);
    reportedUserData().clear();
}

void MenuTranslationTest::fileDialogs_data()
{
    QTest::addColumn<QString>("entryText");
    QTest::addColumn<QString>("caption");

    QTest::newRow("export") << "M:Export ..."
                            << "M:Save Layouts";
    QTest::newRow("import") << "M:Import ..."
                            << "M:Load Layouts";
    QTest::newRow("merge") << "M:Import & Merge ..."
                           << "M:Load Layouts";
}

void MenuTranslationTest::fileDialogs()
{
    QFETCH(QString, entryText);
    QFETCH(QString, caption);

    Manager manager({"G"_s}, false);
    const Menu menu(&manager, true, nullptr);
    QString title;
    QStringList filters;
    const FileDialogUser user([&](QFileDialog& dialog) {
        title = dialog.windowTitle();
        filters = dialog.nameFilters();
        FileDialogUser::cancel(dialog);
    });
    entry(&menu, entryText)->trigger();
    QVERIFY(user.wasUsed());
    QCOMPARE(title, caption);
    QCOMPARE(filters, lines({"M:View File (*.views)", "All Files (*.*)"}));
}

void MenuTranslationTest::nameDialog()
{
    Manager manager({"G"_s}, false);
    const NameDialog dialog(&manager, QStringList(), false);
    QCOMPARE(dialog.windowTitle(), "N:Save Layout"_s);
    QStringList texts;
    const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
    for (const QLabel* label : labels)
        texts.append(label->text());
    texts.sort();
    QCOMPARE(texts, lines({"N:&Name of the layout:", "N:Name must not be empty!"}));
}

void MenuTranslationTest::nameDialogMessages()
{
    Manager manager({"G"_s}, false);
    const NameDialog dialog(&manager, lines({"used"}), false);
    const auto* message = dialog.findChild<QLabel*>("messageLabel"_s);
    auto* edit = dialog.findChild<QLineEdit*>();
    edit->setText("used"_s);
    QCOMPARE(message->text(), "N:Name already in use!"_s);
    edit->setText("  "_s);
    QCOMPARE(message->text(), "N:Name must not be empty!"_s);
}

QTEST_MAIN(MenuTranslationTest)
#include "MenuTranslationTest.moc"
