// SPDX-License-Identifier: MIT
#include "FourSidesWindow.h"
#include "support/ShownArrangement.h"
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

// A program with its Manager, window and layouts, all of which end with it.
struct Program
{
    explicit Program(const QString& fileName, bool merges = false)
        : manager({"G"_s, "H"_s}, merges)
        , layouts(manager)
    {
        QObject::connect(&layouts, &Layouts::message, &layouts,
                         [this](const QString& text) { messages.append(text); });
        layouts.addWindow(window, "w"_s);
        window.show();
        layouts.start(fileName);
        QCoreApplication::processEvents();
    }

    SmallWindow window;
    Manager manager;
    QStringList messages;
    Layouts layouts;
};

} // namespace

class LayoutsFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void allComesBack_data();
    void allComesBack();
    void theActiveGroupComesBack();
    void changesAreSavedByThemselves();
    void nothingIsWrittenWithoutAChange();
    void theUsualPlace();
    void lastStartsAreKept();
    void anUnreadableFileIsMovedAway_data();
    void anUnreadableFileIsMovedAway();
    void theNewestGoodCopyIsUsed();
    void namesWithPercentSignsStay();
    void anotherVersionChangesNothing();
    void harmfulStatesAreLeftOut();
    void twoProgramsKeepBothLayouts();
    void aViewThatBothChangedIsKeptTwice();
    void whatOthersDeletedGoes();
    void whatOthersDeletedGoesThoughItWasDamaged();
    void settingsOfBothAreKept();
    void settingsOfOthersAreTakenOver();
    void sizesOfOthersAreKept();
    void whatAReceiverAddsIsSaved();
    void groupsOfOthersAreKept();
    void anotherFileGetsAll();
    void aFailureIsToldOnceAndRetried();
    void windowsThatNeverCameKeepTheirPart();
    void aLockOfNobodyIsRemoved();
    void theLockOfAnotherIsLeftAlone();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QByteArray contentOf(const char* name) const;
    void write(const char* name, const QByteArray& content) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void LayoutsFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QByteArray LayoutsFileTest::contentOf(const char* name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void LayoutsFileTest::write(const char* name, const QByteArray& content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void LayoutsFileTest::allComesBack_data()
{
    QTest::addColumn<bool>("merges");
    QTest::newRow("without merging") << false;
    QTest::newRow("with merging") << true;
}

void LayoutsFileTest::allComesBack()
{
    QFETCH(bool, merges);
    {
        Program program(path("f.views"), merges);
        program.manager.saveCurrentViewAs("a"_s);
        program.window.moveDock(Qt::RightDockWidgetArea);
        program.window.moveBar(Qt::BottomToolBarArea);
    }
    Program program(path("f.views"), merges);
    QCOMPARE(program.manager.views(), QStringList("a"_s));
    QCOMPARE(program.manager.activeView(), "a"_s);
    QCOMPARE(program.window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(program.window.barArea(), Qt::BottomToolBarArea);
    program.manager.activateView("a"_s);
    QCOMPARE(program.window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(program.messages, QStringList());
    QCOMPARE(program.layouts.problem(), QString());
}

void LayoutsFileTest::theActiveGroupComesBack()
{
    {
        Program program(path("f.views"));
        program.manager.activateGroup("H"_s);
        program.window.moveDock(Qt::RightDockWidgetArea);
    }
    Program program(path("f.views"));
    QCOMPARE(program.manager.activeGroup(), "H"_s);
    QCOMPARE(program.window.dockArea(), Qt::RightDockWidgetArea);
    program.manager.activateGroup("G"_s);
    QCOMPARE(program.window.dockArea(), Qt::LeftDockWidgetArea);
}

void LayoutsFileTest::changesAreSavedByThemselves()
{
    Program program(path("f.views"));
    program.manager.saveCurrentViewAs("first"_s);
    QTRY_VERIFY(contentOf("f.views").contains("Name=\"first\""));
    const QByteArray before = contentOf("f.views");
    program.window.moveDock(Qt::RightDockWidgetArea);
    QTRY_VERIFY(contentOf("f.views") != before);
}

void LayoutsFileTest::nothingIsWrittenWithoutAChange()
{
    Program program(path("f.views"));
    QVERIFY(program.layouts.save());
    QVERIFY(QFile::remove(path("f.views")));
    QVERIFY(program.layouts.save());
    QVERIFY(!QFile::exists(path("f.views")));
}

void LayoutsFileTest::theUsualPlace()
{
    QStandardPaths::setTestModeEnabled(true);
    const QString name =
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/layouts.views"_s;
    (void)QFile::remove(name);
    {
        Program program((QString()));
        program.manager.createView("a"_s);
    }
    QVERIFY(QFile::remove(name));
}

void LayoutsFileTest::lastStartsAreKept()
{
    for (int day = 1; day <= 6; ++day) {
        Program program(path("f.views"));
        program.manager.createView("day %1"_s.arg(day));
    }
    // Day 6 is in the file; it began with day 5.
    QVERIFY(contentOf("f.views").contains("Name=\"day 6\""));
    QVERIFY(contentOf("f.views.1").contains("Name=\"day 5\""));
    QVERIFY(!contentOf("f.views.1").contains("Name=\"day 6\""));
    QVERIFY(contentOf("f.views.3").contains("Name=\"day 3\""));
    QVERIFY(!contentOf("f.views.3").contains("Name=\"day 4\""));
    QVERIFY(!QFile::exists(path("f.views.4")));
}

void LayoutsFileTest::anUnreadableFileIsMovedAway_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("garbage") << QByteArray("garbage");
    QTest::newRow("cut") << QByteArray("<?xml version=\"1.0\"?><ViewData Version=\"1.1.0\"><Gro");
    QTest::newRow("empty") << QByteArray();
}

void LayoutsFileTest::anUnreadableFileIsMovedAway()
{
    QFETCH(QByteArray, content);
    for (int day = 1; day <= 2; ++day) {
        Program program(path("f.views"));
        program.manager.createView("day %1"_s.arg(day));
    }
    write("f.views", content);
    {
        Program program(path("f.views"));
        QCOMPARE(program.messages.size(), 1);
        QVERIFY(program.messages.constFirst().contains("f.views.unreadable-1"_s));
        QCOMPARE(program.layouts.problem(), program.messages.constFirst());
        // What was good at the start of day 2.
        QCOMPARE(program.manager.views(), QStringList("day 1"_s));
    }
    QCOMPARE(contentOf("f.views.unreadable-1"), content);
    QVERIFY(contentOf("f.views").contains("Name=\"day 1\""));
}

void LayoutsFileTest::theNewestGoodCopyIsUsed()
{
    for (int day = 1; day <= 4; ++day) {
        Program program(path("f.views"));
        program.manager.createView("day %1"_s.arg(day));
    }
    write("f.views", "garbage");
    write("f.views.1", "garbage");
    write("f.views.2", contentOf("f.views.2").replace("\"1.1.0\"", "\"2.0.0\""));
    Program program(path("f.views"));
    QCOMPARE(program.messages.size(), 1);
    // What was good at the start of day 2.
    QCOMPARE(program.manager.views(), QStringList("day 1"_s));
}

void LayoutsFileTest::namesWithPercentSignsStay()
{
    Program one(path("f %1.views"));
    one.manager.createView("Zoom %1"_s);
    QVERIFY(one.layouts.save());
    Program two(path("f %1.views"));
    QVERIFY(QFile::exists(path("f %1.views.1")));
    one.window.moveDock(Qt::RightDockWidgetArea);
    one.manager.saveCurrentViewAs("Zoom %1"_s);
    QVERIFY(one.layouts.save());
    two.window.moveDock(Qt::TopDockWidgetArea);
    two.manager.saveCurrentViewAs("Zoom %1"_s);
    QVERIFY(two.layouts.save());
    QCOMPARE(two.manager.views(), QStringList({"Zoom %1"_s, "Zoom %1 (2)"_s}));
    write("f %1.views", "garbage");
    Program three(path("f %1.views"));
    QVERIFY(QFile::exists(path("f %1.views.unreadable-1")));
}

void LayoutsFileTest::anotherVersionChangesNothing()
{
    {
        Program program(path("f.views"));
        program.manager.createView("a"_s);
    }
    const QByteArray other = contentOf("f.views").replace("\"1.1.0\"", "\"2.0.0\"");
    write("f.views", other);
    {
        Program program(path("f.views"));
        QCOMPARE(program.messages.size(), 1);
        QCOMPARE(program.manager.views(), QStringList());
        program.window.moveDock(Qt::RightDockWidgetArea);
    }
    QCOMPARE(contentOf("f.views"), other);
    {
        Program program(path("f.views"));
        program.manager.createView("b"_s);
    }
    QCOMPARE(contentOf("f.views.unreadable-1"), other);
    QVERIFY(contentOf("f.views").contains("Name=\"b\""));
}

void LayoutsFileTest::harmfulStatesAreLeftOut()
{
    QByteArray state;
    {
        Program program(path("f.views"));
        program.manager.createView("good"_s);
        program.window.moveDock(Qt::RightDockWidgetArea);
        program.manager.createView("bad"_s);
        state = program.window.saveState().toHex();
    }
    // The dock record's side is after marker, version, section marker and count.
    QByteArray harmful = state;
    harmful.replace(26, 8, "7fffffff");
    const QByteArray document = contentOf("f.views").replace(state, harmful);
    QVERIFY(document.contains("7fffffff"));
    write("f.views", document);
    {
        Program program(path("f.views"));
        QCOMPARE(program.messages.size(), 1);
        QCOMPARE(program.window.dockArea(), Qt::LeftDockWidgetArea);
        program.manager.activateView("bad"_s);
        QCOMPARE(program.window.dockArea(), Qt::LeftDockWidgetArea);
        QCOMPARE(program.manager.views(), QStringList({"good"_s, "bad"_s}));
    }
    QCOMPARE(contentOf("f.views.1"), document);
}

void LayoutsFileTest::twoProgramsKeepBothLayouts()
{
    Program one(path("f.views"));
    one.manager.createView("common"_s);
    QVERIFY(one.layouts.save());
    Program two(path("f.views"));
    one.manager.createView("of one"_s);
    QVERIFY(one.layouts.save());
    two.manager.createView("of two"_s);
    QVERIFY(two.layouts.save());
    QCOMPARE(two.manager.views(), QStringList({"common"_s, "of two"_s, "of one"_s}));
    one.manager.createView("last"_s);
    QVERIFY(one.layouts.save());
    QCOMPARE(one.manager.views(), QStringList({"common"_s, "of one"_s, "last"_s, "of two"_s}));
}

void LayoutsFileTest::aViewThatBothChangedIsKeptTwice()
{
    Program one(path("f.views"));
    one.manager.createView("v"_s);
    QVERIFY(one.layouts.save());
    Program two(path("f.views"));
    one.window.moveDock(Qt::RightDockWidgetArea);
    one.manager.saveCurrentViewAs("v"_s);
    QVERIFY(one.layouts.save());
    two.window.moveDock(Qt::TopDockWidgetArea);
    two.manager.saveCurrentViewAs("v"_s);
    QVERIFY(two.layouts.save());
    QCOMPARE(two.manager.views(), QStringList({"v"_s, "v (2)"_s}));
    QCOMPARE(two.manager.activeView(), "v"_s);
    two.manager.activateView("v (2)"_s);
    QCOMPARE(two.window.dockArea(), Qt::RightDockWidgetArea);
    two.manager.activateView("v"_s);
    QCOMPARE(two.window.dockArea(), Qt::TopDockWidgetArea);
}

void LayoutsFileTest::whatOthersDeletedGoes()
{
    Program one(path("f.views"));
    one.manager.createView("v"_s);
    one.manager.createView("w"_s);
    QVERIFY(one.layouts.save());
    Program two(path("f.views"));
    one.manager.deleteView("v"_s);
    QVERIFY(one.layouts.save());
    two.manager.createView("x"_s);
    QVERIFY(two.layouts.save());
    QCOMPARE(two.manager.views(), QStringList({"w"_s, "x"_s}));
}

void LayoutsFileTest::whatOthersDeletedGoesThoughItWasDamaged()
{
    QByteArray state;
    {
        Program program(path("f.views"));
        program.manager.createView("good"_s);
        program.window.moveDock(Qt::RightDockWidgetArea);
        program.manager.createView("bad"_s);
        state = program.window.saveState().toHex();
    }
    QByteArray harmful = state;
    harmful.replace(26, 8, "7fffffff");
    write("f.views", contentOf("f.views").replace(state, harmful));
    Program one(path("f.views"));
    Program two(path("f.views"));
    one.manager.deleteView("bad"_s);
    QVERIFY(one.layouts.save());
    two.manager.createView("new"_s);
    QVERIFY(two.layouts.save());
    QCOMPARE(two.manager.views(), QStringList({"good"_s, "new"_s}));
    QVERIFY(!contentOf("f.views").contains("Name=\"bad\""));
}

void LayoutsFileTest::settingsOfBothAreKept()
{
    {
        Program program(path("f.views"));
        program.layouts.setLocked(true);
        program.layouts.setLocked(false);
    }
    Program one(path("f.views"));
    Program two(path("f.views"));
    one.layouts.setLocked(true);
    QVERIFY(one.layouts.save());
    two.layouts.setSlotShortcutsEnabled(true);
    QVERIFY(two.layouts.save());
    QVERIFY(two.layouts.isLocked());
    QVERIFY(two.layouts.areSlotShortcutsEnabled());
    two.layouts.setLocked(false);
    QVERIFY(two.layouts.save());
    one.manager.createView("a"_s);
    QVERIFY(one.layouts.save());
    QVERIFY(!one.layouts.isLocked());
    QVERIFY(one.layouts.areSlotShortcutsEnabled());
    const Program three(path("f.views"));
    QVERIFY(!three.layouts.isLocked());
    QVERIFY(three.layouts.areSlotShortcutsEnabled());
}

// Where no view has changed, too.
void LayoutsFileTest::settingsOfOthersAreTakenOver()
{
    Program one(path("f.views"));
    QVERIFY(one.layouts.save());
    Program two(path("f.views"));
    QVERIFY(two.layouts.save());
    one.layouts.setLocked(true);
    QVERIFY(one.layouts.save());
    two.window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(two.layouts.save());
    QVERIFY(two.layouts.isLocked());
    const Program three(path("f.views"));
    QVERIFY(three.layouts.isLocked());
    QCOMPARE(three.window.dockArea(), Qt::RightDockWidgetArea);
}

void LayoutsFileTest::sizesOfOthersAreKept()
{
    Program one(path("f.views"));
    QVERIFY(one.layouts.save());
    Program two(path("f.views"));
    QVERIFY(two.layouts.save());
    const QSize size = two.window.size();
    one.window.resize(333, 222);
    QVERIFY(one.layouts.save());
    // What it has not changed itself never replaces it.
    for (const auto area : {Qt::RightDockWidgetArea, Qt::TopDockWidgetArea}) {
        two.window.moveDock(area);
        QVERIFY(two.layouts.save());
    }
    QCOMPARE(two.window.size(), size);
    {
        const Program three(path("f.views"));
        QCOMPARE(three.window.size(), QSize(333, 222));
    }
    two.window.resize(444, 333);
    QVERIFY(two.layouts.save());
    const Program four(path("f.views"));
    QCOMPARE(four.window.size(), QSize(444, 333));
}

void LayoutsFileTest::whatAReceiverAddsIsSaved()
{
    Program one(path("f.views"));
    QVERIFY(one.layouts.save());
    Program two(path("f.views"));
    one.manager.createView("of one"_s);
    QVERIFY(one.layouts.save());
    two.manager.createView("of two"_s);
    QObject::connect(&two.manager, &Manager::groupModified, &two.layouts, [&two] {
        if (!two.manager.views().contains("late"_s))
            two.manager.createView("late"_s);
    });
    QVERIFY(two.layouts.save());
    QVERIFY(two.layouts.save());
    QVERIFY(two.manager.views().contains("late"_s));
    QVERIFY(contentOf("f.views").contains("Name=\"of one\""));
    QVERIFY(contentOf("f.views").contains("Name=\"late\""));
}

void LayoutsFileTest::groupsOfOthersAreKept()
{
    Program both(path("f.views"));
    both.manager.activateGroup("H"_s);
    both.manager.createView("of H"_s);
    QVERIFY(both.layouts.save());
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    Layouts layouts(manager);
    layouts.start(path("f.views"));
    manager.createView("of G"_s);
    QVERIFY(layouts.save());
    QVERIFY(contentOf("f.views").contains("Name=\"of H\""));
    // Also what comes meanwhile.
    both.manager.createView("more of H"_s);
    QVERIFY(both.layouts.save());
    manager.createView("more of G"_s);
    QVERIFY(layouts.save());
    const QByteArray content = contentOf("f.views");
    for (const char* name : {"of G", "of H", "more of G", "more of H"})
        QCOMPARE(content.count("Name=\"" + QByteArray(name) + '"'), 1);
    Program third(path("f.views"));
    third.manager.activateGroup("H"_s);
    QCOMPARE(third.manager.views(), QStringList({"of H"_s, "more of H"_s}));
}

void LayoutsFileTest::anotherFileGetsAll()
{
    Program program(path("f.views"));
    program.manager.createView("a"_s);
    program.layouts.setLocked(true);
    program.layouts.start(path("g.views"));
    QVERIFY(contentOf("f.views").contains("Name=\"a\""));
    QVERIFY(program.layouts.save());
    QVERIFY(contentOf("g.views").contains("Name=\"a\""));
    QVERIFY(program.layouts.isLocked());
    program.layouts.start(path("f.views"));
    QCOMPARE(program.manager.views(), QStringList("a"_s));
    QCOMPARE(program.messages, QStringList());
}

void LayoutsFileTest::aFailureIsToldOnceAndRetried()
{
    // A file where the folder should be; rights would not stop every user.
    write("folder", "not one");
    Program program(path("folder/f.views"));
    program.manager.createView("a"_s);
    QVERIFY(!program.layouts.save());
    program.manager.createView("b"_s);
    QVERIFY(!program.layouts.save());
    QCOMPARE(program.messages.size(), 1);
    QCOMPARE(program.layouts.problem(), program.messages.constFirst());
    QVERIFY(QFile::remove(path("folder")));
    QVERIFY(program.layouts.save());
    QCOMPARE(program.layouts.problem(), QString());
    QVERIFY(contentOf("folder/f.views").contains("Name=\"b\""));
}

void LayoutsFileTest::windowsThatNeverCameKeepTheirPart()
{
    {
        Program program(path("f.views"));
        program.window.moveDock(Qt::RightDockWidgetArea);
    }
    {
        Manager manager({"G"_s, "H"_s}, /*mergeOnApply=*/false);
        Layouts layouts(manager);
        layouts.start(path("f.views"));
        manager.createView("changed"_s);
    }
    Program program(path("f.views"));
    QCOMPARE(program.manager.views(), QStringList("changed"_s));
    QCOMPARE(program.window.dockArea(), Qt::RightDockWidgetArea);
}

// A program leaves an empty lock if it is killed after making the file and before writing into it.
void LayoutsFileTest::aLockOfNobodyIsRemoved()
{
    write("f.views.lock", QByteArray());
    Program program(path("f.views"));
    program.manager.createView("a"_s);
    QVERIFY(program.layouts.save());
    QVERIFY(!QFile::exists(path("f.views.lock")));
}

void LayoutsFileTest::theLockOfAnotherIsLeftAlone()
{
    Program program(path("f.views"));
    program.manager.createView("a"_s);
    QLockFile other(path("f.views.lock"));
    QVERIFY(other.lock());
    const QByteArray owner = contentOf("f.views.lock");
    QVERIFY(!owner.isEmpty());
    // It waits for longer than it takes a lock to be old, and then saves all the same.
    QVERIFY(program.layouts.save());
    QCOMPARE(contentOf("f.views.lock"), owner);
    QVERIFY(contentOf("f.views").contains("Name=\"a\""));
}

QTEST_MAIN(LayoutsFileTest)
#include "LayoutsFileTest.moc"
