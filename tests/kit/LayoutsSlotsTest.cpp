// SPDX-License-Identifier: MIT
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QAbstractItemModel>
#include <QAction>
#include <QDialog>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QUndoStack>

#include <algorithm>
#include <memory>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

struct Program
{
    Program()
        : manager({"G"_s, "H"_s}, /*mergeOnApply=*/false)
        , layouts(manager)
    {
        layouts.addWindow(window, "w"_s);
        window.show();
    }

    void createViews()
    {
        for (const QString& name : {"a"_s, "b & c"_s, "d"_s})
            manager.createView(name);
        manager.activateGroup("H"_s);
        manager.createView("a"_s);
        manager.activateGroup("G"_s);
    }

    QAction& slot(int number) const { return *layouts.slotActions().at(number - 1); }
    QString active() const { return manager.activeGroup() + "/"_s + manager.activeView(); }

    SmallWindow window;
    Manager manager;
    Layouts layouts;
};

QStringList textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions)
        texts.append(action->text());
    return texts;
}

QStringList shortcutsOf(const QList<QAction*>& actions)
{
    QStringList shortcuts;
    for (const QAction* action : actions)
        shortcuts.append(action->shortcut().toString(QKeySequence::PortableText));
    return shortcuts;
}

/** As by typing in the list. */
void renameFirst(const QDialog& dialog, const QString& name)
{
    QAbstractItemModel* const model = dialog.findChild<QTreeView*>()->model();
    QVERIFY(model->setData(model->index(0, 0, model->index(0, 0)), name));
}

void moveToGroup(const QDialog& dialog, const QString& group)
{
    const auto actions = dialog.findChildren<QAction*>();
    const auto isOfGroup = [&](const QAction* action) { return action->text() == group; };
    const auto found = std::find_if(actions.cbegin(), actions.cend(), isOfGroup);
    QVERIFY(found != actions.cend());
    (*found)->trigger();
}

} // namespace

/** The actions that go to layouts: by slot, next and previous. */
class LayoutsSlotsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void slotsAreEmptyAtFirst();
    void slotsActivateTheirLayouts();
    void slotsFollowTheLayouts();
    void slotsOfLayoutsThatAreGoneAreForgottenAtTheStart();
    void renamesAreUndoneForTheNextStart();
    void layoutsKeepTheirSlotsInOtherGroups();
    void otherLayoutsOfTheNameBeforeAreNotFollowed();
    void shortcutsAreOffUntilTurnedOn();
    void windowsHaveActionsWithShortcutsOnly();
    void shortcutsWorkInTheWindow();
    void shortcutsOfTheApplicationStay();
    void shortcutsAreKept();
    void theMenuShowsShortcuts();
    void theMenuHasTheEntries();
    void nextAndPreviousGoAround();
    void nothingIsLeftWithoutTheManager();

private:
    QString path() const { return m_folder->filePath("f.views"_s); }
    /** Makes a file with the views of createViews() and these slots, as the dialog does. */
    void writeFile(const QJsonObject& layoutSlots) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void LayoutsSlotsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void LayoutsSlotsTest::writeFile(const QJsonObject& layoutSlots) const
{
    {
        Program program;
        program.layouts.start(path());
        program.createViews();
    }
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray document = file.readAll();
    // The first entry of the kit's part of the user data.
    const QByteArray kit = "{&quot;panorel-kit&quot;:{";
    const QByteArray json = QJsonDocument(layoutSlots).toJson(QJsonDocument::Compact);
    const QString entry = "\"slots\":"_s + QString::fromUtf8(json) + ","_s;
    QCOMPARE(document.count(kit), 1);
    document.replace(kit, kit + entry.toHtmlEscaped().toUtf8());
    QVERIFY(file.resize(0) && file.seek(0));
    QCOMPARE(file.write(document), document.size());
}

void LayoutsSlotsTest::slotsAreEmptyAtFirst()
{
    Program program;
    QCOMPARE(textsOf(program.layouts.slotActions()),
             lines({"Empty Slot 1", "Empty Slot 2", "Empty Slot 3", "Empty Slot 4", "Empty Slot 5",
                    "Empty Slot 6", "Empty Slot 7", "Empty Slot 8", "Empty Slot 9"}));
    const QList<QAction*> actions = program.layouts.slotActions();
    for (const QAction* action : actions)
        QVERIFY(!action->isEnabled());
}

void LayoutsSlotsTest::slotsActivateTheirLayouts()
{
    writeFile({{"1"_s, QJsonArray{"G"_s, "b & c"_s}},
               {"2"_s, QJsonArray{"H"_s, "a"_s}},
               {"9"_s, QJsonArray{"G"_s, "a"_s}}});
    Program program;
    program.layouts.start(path());
    QCOMPARE(program.slot(1).text(), "b && c (G)"_s);
    QCOMPARE(program.slot(2).text(), "a (H)"_s);
    QCOMPARE(program.slot(3).text(), "Empty Slot 3"_s);
    QVERIFY(!program.slot(3).isEnabled());
    program.slot(1).trigger();
    QCOMPARE(program.active(), "G/b & c"_s);
    program.slot(2).trigger();
    QCOMPARE(program.active(), "H/a"_s);
    program.slot(9).trigger();
    QCOMPARE(program.active(), "G/a"_s);
}

void LayoutsSlotsTest::slotsFollowTheLayouts()
{
    writeFile({{"1"_s, QJsonArray{"G"_s, "a"_s}}, {"2"_s, QJsonArray{"H"_s, "a"_s}}});
    Program program;
    program.layouts.start(path());
    const QByteArray all = program.manager.toXml(/*markActive=*/true);
    program.manager.deleteView("a"_s);
    QVERIFY(!program.slot(1).isEnabled());
    QCOMPARE(program.slot(1).text(), "Empty Slot 1"_s);
    QVERIFY(program.slot(2).isEnabled());
    program.manager.activateGroup("H"_s);
    program.manager.deleteView("a"_s);
    QVERIFY(!program.slot(2).isEnabled());
    // Such as undo does.
    QVERIFY(program.manager.fromXml(all, /*merge=*/false));
    QVERIFY(program.slot(2).isEnabled());
    QTRY_COMPARE(program.slot(1).text(), "a (G)"_s);
    QVERIFY(program.slot(1).isEnabled());
    program.slot(1).trigger();
    QCOMPARE(program.active(), "G/a"_s);
}

void LayoutsSlotsTest::slotsOfLayoutsThatAreGoneAreForgottenAtTheStart()
{
    writeFile({{"1"_s, QJsonArray{"G"_s, "gone"_s}},
               {"2"_s, QJsonArray{"gone"_s, "a"_s}},
               {"3"_s, "no pair"_s},
               {"4"_s, QJsonArray{"G"_s, "d"_s}},
               {"10"_s, QJsonArray{"G"_s, "a"_s}}});
    Program program;
    program.layouts.start(path());
    program.manager.createView("gone"_s);
    QVERIFY(!program.slot(1).isEnabled());
    QVERIFY(!program.slot(2).isEnabled());
    QVERIFY(!program.slot(3).isEnabled());
    QVERIFY(program.slot(4).isEnabled());
    program.slot(1).trigger();
    QCOMPARE(program.active(), "G/"_s);
}

void LayoutsSlotsTest::renamesAreUndoneForTheNextStart()
{
    writeFile({{"1"_s, QJsonArray{"G"_s, "a"_s}}});
    {
        Program program;
        program.layouts.start(path());
        const std::unique_ptr<QDialog> dialog(program.layouts.createDialog(nullptr));
        dialog->show();
        renameFirst(*dialog, "z"_s);
        QCOMPARE(program.slot(1).text(), "z (G)"_s);
        program.layouts.history()->undo();
        QTRY_COMPARE(program.slot(1).text(), "a (G)"_s);
        // As an event loop does before anything else of the user's.
        QCoreApplication::processEvents();
    }
    Program program;
    program.layouts.start(path());
    QCOMPARE(program.slot(1).text(), "a (G)"_s);
}

void LayoutsSlotsTest::layoutsKeepTheirSlotsInOtherGroups()
{
    writeFile({{"1"_s, QJsonArray{"G"_s, "a"_s}},
               {"2"_s, QJsonArray{"G"_s, "d"_s}},
               {"3"_s, QJsonArray{"H"_s, "a"_s}}});
    {
        Program program;
        program.layouts.start(path());
        const std::unique_ptr<QDialog> dialog(program.layouts.createDialog(nullptr));
        dialog->show();
        auto* view = dialog->findChild<QTreeView*>();
        const QAbstractItemModel* model = view->model();
        const QModelIndex group = model->index(0, 0);
        view->setCurrentIndex(model->index(2, 0, group));
        view->selectionModel()->select(model->index(0, 0, group), QItemSelectionModel::Select);
        moveToGroup(*dialog, "H"_s);
        // Its name is taken there.
        QCOMPARE(program.slot(1).text(), "a (2) (H)"_s);
        QCOMPARE(program.slot(2).text(), "d (H)"_s);
        QCOMPARE(program.slot(3).text(), "a (H)"_s);
    }
    Program program;
    program.layouts.start(path());
    QCOMPARE(program.slot(1).text(), "a (2) (H)"_s);
    QCOMPARE(program.slot(2).text(), "d (H)"_s);
    program.slot(1).trigger();
    QCOMPARE(program.active(), "H/a (2)"_s);
}

void LayoutsSlotsTest::otherLayoutsOfTheNameBeforeAreNotFollowed()
{
    writeFile({{"1"_s, QJsonArray{"G"_s, "a"_s}}});
    Program program;
    program.layouts.start(path());
    const std::unique_ptr<QDialog> dialog(program.layouts.createDialog(nullptr));
    dialog->show();
    renameFirst(*dialog, "broad"_s);
    QCOMPARE(program.slot(1).text(), "broad (G)"_s);
    program.manager.createView("a"_s);
    program.manager.deleteView("b & c"_s);
    program.manager.deleteView("d"_s);
    const auto* view = dialog->findChild<QTreeView*>();
    QAbstractItemModel* model = view->model();
    const QModelIndex group = model->index(0, 0);
    QTRY_COMPARE(model->rowCount(group), 2);
    QCOMPARE(model->index(1, 0, group).data().toString(), "a"_s);
    QVERIFY(model->setData(model->index(1, 0, group), "tall"_s));
    QCOMPARE(program.manager.views(), lines({"broad", "tall"}));
    QCoreApplication::processEvents();
    QCOMPARE(program.slot(1).text(), "broad (G)"_s);
}

void LayoutsSlotsTest::windowsHaveActionsWithShortcutsOnly()
{
    Program program;
    const auto slotsOf = [&](const QMainWindow& window) {
        QList<int> numbers;
        for (int number = 1; number <= 9; ++number) {
            if (window.actions().contains(&program.slot(number)))
                numbers.append(number);
        }
        return numbers;
    };
    const QList<int> all{1, 2, 3, 4, 5, 6, 7, 8, 9};
    QCOMPARE(slotsOf(program.window), QList<int>());
    program.slot(2).setShortcut(QKeySequence("F8"_s));
    QCOMPARE(slotsOf(program.window), QList<int>{2});
    program.layouts.setSlotShortcutsEnabled(true);
    QCOMPARE(slotsOf(program.window), all);
    SmallWindow later;
    program.layouts.addWindow(later, "later"_s);
    QTRY_COMPARE(slotsOf(later), all);
    program.layouts.setSlotShortcutsEnabled(false);
    QCOMPARE(slotsOf(program.window), QList<int>{2});
    QCOMPARE(slotsOf(later), QList<int>{2});
    program.slot(2).setShortcut(QKeySequence());
    QCOMPARE(slotsOf(program.window), QList<int>());
}

void LayoutsSlotsTest::shortcutsAreOffUntilTurnedOn()
{
    Program program;
    QVERIFY(!program.layouts.areSlotShortcutsEnabled());
    QCOMPARE(shortcutsOf(program.layouts.slotActions()).join(QString()), QString());
    program.layouts.setSlotShortcutsEnabled(true);
    QVERIFY(program.layouts.areSlotShortcutsEnabled());
    QCOMPARE(shortcutsOf(program.layouts.slotActions()),
             lines({"Ctrl+Alt+1", "Ctrl+Alt+2", "Ctrl+Alt+3", "Ctrl+Alt+4", "Ctrl+Alt+5",
                    "Ctrl+Alt+6", "Ctrl+Alt+7", "Ctrl+Alt+8", "Ctrl+Alt+9"}));
    program.layouts.setSlotShortcutsEnabled(false);
    QCOMPARE(shortcutsOf(program.layouts.slotActions()).join(QString()), QString());
}

void LayoutsSlotsTest::shortcutsWorkInTheWindow()
{
    writeFile({{"4"_s, QJsonArray{"G"_s, "d"_s}}});
    Program program;
    program.layouts.start(path());
    program.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&program.window));
    QTest::keyClick(&program.window, Qt::Key_4, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(program.active(), "G/"_s);
    program.layouts.setSlotShortcutsEnabled(true);
    QTest::keyClick(&program.window, Qt::Key_5, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(program.active(), "G/"_s);
    QTest::keyClick(&program.window, Qt::Key_4, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(program.active(), "G/d"_s);
}

void LayoutsSlotsTest::shortcutsOfTheApplicationStay()
{
    Program program;
    program.slot(2).setShortcut(QKeySequence("F8"_s));
    program.layouts.setSlotShortcutsEnabled(true);
    QCOMPARE(shortcutsOf(program.layouts.slotActions()).mid(0, 3),
             lines({"Ctrl+Alt+1", "F8", "Ctrl+Alt+3"}));
    program.layouts.setSlotShortcutsEnabled(false);
    QCOMPARE(shortcutsOf(program.layouts.slotActions()).mid(0, 3), lines({"", "F8", ""}));
}

void LayoutsSlotsTest::shortcutsAreKept()
{
    {
        Program program;
        program.layouts.start(path());
        program.layouts.setSlotShortcutsEnabled(true);
    }
    {
        Program program;
        program.layouts.start(path());
        QVERIFY(program.layouts.areSlotShortcutsEnabled());
        QCOMPARE(program.slot(1).shortcut().toString(), "Ctrl+Alt+1"_s);
        program.layouts.setSlotShortcutsEnabled(false);
    }
    Program program;
    program.layouts.setSlotShortcutsEnabled(true);
    program.layouts.start(path());
    QVERIFY(!program.layouts.areSlotShortcutsEnabled());
}

void LayoutsSlotsTest::theMenuShowsShortcuts()
{
    writeFile({{"1"_s, QJsonArray{"G"_s, "b & c"_s}},
               {"2"_s, QJsonArray{"H"_s, "a"_s}},
               {"9"_s, QJsonArray{"G"_s, "d"_s}}});
    Program program;
    program.layouts.start(path());
    const QList<QMenu*> menus{program.layouts.createMenu(&program.window),
                              program.layouts.createButton(&program.window)->menu()};
    for (QMenu* menu : menus) {
        const auto shownTexts = [menu] {
            Q_EMIT menu->aboutToShow();
            return textsOf(menu->actions()).mid(0, 3);
        };
        QCOMPARE(shownTexts(), lines({"a", "b && c", "d"}));
        program.layouts.setSlotShortcutsEnabled(true);
        QCOMPARE(shownTexts(), lines({"a", "b && c\tCtrl+Alt+1", "d\tCtrl+Alt+9"}));
        QCOMPARE(shownTexts(), lines({"a", "b && c\tCtrl+Alt+1", "d\tCtrl+Alt+9"}));
        menu->actions().at(1)->trigger();
        QCOMPARE(program.active(), "G/b & c"_s);
        program.layouts.setSlotShortcutsEnabled(false);
        QCOMPARE(shownTexts(), lines({"a", "b && c", "d"}));
    }
}

void LayoutsSlotsTest::theMenuHasTheEntries()
{
    Program program;
    program.createViews();
    const auto menu = std::unique_ptr<QMenu>(program.layouts.createMenu(nullptr));
    const auto other = std::unique_ptr<QMenu>(program.layouts.createMenu(nullptr));
    const auto entry = [&](const QString& text) {
        const int index = textsOf(menu->actions()).indexOf(text);
        return menu->actions().value(index);
    };
    const QStringList texts =
        lines({"&Next Layout", "&Previous Layout", "Use S&hortcuts", "Loc&k Layout"});
    for (const QString& text : texts)
        QVERIFY2(entry(text), qPrintable(text));
    entry(texts[0])->trigger();
    QCOMPARE(program.active(), "G/a"_s);
    entry(texts[1])->trigger();
    QCOMPARE(program.active(), "G/d"_s);
    entry(texts[2])->trigger();
    QVERIFY(program.layouts.areSlotShortcutsEnabled());
    entry(texts[3])->trigger();
    QVERIFY(program.layouts.isLocked());
    program.layouts.setLocked(false);
    QVERIFY(!entry(texts[3])->isChecked());
}

void LayoutsSlotsTest::nextAndPreviousGoAround()
{
    Program program;
    QAction& next = *program.layouts.nextAction();
    QAction& previous = *program.layouts.previousAction();
    QVERIFY(!next.isEnabled());
    QVERIFY(!previous.isEnabled());
    program.manager.createView("z"_s);
    QVERIFY(next.isEnabled());
    previous.trigger();
    QCOMPARE(program.active(), "G/z"_s);
    QVERIFY(!next.isEnabled());
    QVERIFY(!previous.isEnabled());
    program.manager.createView("a"_s);
    program.manager.createView("m"_s);
    QVERIFY(next.isEnabled());
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        next.trigger();
        visited.append(program.manager.activeView());
    }
    QCOMPARE(visited, lines({"a", "m", "z"}));
    previous.trigger();
    QCOMPARE(program.active(), "G/m"_s);
    program.manager.deleteView("m"_s);
    next.trigger();
    QCOMPARE(program.active(), "G/z"_s);
    program.manager.activateGroup("H"_s);
    QVERIFY(!next.isEnabled());
}

void LayoutsSlotsTest::nothingIsLeftWithoutTheManager()
{
    SmallWindow window;
    auto manager = std::make_unique<Manager>(QStringList("G"_s), /*mergeOnApply=*/false);
    Layouts layouts(*manager);
    layouts.addWindow(window);
    manager->createView("a"_s);
    layouts.setSlotShortcutsEnabled(true);
    manager.reset();
    QCOMPARE(layouts.slotActions().size(), 9);
    const QList<QAction*> actions = layouts.slotActions()
                                    << layouts.nextAction() << layouts.previousAction();
    for (QAction* action : actions) {
        QVERIFY(!action->isEnabled());
        action->setEnabled(true);
        action->trigger();
    }
    layouts.setSlotShortcutsEnabled(false);
    QVERIFY(!layouts.areSlotShortcutsEnabled());
}

QTEST_MAIN(LayoutsSlotsTest)
#include "LayoutsSlotsTest.moc"
