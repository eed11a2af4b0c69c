// SPDX-License-Identifier: MIT
#include "support/ArrangementGenerator.h"
#include "support/SampleWindow.h"

#include <panorel/kit/Difference.h>
#include <panorel/kit/WindowState.h>

#include <QTabBar>
#include <QtTest>

#include <functional>
#include <memory>

namespace Panorel::Tests {

using Kit::Difference;
using Kit::WindowState;

using Operation = std::function<void(SampleWindow&)>;

/** What differs between states is what differs between real windows. */
class DifferenceWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneOperation_data();
    void oneOperation();
    void restoredIsTheSame();
    void emptyExactlyIfItLooksTheSame();
};

} // namespace Panorel::Tests

Q_DECLARE_METATYPE(Panorel::Tests::Operation)

namespace Panorel::Tests {

namespace {

QString textOf(const QVariant& value)
{
    switch (value.type()) {
    case QVariant::StringList:
        return value.toStringList().join(u'+');
    case QVariant::Rect: {
        const QRect rect = value.toRect();
        return "%1,%2,%3,%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
    }
    default:
        return value.toString();
    }
}

/** "Files area left right" and so on. */
QStringList textOf(const QVector<Difference>& differences)
{
    QStringList lines;
    for (const Difference& difference : differences) {
        lines += difference.name + u' ' + identifierOf(difference.aspect);
        if (difference.aspect != Difference::Aspect::Size)
            lines.last() += u' ' + textOf(difference.from) + u' ' + textOf(difference.to);
        lines.last() = lines.last().simplified();
    }
    return lines;
}

/** What a user sees of a window's arrangement. */
class Look
{
public:
    explicit Look(ArrangedWindow& window)
    {
        QCoreApplication::processEvents();
        for (QDockWidget* const dock : window.docks()) {
            QStringList tabs;
            for (const QDockWidget* const other : window.tabifiedDockWidgets(dock)) {
                if (!other->isHidden() && !other->isFloating() && !dock->isFloating())
                    tabs += other->objectName();
            }
            // A page that is not in front is moved out of sight.
            const bool isInSight = dock->isVisible() && dock->geometry().right() >= 0;
            m_facts +=
                dock->isHidden()
                    ? "closed"_s
                    : "%1 %2 %3 %4"_s.arg(dock->isFloating() ? 0 : window.dockWidgetArea(dock))
                          .arg(dock->isFloating())
                          .arg(isInSight)
                          .arg(tabs.join(u','));
            m_rects += dock->isHidden() || !isInSight ? QRect() : dock->geometry();
        }
        for (QToolBar* const bar : window.bars()) {
            m_facts += bar->isHidden() ? "closed"_s : QString::number(window.toolBarArea(bar));
            m_bars += bar->isHidden() ? QRect() : bar->geometry();
        }
    }

    /** Whether all is in the same place and of the same size but for @p part of it. */
    bool isLike(const Look& other, double part) const
    {
        if (m_facts != other.m_facts || m_bars != other.m_bars)
            return false;
        for (int i = 0; i < m_rects.size(); ++i) {
            if (!isLike(m_rects[i], other.m_rects[i], part))
                return false;
        }
        for (int i = 0; i < m_rects.size(); ++i) {
            for (int j = 0; j < i; ++j) {
                if (order(m_rects[i], m_rects[j]) != order(other.m_rects[i], other.m_rects[j]))
                    return false;
            }
        }
        return true;
    }

    QString text() const
    {
        QString text;
        QDebug(&text) << m_facts << m_rects << m_bars;
        return text;
    }

private:
    static bool isLike(const QRect& one, const QRect& other, double part)
    {
        return std::abs(one.width() - other.width()) <= std::max(2., part * one.width()) &&
               std::abs(one.height() - other.height()) <= std::max(2., part * one.height());
    }

    // Which one is left of or above the other.
    static int order(const QRect& one, const QRect& other)
    {
        return (one.right() < other.left() ? 1 : 0) + (other.right() < one.left() ? 2 : 0) +
               (one.bottom() < other.top() ? 4 : 0) + (other.bottom() < one.top() ? 8 : 0);
    }

    QStringList m_facts;
    QVector<QRect> m_rects;
    QVector<QRect> m_bars;
};

void changeDock(ArrangedWindow& window, QRandomGenerator& random)
{
    QDockWidget* const dock = window.docks()[random.bounded(window.docks().size())];
    QDockWidget* const other = window.docks()[random.bounded(window.docks().size())];
    const auto area = static_cast<Qt::DockWidgetArea>(1 << random.bounded(4));
    switch (random.bounded(8)) {
    case 0:
        window.addDockWidget(area, dock);
        break;
    case 1:
        if (dock != other && !other->isFloating())
            window.tabifyDockWidget(other, dock);
        break;
    case 2:
        if (dock != other && !other->isFloating() && window.tabifiedDockWidgets(other).isEmpty())
            window.splitDockWidget(other, dock,
                                   random.bounded(2) == 0 ? Qt::Horizontal : Qt::Vertical);
        break;
    case 3:
        dock->setVisible(dock->isHidden());
        break;
    case 4:
        dock->setFloating(!dock->isFloating());
        break;
    case 5:
        dock->raise();
        break;
    default:
        window.resizeDocks({dock}, {80 + random.bounded(200)},
                           random.bounded(2) == 0 ? Qt::Horizontal : Qt::Vertical);
    }
}

void change(ArrangedWindow& window, QRandomGenerator& random)
{
    const int kind = random.bounded(10);
    if (kind == 0) {
        const auto corner = static_cast<Qt::Corner>(random.bounded(4));
        const bool isLeft = corner == Qt::TopLeftCorner || corner == Qt::BottomLeftCorner;
        window.setCorner(corner, isLeft ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea);
    } else if (kind < 3 && !window.bars().isEmpty()) {
        QToolBar* const bar = window.bars()[random.bounded(window.bars().size())];
        if (random.bounded(3) == 0)
            bar->setVisible(bar->isHidden());
        else if (random.bounded(2) == 0)
            window.insertToolBarBreak(bar);
        else
            window.addToolBar(static_cast<Qt::ToolBarArea>(1 << random.bounded(4)), bar);
    } else {
        changeDock(window, random);
    }
}

WindowState stateOf(QMainWindow& window)
{
    QCoreApplication::processEvents();
    return WindowState(window.saveState());
}

} // namespace

void DifferenceWindowsTest::oneOperation_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const Operation& operation, const QStringList& expected) {
        QTest::newRow(name) << operation << expected;
    };
    row("nothing", [](SampleWindow&) {}, {});
    row("close", [](SampleWindow& w) { w.output->close(); }, {"Output visible true false"_s});
    row("close a page", [](SampleWindow& w) { w.outline->close(); },
        {"Outline visible true false"_s});
    row("other side",
        [](SampleWindow& w) { w.addDockWidget(Qt::LeftDockWidgetArea, w.properties); },
        {"Properties area right left"_s});
    row("float", [](SampleWindow& w) { w.properties->setFloating(true); },
        {"Properties floating false true"_s});
    row("dock", [](SampleWindow& w) { w.palette->setFloating(false); },
        {"Palette floating true false"_s});
    row("move a floating one", [](SampleWindow& w) { w.palette->setGeometry(20, 30, 200, 100); },
        {"Palette floating 100,200,200,100 20,30,200,100"_s});
    row("resize a floating one",
        [](SampleWindow& w) { w.palette->setGeometry(100, 200, 250, 100); }, {"Palette size"_s});
    row("raise a page", [](SampleWindow& w) { w.files->raise(); }, {"Files tabs Outline Files"_s});
    row("into tabs", [](SampleWindow& w) { w.tabifyDockWidget(w.files, w.properties); },
        {"Properties area right left"_s, "Properties tabs Files+Outline"_s});
    row("out of tabs", [](SampleWindow& w) { w.addDockWidget(Qt::LeftDockWidgetArea, w.files); },
        {"Files tabs Outline"_s});
    row("resize", [](SampleWindow& w) { w.resizeDocks({w.properties}, {400}, Qt::Horizontal); },
        {"Properties size"_s});
    row("resize by less than a tenth",
        [](SampleWindow& w) {
            w.resizeDocks({w.properties}, {w.properties->width() + 10}, Qt::Horizontal);
        },
        {});
    row("other corner",
        [](SampleWindow& w) { w.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea); },
        {"Outline size"_s, "Output size"_s});
    row("corner of nobody",
        [](SampleWindow& w) { w.setCorner(Qt::TopLeftCorner, Qt::LeftDockWidgetArea); }, {});
    row("bar to another side",
        [](SampleWindow& w) { w.addToolBar(Qt::LeftToolBarArea, w.mainBar); },
        {"Main area top left"_s});
    row("bar to another line", [](SampleWindow& w) { w.removeToolBarBreak(w.viewBar); },
        {"View line 1 0"_s});
    row("bar into a line of its own", [](SampleWindow& w) { w.insertToolBarBreak(w.editBar); },
        {"Edit line 0 1"_s});
    // Of two that change places, either may have been moved.
    row("bar before another", [](SampleWindow& w) { w.insertToolBar(w.mainBar, w.editBar); },
        {"Main order 0 1"_s});
    row("hide a bar", [](SampleWindow& w) { w.mainBar->hide(); }, {"Main visible true false"_s});
    row("add a bar", [](SampleWindow& w) { w.addToolBar("New"_s)->setObjectName("New"_s); },
        {"New added"_s});
}

void DifferenceWindowsTest::oneOperation()
{
    QFETCH(Operation, operation);
    SampleWindow window;
    window.palette->setGeometry(100, 200, 200, 100);
    window.show();
    const WindowState before = stateOf(window);
    operation(window);
    const WindowState after = stateOf(window);
    QTEST(textOf(differences(before, after)), "expected");
    QCOMPARE(differences(after, before).isEmpty(), differences(before, after).isEmpty());
}

// Restored in another window, saved again: other bytes perhaps, but the same look.
void DifferenceWindowsTest::restoredIsTheSame()
{
    for (quint32 seed = 0; seed < 500; ++seed) {
        ArrangedWindow window(seed);
        window.show();
        const WindowState before = stateOf(window);
        const std::unique_ptr<ArrangedWindow> twin(window.twin());
        twin->show();
        QVERIFY(twin->restoreState(before.bytes()));
        const QStringList lines = textOf(differences(before, stateOf(*twin)));
        QVERIFY2(lines.isEmpty(), qPrintable("%1: %2"_s.arg(seed).arg(lines.join(u';'))));
    }
}

// An arrangement, then something that a user may do to it, which may have no effect.
void DifferenceWindowsTest::emptyExactlyIfItLooksTheSame()
{
    int same = 0;
    int different = 0;
    for (quint32 seed = 0; seed < 1000; ++seed) {
        ArrangedWindow window(seed % 500, ArrangedWindow::WithoutFloatingTabs);
        window.show();
        const WindowState before = stateOf(window);
        const Look lookBefore(window);
        QRandomGenerator random(seed);
        change(window, random);
        const WindowState after = stateOf(window);
        const Look lookAfter(window);
        const QStringList lines = textOf(differences(before, after));
        const bool isSame = lines.isEmpty();
        const QString message = "%1: %2, %3 and then %4"_s.arg(
            QString::number(seed), lines.join(u';'), lookBefore.text(), lookAfter.text());
        // Between both, it is a matter of a pixel.
        if (isSame)
            QVERIFY2(lookBefore.isLike(lookAfter, 0.12), qPrintable(message));
        else
            QVERIFY2(!lookBefore.isLike(lookAfter, 0.08), qPrintable(message));
        ++(isSame ? same : different);
    }
    QVERIFY2(same >= 200 && different >= 400, qPrintable("%1 and %2"_s.arg(same).arg(different)));
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::DifferenceWindowsTest)
#include "DifferenceWindowsTest.moc"
