// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/Text.h"
#include "ui/MenuFileFixture.h"

#include <QFileDialog>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** The file dialogs of export, import, and import with merge, and what follows when they are left.
 */
class MenuFileTest : public MenuFileFixture
{
    Q_OBJECT

private Q_SLOTS:
    void dialog_data();
    void dialog();
    void cancelled_data();
    void cancelled();
    void startsWhereTheLastOneEnded_data();
    void startsWhereTheLastOneEnded();
};

void MenuFileTest::dialog_data()
{
    QTest::addColumn<QByteArray>("entryText");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("saves");

    QTest::newRow("export") << QByteArray("Export ...") << "Save Layouts"_s << true;
    QTest::newRow("import") << QByteArray("Import ...") << "Load Layouts"_s << false;
    QTest::newRow("merge") << QByteArray("Import & Merge ...") << "Load Layouts"_s << false;
}

void MenuFileTest::dialog()
{
    QFETCH(QByteArray, entryText);
    QFETCH(QString, caption);
    QFETCH(bool, saves);

    QVERIFY(use(entryText.constData(), [&](QFileDialog& dialog) {
        FileDialogUser::cancel(dialog);
        QCOMPARE(dialog.windowTitle(), caption);
        QCOMPARE(dialog.parentWidget(), m_menu.get());
        QCOMPARE(dialog.nameFilters(), lines({"View File (*.views)", "All Files (*.*)"}));
        QCOMPARE(dialog.selectedNameFilter(), "View File (*.views)"_s);
        QCOMPARE(dialog.options(), QFileDialog::Options());
        QCOMPARE(dialog.defaultSuffix(), QString());
        QCOMPARE(dialog.acceptMode(), saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        QCOMPARE(dialog.fileMode(), saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    }));
}

void MenuFileTest::cancelled_data()
{
    QTest::addColumn<QByteArray>("entryText");

    QTest::newRow("export") << QByteArray("Export ...");
    QTest::newRow("import") << QByteArray("Import ...");
    QTest::newRow("merge") << QByteArray("Import & Merge ...");
}

void MenuFileTest::cancelled()
{
    QFETCH(QByteArray, entryText);

    Owner counter;
    m_manager->registerManagable(counter);
    QVERIFY(use(entryText.constData(), &FileDialogUser::cancel));
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->views(), lines({"own", "n"}));
    QCOMPARE(counter.calls, 0);
}

void MenuFileTest::startsWhereTheLastOneEnded_data()
{
    cancelled_data();
}

void MenuFileTest::startsWhereTheLastOneEnded()
{
    QFETCH(QByteArray, entryText);

    // That is what Qt makes of a start folder that is left open.
    QVERIFY(use("Export ...", [&](QFileDialog& dialog) {
        dialog.setDirectory(m_folder->path());
        FileDialogUser::choose(dialog, "a.views"_s);
    }));
    QString start;
    QVERIFY(use(entryText.constData(), [&](QFileDialog& dialog) {
        start = dialog.directory().canonicalPath();
        FileDialogUser::cancel(dialog);
    }));
    QCOMPARE(start, QDir(m_folder->path()).canonicalPath());
}

QTEST_MAIN(MenuFileTest)
#include "MenuFileTest.moc"
