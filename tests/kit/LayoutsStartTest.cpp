// SPDX-License-Identifier: MIT
#include "FourSidesWindow.h"
#include "support/ShownArrangement.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <memory>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

// Paints of a window, with what it showed.
class PaintLog : public QObject
{
public:
    explicit PaintLog(FourSidesWindow& window)
        : m_window(window)
    {
        window.installEventFilter(this);
    }

    QVector<Qt::DockWidgetArea> areas;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            areas.append(m_window.dockWidgetArea(m_window.left));
        return false;
    }

private:
    FourSidesWindow& m_window;
};

/** A run of a program with one window. */
struct Run
{
    Run() { layouts.addWindow(window, "w"_s); }

    Manager manager{{"G"_s}, /*mergeOnApply=*/true};
    FourSidesWindow window;
    Layouts layouts{manager};
};

} // namespace

// Offscreen, and with a window manager under Xvfb.
class LayoutsStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anyOrderOfCalls_data();
    void anyOrderOfCalls();
    void sizesComeBack_data();
    void sizesComeBack();
    void aWindowThatGrowsAfterItHasAppeared();
    void aWindowThatIsShownLate();
    void aWindowThatIsNeverShown();
    void aWindowThatStartsAsAnIcon();
    void aWindowThatIsAddedLater();
    void theFirstPictureIsTheLayout();
    void whatIsRearrangedAtOnceStays();
    void aPlaceOffTheScreens();
    void sizeOfTheApplicationsOwn();

private:
    QString file() const { return m_folder->filePath("f.views"_s); }
    void makeFile(void (QWidget::*show)() = &QWidget::show);

    std::unique_ptr<QTemporaryDir> m_folder;
    int m_rightWidth = 0;
    QSize m_windowSize;
};

void LayoutsStartTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

// Left and right are swapped, and the dock widget on the left is 234 pixels wide.
void LayoutsStartTest::makeFile(void (QWidget::*show)())
{
    Run run;
    run.window.resize(850, 650);
    (run.window.*show)();
    QVERIFY(QTest::qWaitForWindowExposed(&run.window));
    run.layouts.start(file());
    if (show != &QWidget::show)
        QTRY_VERIFY(run.window.width() != 850); // The desktop decides when.
    QCoreApplication::processEvents();
    run.window.rearrangeDocks();
    run.window.resizeDocks({run.window.right}, {234}, Qt::Horizontal);
    QCoreApplication::processEvents();
    m_rightWidth = run.window.right->width();
    m_windowSize = run.window.size();
    QCOMPARE(m_rightWidth, 234);
}

void LayoutsStartTest::anyOrderOfCalls_data()
{
    QTest::addColumn<QString>("order");
    // Add, show, start, and the event loop.
    for (const char* order : {"a+s", "as+", "+as", "sa+", "s+a", "+sa", "a+es", "+eas", "sea+",
                              "as.+", "sea+e", "+esea"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void LayoutsStartTest::anyOrderOfCalls()
{
    QFETCH(QString, order);
    makeFile();
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow window;
    Layouts layouts(manager);
    for (const QChar& call : order) {
        if (call == QLatin1Char('a'))
            layouts.addWindow(window, "w"_s);
        else if (call == QLatin1Char('+'))
            window.show();
        else if (call == QLatin1Char('s'))
            layouts.start(file());
        else
            QCoreApplication::processEvents();
    }
    QTRY_COMPARE(window.size(), m_windowSize);
    QTRY_COMPARE(window.right->width(), m_rightWidth);
    QCOMPARE(window.dockWidgetArea(window.right), Qt::LeftDockWidgetArea);
}

void LayoutsStartTest::sizesComeBack_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("normal") << int(Qt::WindowNoState);
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("full screen") << int(Qt::WindowFullScreen);
}

void LayoutsStartTest::sizesComeBack()
{
    QFETCH(int, state);
    auto show = &QWidget::show;
    if (state == Qt::WindowMaximized)
        show = &QWidget::showMaximized;
    else if (state == Qt::WindowFullScreen)
        show = &QWidget::showFullScreen;
    makeFile(show);
    Run run;
    run.layouts.start(file());
    run.window.show();
    QTRY_COMPARE(run.window.size(), m_windowSize);
    QTRY_COMPARE(run.window.right->width(), m_rightWidth);
    QCOMPARE(int(run.window.windowState() & ~Qt::WindowActive), state);
}

// Such as one that the desktop maximises late.
void LayoutsStartTest::aWindowThatGrowsAfterItHasAppeared()
{
    {
        Run run;
        run.window.resize(790, 600);
        run.window.show();
        run.layouts.start(file());
        QVERIFY(QTest::qWaitForWindowExposed(&run.window));
        run.window.resizeDocks({run.window.right}, {400}, Qt::Horizontal);
        QTRY_COMPARE(run.window.right->width(), 400);
    }
    Run run;
    run.layouts.start(file());
    run.window.resize(420, 400);
    run.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&run.window));
    QCoreApplication::processEvents();
    run.window.resize(790, 600);
    QTRY_COMPARE(run.window.right->width(), 400);
}

void LayoutsStartTest::aWindowThatIsShownLate()
{
    makeFile();
    Run run;
    run.layouts.start(file());
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    QVERIFY(run.layouts.save());
    run.window.show();
    QTRY_COMPARE(run.window.right->width(), m_rightWidth);
}

void LayoutsStartTest::aWindowThatIsNeverShown()
{
    makeFile();
    for (int day = 1; day <= 5; ++day) {
        Manager manager({"G"_s}, /*mergeOnApply=*/true);
        FourSidesWindow window;
        FourSidesWindow shown;
        Layouts layouts(manager);
        layouts.addWindow(window, "w"_s);
        layouts.addWindow(shown, "shown"_s);
        shown.show();
        layouts.start(file());
        QCoreApplication::processEvents();
        if (day == 1)
            shown.rearrangeDocks();
        QCOMPARE(shown.dockWidgetArea(shown.right), Qt::LeftDockWidgetArea);
    }
    Run run;
    run.layouts.start(file());
    run.window.show();
    QTRY_COMPARE(run.window.right->width(), m_rightWidth);
}

void LayoutsStartTest::aWindowThatStartsAsAnIcon()
{
    makeFile();
    Run run;
    run.window.showMinimized();
    run.layouts.start(file());
    QCoreApplication::processEvents();
    QVERIFY(run.layouts.save());
    run.window.showNormal();
    QTRY_COMPARE(run.window.right->width(), m_rightWidth);
}

void LayoutsStartTest::aWindowThatIsAddedLater()
{
    makeFile();
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    FourSidesWindow other;
    Layouts layouts(manager);
    layouts.addWindow(other, "other"_s);
    other.show();
    layouts.start(file());
    QVERIFY(layouts.save());
    const QStringList shown = shownArrangement(other);
    FourSidesWindow window;
    layouts.addWindow(window, "w"_s);
    window.show();
    QTRY_COMPARE(window.right->width(), m_rightWidth);
    QCOMPARE(shownArrangement(other), shown);
}

void LayoutsStartTest::theFirstPictureIsTheLayout()
{
    makeFile();
    Run run;
    const PaintLog log(run.window);
    run.window.show();
    run.layouts.start(file());
    QTRY_VERIFY(!log.areas.isEmpty());
    QTRY_COMPARE(run.window.right->width(), m_rightWidth);
    QCOMPARE(log.areas.count(Qt::LeftDockWidgetArea), 0);
}

void LayoutsStartTest::whatIsRearrangedAtOnceStays()
{
    makeFile();
    Run run;
    run.layouts.start(file());
    run.window.addDockWidget(Qt::BottomDockWidgetArea, run.window.left);
    run.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&run.window));
    QCoreApplication::processEvents();
    QCOMPARE(run.window.dockWidgetArea(run.window.left), Qt::BottomDockWidgetArea);
}

void LayoutsStartTest::aPlaceOffTheScreens()
{
    {
        Run run;
        run.layouts.start(file());
        run.window.setGeometry(20000, 20000, 800, 600);
        QVERIFY(run.layouts.save());
    }
    Run run;
    run.layouts.start(file());
    run.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&run.window));
    QVERIFY(QGuiApplication::primaryScreen()->geometry().intersects(run.window.geometry()));
}

void LayoutsStartTest::sizeOfTheApplicationsOwn()
{
    for (const int width : {700, 600}) {
        Run run;
        run.layouts.setKeepsGeometry(false);
        run.layouts.start(file());
        run.window.resize(width, 500);
        run.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&run.window));
        run.window.addDockWidget(Qt::BottomDockWidgetArea, run.window.left);
        QVERIFY(run.layouts.save());
        QCOMPARE(run.window.width(), width);
    }
    // The layout came back without it.
    Run run;
    run.layouts.setKeepsGeometry(false);
    run.layouts.start(file());
    QCOMPARE(run.window.dockWidgetArea(run.window.left), Qt::BottomDockWidgetArea);
}

QTEST_MAIN(LayoutsStartTest)
#include "LayoutsStartTest.moc"
