// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/Owner.h"
#include "support/SampleWindow.h"

#include <panorel/Manager.h>

#include <QTabBar>
#include <QtTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

QString placeOf(const SampleWindow& window, const QDockWidget& dock)
{
    const QString area =
        dock.isFloating() ? "floating"_s
                          : QString::number(window.dockWidgetArea(const_cast<QDockWidget*>(&dock)));
    return dock.objectName() + ": "_s + area + (dock.isHidden() ? " hidden"_s : ""_s);
}

QString sizeOf(const QWidget& widget)
{
    return QString::number(widget.width()) + "x"_s + QString::number(widget.height());
}

/** Where each dock widget is. */
QStringList docksOf(const SampleWindow& window)
{
    QStringList result;
    for (const QDockWidget* dock : window.docks())
        result.append(placeOf(window, *dock));
    return result;
}

QStringList dockSizesOf(const SampleWindow& window)
{
    QStringList result;
    for (const QDockWidget* dock : window.docks())
        result.append(dock->objectName() + ": "_s + sizeOf(*dock));
    return result;
}

/** The visible tabs from first to last, the one on top in brackets. */
QStringList tabsOf(const SampleWindow& window)
{
    QStringList result;
    for (const QTabBar* tabs : window.findChildren<QTabBar*>()) {
        for (int index = 0; tabs->isVisible() && index < tabs->count(); ++index) {
            const QString text = tabs->tabText(index);
            result.append(index == tabs->currentIndex() ? QString("["_s + text + "]"_s) : text);
        }
    }
    return result;
}

/** Where each tool bar is, whether it starts a line, and whether it is hidden. */
QStringList barsOf(const SampleWindow& window)
{
    QStringList result;
    for (QToolBar* bar : window.bars())
        result.append(bar->objectName() + ": "_s + QString::number(window.toolBarArea(bar)) +
                      (window.toolBarBreak(bar) ? " new line"_s : ""_s) +
                      (bar->isHidden() ? " hidden"_s : ""_s));
    return result;
}

} // namespace

/** A real window goes to a saved view and back: what the user sees of it. */
class ManagerSwitchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void docksComeBack();
    void tabsComeBack();
    void dockSizesComeBack();
    void floatingDockComesBackInPlace();
    void barsComeBackUnlessMerged();
    void thereAndBack();
    void hiddenDockIsHiddenAgain();
    void twoWindows();

private:
    void rearrange();

    std::unique_ptr<MessageWatch> m_watch;
    std::unique_ptr<SampleWindow> m_window;
    std::unique_ptr<Owner> m_owner;
    std::unique_ptr<Manager> m_manager;
};

void ManagerSwitchTest::initTestCase_data()
{
    QTest::addColumn<bool>("merge");

    QTest::newRow("plain") << false;
    QTest::newRow("merging") << true;
}

void ManagerSwitchTest::init()
{
    QFETCH_GLOBAL(bool, merge);
    m_watch = std::make_unique<MessageWatch>(MessageWatch::Started);
    m_window = std::make_unique<SampleWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_owner = std::make_unique<Owner>(QList<ManagedWindow>{{"editor"_s, m_window.get()}});
    m_manager = std::make_unique<Manager>(lines({"G"}), merge);
    m_manager->registerManagable(*m_owner);
    QVERIFY(m_manager->createView("first"_s));
}

void ManagerSwitchTest::cleanup()
{
    m_manager.reset();
    m_owner.reset();
    m_window.reset();
    QCOMPARE(m_watch->messages(), QStringList());
    m_watch.reset();
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

void ManagerSwitchTest::rearrange()
{
    m_window->rearrangeDocks();
    m_window->rearrangeBars();
    QCoreApplication::processEvents();
}

void ManagerSwitchTest::docksComeBack()
{
    const QStringList first =
        lines({"Files: 1", "Outline: 1", "Properties: 2", "Output: 8", "Palette: floating"});
    const QStringList second =
        lines({"Files: 4", "Outline: 2", "Properties: 1", "Output: 8 hidden", "Palette: 2"});
    QCOMPARE(docksOf(*m_window), first);
    rearrange();
    QCOMPARE(docksOf(*m_window), second);
    QVERIFY(m_manager->activateView("first"_s));
    QCOMPARE(docksOf(*m_window), first);
}

void ManagerSwitchTest::tabsComeBack()
{
    QCOMPARE(tabsOf(*m_window), lines({"Files", "[Outline]"}));
    rearrange();
    QCOMPARE(tabsOf(*m_window), QStringList());
    QVERIFY(m_manager->activateView("first"_s));
    QCoreApplication::processEvents();
    QCOMPARE(tabsOf(*m_window), lines({"Files", "[Outline]"}));
}

void ManagerSwitchTest::dockSizesComeBack()
{
    m_window->resizeDocks({m_window->outline, m_window->properties}, {311, 222}, Qt::Horizontal);
    m_window->resizeDocks({m_window->output}, {133}, Qt::Vertical);
    QCoreApplication::processEvents();
    QCOMPARE(m_window->outline->width(), 311);
    QCOMPARE(m_window->properties->width(), 222);
    QCOMPARE(m_window->output->height(), 133);
    QVERIFY(m_manager->createView("sized"_s));
    const QStringList sizes = dockSizesOf(*m_window);

    m_window->resizeDocks({m_window->outline, m_window->properties}, {200, 300}, Qt::Horizontal);
    m_window->resizeDocks({m_window->output}, {200}, Qt::Vertical);
    QCoreApplication::processEvents();
    QVERIFY(dockSizesOf(*m_window) != sizes);
    QVERIFY(m_manager->activateView("sized"_s));
    QCoreApplication::processEvents();
    QCOMPARE(dockSizesOf(*m_window), sizes);
}

void ManagerSwitchTest::floatingDockComesBackInPlace()
{
    const QRect place(120, 90, 210, 160);
    m_window->palette->setGeometry(place);
    QVERIFY(m_manager->createView("placed"_s));
    m_window->palette->setGeometry(300, 300, 150, 150);
    m_window->palette->hide();
    QVERIFY(m_manager->activateView("placed"_s));
    QVERIFY(m_window->palette->isFloating());
    QVERIFY(m_window->palette->isVisible());
    QCOMPARE(m_window->palette->geometry(), place);
}

void ManagerSwitchTest::barsComeBackUnlessMerged()
{
    QFETCH_GLOBAL(bool, merge);
    const QStringList first = lines({"Main: 4", "Edit: 4", "View: 4 new line"});
    const QStringList second = lines({"Main: 1", "Edit: 4 hidden", "View: 8"});
    QCOMPARE(barsOf(*m_window), first);
    rearrange();
    QCOMPARE(barsOf(*m_window), second);
    QVERIFY(m_manager->activateView("first"_s));
    QCOMPARE(barsOf(*m_window), merge ? second : first);
}

void ManagerSwitchTest::thereAndBack()
{
    const QStringList firstDocks = docksOf(*m_window);
    rearrange();
    const QStringList secondDocks = docksOf(*m_window);
    QVERIFY(m_manager->createView("second"_s));
    for (int time = 0; time < 3; ++time) {
        QVERIFY(m_manager->activateView("first"_s));
        QCoreApplication::processEvents();
        QCOMPARE(docksOf(*m_window), firstDocks);
        QCOMPARE(tabsOf(*m_window), lines({"Files", "[Outline]"}));
        QVERIFY(m_manager->activateView("second"_s));
        QCoreApplication::processEvents();
        QCOMPARE(docksOf(*m_window), secondDocks);
        QCOMPARE(tabsOf(*m_window), QStringList());
    }
}

void ManagerSwitchTest::hiddenDockIsHiddenAgain()
{
    m_window->properties->hide();
    QVERIFY(m_manager->createView("hidden"_s));
    m_window->properties->show();
    QVERIFY(m_manager->activateView("hidden"_s));
    QVERIFY(m_window->properties->isHidden());
    QVERIFY(m_manager->activateView("first"_s));
    QVERIFY(m_window->properties->isVisible());
}

void ManagerSwitchTest::twoWindows()
{
    SampleWindow other;
    other.rearrangeDocks();
    m_owner->windows.append({"other"_s, &other});
    QVERIFY(m_manager->createView("both"_s));
    const QStringList firstDocks = docksOf(*m_window);
    const QStringList otherDocks = docksOf(other);
    rearrange();
    other.addDockWidget(Qt::BottomDockWidgetArea, other.files);
    QVERIFY(m_manager->activateView("both"_s));
    QCOMPARE(docksOf(*m_window), firstDocks);
    QCOMPARE(docksOf(other), otherDocks);
}

QTEST_MAIN(ManagerSwitchTest)
#include "ManagerSwitchTest.moc"
