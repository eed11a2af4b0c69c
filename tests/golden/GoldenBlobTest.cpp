// SPDX-License-Identifier: MIT
#include "Description.h"

#include <panorel/QtState.h>

#include <QDirIterator>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMainWindow>
#include <QToolBar>
#include <QtTest>

namespace Panorel::Tests {

/**
 * Blobs that programs of several Qt versions wrote: what each holds is beside it, as a text and
 * as a picture, and stays true for ever. Every file below tests/data/blobs is a case.
 */
class GoldenBlobTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsWhatItsTextSays_data() { addBlobs(true); }
    void holdsWhatItsTextSays();
    void hasASmallPicture_data() { addBlobs(true); }
    void hasASmallPicture();
    void windowTakesIt_data() { addBlobs(false); }
    void windowTakesIt();

private:
    static void addBlobs(bool withRejected);
};

namespace {

using Block = QtState::DockAreaLayout::Dock::Block;

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A window with the dock widgets and tool bars that a state names. */
class NamedWindow : public QMainWindow
{
public:
    explicit NamedWindow(const QtState& state)
    {
        for (const auto& layout : state.m_dockAreaLayouts) {
            for (const auto& dock : layout.docks)
                addDocks(dock.block);
        }
        for (const auto& layout : state.m_toolBarAreaLayouts) {
            for (const auto& line : layout.lines) {
                for (const auto& item : line.items)
                    addOnce<QToolBar>(item.objectName);
            }
        }
    }

    template<typename Part>
    Part* part(const QString& name) const
    {
        return findChild<Part*>(name, Qt::FindDirectChildrenOnly);
    }

private:
    void addDocks(const Block& block)
    {
        for (const Block::Item& item : block.items) {
            if (item.isSequence)
                addDocks(*item.subBlock);
            else
                addOnce<QDockWidget>(item.objectName);
        }
    }

    void add(QDockWidget* dock) { addDockWidget(Qt::TopDockWidgetArea, dock); }
    void add(QToolBar* bar) { addToolBar(bar); }

    template<typename Part>
    void addOnce(const QString& name)
    {
        if (name.isEmpty() || part<Part>(name))
            return;
        auto* const added = new Part(this);
        added->setObjectName(name);
        add(added);
    }
};

/** Where @p block's own items from @p first on are not as they say; empty if all are. */
QString misplaced(const NamedWindow& window, const Block& block, std::size_t first, int area)
{
    QList<QDockWidget*> docks;
    for (std::size_t i = first; i < block.items.size(); ++i) {
        const Block::Item& item = block.items[i];
        if (item.isSequence) {
            const QString inner = misplaced(window, *item.subBlock, 0, area);
            if (!inner.isEmpty())
                return inner;
            continue;
        }
        auto* const dock = window.part<QDockWidget>(item.objectName);
        if (!dock)
            continue;
        docks.append(dock);
        if (window.dockWidgetArea(dock) != 1 << area || dock->isHidden() != !(item.flags & 1) ||
            dock->isFloating() != bool(item.flags & 2))
            return item.objectName;
    }
    if (block.tabbed && docks.size() > 1 &&
        window.tabifiedDockWidgets(docks.first()) != docks.mid(1))
        return docks.first()->objectName();
    return QString();
}

} // namespace

void GoldenBlobTest::addBlobs(bool withRejected)
{
    QTest::addColumn<QString>("stem");
    const QString folder = QFINDTESTDATA("../data/blobs");
    QVERIFY(!folder.isEmpty());
    QStringList stems;
    QDirIterator files(folder, {QStringLiteral("*.blob")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        stems.append(files.next().chopped(5));
    stems.sort();
    QVERIFY(stems.size() >= 46);
    for (const QString& stem : qAsConst(stems)) {
        if (withRejected || !stem.contains(QStringLiteral("/rejected/")))
            QTest::addRow("%s", qPrintable(stem.mid(folder.size() + 1))) << stem;
    }
}

void GoldenBlobTest::holdsWhatItsTextSays()
{
    QFETCH(QString, stem);
    QtState state;
    const bool ok = state.read(contentOf(stem + QStringLiteral(".blob")));
    QStringList lines = Description::of(state);
    if (!ok)
        lines.append(QStringLiteral("refused from here on"));
    const QString expected = QString::fromUtf8(contentOf(stem + QStringLiteral(".txt")));
    QCOMPARE(QString(lines.join(u'\n') + u'\n'), expected);
    QCOMPARE(ok, !stem.contains(QStringLiteral("/rejected/")));
}

void GoldenBlobTest::hasASmallPicture()
{
    QFETCH(QString, stem);
    const QFileInfo file(stem + QStringLiteral(".png"));
    QVERIFY(file.size() < 15 * 1024);
    QCOMPARE(QImage(file.filePath()).size(), QSize(640, 480));
}

void GoldenBlobTest::windowTakesIt()
{
    QFETCH(QString, stem);
    QtState state;
    QVERIFY(state.read(contentOf(stem + QStringLiteral(".blob"))));
    NamedWindow window(state);
    QVERIFY(window.restoreState(state.write(), state.m_version));
    std::size_t repeated = 0;
    for (const auto& dock : state.m_dockAreaLayouts.at(0).docks) {
        QCOMPARE(misplaced(window, dock.block, repeated, dock.area), QString());
        repeated = dock.block.items.size();
    }
    repeated = 0;
    for (const auto& line : state.m_toolBarAreaLayouts.at(0).lines) {
        for (std::size_t i = repeated; i < line.items.size(); ++i) {
            auto* const bar = window.part<QToolBar>(line.items[i].objectName);
            QVERIFY(!bar || window.toolBarArea(bar) == 1 << line.area);
            QVERIFY(!bar || bar->isHidden() == !(line.items[i].shown & 1));
        }
        repeated = line.items.size();
    }
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::GoldenBlobTest)
#include "GoldenBlobTest.moc"
