// SPDX-License-Identifier: MIT
#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Panorel;

/** Layouts that come from files. */
class TransferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void layoutsAreAdded();
    void sameNameIsReplaced();
    void refusedFiles_data();
    void refusedFiles();
    void withoutTheManagerThereIsNoReason();
    void pipeIsRefused();
    void unsoundPartsAreLeftOut();
    void otherGroups();

private:
    QByteArray documentWith(const QStringList& views)
    {
        Manager other({QStringLiteral("Editing")}, /*mergeOnApply=*/false);
        Kit::Layouts layouts(other);
        layouts.addWindow(m_window, QStringLiteral("main"));
        for (const QString& view : views)
            other.createView(view);
        return other.toXml(/*markActive=*/false);
    }

    QString write(const QByteArray& bytes)
    {
        const QString name = m_folder.filePath(QStringLiteral("file.views"));
        QFile file(name);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? name
                                                                                    : QString();
    }

    QTemporaryDir m_folder;
    QMainWindow m_window;
    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<Kit::Layouts> m_layouts;
};

void TransferTest::init()
{
    if (m_window.findChildren<QDockWidget*>().isEmpty()) {
        auto* dock = new QDockWidget(&m_window);
        dock->setObjectName(QStringLiteral("dock"));
        m_window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    }
    m_layouts.reset();
    m_manager = std::make_unique<Manager>(QStringList{QStringLiteral("Editing")}, false);
    m_layouts = std::make_unique<Kit::Layouts>(*m_manager);
    m_layouts->addWindow(m_window, QStringLiteral("main"));
    m_manager->createView(QStringLiteral("Mine"));
}

void TransferTest::layoutsAreAdded()
{
    QSignalSpy messages(m_layouts.get(), &Kit::Layouts::message);
    QString problem = QStringLiteral("as before");
    QVERIFY(m_layouts->importFile(write(documentWith({QStringLiteral("A"), QStringLiteral("B")})),
                                  &problem));
    QCOMPARE(problem, QString());
    QCOMPARE(m_manager->views(),
             (QStringList{QStringLiteral("Mine"), QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(messages.count(), 1);
    QVERIFY(messages[0][0].toString().contains(QStringLiteral("file.views")));
}

void TransferTest::sameNameIsReplaced()
{
    QVERIFY(m_layouts->importFile(write(documentWith({QStringLiteral("Mine")}))));
    QCOMPARE(m_manager->views(), QStringList{QStringLiteral("Mine")});
}

void TransferTest::refusedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("prose") << QByteArray("no layouts");
    QTest::newRow("cut off") << documentWith({QStringLiteral("A")}).chopped(30);
    QTest::newRow("other version") << documentWith({QStringLiteral("A")}).replace("1.1.0", "2.0.0");
    QTest::newRow("without layouts") << documentWith({});
}

void TransferTest::refusedFiles()
{
    QFETCH(QByteArray, bytes);
    QSignalSpy modified(m_manager.get(), &Manager::groupModified);
    const QString name = write(bytes);
    QString problem;
    QVERIFY(!m_layouts->importFile(name, &problem));
    QVERIFY2(problem.contains(QStringLiteral("file.views")), qPrintable(problem));
    QVERIFY(!m_layouts->importFile(name));
    QCOMPARE(modified.count(), 0);
    QCOMPARE(m_manager->views(), QStringList{QStringLiteral("Mine")});
}

void TransferTest::withoutTheManagerThereIsNoReason()
{
    m_manager.reset();
    QString problem = QStringLiteral("as before");
    QVERIFY(!m_layouts->importFile(write(documentWith({QStringLiteral("A")})), &problem));
    QCOMPARE(problem, QStringLiteral(""));
    QVERIFY(!problem.isNull());
}

void TransferTest::pipeIsRefused()
{
    const QString name = m_folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    QString problem;
    QVERIFY(!m_layouts->importFile(name, &problem));
    QVERIFY(!problem.isEmpty());
}

void TransferTest::unsoundPartsAreLeftOut()
{
    QByteArray document = documentWith({QStringLiteral("A")});
    // The side of the first dock record; it would crash a window.
    const int state = document.indexOf("<State DescriptorId=\"main\">");
    document.replace(document.indexOf("fd00000001", state) + 10, 8, "00000009");
    QSignalSpy messages(m_layouts.get(), &Kit::Layouts::message);
    QVERIFY(m_layouts->importFile(write(document)));
    QVERIFY(m_manager->views().contains(QStringLiteral("A")));
    QVERIFY(!m_manager->toXml(false).contains("fd0000000100000009"));
    QCOMPARE(messages.count(), 1);
    QVERIFY(m_manager->activateView(QStringLiteral("A")));
}

void TransferTest::otherGroups()
{
    const QByteArray document =
        documentWith({QStringLiteral("A")}).replace("Name=\"Editing\"", "Name=\"Drawing\"");
    QString problem;
    QVERIFY(!m_layouts->importFile(write(document), &problem));
    QVERIFY(problem.contains(QStringLiteral("file.views")));
}

QTEST_MAIN(TransferTest)
#include "TransferTest.moc"
