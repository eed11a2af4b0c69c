// SPDX-License-Identifier: MIT
#include "support/ArrangementGenerator.h"
#include "support/ShownArrangement.h"

#include <panorel/kit/WindowState.h>

#include <QtTest>

#include <set>

namespace Panorel::Tests {

using Kit::WindowState;

/** What real windows show in generated arrangements is what their states say. */
class ArrangementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameSeedSameArrangement();
    void everyKindIsThere();
    void stateSaysWhatTheWindowShows();
};

void ArrangementTest::sameSeedSameArrangement()
{
    for (const quint32 seed : {1U, 50U, 77U}) {
        ArrangedWindow one(seed);
        ArrangedWindow other(seed);
        one.show();
        other.show();
        QCOMPARE(shownArrangement(one), shownArrangement(other));
        QCOMPARE(one.saveState(), other.saveState());
    }
}

// 500 seeds produce all that states can hold; otherwise tests that use them test less than they
// say.
void ArrangementTest::everyKindIsThere()
{
    std::set<QString> kinds;
    for (quint32 seed = 0; seed < 500; ++seed) {
        const ArrangedWindow window(seed);
        const WindowState state(window.saveState());
        QVERIFY2(state.isReadable(), qPrintable(QString::number(seed)));
        for (const WindowState::DockWidget& dock : state.dockWidgets()) {
            kinds.insert("area %1"_s.arg(dock.area));
            kinds.insert("tab %1"_s.arg(dock.tab ? dock.tab->index : -1));
            kinds.insert("floating %1, visible %2"_s.arg(dock.isFloating).arg(dock.isVisible));
        }
        for (const WindowState::ToolBar& bar : state.toolBars())
            kinds.insert("bar area %1, line %2"_s.arg(bar.area).arg(bar.line));
        kinds.insert("floating tab groups %1"_s.arg(state.floatingTabs().size()));
    }
    for (const char* const kind :
         {"area 0", "area 1", "area 2", "area 4", "area 8", "tab 0", "tab 1", "tab 2",
          "floating 0, visible 0", "floating 1, visible 0", "floating 1, visible 1",
          "bar area 1, line 1", "bar area 2, line 0", "bar area 4, line 2", "bar area 8, line 0",
          "floating tab groups 0", "floating tab groups 1"})
        QVERIFY2(kinds.count(QString::fromLatin1(kind)) == 1, kind);
}

void ArrangementTest::stateSaysWhatTheWindowShows()
{
    for (quint32 seed = 0; seed < 60; ++seed) {
        ArrangedWindow window(seed);
        window.show();
        QCoreApplication::processEvents();
        const WindowState state(window.saveState());
        QCOMPARE(state.dockWidgets().size(), window.docks().size());
        for (const WindowState::DockWidget& said : state.dockWidgets()) {
            auto* const dock = window.findChild<QDockWidget*>(said.name);
            QCOMPARE(said.isVisible, !dock->isHidden());
            QCOMPARE(said.isFloating, dock->isFloating());
            QCOMPARE(said.area, window.dockWidgetArea(dock));
            if (said.isFloating)
                QCOMPARE(QRect(said.position, said.size), dock->geometry());
            else if (said.isVisible && !said.tab)
                QCOMPARE(said.size, dock->size());
        }
        QCOMPARE(state.toolBars().size(), window.bars().size());
        for (const WindowState::ToolBar& said : state.toolBars()) {
            auto* const bar = window.findChild<QToolBar*>(said.name);
            QCOMPARE(said.isVisible, !bar->isHidden());
            QCOMPARE(said.isVertical, bar->orientation() == Qt::Vertical);
            QCOMPARE(said.area, window.toolBarArea(bar));
        }
    }
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::ArrangementTest)
#include "ArrangementTest.moc"
