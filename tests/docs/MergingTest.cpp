// SPDX-License-Identifier: MIT
#include "EditorWindow.h"
#include "WithoutRepeats.h"

#include "support/RecordedBlobs.h"
#include "support/Text.h"

#include <panorel/Manager.h>

#include <QTabBar>
#include <QTest>

namespace Panorel::Tests {

namespace {

const QString mine = QStringLiteral("Mine");

// Every size that a round of restoring and saving anew gives the window's blob.
QVector<int> sizesInRounds(QMainWindow& window, Manager& manager, int rounds)
{
    QVector<int> sizes;
    for (int round = 0; round < rounds; ++round) {
        manager.saveCurrentViewAs(mine);
        manager.activateView(mine);
        sizes.append(window.saveState().size());
    }
    return sizes;
}

QString tabOnTop(const QMainWindow& window)
{
    for (const QTabBar* tabs : window.findChildren<QTabBar*>()) {
        if (tabs->count() > 1)
            return tabs->tabText(tabs->currentIndex());
    }
    return QString();
}

} // namespace

/** What the guide says of a Manager that merges. */
class MergingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void docksComeFromTheViewAndBarsStay();
    void thePlaceOfABarComesBackWithTheDocument();
    void layoutsGrow();
    void thoseWithDocksOnOneSideDoNot();
    void theCureKeepsThemAsTheyAre();
    void theCureKeepsTheArrangement_data();
    void theCureKeepsTheArrangement();
    void theCureLeavesOtherBytesAlone();
    void theCureLeavesRecordedLayoutsAlone();
};

void MergingTest::docksComeFromTheViewAndBarsStay()
{
    EditorWindow window;
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(window);
    manager.saveCurrentViewAs(mine);
    QToolBar* bar = window.findChild<QToolBar*>("edit"_s);
    window.addToolBar(Qt::BottomToolBarArea, bar);
    window.addDockWidget(Qt::TopDockWidgetArea, dockOf(window, "files"_s));
    QVERIFY(manager.activateView(mine));
    QCOMPARE(window.toolBarArea(bar), Qt::BottomToolBarArea);
    QCOMPARE(window.dockWidgetArea(dockOf(window, "files"_s)), Qt::LeftDockWidgetArea);
}

void MergingTest::thePlaceOfABarComesBackWithTheDocument()
{
    QByteArray document;
    {
        EditorWindow window;
        Manager manager({"Group"_s}, /*mergeOnApply=*/true);
        manager.registerManagable(window);
        window.addToolBar(Qt::BottomToolBarArea, window.findChild<QToolBar*>("edit"_s));
        document = manager.toXml(/*markActive=*/true);
    }
    EditorWindow window;
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(window);
    QVERIFY(manager.fromXml(document, /*merge=*/false));
    QCOMPARE(window.toolBarArea(window.findChild<QToolBar*>("edit"_s)), Qt::BottomToolBarArea);
}

void MergingTest::layoutsGrow()
{
    EditorWindow window;
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(window);
    const QVector<int> sizes = sizesInRounds(window, manager, 4);
    for (int i = 1; i < sizes.size(); ++i)
        QVERIFY2(sizes[i] > sizes[i - 1], qPrintable(QString::number(sizes[i])));
}

void MergingTest::thoseWithDocksOnOneSideDoNot()
{
    EditorWindow window;
    window.addDockWidget(Qt::LeftDockWidgetArea, dockOf(window, "output"_s));
    window.addToolBarBreak(); // Lines of tool bars do not matter.
    window.addToolBar("Second"_s)->setObjectName("second"_s);
    const int size = window.saveState().size();
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(window);
    QCOMPARE(sizesInRounds(window, manager, 3), QVector<int>({size, size, size}));
}

void MergingTest::theCureKeepsThemAsTheyAre()
{
    EditorWindow window;
    window.addToolBarBreak();
    window.addToolBar("Second"_s)->setObjectName("second"_s);
    const int size = window.saveState().size();
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(window);
    //! [tidy]
    QObject::connect(&manager, &Panorel::Manager::viewActivated, &window,
                     [&window] { window.restoreState(withoutRepeats(window.saveState())); });
    //! [tidy]
    QCOMPARE(sizesInRounds(window, manager, 4), QVector<int>({size, size, size, size}));
}

void MergingTest::theCureKeepsTheArrangement_data()
{
    QTest::addColumn<QString>("onTop");
    QTest::newRow("first tab") << "outline"_s;
    QTest::newRow("second tab") << "output"_s;
}

void MergingTest::theCureKeepsTheArrangement()
{
    QFETCH(QString, onTop);
    EditorWindow window;
    window.addDockWidget(Qt::RightDockWidgetArea, dockOf(window, "outline"_s));
    window.tabifyDockWidget(dockOf(window, "outline"_s), dockOf(window, "output"_s));
    window.show();
    dockOf(window, onTop)->raise();
    const QByteArray before = window.saveState();
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(window);
    manager.saveCurrentViewAs(mine);
    window.addDockWidget(Qt::TopDockWidgetArea, dockOf(window, "outline"_s));
    QVERIFY(manager.activateView(mine));
    const QByteArray grown = window.saveState();
    QVERIFY(grown.size() > before.size());

    EditorWindow other;
    other.show();
    QVERIFY(other.restoreState(withoutRepeats(grown)));
    QCOMPARE(other.dockWidgetArea(dockOf(other, "files"_s)), Qt::LeftDockWidgetArea);
    QCOMPARE(other.dockWidgetArea(dockOf(other, "outline"_s)), Qt::RightDockWidgetArea);
    QCOMPARE(other.tabifiedDockWidgets(dockOf(other, "outline"_s)),
             QList<QDockWidget*>{dockOf(other, "output"_s)});
    QCOMPARE(tabOnTop(other), dockOf(other, onTop)->windowTitle());
    QCOMPARE(other.saveState().size(), before.size());
}

void MergingTest::theCureLeavesOtherBytesAlone()
{
    QCOMPARE(withoutRepeats("not a layout"), QByteArray("not a layout"));
    EditorWindow window;
    QCOMPARE(withoutRepeats(window.saveState()), window.saveState());
}

// What real windows have saved that never were restored with merging.
void MergingTest::theCureLeavesRecordedLayoutsAlone()
{
    const auto blobs = recordedBlobs(QFINDTESTDATA("../data/blobs"));
    QVERIFY(!blobs.empty());
    for (const auto& blob : blobs)
        QVERIFY2(withoutRepeats(blob.bytes) == blob.bytes, blob.name.constData());
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::MergingTest)
#include "MergingTest.moc"
