// SPDX-License-Identifier: MIT
#include "support/SignalLog.h"
#include "support/Text.h"
#include "ui/FileDialogUser.h"
#include "ui/Hands.h"
#include "ui/MenuReading.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QFileDialog>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Export, import, and import with merge, through the file dialogs to the end, without a word. */
class MenuFileTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { FileDialogUser::prepareProcess(); }

private Q_SLOTS:
    void init();
    void cleanup();
    void dialog_data();
    void dialog();
    void cancelled_data();
    void cancelled();
    void startsWhereTheLastOneEnded_data();
    void startsWhereTheLastOneEnded();
    void exported();
    void exportedInTheLocalesEncoding_data();
    void exportedInTheLocalesEncoding();
    void exportedOverAFile();
    void exportedOverNoFile();
    void exportedIntoNoFolder();
    void imported_data();
    void imported();
    void importedInvalid_data();
    void importedInvalid();
    void importedFromNoFile_data();
    void importedFromNoFile();
    void importedAgain();

private:
    bool use(const char* entryText, const FileDialogUser::Use& use,
             QMessageBox::StandardButton answer = QMessageBox::NoButton);
    bool choose(const char* entryText, const QString& fileName,
                QMessageBox::StandardButton answer = QMessageBox::NoButton);
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QString fileWith(const QByteArray& content) const;
    QByteArray content(const QString& fileName) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Menu> m_menu;
    std::unique_ptr<SignalLog> m_signals;
    QtMessageHandler m_messageHandler = nullptr;
};

namespace {

/** Owns no window; tells how often a layout was captured or restored. */
class Counter : public IManagable
{
public:
    QList<ManagedWindow> managedWindows() override
    {
        ++asked;
        return {};
    }
    int asked = 0;
};

// Views "own", active, and "n".
QByteArray document()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <Groups>
        <Group Name="G">
            <Views>
                <View Name="own">
                    <UserData></UserData>
                </View>
                <View Name="n">
                    <UserData></UserData>
                </View>
            </Views>
            <CurrentView Name="__current__">
                <UserData></UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)";
}

QByteArray documentWith(const char* view)
{
    return document().replace("Name=\"n\"", QByteArray("Name=\"") + view + "\"");
}

// What is logged while a test runs, but for what the platforms say of windows now and then.
QStringList& logged()
{
    static QStringList messages;
    return messages;
}

void keepMessage(QtMsgType, const QMessageLogContext& context, const QString& message)
{
    const bool fromPlatform = QByteArray(context.category).startsWith("qt.qpa") ||
                              message.startsWith("This plugin does not support "_s);
    if (!fromPlatform)
        logged().append(message);
}

} // namespace

void MenuFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    QVERIFY(m_manager->saveCurrentViewAs("own"_s));
    QVERIFY(m_manager->createView("n"_s));
    m_menu = std::make_unique<Menu>(m_manager.get(), true, nullptr);
    m_signals = std::make_unique<SignalLog>(*m_manager);
    logged().clear();
    m_messageHandler = qInstallMessageHandler(keepMessage);
}

void MenuFileTest::cleanup()
{
    qInstallMessageHandler(m_messageHandler);
    m_signals.reset();
    m_menu.reset();
    m_manager.reset();
    m_folder.reset();
    QCOMPARE(logged().join(QLatin1Char('\n')), QString());
}

bool MenuFileTest::use(const char* entryText, const FileDialogUser::Use& use,
                       QMessageBox::StandardButton answer)
{
    if (!Hands::open(*m_menu))
        return false;
    const FileDialogUser user(use, answer);
    Hands::click(*m_menu, entry(m_menu.get(), QString::fromUtf8(entryText)));
    return user.wasUsed() && !m_menu->isVisible();
}

bool MenuFileTest::choose(const char* entryText, const QString& fileName,
                          QMessageBox::StandardButton answer)
{
    return use(
        entryText, [&](QFileDialog& dialog) { FileDialogUser::choose(dialog, fileName); }, answer);
}

QString MenuFileTest::fileWith(const QByteArray& content) const
{
    QFile file(path("given.views"));
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return written ? file.fileName() : QString();
}

QByteArray MenuFileTest::content(const QString& fileName) const
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

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

    Counter counter;
    m_manager->registerManagable(counter);
    QVERIFY(use(entryText.constData(), &FileDialogUser::cancel));
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->views(), lines({"own", "n"}));
    QCOMPARE(counter.asked, 0);
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

void MenuFileTest::exported()
{
    Counter counter;
    m_manager->registerManagable(counter);
    QVERIFY(choose("Export ...", path("out.views")));
    QCOMPARE(content(path("out.views")), document());
    // The live layout was captured once for it.
    QCOMPARE(counter.asked, 1);
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->activeView(), "own"_s);
}

void MenuFileTest::exportedInTheLocalesEncoding_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("\xC3\xA9");
    QTest::newRow("ISO 8859-1") << QByteArray("ISO 8859-1") << QByteArray("\xE9");
    QTest::newRow("CP850") << QByteArray("IBM 850") << QByteArray("\x82");
}

void MenuFileTest::exportedInTheLocalesEncoding()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, bytes);

    m_manager->deleteView("n"_s);
    QVERIFY(m_manager->createView("\u00e9"_s));
    QTextCodec* localeCodec = QTextCodec::codecForLocale();
    QVERIFY(QTextCodec::codecForName(codec));
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
    const bool exported = choose("Export ...", path("out.views"));
    QTextCodec::setCodecForLocale(localeCodec);
    QVERIFY(exported);
    QCOMPARE(content(path("out.views")), documentWith(bytes.constData()));
}

void MenuFileTest::exportedOverAFile()
{
    const QString file = fileWith(QByteArray(5000, 'x'));
    QVERIFY(choose("Export ...", file, QMessageBox::Yes));
    QCOMPARE(content(file), document());
}

void MenuFileTest::exportedOverNoFile()
{
    const QString file = fileWith("kept");
    QVERIFY(choose("Export ...", file, QMessageBox::No));
    QCOMPARE(content(file), QByteArray("kept"));
}

void MenuFileTest::exportedIntoNoFolder()
{
    Counter counter;
    m_manager->registerManagable(counter);
    QVERIFY(choose("Export ...", path("missing/out.views")));
    QVERIFY(!QFile::exists(path("missing")));
    QCOMPARE(counter.asked, 0);
    QCOMPARE(m_signals->take(), QStringList());
}

void MenuFileTest::imported_data()
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
    const QByteArray marked =
        documentWith("x").replace("<View Name=\"x\"", "<View Active=\"1\" Name=\"x\"");
    QTest::newRow("marked") << import << marked << lines({"own", "x"}) << "x"_s;
}

void MenuFileTest::imported()
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

void MenuFileTest::importedInvalid_data()
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

void MenuFileTest::importedInvalid()
{
    QFETCH(QByteArray, entryText);
    QFETCH(QByteArray, document);

    QVERIFY(choose(entryText.constData(), fileWith(document)));
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->views(), lines({"own", "n"}));
    QCOMPARE(entries(*m_menu).mid(0, 2), lines({"* own", "n"}));
}

void MenuFileTest::importedFromNoFile_data()
{
    QTest::addColumn<QByteArray>("entryText");

    QTest::newRow("import") << QByteArray("Import ...");
    QTest::newRow("merge") << QByteArray("Import & Merge ...");
}

void MenuFileTest::importedFromNoFile()
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

void MenuFileTest::importedAgain()
{
    QVERIFY(choose("Export ...", path("out.views")));
    m_manager->clear();
    QCOMPARE(m_manager->views(), QStringList());
    QVERIFY(choose("Import ...", path("out.views")));
    QCOMPARE(m_manager->views(), lines({"own", "n"}));
    // No view is marked in the file.
    QCOMPARE(m_manager->activeView(), QString());
}

QTEST_MAIN(MenuFileTest)
#include "MenuFileTest.moc"
