// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"
#include "ui/MenuFileFixture.h"

#include <QFileDialog>
#include <QTextCodec>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Import, and import with merge, through the file dialog to the end, without a word. */
class MenuImportTest : public MenuFileFixture
{
    Q_OBJECT

private Q_SLOTS:
    void imported_data();
    void imported();
    void importedInvalid_data();
    void importedInvalid();
    void importedFromNoFile_data();
    void importedFromNoFile();
    void importedAgain();
};

namespace {

QByteArray utf16(QByteArray document)
{
    document.replace("encoding=\"UTF-8\"", "encoding=\"UTF-16\"");
    return QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(document));
}

} // namespace

void MenuImportTest::imported_data()
{
    QTest::addColumn<QByteArray>("entryText");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("views");
    QTest::addColumn<QString>("active");

    const QByteArray import = "Import ...";
    const QByteArray merge = "Import & Merge ...";
    QTest::newRow("replaced") << import << documentWith("x") << lines({"own", "x"}) << QString();
    QTest::newRow("merged") << merge << documentWith("x") << lines({"own", "n", "x"}) << "own"_s;
    // A document of another version counts as read.
    const QByteArray other = documentWith("x").replace("1.1.0", "1.1.1");
    QTest::newRow("replaced by nothing") << import << other << QStringList() << QString();
    QTest::newRow("merged with nothing") << merge << other << lines({"own", "n"}) << "own"_s;
    // Line ends are the text mode's to read.
    QByteArray lineEnds = documentWith("x");
    lineEnds.replace("\n", "\r\n");
    QTest::newRow("CR LF") << import << lineEnds << lines({"own", "x"}) << QString();
    // Half of each line end goes, and the characters after it are torn apart: nothing is imported.
    QTest::newRow("CR LF in UTF-16") << import << utf16(lineEnds) << lines({"own", "n"}) << "own"_s;
    QTest::newRow("LF in UTF-16") << import << utf16(documentWith("x")) << lines({"own", "x"})
                                  << QString();
    const QByteArray marked =
        documentWith("x").replace("<View Name=\"x\"", "<View Active=\"1\" Name=\"x\"");
    QTest::newRow("marked") << import << marked << lines({"own", "x"}) << "x"_s;
}

void MenuImportTest::imported()
{
    QFETCH(QByteArray, entryText);
    QFETCH(QByteArray, document);
    QFETCH(QStringList, views);
    QFETCH(QString, active);

    QVERIFY(choose(entryText.constData(), fileWith(document)));
    QCOMPARE(m_manager->views(), views);
    QCOMPARE(m_manager->activeView(), active);
    if (int index = views.indexOf(active); index >= 0)
        views[index].prepend("* "_s);
    QCOMPARE(entries(*m_menu).mid(0, viewEntries(*m_menu).size()), views);
}

void MenuImportTest::importedInvalid_data()
{
    QTest::addColumn<QByteArray>("entryText");
    QTest::addColumn<QByteArray>("document");

    const QByteArray import = "Import ...";
    const QByteArray merge = "Import & Merge ...";
    QTest::newRow("empty") << import << QByteArray();
    QTest::newRow("empty, merge") << merge << QByteArray();
    QTest::newRow("no document") << import << QByteArray("views");
    QTest::newRow("cut off, merge") << merge << document().left(200);
    QTest::newRow("no groups") << import << QByteArray("<ViewData Version=\"1.1.0\"/>");
}

void MenuImportTest::importedInvalid()
{
    QFETCH(QByteArray, entryText);
    QFETCH(QByteArray, document);

    QVERIFY(choose(entryText.constData(), fileWith(document)));
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->views(), lines({"own", "n"}));
    QCOMPARE(entries(*m_menu).mid(0, 2), lines({"* own", "n"}));
}

void MenuImportTest::importedFromNoFile_data()
{
    QTest::addColumn<QByteArray>("entryText");

    QTest::newRow("import") << QByteArray("Import ...");
    QTest::newRow("merge") << QByteArray("Import & Merge ...");
}

void MenuImportTest::importedFromNoFile()
{
    QFETCH(QByteArray, entryText);

    const QString file = fileWith(documentWith("x"));
    QVERIFY(use(entryText.constData(), [&](QFileDialog& dialog) {
        // Somebody removes the file after it was chosen.
        connect(&dialog, &QFileDialog::fileSelected, this, [&] { QVERIFY(QFile::remove(file)); });
        FileDialogUser::choose(dialog, file);
    }));
    QVERIFY(!QFile::exists(file));
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->views(), lines({"own", "n"}));
}

void MenuImportTest::importedAgain()
{
    QVERIFY(choose("Export ...", path("out.views")));
    m_manager->clear();
    QCOMPARE(m_manager->views(), QStringList());
    QVERIFY(choose("Import ...", path("out.views")));
    QCOMPARE(m_manager->views(), lines({"own", "n"}));
    // No view is marked in the file.
    QCOMPARE(m_manager->activeView(), QString());
}

QTEST_MAIN(MenuImportTest)
#include "MenuImportTest.moc"
