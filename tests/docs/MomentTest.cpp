// SPDX-License-Identifier: MIT
#include "WhenShown.h"

#include "support/Owner.h"
#include "support/Text.h"

#include <panorel/Manager.h>

#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QTest>
#include <QTextEdit>

namespace Panorel::Tests {

namespace {

constexpr int firstWidth = 400;
constexpr int savedWidth = 500;

// It is narrower at first than its dock widget becomes when it is maximised.
class Window : public QMainWindow
{
public:
    Window()
    {
        resize(firstWidth, 300);
        setCentralWidget(new QTextEdit);
        m_dock->setObjectName("dock"_s);
        m_dock->setWidget(new QTextEdit);
        addDockWidget(Qt::LeftDockWidgetArea, m_dock);
    }

    void widenDock() { resizeDocks({m_dock}, {savedWidth}, Qt::Horizontal); }
    int dockWidth() const { return m_dock->width(); }

private:
    QDockWidget* m_dock = new QDockWidget(this);
};

} // namespace

/**
 * When a maximised window may be given its layout: what the guide says of it. Run offscreen and
 * with a real window manager, where a window has its size only some time after it was shown.
 */
class MomentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aLayoutRestoredBeforeTheWindowIsShownGetsOtherSizes();
    void soDoesOneRestoredRightAfterShow();
    void oneRestoredWhenTheWindowIsOnTheScreenGetsItsOwn();
    void severalWindowsAreWaitedFor();
    void anIconIsWaitedFor();
    void aWindowOfItsSavedSizeMayBeRestoredBefore();

private:
    QByteArray m_geometry;
    QByteArray m_document;
};

void MomentTest::initTestCase()
{
    Window window;
    window.showMaximized();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(window.width() > firstWidth);
    window.widenDock();
    QTRY_COMPARE(window.dockWidth(), savedWidth);
    Owner owner({{"main"_s, &window}});
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(owner);
    m_document = manager.toXml(/*markActive=*/true);
    m_geometry = window.saveGeometry();
}

void MomentTest::aLayoutRestoredBeforeTheWindowIsShownGetsOtherSizes()
{
    Window window;
    Owner owner({{"main"_s, &window}});
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(owner);
    QVERIFY(window.restoreGeometry(m_geometry));
    QVERIFY(manager.fromXml(m_document, /*merge=*/false));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(window.width() > firstWidth);
    QVERIFY2(window.dockWidth() < savedWidth, qPrintable(QString::number(window.dockWidth())));
}

void MomentTest::soDoesOneRestoredRightAfterShow()
{
    Window window;
    Owner owner({{"main"_s, &window}});
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(owner);
    QVERIFY(window.restoreGeometry(m_geometry));
    window.show();
    QCOMPARE(window.width(), firstWidth); // Still.
    QVERIFY(manager.fromXml(m_document, /*merge=*/false));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(window.width() > firstWidth);
    QVERIFY2(window.dockWidth() < savedWidth, qPrintable(QString::number(window.dockWidth())));
}

void MomentTest::oneRestoredWhenTheWindowIsOnTheScreenGetsItsOwn()
{
    const QByteArray geometry = m_geometry;
    const QByteArray document = m_document;
    Window window;
    Owner owner({{"main"_s, &window}});
    Manager manager({"Group"_s}, /*mergeOnApply=*/false);
    manager.registerManagable(owner);
    bool isLoaded = false;
    //! [moment]
    window.restoreGeometry(geometry); // From saveGeometry(): the application's own affair.
    window.show();
    new WhenShown({&window}, [&] { isLoaded = manager.fromXml(document, /*merge=*/false); });
    //! [moment]
    QVERIFY(!isLoaded);
    QTRY_VERIFY(isLoaded);
    QVERIFY(window.width() > firstWidth);
    QTRY_COMPARE(window.dockWidth(), savedWidth);
}

void MomentTest::severalWindowsAreWaitedFor()
{
    Window first;
    Window second;
    first.show();
    second.show();
    int calls = 0;
    bool areShown = false;
    new WhenShown({&first, &second}, [&] {
        ++calls;
        areShown = first.windowHandle()->isExposed() && second.windowHandle()->isExposed();
    });
    QTRY_COMPARE(calls, 1);
    QVERIFY(areShown);
    second.hide();
    second.show();
    QVERIFY(QTest::qWaitForWindowExposed(&second));
    QCoreApplication::processEvents();
    QCOMPARE(calls, 1);
}

void MomentTest::anIconIsWaitedFor()
{
    if (QGuiApplication::platformName() == "offscreen"_s)
        QSKIP("Nothing is an icon on this platform.");
    Window icon;
    Window shown; // For something to wait for.
    bool isCalled = false;
    icon.showMinimized();
    new WhenShown({&icon}, [&isCalled] { isCalled = true; });
    shown.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown));
    QCoreApplication::processEvents();
    QVERIFY(!isCalled);
    icon.showNormal();
    QTRY_VERIFY(isCalled);
}

void MomentTest::aWindowOfItsSavedSizeMayBeRestoredBefore()
{
    Window saved;
    saved.resize(1000, 700);
    saved.show();
    QVERIFY(QTest::qWaitForWindowExposed(&saved));
    saved.widenDock();
    QTRY_COMPARE(saved.dockWidth(), savedWidth);
    const QByteArray state = saved.saveState();

    Window window;
    window.resize(1000, 700);
    QVERIFY(window.restoreState(state));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(window.dockWidth(), savedWidth);
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::MomentTest)
#include "MomentTest.moc"
