// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QtTest>

#include <memory>
#include <vector>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

constexpr Qt::DockWidgetArea areas[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                        Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea};

QString viewName(int number)
{
    return "view "_s + QString::number(number);
}

} // namespace

/** Far more views, windows, owners and letters than anybody needs. */
class LoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void tenThousandViewsOfTwentyWindows();
    void thousandOwners_data();
    void thousandOwners();
    void nameOfAMegabyte();
    void namesOfEveryPlane_data();
    void namesOfEveryPlane();
};

void LoadTest::tenThousandViewsOfTwentyWindows()
{
    std::vector<SmallWindow> windows(20);
    Owner owner;
    for (SmallWindow& window : windows)
        owner.windows.append({QString::number(owner.windows.size()), &window});
    Manager manager(lines({"G"}), true);
    manager.registerManagable(owner);
    const int count = 10000;
    for (int i = 0; i < count; ++i) {
        // Window n is in area (i + n) % 4 of view i for the first four, and stays there.
        for (std::size_t n = 0; n < 4; ++n)
            windows[n].moveDock(areas[(std::size_t(i) + n) % 4]);
        QVERIFY(manager.createView(viewName(i)));
    }
    QCOMPARE(manager.views().size(), count);
    QCOMPARE(manager.createView(viewName(count - 1)), false);
    QVERIFY(manager.viewsValid());
    for (const int i : {0, 1, count / 2 - 2, count - 1}) {
        QVERIFY(manager.activateView(viewName(i)));
        for (std::size_t n = 0; n < 4; ++n)
            QCOMPARE(windows[n].dockArea(), areas[(std::size_t(i) + n) % 4]);
        QCOMPARE(windows[19].dockArea(), Qt::LeftDockWidgetArea);
    }
    for (int i = 0; i < count; i += 2)
        manager.deleteView(viewName(i));
    QCOMPARE(manager.views().size(), count / 2);
    QCOMPARE(manager.views().first(), viewName(1));
    QCOMPARE(manager.activeView(), viewName(count - 1));
    manager.clear();
    QCOMPARE(manager.views(), QStringList());
}

void LoadTest::thousandOwners_data()
{
    QTest::addColumn<bool>("merge");
    QTest::addRow("as stored") << false;
    QTest::addRow("merging") << true;
}

void LoadTest::thousandOwners()
{
    QFETCH(bool, merge);
    // Every tenth has a window, the rest have none or one without an id.
    std::vector<SmallWindow> windows(100);
    SmallWindow unmanaged;
    std::vector<Owner> owners(1000);
    Manager manager(lines({"G"}), merge);
    for (std::size_t i = 0; i < owners.size(); ++i) {
        if (i % 10 == 0)
            owners[i].windows = {{QString::number(i), &windows[i / 10]}};
        else if (i % 10 == 1)
            owners[i].windows = {{QString(), &unmanaged}};
        manager.registerManagable(owners[i]);
    }
    QVERIFY(manager.createView("a"_s));
    unmanaged.moveDock(Qt::RightDockWidgetArea);
    for (SmallWindow& window : windows)
        window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("a"_s));
    for (const SmallWindow& window : windows)
        QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(unmanaged.dockArea(), Qt::RightDockWidgetArea);
    // Asked once by the capture, once by the restore, and once more to merge.
    for (const Owner& owner : owners)
        QCOMPARE(owner.calls, merge ? 3 : 2);
}

void LoadTest::nameOfAMegabyte()
{
    const QString name(512 * 1024, QChar(u'\u5E83'));
    SmallWindow window;
    Owner owner({{name, &window}});
    Manager manager({name}, true);
    manager.registerManagable(owner);
    const SignalLog log(manager);
    const Menu menu(&manager, /*extended=*/true);
    QVERIFY(manager.saveCurrentViewAs(name));
    QVERIFY(!manager.createView(name));
    QVERIFY(manager.createView(name + "x"_s));
    QCOMPARE(menu.actions().first()->data().toString(), name);
    const QByteArray document = manager.toXml(/*markActive=*/true);
    // The group, two views, and the id of the window in each view, the current one, and beside
    // them.
    QCOMPARE(QString::fromUtf8(document).count(name[0]), 7 * name.size());
    window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.fromXml(document, /*merge=*/false));
    QCOMPARE(manager.activeView(), name);
    QCOMPARE(manager.views(), QStringList({name, name + "x"_s}));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
    QVERIFY(manager.viewsValid());
    manager.deleteView(name);
    QCOMPARE(manager.views(), QStringList(name + "x"_s));
    QCOMPARE(log.lines().first(), "groupModified()"_s);
}

void LoadTest::namesOfEveryPlane_data()
{
    QTest::addColumn<QString>("name");
    for (uint plane = 0; plane <= 16; ++plane) {
        const uint codes[] = {plane * 0x10000 + 0x0EAD, plane * 0x10000 + 0xFFFD};
        QTest::addRow("plane %u", plane) << QString::fromUcs4(codes, 2);
    }
    QTest::addRow("right to left, combining, joined")
        << QString::fromUtf8(u8"\u202Eمرحبا\u0301 \u200Dशक्ति\u2028");
}

void LoadTest::namesOfEveryPlane()
{
    QFETCH(QString, name);
    SmallWindow window;
    Owner owner({{name, &window}});
    Manager manager({"G"_s, name}, true);
    manager.registerManagable(owner);
    QVERIFY(manager.activateGroup(name));
    QVERIFY(manager.saveCurrentViewAs(name));
    window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.saveCurrentViewAs("other"_s));
    Manager second({"G"_s, name}, true);
    second.registerManagable(owner);
    QVERIFY(second.activateGroup(name));
    QVERIFY(second.fromXml(manager.toXml(/*markActive=*/true), /*merge=*/false));
    QCOMPARE(second.views(), QStringList({name, "other"_s}));
    QCOMPARE(second.activeView(), "other"_s);
    QVERIFY(second.activateView(name));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
}

QTEST_MAIN(LoadTest)
#include "LoadTest.moc"
