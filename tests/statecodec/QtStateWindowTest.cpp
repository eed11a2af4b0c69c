// SPDX-License-Identifier: MIT
#include "support/Differences.h"

#include <panorel/QtState.h>

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>
#include <QtTest>

namespace Panorel::Tests {

/** States of windows that live while the test runs, read and given back to them. */
class QtStateWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void stateOfWindowIsRead();
    void writtenStateRestoresTheWindow();
    void mergedStateRestoresDocksAndLeavesToolBars();
    void emptyFirstIsRefusedByTheWindow();
};

namespace {

/** A window with two dock widgets on the left and two tool bars in one line at the top. */
class Window : public QMainWindow
{
public:
    Window()
    {
        for (QDockWidget* const dock : {&m_first, &m_second}) {
            dock->setObjectName(dock == &m_first ? QStringLiteral("first")
                                                 : QStringLiteral("second"));
            addDockWidget(Qt::LeftDockWidgetArea, dock);
        }
        m_fileBar.setObjectName(QStringLiteral("file"));
        m_editBar.setObjectName(QStringLiteral("edit"));
        addToolBar(&m_fileBar);
        addToolBar(&m_editBar);
    }

    QDockWidget m_first{this};
    QDockWidget m_second{this};
    QToolBar m_fileBar{this};
    QToolBar m_editBar{this};
};

} // namespace

void QtStateWindowTest::stateOfWindowIsRead()
{
    Window window;
    window.m_second.hide();
    window.m_editBar.hide();
    QtState state;
    QVERIFY(state.read(window.saveState(12)));
    QCOMPARE(state.m_version, 12);
    const Dock& dock = state.m_dockAreaLayouts.at(0).docks.at(0);
    QCOMPARE(dock.area, 0);
    QCOMPARE(int(dock.block.orientation), int(Qt::Vertical));
    QCOMPARE(dock.block.items.size(), std::size_t(2));
    QCOMPARE(dock.block.items[0].objectName, QStringLiteral("first"));
    QCOMPARE(dock.block.items[0].flags & 1, 1);
    QCOMPARE(dock.block.items[1].objectName, QStringLiteral("second"));
    QCOMPARE(dock.block.items[1].flags & 1, 0);
    const int corners[4] = {Qt::TopDockWidgetArea, Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea,
                            Qt::BottomDockWidgetArea};
    QCOMPARE(difference("corners", state.m_dockAreaLayouts[0].corners, corners), QString());
    const Line& line = state.m_toolBarAreaLayouts.at(0).lines.at(0);
    QCOMPARE(line.area, 2);
    QCOMPARE(line.items.size(), std::size_t(2));
    QCOMPARE(line.items[0].objectName, QStringLiteral("file"));
    QCOMPARE(line.items[0].shown & 1, 1);
    QCOMPARE(line.items[1].objectName, QStringLiteral("edit"));
    QCOMPARE(line.items[1].shown & 1, 0);
}

void QtStateWindowTest::writtenStateRestoresTheWindow()
{
    Window window;
    window.tabifyDockWidget(&window.m_first, &window.m_second);
    const QByteArray saved = window.saveState();
    QtState state;
    QVERIFY(state.read(saved));
    QCOMPARE(difference(state.write(), saved), QString());
    window.addDockWidget(Qt::RightDockWidgetArea, &window.m_second);
    QVERIFY(window.tabifiedDockWidgets(&window.m_first).isEmpty());
    QVERIFY(window.restoreState(state.write()));
    QCOMPARE(window.tabifiedDockWidgets(&window.m_first), {&window.m_second});
}

void QtStateWindowTest::mergedStateRestoresDocksAndLeavesToolBars()
{
    Window window;
    const QByteArray stored = window.saveState();
    window.addDockWidget(Qt::BottomDockWidgetArea, &window.m_first);
    window.addDockWidget(Qt::BottomDockWidgetArea, &window.m_second);
    window.addToolBar(Qt::BottomToolBarArea, &window.m_fileBar);
    window.m_editBar.hide();
    QtState a;
    QtState b;
    QVERIFY(a.read(stored));
    QVERIFY(b.read(window.saveState()));
    QVERIFY(window.restoreState(QtState::merge(a, b).write()));
    QCOMPARE(window.dockWidgetArea(&window.m_first), Qt::LeftDockWidgetArea);
    QCOMPARE(window.dockWidgetArea(&window.m_second), Qt::LeftDockWidgetArea);
    QCOMPARE(window.toolBarArea(&window.m_fileBar), Qt::BottomToolBarArea);
    QVERIFY(window.m_editBar.isHidden());
}

void QtStateWindowTest::emptyFirstIsRefusedByTheWindow()
{
    Window window;
    QtState live;
    QVERIFY(live.read(window.saveState()));
    const QByteArray before = window.saveState();
    QVERIFY(!window.restoreState(QtState::merge(QtState(), live).write(), -1));
    QVERIFY(!window.restoreState(QtState::merge(QtState(), live).write()));
    QCOMPARE(difference(window.saveState(), before), QString());
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::QtStateWindowTest)
#include "QtStateWindowTest.moc"
