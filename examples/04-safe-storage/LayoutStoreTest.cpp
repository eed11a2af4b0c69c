// SPDX-License-Identifier: MIT
#include "LayoutStore.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>

#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QTest>

namespace {

/** A window with a dock widget, shown. */
struct Program : Panorel::IManagable
{
    Program()
    {
        dock.setObjectName(QStringLiteral("dock"));
        window.addDockWidget(Qt::LeftDockWidgetArea, &dock);
        manager.registerManagable(*this);
        window.show();
        isShown = QTest::qWaitForWindowExposed(&window);
    }

    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("window"), &window}};
    }

    Panorel::Manager manager{{QStringLiteral("Group")}, /*mergeOnApply=*/false};
    QMainWindow window;
    QDockWidget dock;
    bool isShown;
};

} // namespace

/** Layouts are there in the next run, and no file is lost, whatever is in it. */
class LayoutStoreTest : public QObject
{
    Q_OBJECT

private:
    static void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(name));
    }

    static QByteArray read(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void nextRunHasTheLayouts()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("new/folder/layouts.views"));
        {
            Program program;
            LayoutStore store(name);
            QCOMPARE(store.load(program.manager), QString());
            program.manager.saveCurrentViewAs(QStringLiteral("Wide"));
            program.dock.close();
            QCOMPARE(store.save(program.manager), QString());
        }
        Program program;
        LayoutStore store(name);
        QCOMPARE(store.load(program.manager), QString());
        QCOMPARE(program.manager.views(), QStringList{QStringLiteral("Wide")});
        QCOMPARE(program.manager.activeView(), QStringLiteral("Wide"));
        QVERIFY(program.dock.isHidden());
    }

    // As after QApplication::exec(), when the user has closed the window.
    void closedWindowIsSavedAsItWas_data()
    {
        QTest::addColumn<bool>("floating");
        QTest::newRow("docked") << false;
        QTest::newRow("floating") << true;
    }

    void closedWindowIsSavedAsItWas()
    {
        QFETCH(bool, floating);
        Program program;
        program.dock.setFloating(floating);
        QCoreApplication::processEvents();
        const QByteArray shown = program.manager.toXml(/*markActive=*/true);
        program.window.close();
        QCoreApplication::processEvents();
        QCOMPARE(program.manager.toXml(/*markActive=*/true), shown);
    }

    void unreadableFileIsKept_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty") << QByteArray() << QStringLiteral("It is damaged.");
        QTest::newRow("cut off") << QByteArray(
                                        "<?xml version=\"1.0\"?><ViewData Version=\"1.1.0\"><Gro")
                                 << QStringLiteral("It is damaged.");
        QTest::newRow("another version")
            << QByteArray("<?xml version=\"1.0\"?><ViewData Version=\"2\"><Groups/></ViewData>")
            << QStringLiteral("It was written by another version of this program.");
    }

    void unreadableFileIsKept()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("layouts.views"));
        write(name + QStringLiteral(".unreadable-1"), "an earlier one");
        write(name, bytes);
        Program program;
        program.manager.saveCurrentViewAs(QStringLiteral("Mine"));
        LayoutStore store(name);
        const QString message = store.load(program.manager);
        QVERIFY2(message.contains(reason), qPrintable(message));
        QVERIFY2(message.contains(QStringLiteral("layouts.views.unreadable-2")),
                 qPrintable(message));
        QCOMPARE(program.manager.views(), QStringList{QStringLiteral("Mine")});

        QCOMPARE(store.save(program.manager), QString());
        QCOMPARE(read(name + QStringLiteral(".unreadable-1")), QByteArray("an earlier one"));
        QCOMPARE(read(name + QStringLiteral(".unreadable-2")), bytes);
        QVERIFY(read(name).contains("Mine"));
    }

    // Its folder cannot be created, because a file has that name.
    void failureToSaveIsTold()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("file"));
        write(file, "x");
        Program program;
        LayoutStore store(file + QStringLiteral("/layouts.views"));
        QCOMPARE(store.load(program.manager), QString());
        const QString message = store.save(program.manager);
        QVERIFY2(message.contains(QStringLiteral("could not be saved")), qPrintable(message));
        QCOMPARE(read(file), QByteArray("x"));
    }
};

QTEST_MAIN(LayoutStoreTest)
#include "LayoutStoreTest.moc"
