// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/SignalLog.h"
#include "support/Text.h"
#include "ui/ReportedUserData.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Skipped views: how they look, and how toggleView() passes over them. */
class MenuToggleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void table_data();
    void table();
    void everyCombination_data();
    void everyCombination();
    void roundTrip();
    void userDataOfTheMoment();
    void namelessView();
    void kindsOfUserData_data();
    void kindsOfUserData();
    void look_data();
    void look();
    void lookIsRebuilt();
    void skippedViewCanBeChosen();
    void subMenusShowTheBareName();
    void laterFontsDoNotReachSkippedEntries();
};

namespace {

/**
 * Views "a", "b", "c" and so on, written as one character each: a letter for a plain one, "-" for a
 * skipped one; the place of the checked one is distinguished.
 */
QString nameAt(int index)
{
    return QString(QChar::fromLatin1(char('a' + index)));
}

void setUp(Manager& manager, const QString& views, int checked)
{
    for (int i = 0; i < views.size(); ++i) {
        QVERIFY(manager.createView(nameAt(i)));
        if (views.at(i) == QLatin1Char('-'))
            reportedUserData().insert(nameAt(i), true);
    }
    if (checked >= 0)
        QVERIFY(manager.activateView(nameAt(checked)));
}

QStringList signalsOfToggling(const QString& views, int checked)
{
    Manager manager({"G"_s}, false);
    setUp(manager, views, checked);
    Menu menu(&manager, false, nullptr);
    SignalLog signalLog(manager);
    menu.toggleView();
    return signalLog.take();
}

// The views after the checked one, then those before it; without a checked one, all in order.
QStringList expectedSignals(const QString& views, int checked)
{
    const int count = views.size();
    const int uncheckedCount = checked < 0 ? count : count - 1;
    for (int step = 1; step <= uncheckedCount; ++step) {
        const int index = (checked + step) % count;
        if (views.at(index) != QLatin1Char('-'))
            return QStringList("viewActivated("_s + quoted(nameAt(index)) + ")"_s);
    }
    return QStringList();
}

} // namespace

void MenuToggleTest::cleanup()
{
    reportedUserData().clear();
}

void MenuToggleTest::table_data()
{
    QTest::addColumn<QString>("views");
    QTest::addColumn<int>("checked");
    QTest::addColumn<QStringList>("activated");

    QTest::newRow("none") << "" << -1 << lines({});
    QTest::newRow("one, not checked") << "a" << -1 << lines({"viewActivated('a')"});
    QTest::newRow("one, checked") << "a" << 0 << lines({});
    QTest::newRow("one skipped") << "-" << -1 << lines({});
    QTest::newRow("one skipped and checked") << "-" << 0 << lines({});
    QTest::newRow("two, to the next") << "ab" << 0 << lines({"viewActivated('b')"});
    QTest::newRow("two, around the end") << "ab" << 1 << lines({"viewActivated('a')"});
    QTest::newRow("over a skipped one") << "a-c" << 0 << lines({"viewActivated('c')"});
    QTest::newRow("around the end") << "a-c" << 2 << lines({"viewActivated('a')"});
    QTest::newRow("the other is skipped") << "a-" << 0 << lines({});
    QTest::newRow("from a skipped one") << "a-c" << 1 << lines({"viewActivated('c')"});
    QTest::newRow("none checked, the first is skipped")
        << "-b" << -1 << lines({"viewActivated('b')"});
    QTest::newRow("all skipped") << "---" << -1 << lines({});
    QTest::newRow("around the end over skipped ones")
        << "-b-d-" << 3 << lines({"viewActivated('b')"});
    QTest::newRow("the next of several") << "abcd" << 1 << lines({"viewActivated('c')"});
}

void MenuToggleTest::table()
{
    QFETCH(QString, views);
    QFETCH(int, checked);
    QFETCH(QStringList, activated);

    QCOMPARE(signalsOfToggling(views, checked), activated);
    QCOMPARE(expectedSignals(views, checked), activated);
}

void MenuToggleTest::everyCombination_data()
{
    QTest::addColumn<QString>("views");
    QTest::addColumn<int>("checked");

    for (int count = 0; count <= 4; ++count) {
        for (int skippedBits = 0; skippedBits < 1 << count; ++skippedBits) {
            QString views;
            for (int i = 0; i < count; ++i)
                views += skippedBits & 1 << i ? "-"_s : nameAt(i);
            for (int checked = -1; checked < count; ++checked)
                QTest::addRow("'%s', checked %d", qUtf8Printable(views), checked)
                    << views << checked;
        }
    }
}

void MenuToggleTest::everyCombination()
{
    QFETCH(QString, views);
    QFETCH(int, checked);

    QCOMPARE(signalsOfToggling(views, checked), expectedSignals(views, checked));
}

void MenuToggleTest::roundTrip()
{
    Manager manager({"G"_s}, false);
    setUp(manager, "ab-d"_s, -1);
    Menu menu(&manager, false, nullptr);
    SignalLog signalLog(manager);
    for (int i = 0; i < 4; ++i)
        menu.toggleView();
    QCOMPARE(signalLog.take(), lines({"viewActivated('a')", "viewActivated('b')",
                                      "viewActivated('d')", "viewActivated('a')"}));
    QCOMPARE(entries(menu).mid(0, 4), lines({"* a", "b", "c (skipped)", "d"}));
}

void MenuToggleTest::userDataOfTheMoment()
{
    Manager manager({"G"_s}, false);
    setUp(manager, "abc"_s, 0);
    Menu menu(&manager, false, nullptr);
    // There is no signal for it, so the look stays; the walk asks again.
    reportedUserData().insert("b"_s, true);
    QCOMPARE(entries(menu).mid(0, 3), lines({"* a", "b", "c"}));
    SignalLog signalLog(manager);
    menu.toggleView();
    QCOMPARE(signalLog.take(), lines({"viewActivated('c')"}));
}

void MenuToggleTest::namelessView()
{
    // It is a target like any other, and the Manager refuses to activate it.
    Manager manager({"G"_s}, false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView(""_s));
    QVERIFY(manager.createView("c"_s));
    Menu menu(&manager, false, nullptr);
    SignalLog signalLog(manager);
    menu.toggleView();
    QCOMPARE(signalLog.take(), QStringList());
    QCOMPARE(entries(menu).mid(0, 3), lines({"* a", "", "c"}));
}

void MenuToggleTest::kindsOfUserData_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<bool>("skipped");

    QTest::newRow("unset") << QVariant() << false;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("text false") << QVariant("false"_s) << false;
    QTest::newRow("empty text") << QVariant(""_s) << false;
    QTest::newRow("text true") << QVariant("true"_s) << true;
    QTest::newRow("number") << QVariant(2) << true;
}

void MenuToggleTest::kindsOfUserData()
{
    QFETCH(QVariant, data);
    QFETCH(bool, skipped);

    Manager manager({"G"_s}, false);
    setUp(manager, "abc"_s, 0);
    reportedUserData().insert("b"_s, data);
    Menu menu(&manager, false, nullptr);
    QCOMPARE(viewEntries(menu).at(1)->text(), skipped ? "b (skipped)"_s : "b"_s);
    menu.toggleView();
    QCOMPARE(manager.activeView(), skipped ? "c"_s : "b"_s);
}

void MenuToggleTest::look_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");

    QTest::newRow("letters") << "x"_s
                             << "x (skipped)"_s;
    QTest::newRow("empty") << ""_s
                           << " (skipped)"_s;
    QTest::newRow("placeholder") << "%1"_s
                                 << "%1 (skipped)"_s;
    QTest::newRow("ampersand") << "R&D"_s
                               << "R&D (skipped)"_s;
}

void MenuToggleTest::look()
{
    QFETCH(QString, name);
    QFETCH(QString, label);

    Manager manager({"G"_s}, false);
    QVERIFY(manager.createView(name));
    QVERIFY(manager.createView("plain"_s));
    reportedUserData().insert(name, true);
    const Menu menu(&manager, false, nullptr);
    const QAction* skipped = viewEntries(menu).at(0);
    const QAction* plain = viewEntries(menu).at(1);
    QCOMPARE(skipped->text(), label);
    QCOMPARE(skipped->data().toString(), name);
    QCOMPARE(skipped->font().style(), QFont::StyleItalic);
    QCOMPARE(plain->text(), "plain"_s);
    QCOMPARE(plain->font().style(), QFont::StyleNormal);
    // The style may change it; otherwise it is the font of the other entries.
    QFont upright = skipped->font();
    upright.setStyle(QFont::StyleNormal);
    QCOMPARE(upright, plain->font());
}

void MenuToggleTest::lookIsRebuilt()
{
    Manager manager({"G"_s}, false);
    setUp(manager, "ab"_s, 0);
    const Menu menu(&manager, false, nullptr);
    reportedUserData().insert("b"_s, true);
    Q_EMIT manager.viewUserDataChanged(true);
    QCOMPARE(entries(menu).mid(0, 2), lines({"* a", "b (skipped)"}));
    reportedUserData().insert("b"_s, false);
    Q_EMIT manager.viewUserDataChanged(false);
    QCOMPARE(entries(menu).mid(0, 2), lines({"* a", "b"}));
    QVERIFY(!viewEntries(menu).at(1)->font().italic());
}

void MenuToggleTest::skippedViewCanBeChosen()
{
    Manager manager({"G"_s}, false);
    setUp(manager, "a-"_s, 0);
    const Menu menu(&manager, false, nullptr);
    viewEntries(menu).at(1)->trigger();
    QCOMPARE(manager.activeView(), "b"_s);
    QCOMPARE(entries(menu).mid(0, 2), lines({"a", "* b (skipped)"}));
}

void MenuToggleTest::subMenusShowTheBareName()
{
    Manager manager({"G"_s}, false);
    setUp(manager, "a-"_s, 0);
    const Menu menu(&manager, false, nullptr);
    QCOMPARE(entries(*saveAsMenu(menu)), lines({"[edit]", "a", "b"}));
    QCOMPARE(entries(*deleteMenu(menu)), lines({"a", "b"}));
    QVERIFY(!entry(saveAsMenu(menu), "b"_s)->font().italic());
    entry(saveAsMenu(menu), "b"_s)->trigger();
    QCOMPARE(manager.activeView(), "b"_s);
    entry(deleteMenu(menu), "b"_s)->trigger();
    QCOMPARE(manager.views(), lines({"a"}));
}

void MenuToggleTest::laterFontsDoNotReachSkippedEntries()
{
    const QFont before = QApplication::font();
    Manager manager({"G"_s}, false);
    const Menu menu(&manager, false, nullptr);
    QFont later = before;
    later.setPointSize(before.pointSize() + 7);
    QApplication::setFont(later);
    setUp(manager, "-"_s, -1);
    Q_EMIT manager.viewUserDataChanged(true);
    const int size = viewEntries(menu).first()->font().pointSize();
    QApplication::setFont(before);
    QCOMPARE(size, before.pointSize());
}

QTEST_MAIN(MenuToggleTest)
#include "MenuToggleTest.moc"
