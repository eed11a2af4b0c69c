// SPDX-License-Identifier: MIT
#include "ui/FileDialogUser.h"

#ifdef Q_OS_UNIX
#include "FullDisk.h"
#endif

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Panorel;
using Tests::FileDialogUser;

/** "Export ...", "Import ..." and "Import & Merge ..." of the kit's menu, by their dialogs. */
class LayoutsFileEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportCompletesTheName();
    void exportReplacesTheFileWhole();
    void exportToAFullDiskLeavesTheFile();
    void importReplaces();
    void importAndMergeAdds();
    void importOfSomethingElseChangesNothing();
    void cancelledDialogsChangeNothing();
    void windowMayGoFirst();
    void windowMayGoForTheFile();

private:
    /** A Manager with the layout "Mine", and the kit's menu. */
    struct Fixture
    {
        Fixture()
            : manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false)
            , layouts(manager)
            , messages(&layouts, &Kit::Layouts::message)
        {
            auto* dock = new QDockWidget(&window);
            dock->setObjectName(QStringLiteral("dock"));
            window.addDockWidget(Qt::LeftDockWidgetArea, dock);
            layouts.addWindow(window, QStringLiteral("main"));
            menu = layouts.createMenu(&window);
            manager.createView(QStringLiteral("Mine"));
        }

        /** Triggers the entry and enters a file name in its dialog; cancels it without one. */
        bool use(const QString& entry, const QString& fileName,
                 QMessageBox::StandardButton answer = QMessageBox::NoButton)
        {
            FileDialogUser user(
                [&](QFileDialog& dialog) {
                    if (fileName.isEmpty())
                        FileDialogUser::cancel(dialog);
                    else
                        FileDialogUser::choose(dialog, fileName);
                },
                answer);
            const QList<QAction*> actions = menu->actions();
            for (QAction* action : actions) {
                if (action->text() == entry)
                    action->trigger();
            }
            const auto isClosed = [&] {
                return user.wasUsed() && !window.findChild<QFileDialog*>();
            };
            const bool wasClosed = QTest::qWaitFor(isClosed, 30000);
            // What is done with the file comes after that.
            QCoreApplication::processEvents();
            return wasClosed;
        }

        QMainWindow window;
        Manager manager;
        Kit::Layouts layouts;
        QSignalSpy messages;
        QMenu* menu;
    };

    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QByteArray read(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    QTemporaryDir m_folder;
};

void LayoutsFileEntriesTest::exportCompletesTheName()
{
    Fixture f;
    QVERIFY(f.use(QStringLiteral("Export ..."), path("exported")));
    QVERIFY(!QFile::exists(path("exported")));
    QVERIFY(read("exported.views").contains("Name=\"Mine\""));
    QCOMPARE(f.messages.count(), 1);
}

void LayoutsFileEntriesTest::exportReplacesTheFileWhole()
{
    Fixture f;
    write("old.views", QByteArray(100000, 'x'));
    QVERIFY(f.use(QStringLiteral("Export ..."), path("old.views"), QMessageBox::Yes));
    QCOMPARE(read("old.views"), f.manager.toXml(/*markActive=*/false));
}

void LayoutsFileEntriesTest::exportToAFullDiskLeavesTheFile()
{
#ifdef Q_OS_UNIX
    Fixture f;
    const QByteArray before(2000, 'x');
    write("old.views", before);
    {
        const Tests::FullDisk disk(100);
        QVERIFY(f.use(QStringLiteral("Export ..."), path("old.views"), QMessageBox::Yes));
    }
    QCOMPARE(read("old.views"), before);
    QCOMPARE(f.messages.count(), 1);
    QVERIFY(f.messages.at(0).at(0).toString().startsWith(
        QStringLiteral("\"old.views\" cannot be written: ")));
#else
    QSKIP("The size of files cannot be limited.");
#endif
}

void LayoutsFileEntriesTest::importReplaces()
{
    Fixture f;
    write("other.views", f.manager.toXml(false).replace("Name=\"Mine\"", "Name=\"Other\""));
    QVERIFY(f.use(QStringLiteral("Import ..."), path("other.views")));
    QCOMPARE(f.manager.views(), QStringList{QStringLiteral("Other")});
}

void LayoutsFileEntriesTest::importAndMergeAdds()
{
    Fixture f;
    write("other.views", f.manager.toXml(false).replace("Name=\"Mine\"", "Name=\"Other\""));
    QVERIFY(f.use(QStringLiteral("Import && Merge ..."), path("other.views")));
    QCOMPARE(f.manager.views(), (QStringList{QStringLiteral("Mine"), QStringLiteral("Other")}));
}

void LayoutsFileEntriesTest::importOfSomethingElseChangesNothing()
{
    Fixture f;
    write("prose.views", "no layouts");
    QSignalSpy modified(&f.manager, &Manager::groupModified);
    for (const char* entry : {"Import ...", "Import && Merge ..."})
        QVERIFY(f.use(QString::fromLatin1(entry), path("prose.views")));
    QCOMPARE(modified.count(), 0);
    QCOMPARE(f.messages.count(), 2);
    QVERIFY(f.messages[0][0].toString().contains(QStringLiteral("prose.views")));
}

void LayoutsFileEntriesTest::cancelledDialogsChangeNothing()
{
    Fixture f;
    QSignalSpy modified(&f.manager, &Manager::groupModified);
    for (const char* entry : {"Export ...", "Import ...", "Import && Merge ..."})
        QVERIFY(f.use(QString::fromLatin1(entry), QString()));
    QCOMPARE(modified.count(), 0);
    QCOMPARE(f.messages.count(), 0);
}

void LayoutsFileEntriesTest::windowMayGoFirst()
{
    for (const char* entry : {"Export ...", "Import ...", "Import && Merge ..."}) {
        Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
        Kit::Layouts layouts(manager);
        auto window = std::make_unique<QMainWindow>();
        layouts.addWindow(*window, QStringLiteral("main"));
        QMenu* const menu = layouts.createMenu(window.get());
        bool isGone = false;
        FileDialogUser user([&](QFileDialog&) {
            window.reset();
            isGone = true;
        });
        const QList<QAction*> actions = menu->actions();
        for (QAction* action : actions) {
            if (action->text() == QString::fromLatin1(entry))
                action->trigger();
        }
        QTRY_VERIFY_WITH_TIMEOUT(isGone, 30000);
        QVERIFY(user.wasUsed());
    }
}

// Such as by a program that starts anew with other layouts.
void LayoutsFileEntriesTest::windowMayGoForTheFile()
{
    Manager manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
    Kit::Layouts layouts(manager);
    auto window = std::make_unique<QMainWindow>();
    layouts.addWindow(*window, QStringLiteral("main"));
    QMenu* const menu = layouts.createMenu(window.get());
    connect(&layouts, &Kit::Layouts::message, this, [&] { window.reset(); });
    FileDialogUser user(
        [&](QFileDialog& dialog) { FileDialogUser::choose(dialog, path("gone.views")); });
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->text() == QStringLiteral("Export ..."))
            action->trigger();
    }
    QTRY_VERIFY_WITH_TIMEOUT(!window, 30000);
    QVERIFY(QFile::exists(path("gone.views")));
}

int main(int argc, char* argv[])
{
    FileDialogUser::prepareProcess();
    QApplication app(argc, argv);
    LayoutsFileEntriesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LayoutsFileEntriesTest.moc"
