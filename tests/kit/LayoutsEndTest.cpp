// SPDX-License-Identifier: MIT
#include "FourSidesWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/Layouts.h>
#include <panorel/kit/WindowState.h>

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

WindowState::DockWidget dockIn(const QString& fileName, const QString& name)
{
    const auto current = LayoutDocument(contentOf(fileName)).currentView("G"_s);
    const auto docks = WindowState(current.states.value("main"_s)).dockWidgets();
    for (const WindowState::DockWidget& dock : docks) {
        if (dock.name == name)
            return dock;
    }
    return {};
}

} // namespace

class LayoutsEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyEndKeepsFloatingDocks_data();
    void everyEndKeepsFloatingDocks();
    void aKilledProgramLeavesAWholeFile();
    void fortyDays_data();
    void fortyDays();
};

void LayoutsEndTest::everyEndKeepsFloatingDocks_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"close", "closeAll", "closeTwo", "hide", "quit", "deleteWindow",
                            "managerFirst", "withoutExec", "killed"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void LayoutsEndTest::everyEndKeepsFloatingDocks()
{
    QFETCH(QString, way);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("f.views"_s);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(ENDING_PROGRAM), {fileName, way});
    QVERIFY(process.waitForFinished());
    const WindowState::DockWidget left = dockIn(fileName, "left"_s);
    QVERIFY(left.isFloating);
    QVERIFY(left.isVisible);
    QCOMPARE(QRect(left.position, left.size), QRect(50, 60, 210, 220));
}

void LayoutsEndTest::aKilledProgramLeavesAWholeFile()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("f.views"_s);
    QRandomGenerator random(12);
    for (int i = 0; i < 200; ++i) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(ENDING_PROGRAM), {fileName, "saving"_s});
        // It writes when the file is there for the first time.
        QVERIFY(process.waitForReadyRead());
        usleep(random.bounded(5000u));
        process.kill();
        QVERIFY(process.waitForFinished());
        const LayoutDocument document(contentOf(fileName));
        QVERIFY(document.isReadable());
        QCOMPARE(document.viewNames("G"_s), QStringList({"a"_s, "b"_s}));
    }
}

void LayoutsEndTest::fortyDays_data()
{
    QTest::addColumn<bool>("floats");
    QTest::newRow("docked") << false;
    QTest::newRow("with a floating tab group") << true;
}

// Every day the program starts, is looked at and ends; nobody saves anything.
void LayoutsEndTest::fortyDays()
{
    QFETCH(bool, floats);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("f.views"_s);
    int first = 0;
    for (int day = 1; day <= 40; ++day) {
        Manager manager({"G"_s}, /*mergeOnApply=*/true);
        FourSidesWindow window;
        window.show();
        Layouts layouts(manager);
        layouts.addWindow(window, "main"_s);
        layouts.start(fileName);
        QCoreApplication::processEvents();
        if (day == 1) {
            window.rearrangeDocks();
            window.addToolBar(Qt::BottomToolBarArea, window.mainBar);
            if (floats)
                window.floatAsTabs();
            manager.saveCurrentViewAs("a"_s);
        }
        QCOMPARE(window.dockWidgetArea(window.left), Qt::RightDockWidgetArea);
        QCOMPARE(window.toolBarArea(window.mainBar), Qt::BottomToolBarArea);
        QCOMPARE(window.floatsAsTabs(), floats);
        window.close();
        QVERIFY(layouts.save());
        const int bytes = contentOf(fileName).size();
        if (day == 1)
            first = bytes;
        QCOMPARE(bytes, first);
    }
}

QTEST_MAIN(LayoutsEndTest)
#include "LayoutsEndTest.moc"
