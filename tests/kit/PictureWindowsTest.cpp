// SPDX-License-Identifier: MIT
#include "support/ArrangementGenerator.h"
#include "support/RecordedBlobs.h"

#include <panorel/kit/Picture.h>

#include <QTabBar>
#include <QtTest>

#include <memory>

namespace Panorel::Tests {

using Kit::Picture;
using Kit::WindowState;
using Part = Picture::Part;

/** Each part of a picture is where a real window shows it. */
class PictureWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void generatedArrangements();
    void restoredArrangements();
    void otherSizes_data();
    void otherSizes();
    void recordedStates_data();
    void recordedStates();
};

namespace {

/** What tool bars take of a window: how much is up to the style. */
struct Margins
{
    QPoint origin;
    QSize beyond;

    QSize size() const { return QSize(origin.x(), origin.y()) + beyond; }
};

void add(Margins& margins, const QRect& bar, const QSize& window, bool isVertical)
{
    QPoint& origin = margins.origin;
    QSize& beyond = margins.beyond;
    if (isVertical && bar.left() < window.width() / 2)
        origin.setX(std::max(origin.x(), bar.right() + 1));
    else if (isVertical)
        beyond.setWidth(std::max(beyond.width(), window.width() - bar.left()));
    else if (bar.top() < window.height() / 2)
        origin.setY(std::max(origin.y(), bar.bottom() + 1));
    else
        beyond.setHeight(std::max(beyond.height(), window.height() - bar.top()));
}

Margins marginsOf(const Picture& picture)
{
    Margins margins{{0, 0}, {0, 0}};
    for (const Part& part : picture.parts()) {
        if (part.kind == Part::Kind::ToolBar && !part.isFloating)
            add(margins, part.rect.translated(-picture.window().topLeft()), picture.window().size(),
                part.isVertical);
    }
    return margins;
}

Margins marginsOf(const QMainWindow& window)
{
    Margins margins{{0, 0}, {0, 0}};
    for (const QToolBar* const bar : window.findChildren<QToolBar*>()) {
        if (!bar->isHidden() && !bar->isFloating())
            add(margins, bar->geometry(), window.size(), bar->orientation() == Qt::Vertical);
    }
    return margins;
}

int distance(const QRect& one, const QRect& other)
{
    return std::max({std::abs(one.left() - other.left()), std::abs(one.top() - other.top()),
                     std::abs(one.right() - other.right()),
                     std::abs(one.bottom() - other.bottom())});
}

/** Whether tabs count as part of the page above them: how high they are is up to the style. */
enum Tabs { Apart, WithPages };

/** Where a picture has each dock widget, floating windows included, as the window counts. */
QMap<QString, QRect> rectsOf(const Picture& picture, const QMainWindow& window, Tabs tabs)
{
    const QPoint corner = picture.window().topLeft();
    const QPoint moved = marginsOf(window).origin - marginsOf(picture).origin;
    QMap<QString, QRect> rects;
    for (const Part& part : picture.parts()) {
        const QRect rect = tabs == WithPages ? part.rect | part.tabBar : part.rect;
        if (part.kind == Part::Kind::DockWidget)
            rects[part.name] = rect.translated(moved - corner);
        else if (part.kind == Part::Kind::FloatingWindow)
            rects[part.name] = part.rect.translated(-corner);
    }
    return rects;
}

/** Where a window shows each dock widget, or the floating tab group of which it is in front. */
QMap<QString, QRect> rectsOf(const QMainWindow& window, Tabs tabs)
{
    QMap<QString, QRect> rects;
    for (const QDockWidget* const dock : window.findChildren<QDockWidget*>()) {
        QRect rect = dock->geometry();
        // A page that is not in front is moved out of sight.
        if (dock->isHidden() || rect.right() < 0 || rect.bottom() < 0)
            continue;
        for (const QTabBar* const bar : window.findChildren<QTabBar*>()) {
            const QRect beside = bar->geometry();
            if (tabs == WithPages && bar->isVisible() && beside.left() == rect.left() &&
                beside.top() == rect.bottom() + 1)
                rect |= beside;
        }
        const bool isInGroup = dock->parentWidget() != &window;
        rects[dock->objectName()] = isInGroup ? dock->parentWidget()->geometry() : rect;
    }
    return rects;
}

/** The first part that is elsewhere in the picture than in the window, by more than 2 pixels. */
QString misplaced(const Picture& picture, const QMainWindow& window, Tabs tabs = Apart)
{
    const QMap<QString, QRect> drawn = rectsOf(picture, window, tabs);
    const QMap<QString, QRect> shown = rectsOf(window, tabs);
    if (drawn.keys() != shown.keys())
        return "parts %1 instead of %2"_s.arg(QStringList(drawn.keys()).join(u','),
                                              QStringList(shown.keys()).join(u','));
    for (auto it = shown.cbegin(); it != shown.cend(); ++it) {
        const QRect rect = drawn[it.key()];
        if (distance(rect, *it) > 2) {
            QString text;
            QDebug(&text) << it.key() << rect << "instead of" << *it;
            return text;
        }
    }
    return QString();
}

} // namespace

void PictureWindowsTest::generatedArrangements()
{
    for (quint32 seed = 0; seed < 600; ++seed) {
        ArrangedWindow window(seed);
        window.show();
        QCoreApplication::processEvents();
        const Picture picture(WindowState(window.saveState()));
        QVERIFY2(misplaced(picture, window).isEmpty(),
                 qPrintable("%1: %2"_s.arg(seed).arg(misplaced(picture, window))));
        const QSize drawn = picture.window().size() - marginsOf(picture).size();
        const QSize shown = window.size() - marginsOf(window).size();
        QVERIFY2(drawn == shown, qPrintable("the size of %1"_s.arg(seed)));
    }
}

// Another window of that size that is given the state.
void PictureWindowsTest::restoredArrangements()
{
    for (quint32 seed = 0; seed < 100; ++seed) {
        ArrangedWindow window(seed);
        window.show();

        QCoreApplication::processEvents();
        const std::unique_ptr<ArrangedWindow> twin(window.twin());
        twin->show();
        const QByteArray bytes = window.saveState();
        QVERIFY(twin->restoreState(bytes));
        QCoreApplication::processEvents();
        const Picture picture((WindowState(bytes)));
        QVERIFY2(misplaced(picture, *twin).isEmpty(),
                 qPrintable("%1: %2"_s.arg(seed).arg(misplaced(picture, *twin))));
    }
}

void PictureWindowsTest::otherSizes_data()
{
    QTest::addColumn<QSize>("change");
    QTest::newRow("larger") << QSize(300, 200);
    QTest::newRow("wider") << QSize(211, 0);
    QTest::newRow("higher") << QSize(0, 97);
    QTest::newRow("smaller") << QSize(-80, -60);
}

void PictureWindowsTest::otherSizes()
{
    QFETCH(QSize, change);
    for (quint32 seed = 0; seed < 100; ++seed) {
        ArrangedWindow window(seed);
        window.show();
        QCoreApplication::processEvents();
        const WindowState state(window.saveState());
        window.resize(window.size() + change);
        QCoreApplication::processEvents();
        const Margins drawn = marginsOf(Picture(state));
        const Picture picture(state, window.size() - marginsOf(window).size() + drawn.size());
        QVERIFY2(misplaced(picture, window).isEmpty(),
                 qPrintable("%1: %2"_s.arg(seed).arg(misplaced(picture, window))));
    }
}

void PictureWindowsTest::recordedStates_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isOwnStyle");
    for (const char* const folder : {"../data/blobs", "../data/blobs/qt6"}) {
        const QString path = QFINDTESTDATA(folder);
        for (const RecordedBlob& blob : recordedBlobs(path))
            QTest::addRow("%s/%s", folder + 8, blob.name.constData())
                << blob.bytes << !path.endsWith(QLatin1String("qt6"));
    }
}

void PictureWindowsTest::recordedStates()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isOwnStyle);
    const WindowState state(bytes);
    QVERIFY(state.isReadable());
    QMainWindow window;
    window.setCentralWidget(new QLabel);
    for (const WindowState::DockWidget& stored : state.dockWidgets()) {
        auto* const dock = new QDockWidget(&window);
        dock->setObjectName(stored.name);
        // The usual title bar is wider here than where Qt 6 was.
        dock->setTitleBarWidget(new QLabel("x"_s));
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    }
    for (const WindowState::ToolBar& stored : state.toolBars()) {
        QToolBar* const bar = window.addToolBar(stored.name);
        bar->setObjectName(stored.name);
        bar->addAction(stored.name);
    }
    const Picture picture(state);
    window.resize(640, 480);
    window.show();
    QVERIFY(window.restoreState(bytes, state.layoutVersion()));
    QCoreApplication::processEvents();
    window.resize(picture.window().size() - marginsOf(picture).size() + marginsOf(window).size());
    QVERIFY(window.restoreState(bytes, state.layoutVersion()));
    QCoreApplication::processEvents();
    QCOMPARE(misplaced(picture, window, isOwnStyle ? Apart : WithPages), QString());
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::PictureWindowsTest)
#include "PictureWindowsTest.moc"
