// SPDX-License-Identifier: MIT
#include "EditorWindow.h"

#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/QtState.h>
#include <panorel/kit/WindowState.h>

#include <QDataStream>
#include <QFile>
#include <QTabBar>
#include <QTest>

namespace Panorel::Tests {

namespace {

const QString mine = QStringLiteral("Mine");

// Every size that a round of restoring and saving again gives the window's blob.
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

// Two dock widgets that can be tabs of one floating window, as in the recorded state.
class GroupedWindow : public QMainWindow, public IManagable
{
public:
    GroupedWindow()
    {
        setDockOptions(dockOptions() | QMainWindow::GroupedDragging);
        for (const QString& name : {"First"_s, "Second"_s}) {
            auto* dock = new QDockWidget(name, this);
            dock->setObjectName(name);
            addDockWidget(Qt::LeftDockWidgetArea, dock);
        }
        bar = addToolBar("edit"_s);
        bar->setObjectName("edit"_s);
    }

    bool floatTogether()
    {
        QFile file(QFINDTESTDATA("../data/blobs/rejected/floating-tabs.blob"));
        // The recorded window has no tool bar; this one's is to stay.
        const QByteArray dockAreas = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const QByteArray own = saveState();
        return restoreState(dockAreas.left(dockAreas.size() - 5) +
                            own.mid(own.indexOf(QByteArray::fromHex("fc00000001"))));
    }

    bool areTogether() const
    {
        return dockOf(*this, "First"_s)->parentWidget() != this &&
               dockOf(*this, "First"_s)->isVisible() && dockOf(*this, "Second"_s)->isVisible();
    }

    QList<ManagedWindow> managedWindows() override { return {{"main"_s, this}}; }

    QToolBar* bar = nullptr;
};

} // namespace

/** What the guide says of a Manager that merges. */
class MergingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void docksComeFromTheViewAndBarsStay();
    void thePlaceOfABarComesBackWithTheDocument();
    void layoutsGrow();
    void aProgramThatIsOnlyStartedGrowsToo();
    void thoseWithDocksOnOneSideDoNot();
    void theCureKeepsThemAsTheyAre();
    void theCureKeepsTheArrangement_data();
    void theCureKeepsTheArrangement();
    void anOpenFloatingTabGroupTakesTheToolBarsAway();
    void aStoredFloatingTabGroupIsClosed();
    void aHiddenToolBarWithoutNameAppears();
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

// Each run reads the document of the last one and writes its own; no layout is saved.
void MergingTest::aProgramThatIsOnlyStartedGrowsToo()
{
    QByteArray document;
    QVector<int> sizes;
    for (int run = 0; run < 5; ++run) {
        Manager manager({"Group"_s}, /*mergeOnApply=*/true);
        EditorWindow window;
        window.addDockWidget(Qt::RightDockWidgetArea, dockOf(window, "outline"_s));
        manager.registerManagable(window);
        QVERIFY(document.isEmpty() || manager.fromXml(document, /*merge=*/false));
        document = manager.toXml(/*markActive=*/true);
        sizes.append(document.size());
    }
    // With three sides, each run adds more than the one before.
    for (int i = 2; i < sizes.size(); ++i)
        QVERIFY(sizes[i] - sizes[i - 1] > sizes[i - 1] - sizes[i - 2]);
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
    QObject::connect(&manager, &Panorel::Manager::viewActivated, &window, [&window] {
        window.restoreState(Panorel::Kit::WindowState(window.saveState()).tidied());
    });
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
    QVERIFY(other.restoreState(Kit::WindowState(grown).tidied()));
    QCOMPARE(other.dockWidgetArea(dockOf(other, "files"_s)), Qt::LeftDockWidgetArea);
    QCOMPARE(other.dockWidgetArea(dockOf(other, "outline"_s)), Qt::RightDockWidgetArea);
    QCOMPARE(other.tabifiedDockWidgets(dockOf(other, "outline"_s)),
             QList<QDockWidget*>{dockOf(other, "output"_s)});
    QCOMPARE(tabOnTop(other), dockOf(other, onTop)->windowTitle());
    QCOMPARE(other.saveState().size(), before.size());
}

void MergingTest::anOpenFloatingTabGroupTakesTheToolBarsAway()
{
    GroupedWindow window;
    window.show();
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(window);
    manager.saveCurrentViewAs(mine);
    QVERIFY(window.floatTogether());
    QVERIFY(window.areTogether());
    QCOMPARE(window.toolBarArea(window.bar), Qt::TopToolBarArea);
    // The group's section, as the page on the format says.
    const QWidget* group = dockOf(window, "First"_s)->parentWidget();
    QByteArray section;
    QDataStream(&section, QIODevice::WriteOnly)
        << quint8(0xF9) << group->geometry() << quint8(0xFA);
    const QByteArray state = window.saveState();
    QVERIFY(state.contains(section));
    QtState value;
    QVERIFY(!value.read(state));
    QCOMPARE(value.m_dockAreaLayouts.size(), std::size_t{1});
    QCOMPARE(value.m_toolBarAreaLayouts.size(), std::size_t{0});

    QVERIFY(manager.activateView(mine));
    QCOMPARE(window.toolBarArea(window.bar), Qt::NoToolBarArea);
}

void MergingTest::aStoredFloatingTabGroupIsClosed()
{
    for (const bool mergeOnApply : {false, true}) {
        GroupedWindow window;
        window.show();
        const QByteArray plain = window.saveState();
        Manager manager({"Group"_s}, mergeOnApply);
        manager.registerManagable(window);
        QVERIFY(window.floatTogether());
        manager.saveCurrentViewAs(mine);
        QVERIFY(window.restoreState(plain));
        QVERIFY(!window.areTogether());
        QVERIFY(manager.activateView(mine));
        QCOMPARE(window.areTogether(), !mergeOnApply);
        QCOMPARE(dockOf(window, "First"_s)->isHidden(), mergeOnApply);
        QCOMPARE(window.toolBarArea(window.bar), Qt::TopToolBarArea);
    }
}

void MergingTest::aHiddenToolBarWithoutNameAppears()
{
    for (const bool mergeOnApply : {false, true}) {
        EditorWindow window;
        window.addToolBar("first"_s);
        window.addToolBarBreak();
        QToolBar* hidden = window.addToolBar("second"_s);
        hidden->hide();
        window.show();
        Manager manager({"Group"_s}, mergeOnApply);
        manager.registerManagable(window);
        manager.saveCurrentViewAs(mine);
        QVERIFY(manager.activateView(mine));
        QCOMPARE(hidden->isHidden(), !mergeOnApply);
    }
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::MergingTest)
#include "MergingTest.moc"
