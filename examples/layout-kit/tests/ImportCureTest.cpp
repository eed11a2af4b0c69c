// SPDX-License-Identifier: MIT
#include "CuresFixture.h"

#include <QFileDialog>
#include <QTemporaryDir>
#include <QTimer>

/** An import is told for what it was, whatever the file. */
class ImportCureTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString write(const QByteArray& bytes)
    {
        QString name = m_folder.filePath(QStringLiteral("a.views"));
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(name));
        return name;
    }

    // Chooses the file in the menu's own dialog, or closes it for an empty name.
    static void import(CuresFixture& f, const QString& label, const QString& fileName)
    {
        QTimer::singleShot(0, &f.menu, [fileName] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                qFatal("no dialog has opened");
            if (fileName.isEmpty()) {
                dialog->reject();
                return;
            }
            auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit->setText(fileName);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        f.entry(f.menu, label)->trigger();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(m_folder.isValid());
    }

    void outcomeIsTold_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QStringList>("views");
        QTest::addColumn<bool>("canUndo");
        const QString import = QStringLiteral("Import ...");
        const QString merge = QStringLiteral("Import & Merge ...");
        const QStringList mine{QStringLiteral("Mine")};
        const QStringList theirs{QStringLiteral("Theirs")};

        QTest::newRow("good") << import << QByteArray() << QByteArray()
                              << QStringLiteral("Imported the layouts of \"a.views\".") << theirs
                              << true;
        QTest::newRow("good, merged")
            << merge << QByteArray() << QByteArray()
            << QStringLiteral("Imported the layouts of \"a.views\".") << mine + theirs << true;
        QTest::newRow("damaged") << import << QByteArray("</ViewData>") << QByteArray()
                                 << QStringLiteral(
                                        "\"a.views\" cannot be read; nothing was changed.")
                                 << mine << false;
        QTest::newRow("another version")
            << import << QByteArray("\"1.1.0\"") << QByteArray("\"1.2.0\"")
            << QStringLiteral("\"a.views\" is of another version; nothing was changed.") << mine
            << false;
        QTest::newRow("another version, merged")
            << merge << QByteArray("\"1.1.0\"") << QByteArray("\"1.2.0\"")
            << QStringLiteral("\"a.views\" is of another version; nothing was changed.") << mine
            << false;
        QTest::newRow("other groups")
            << import << QByteArray("Group Name=\"") << QByteArray("Group Name=\"Other ")
            << QStringLiteral("\"a.views\" has no layouts for this program: none are left.")
            << QStringList() << true;
    }

    void outcomeIsTold()
    {
        QFETCH(QString, label);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, message);
        QFETCH(QStringList, views);
        QFETCH(bool, canUndo);
        CuresFixture f;
        f.save(QStringLiteral("Theirs"));
        QByteArray document = f.manager.toXml(/*markActive=*/true);
        if (!from.isEmpty())
            document.replace(from, to);
        const QString fileName = write(document);
        f.manager.clear();
        f.dock.close();
        f.save(QStringLiteral("Mine"));
        LayoutCures::explainImports(f.menu, f.manager, f.undo, f.tell());

        import(f, label, fileName);
        QCOMPARE(f.told, QStringList{message});
        QCOMPARE(f.manager.views(), views);
        QCOMPARE(f.undo.canUndo(), canUndo);
        f.undo.undo();
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("Mine")});
        QCOMPARE(f.manager.activeView(), QStringLiteral("Mine"));
        QVERIFY(f.dock.isHidden());
    }

    void cancellingTellsNothing()
    {
        CuresFixture f;
        f.save(QStringLiteral("Mine"));
        LayoutCures::explainImports(f.menu, f.manager, f.undo, f.tell());
        import(f, QStringLiteral("Import ..."), QString());
        QCOMPARE(f.told, QStringList());
        QVERIFY(!f.undo.canUndo());
    }

    void cancellingAfterAnImportTellsNothing()
    {
        CuresFixture f;
        LayoutCures::explainImports(f.menu, f.manager, f.undo, f.tell());
        import(f, QStringLiteral("Import ..."), write(f.manager.toXml(/*markActive=*/true)));
        QCOMPARE(f.told.size(), 1);
        import(f, QStringLiteral("Import ..."), QString());
        QCOMPARE(f.told.size(), 1);
    }
};

QTEST_MAIN(ImportCureTest)
#include "ImportCureTest.moc"
