// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/SampleWindow.h"
#include "ui/FileDialogUser.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/Layouts.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QTreeView>
#include <QUndoStack>

#include <algorithm>
#include <memory>

namespace Panorel::Tests {

using Kit::LayoutDocument;
using Kit::Layouts;

namespace {

/** The dialog over a window whose layouts are "One", "Two" and "Three". */
class Fixture
{
public:
    explicit Fixture(const QStringList& groups = {"Editing"_s},
                     const QStringList& names = {"One"_s, "Two"_s, "Three"_s})
        : manager(groups, /*mergeOnApply=*/false)
        , layouts(std::make_unique<Layouts>(manager))
    {
        layouts->addWindow(window, "main"_s);
        // A window manager would move it.
        window.palette->setFloating(false);
        window.show();
        for (const QString& name : names)
            manager.createView(name);
        dialog = layouts->createDialog(&window);
        dialog->show();
        const auto isActive = [this] {
            // A dialog counts as active while its parent is, and a window manager may be busy.
            if (QApplication::activeWindow() != dialog)
                dialog->activateWindow();
            return QApplication::activeWindow() == dialog;
        };
        isReady = QTest::qWaitFor(isActive, 30000);
    }

    QTreeView* view() const { return dialog->findChild<QTreeView*>(); }
    QAbstractItemModel* model() const { return view()->model(); }
    QModelIndex group(int number) const { return model()->index(number, 0); }
    QModelIndex layout(int row, int number = 0) const
    {
        return model()->index(row, 0, group(number));
    }
    QStringList shown(int number = 0) const
    {
        QStringList names;
        for (int row = 0; row < model()->rowCount(group(number)); ++row)
            names.append(layout(row, number).data().toString());
        return names;
    }
    void select(std::initializer_list<int> rows)
    {
        view()->setCurrentIndex(layout(*rows.begin()));
        for (const int row : rows)
            view()->selectionModel()->select(layout(row), QItemSelectionModel::Select);
    }
    QAction* action(const QString& text) const
    {
        const auto actions = dialog->findChildren<QAction*>();
        const auto found = std::find_if(actions.cbegin(), actions.cend(), [&](QAction* action) {
            return action->text().remove(QLatin1Char('&')).startsWith(text);
        });
        return found == actions.cend() ? nullptr : *found;
    }
    QPushButton* button(const QString& text) const
    {
        const auto buttons = dialog->findChildren<QPushButton*>();
        for (QPushButton* const button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == text)
                return button;
        }
        return nullptr;
    }
    QLineEdit* editor() const
    {
        return qobject_cast<QLineEdit*>(view()->indexWidget(view()->currentIndex()));
    }
    /** Presses a key where the dialog has its focus. */
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void type(const QString& text) const { QTest::keyClicks(QApplication::focusWidget(), text); }
    QString differences() const
    {
        return dialog->findChild<QPlainTextEdit*>("differences"_s)->toPlainText();
    }
    QString message() const { return dialog->findChild<QLabel*>("message"_s)->text(); }

    SampleWindow window;
    Manager manager;
    std::unique_ptr<Layouts> layouts;
    QDialog* dialog;
    bool isReady = false;
};

QStringList list(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

} // namespace

/** The dialog with all layouts, by its keys, its actions and its model. */
class LayoutsDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void layoutsAreShown();
    void groupsAreShown();
    void renamesByKeys();
    void unsoundNamesAreRefused_data();
    void unsoundNamesAreRefused();
    void refusedTypingIsKept();
    void typingOutlivesChanges();
    void deletesSeveral();
    void duplicates();
    void movesByKeys();
    void movesBetweenGroups();
    void drags_data();
    void drags();
    void everyEditIsUndone();
    void toolBarHasNoLettersInBrackets();
    void switches();
    void differencesAreTold();
    void modifiedLayoutIsMarked();
    void slotsAreAssigned_data();
    void slotsAreAssigned();
    void followsChanges();
    void exportsChosen();
    void drawsOnlyWhatIsSeen();
    void screenReader();
    void menuOpensOne();
    void managerMayGoFirst();
    void layoutsMayGoFirst();
    void windowMayGoFirst();
    void dialogMayGoFirst();

private:
    MessageWatch m_watch;
};

void LayoutsDialogTest::layoutsAreShown()
{
    Fixture f;
    QCOMPARE(f.dialog->windowTitle(), "Layouts"_s);
    QCOMPARE(f.shown(), list("One Two Three"));
    QCOMPARE(f.view()->rootIndex(), f.group(0));
    QVERIFY(!f.dialog->isModal());
}

void LayoutsDialogTest::groupsAreShown()
{
    Fixture f({"Editing"_s, "Drawing"_s});
    QCOMPARE(f.model()->rowCount(), 2);
    QCOMPARE(f.group(1).data().toString(), "Drawing"_s);
    QVERIFY(f.view()->isExpanded(f.group(0)));
    QCOMPARE(f.shown(0), list("One Two Three"));
    QCOMPARE(f.shown(1), QStringList());
}

void LayoutsDialogTest::renamesByKeys()
{
    Fixture f;
    QVERIFY(f.isReady);
    f.select({1});
    f.press(Qt::Key_F2);
    QVERIFY(f.editor());
    QCOMPARE(f.editor()->text(), "Two"_s);
    f.type("Second & last"_s);
    f.press(Qt::Key_Return);
    QTRY_COMPARE(f.manager.views(), (QStringList{"One"_s, "Second & last"_s, "Three"_s}));
    QTRY_COMPARE(f.shown(), f.manager.views());
    QCOMPARE(f.view()->currentIndex(), f.layout(1));
    QTRY_VERIFY(!f.editor());
    // Return has ended the editing only.
    QVERIFY(f.manager.activeView().isNull());
}

void LayoutsDialogTest::unsoundNamesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("taken") << "Three"_s
                           << "There is a layout of this name already."_s;
    QTest::newRow("taken but for blanks") << " Three "_s
                                          << "There is a layout of this name already."_s;
    QTest::newRow("blank") << "  "_s
                           << "A layout needs a name."_s;
    QTest::newRow("control character")
        << QString(QChar(1)) << "A name cannot have control characters."_s;
}

void LayoutsDialogTest::unsoundNamesAreRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    Fixture f;
    QVERIFY(f.isReady);
    f.select({1});
    f.press(Qt::Key_F2);
    const QPointer<QLineEdit> editor = f.editor();
    editor->setText(name);
    f.press(Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(f.editor(), editor.data());
    QCOMPARE(editor->text(), name);
    const auto* label = f.view()->viewport()->findChild<QLabel*>("reason"_s);
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), reason);
    QCOMPARE(f.editor()->accessibleDescription(), reason);
    QCOMPARE(f.manager.views(), list("One Two Three"));
    // From here on it can be a name.
    f.editor()->setText(" Four "_s);
    QVERIFY(!label->isVisible());
    f.press(Qt::Key_Return);
    QTRY_COMPARE(f.manager.views(), list("One Four Three"));
}

void LayoutsDialogTest::refusedTypingIsKept()
{
    Fixture f;
    QVERIFY(f.isReady);
    f.select({1});
    f.press(Qt::Key_F2);
    f.type("Three"_s);
    const QRect other = f.view()->visualRect(f.layout(0));
    QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, other.center());
    QTRY_VERIFY(f.editor() && f.editor()->isVisible());
    QTRY_COMPARE(f.editor()->text(), "Three"_s);
    QTRY_COMPARE(f.view()->currentIndex(), f.layout(1));
    f.editor()->setFocus();
    f.press(Qt::Key_Escape);
    QTRY_VERIFY(!f.editor());
    QCOMPARE(f.manager.views(), list("One Two Three"));
    QVERIFY(f.dialog->isVisible());
}

void LayoutsDialogTest::typingOutlivesChanges()
{
    Fixture f;
    QVERIFY(f.isReady);
    f.select({1});
    f.press(Qt::Key_F2);
    f.type("Second"_s);
    f.manager.deleteView("One"_s);
    f.manager.saveCurrentViewAs("Two"_s);
    f.manager.createView("Five"_s);
    QTRY_COMPARE(f.shown(), list("Two Three Five"));
    QVERIFY(f.editor());
    QCOMPARE(f.editor()->text(), "Second"_s);
    f.press(Qt::Key_Return);
    QTRY_COMPARE(f.manager.views(), list("Second Three Five"));
}

void LayoutsDialogTest::deletesSeveral()
{
    Fixture f({"Editing"_s}, list("A B C D"));
    QVERIFY(f.isReady);
    f.select({1, 2});
    f.press(Qt::Key_Delete);
    QCOMPARE(f.manager.views(), list("A D"));
    QCOMPARE(f.shown(), list("A D"));
    QCOMPARE(f.view()->currentIndex(), f.layout(1));
    f.press(Qt::Key_Delete);
    QCOMPARE(f.manager.views(), list("A"));
    QCOMPARE(f.view()->currentIndex(), f.layout(0));
    f.press(Qt::Key_Delete);
    QCOMPARE(f.manager.views(), QStringList());
    QVERIFY(!f.action("Delete"_s)->isEnabled());
    QVERIFY(!f.button("Switch"_s)->isEnabled());
}

void LayoutsDialogTest::duplicates()
{
    Fixture f;
    f.select({0, 2});
    f.action("Duplicate"_s)->trigger();
    QCOMPARE(f.manager.views(),
             (QStringList{"One"_s, "One (2)"_s, "Two"_s, "Three"_s, "Three (2)"_s}));
    const LayoutDocument document(f.manager.toXml(/*markActive=*/false));
    QVERIFY(!document.view("Editing"_s, "One"_s).states.isEmpty());
    QCOMPARE(document.view("Editing"_s, "One (2)"_s).states,
             document.view("Editing"_s, "One"_s).states);
    QCOMPARE(f.view()->selectionModel()->selectedIndexes().size(), 2);
    QVERIFY(f.view()->selectionModel()->isSelected(f.layout(4)));
}

void LayoutsDialogTest::movesByKeys()
{
    Fixture f({"Editing"_s}, list("A B C D"));
    QVERIFY(f.isReady);
    f.select({2});
    f.press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(f.manager.views(), list("A C B D"));
    QCOMPARE(f.shown(), list("A C B D"));
    QCOMPARE(f.view()->currentIndex(), f.layout(1));
    f.press(Qt::Key_Up, Qt::AltModifier);
    f.press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(f.manager.views(), list("C A B D"));
    f.select({1, 3});
    f.action("Move Down"_s)->trigger();
    QCOMPARE(f.manager.views(), list("C A B D"));
    f.view()->clearSelection();
    f.select({0, 1});
    f.action("Move Down"_s)->trigger();
    QCOMPARE(f.manager.views(), list("B C A D"));
    // The selection stays with the layouts.
    f.layouts->history()->undo();
    QTRY_COMPARE(f.shown(), list("C A B D"));
    QCOMPARE(f.view()->selectionModel()->selectedIndexes().size(), 2);
    QVERIFY(f.view()->selectionModel()->isSelected(f.layout(0)));
    QVERIFY(f.view()->selectionModel()->isSelected(f.layout(1)));
}

void LayoutsDialogTest::movesBetweenGroups()
{
    Fixture f({"Editing"_s, "Drawing"_s});
    f.manager.activateGroup("Drawing"_s);
    f.manager.createView("One"_s);
    QTRY_COMPARE(f.shown(1), list("One"));
    f.select({2});
    f.action("Move Down"_s)->trigger();
    QCOMPARE(f.shown(0), list("One Two"));
    QCOMPARE(f.shown(1), list("Three One"));
    f.view()->clearSelection();
    f.select({0});
    // The name is taken there.
    const auto groups = f.action("Move to Group"_s)->menu()->actions();
    QCOMPARE(groups.size(), 2);
    groups.at(1)->trigger();
    QCOMPARE(f.shown(0), list("Two"));
    QCOMPARE(f.manager.views(), (QStringList{"Three"_s, "One"_s, "One (2)"_s}));
}

void LayoutsDialogTest::drags_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::newRow("down") << QList<int>{0} << 2 << "B A C D";
    QTest::newRow("to the end") << QList<int>{0} << 4 << "B C D A";
    QTest::newRow("up") << QList<int>{3} << 0 << "D A B C";
    QTest::newRow("to its place") << QList<int>{1} << 1 << "A B C D";
    QTest::newRow("two, in their order") << QList<int>{2, 0} << 4 << "B D A C";
    QTest::newRow("two around the place") << QList<int>{0, 3} << 2 << "B A D C";
}

void LayoutsDialogTest::drags()
{
    QFETCH(QList<int>, rows);
    QFETCH(int, row);
    QFETCH(QString, after);
    Fixture f({"Editing"_s}, list("A B C D"));
    QModelIndexList dragged;
    for (const int one : qAsConst(rows))
        dragged.append(f.layout(one));
    const std::unique_ptr<QMimeData> data(f.model()->mimeData(dragged));
    QVERIFY(f.model()->canDropMimeData(data.get(), Qt::MoveAction, row, 0, f.group(0)));
    QVERIFY(!f.model()->canDropMimeData(data.get(), Qt::MoveAction, row, 0, {}));
    QVERIFY(f.model()->dropMimeData(data.get(), Qt::MoveAction, row, 0, f.group(0)));
    QCOMPARE(f.manager.views(), after.split(QLatin1Char(' ')));
    QCOMPARE(f.shown(), after.split(QLatin1Char(' ')));
}

void LayoutsDialogTest::toolBarHasNoLettersInBrackets()
{
    /** Puts the letter for Alt after the text, as in Japanese. */
    class Brackets : public QTranslator
    {
    public:
        QString translate(const char*, const char* source, const char*, int) const override
        {
            return qstrcmp(source, "Re&name") == 0 ? "Namae(&N)"_s : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Brackets translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Fixture f;
    QCOMPARE(f.action("Namae"_s)->iconText(), "Namae"_s);
}

void LayoutsDialogTest::everyEditIsUndone()
{
    Fixture f;
    QVERIFY(f.isReady);
    const QByteArray before = f.manager.toXml(/*markActive=*/true);
    f.select({0, 1});
    f.action("Duplicate"_s)->trigger();
    f.action("Move Down"_s)->trigger();
    f.action("Delete"_s)->trigger();
    f.select({0});
    f.press(Qt::Key_F2);
    f.type("Zero"_s);
    f.press(Qt::Key_Return);
    QTRY_COMPARE(f.manager.views().constFirst(), "Zero"_s);
    QCOMPARE(f.layouts->history()->undoText(), "Rename \"One\" to \"Zero\""_s);
    const QStringList after = f.manager.views();
    QTRY_VERIFY(!f.editor());
    f.view()->setFocus();
    for (int step = 0; step < 4; ++step)
        f.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(LayoutDocument(f.manager.toXml(true)).view("Editing"_s, "One"_s).states,
             LayoutDocument(before).view("Editing"_s, "One"_s).states);
    QCOMPARE(f.manager.views(), list("One Two Three"));
    QTRY_COMPARE(f.shown(), list("One Two Three"));
    for (int step = 0; step < 4; ++step)
        f.action("Redo"_s)->trigger();
    QCOMPARE(f.manager.views(), after);
}

void LayoutsDialogTest::switches()
{
    Fixture f;
    QVERIFY(f.isReady);
    f.window.rearrangeDocks();
    f.manager.createView("Four"_s);
    QTRY_COMPARE(f.shown().size(), 4);
    f.select({0});
    f.press(Qt::Key_Return);
    QCOMPARE(f.manager.activeView(), "One"_s);
    QCOMPARE(f.window.dockWidgetArea(f.window.properties), Qt::RightDockWidgetArea);
    f.view()->setCurrentIndex(f.layout(3));
    f.button("Switch"_s)->click();
    QCOMPARE(f.manager.activeView(), "Four"_s);
    QCOMPARE(f.window.dockWidgetArea(f.window.properties), Qt::LeftDockWidgetArea);
    QVERIFY(f.dialog->isVisible());
    QTRY_VERIFY(f.layout(3).data(Qt::AccessibleDescriptionRole).toString() == "Active"_s);

    Fixture groups({"Editing"_s, "Drawing"_s});
    groups.manager.activateGroup("Drawing"_s);
    groups.view()->setCurrentIndex(groups.layout(1));
    groups.button("Switch"_s)->click();
    QCOMPARE(groups.manager.activeGroup(), "Editing"_s);
    QCOMPARE(groups.manager.activeView(), "Two"_s);
}

void LayoutsDialogTest::differencesAreTold()
{
    Fixture f;
    f.select({0});
    QTRY_COMPARE(f.differences(), "Nothing. The windows look like this layout."_s);
    f.window.output->setWindowTitle("Messages & more"_s);
    f.window.output->hide();
    QTRY_COMPARE(f.differences(), "\"Messages & more\" is open"_s);
    f.window.output->show();
    QTRY_COMPARE(f.differences(), "Nothing. The windows look like this layout."_s);
}

void LayoutsDialogTest::modifiedLayoutIsMarked()
{
    Fixture f;
    QVERIFY(f.manager.activateView("Two"_s));
    const auto note = [&] { return f.layout(1).data(Qt::AccessibleDescriptionRole).toString(); };
    QTRY_COMPARE(note(), "Active"_s);
    f.window.output->hide();
    QTRY_COMPARE(note(), "Active \u00b7 modified"_s);
    QCOMPARE(f.layout(0).data(Qt::AccessibleDescriptionRole).toString(), QString());
    f.select({1});
    QTRY_COMPARE(f.differences(), "\"Output\" is open"_s);
    f.button("Switch"_s)->click();
    QTRY_COMPARE(note(), "Active"_s);
    QVERIFY(f.window.output->isVisible());
}

void LayoutsDialogTest::slotsAreAssigned_data()
{
    QTest::addColumn<bool>("hasShortcuts");
    QTest::addColumn<QString>("note");
    QTest::newRow("off") << false << "Slot 3";
    QTest::newRow("on") << true << "Ctrl+Alt+3";
}

void LayoutsDialogTest::slotsAreAssigned()
{
    QFETCH(bool, hasShortcuts);
    QFETCH(QString, note);
    Fixture f;
    f.layouts->setSlotShortcutsEnabled(hasShortcuts);
    f.select({1});
    auto* slot = f.dialog->findChild<QComboBox*>();
    QCOMPARE(slot->count(), 10);
    QCOMPARE(slot->currentIndex(), 0);
    slot->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(slot, Qt::Key_Down);
    QTRY_COMPARE(f.layout(1).data(Qt::AccessibleDescriptionRole).toString(), note);
    QCOMPARE(slot->currentIndex(), 3);
    QCOMPARE(slot->itemText(3), "3: Two"_s);
    f.layouts->slotActions().at(2)->trigger();
    QCOMPARE(f.manager.activeView(), "Two"_s);
    // The slot keeps its layout when that is renamed.
    QVERIFY(f.model()->setData(f.layout(1), "Second"_s));
    f.manager.activateView("One"_s);
    f.layouts->slotActions().at(2)->trigger();
    QCOMPARE(f.manager.activeView(), "Second"_s);
}

void LayoutsDialogTest::followsChanges()
{
    Fixture f;
    f.select({2});
    f.manager.deleteView("One"_s);
    f.manager.createView("Four"_s);
    QTRY_COMPARE(f.shown(), list("Two Three Four"));
    QCOMPARE(f.view()->currentIndex(), f.layout(1));
    f.dialog->hide();
    f.manager.clear();
    f.dialog->show();
    QCOMPARE(f.shown(), QStringList());
}

void LayoutsDialogTest::exportsChosen()
{
    Fixture f;
    QTemporaryDir folder;
    const QString name = folder.filePath("chosen.views"_s);
    f.select({0, 2});
    QSignalSpy messages(f.layouts.get(), &Layouts::message);
    FileDialogUser user([&](QFileDialog& dialog) { FileDialogUser::choose(dialog, name); });
    f.button("Export..."_s)->click();
    QTRY_COMPARE(messages.count(), 1);
    QVERIFY(user.wasUsed());
    QCOMPARE(f.message(), "Exported to \"chosen.views\": \"One\", \"Three\""_s);
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const LayoutDocument document(file.readAll());
    QVERIFY(document.isSound());
    QCOMPARE(document.viewNames("Editing"_s), list("One Three"));
    const LayoutDocument all(f.manager.toXml(/*markActive=*/false));
    QCOMPARE(document.view("Editing"_s, "Three"_s).states, all.view("Editing"_s, "Three"_s).states);
    QVERIFY(document.currentView("Editing"_s).states.isEmpty());
}

void LayoutsDialogTest::drawsOnlyWhatIsSeen()
{
    Fixture f;
    f.dialog->hide();
    // A picture each: with equal states they would share one.
    QSet<QByteArray> states;
    QByteArray views;
    for (int i = 0; i < 300; ++i) {
        f.window.resizeDocks({f.window.properties}, {100 + i}, Qt::Horizontal);
        QCoreApplication::processEvents();
        const QByteArray state = f.window.saveState().toHex();
        states.insert(state);
        views += "<View Name=\"" + QByteArray::number(i) + "\"><State DescriptorId=\"main\">" +
                 state + "</State><UserData></UserData></View>";
    }
    QCOMPARE(states.size(), 300);
    QByteArray document = f.manager.toXml(/*markActive=*/false);
    document.replace("<Views>", "<Views>" + views);
    QVERIFY(f.manager.fromXml(document, /*merge=*/false));

    auto* thumbnails = f.dialog->findChild<QObject*>("thumbnails"_s);
    QVERIFY(thumbnails);
    QSignalSpy drawn(thumbnails, SIGNAL(drawn()));
    f.dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.dialog));
    f.view()->scrollToTop();
    f.view()->viewport()->repaint();
    const int seen =
        f.view()->viewport()->height() / f.view()->visualRect(f.layout(0)).height() + 2;
    QVERIFY(drawn.count() > 0);
    QVERIFY2(drawn.count() <= seen, qPrintable(QString::number(drawn.count())));

    // By leaps, over nearly all of them.
    drawn.clear();
    QScrollBar* bar = f.view()->verticalScrollBar();
    for (const int part : {1, 2, 3}) {
        bar->setValue(bar->maximum() * part / 3);
        f.view()->viewport()->repaint();
    }
    QVERIFY(drawn.count() > 0);
    QVERIFY2(drawn.count() <= 3 * seen, qPrintable(QString::number(drawn.count())));
    // What was drawn is kept.
    drawn.clear();
    bar->setValue(0);
    f.view()->viewport()->repaint();
    QCOMPARE(drawn.count(), 0);
}

void LayoutsDialogTest::screenReader()
{
    Fixture f;
    f.manager.saveCurrentViewAs("Two"_s);
    QTRY_COMPARE(f.layout(1).data(Qt::AccessibleDescriptionRole).toString(), "Active"_s);
    QCOMPARE(f.view()->accessibleName(), "Layouts"_s);
    QCOMPARE(f.dialog->findChild<QPlainTextEdit*>()->accessibleName(),
             "What differs from the windows now"_s);
    f.select({0});
    // Every part that takes the keyboard says what it is.
    for (const QWidget* widget = f.view()->nextInFocusChain(); widget != f.view();
         widget = widget->nextInFocusChain()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisibleTo(f.dialog) ||
            widget->window() != f.dialog)
            continue;
        QAccessibleInterface* described =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        QVERIFY2(described && !described->text(QAccessible::Name).isEmpty(),
                 widget->metaObject()->className());
    }
}

void LayoutsDialogTest::menuOpensOne()
{
    Fixture f;
    delete f.dialog;
    QMenu* menu = f.layouts->createMenu(&f.window);
    QAction* entry = nullptr;
    const auto actions = menu->actions();
    for (QAction* const action : actions) {
        if (action->text() == "&Manage Layouts..."_s)
            entry = action;
    }
    QVERIFY(entry);
    entry->trigger();
    f.dialog = f.window.findChild<QDialog*>();
    QVERIFY(f.dialog && f.dialog->isVisible() && !f.dialog->isModal());
    f.dialog->close();
    entry->trigger();
    QVERIFY(f.dialog->isVisible());
    QCOMPARE(f.window.findChildren<QDialog*>().size(), 1);

    const std::unique_ptr<QMenu> bare(f.layouts->createMenu(nullptr));
    const auto entries = bare->actions();
    for (QAction* const action : entries) {
        if (action->text() == "&Manage Layouts..."_s)
            action->trigger();
    }
    QCOMPARE(f.window.findChildren<QDialog*>().size(), 1);
}

void LayoutsDialogTest::managerMayGoFirst()
{
    SampleWindow window;
    auto manager = std::make_unique<Manager>(QStringList{"Editing"_s}, false);
    Layouts layouts(*manager);
    layouts.addWindow(window, "main"_s);
    manager->createView("One"_s);
    const std::unique_ptr<QDialog> dialog(layouts.createDialog(nullptr));
    dialog->show();
    auto* view = dialog->findChild<QTreeView*>();
    view->setCurrentIndex(view->model()->index(0, 0, view->rootIndex()));
    manager->createView("Two"_s);
    manager.reset();
    QVERIFY(!dialog->isVisible());
    QVERIFY(!dialog->isEnabled());
    const auto actions = dialog->findChildren<QAction*>();
    for (QAction* const action : actions)
        action->trigger();
    const auto buttons = dialog->findChildren<QPushButton*>();
    for (QPushButton* const button : buttons)
        button->click();
    view->model()->setData(view->currentIndex(), "Three"_s);
    dialog->show();
    QCoreApplication::processEvents();
    const std::unique_ptr<QDialog> other(layouts.createDialog(nullptr));
    QVERIFY(!other->isEnabled());
}

void LayoutsDialogTest::layoutsMayGoFirst()
{
    Fixture f;
    f.select({0});
    f.press(Qt::Key_F2);
    f.layouts.reset();
    QVERIFY(!f.dialog->isVisible());
    f.manager.createView("Four"_s);
    const auto actions = f.dialog->findChildren<QAction*>();
    for (QAction* const action : actions)
        action->trigger();
    f.dialog->show();
    QCoreApplication::processEvents();
    QCOMPARE(f.manager.views(), list("One Two Three Four"));
}

void LayoutsDialogTest::windowMayGoFirst()
{
    Manager manager({"Editing"_s}, false);
    Layouts layouts(manager);
    auto window = std::make_unique<SampleWindow>();
    layouts.addWindow(*window, "main"_s);
    manager.createView("One"_s);
    const QPointer<QDialog> owned = layouts.createDialog(window.get());
    const std::unique_ptr<QDialog> free(layouts.createDialog(nullptr));
    owned->show();
    free->show();
    auto* view = free->findChild<QTreeView*>();
    view->setCurrentIndex(view->model()->index(0, 0, view->rootIndex()));
    window.reset();
    QVERIFY(!owned);
    manager.createView("Two"_s);
    QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 2);
}

void LayoutsDialogTest::dialogMayGoFirst()
{
    Fixture f;
    f.select({0});
    f.press(Qt::Key_F2);
    f.type("Three"_s);
    // With a file dialog open, and with typing that is refused.
    f.button("Import..."_s)->click();
    delete f.dialog;
    f.manager.createView("Four"_s);
    f.layouts->history()->undo();
    QCoreApplication::processEvents();
}

} // namespace Panorel::Tests

int main(int argc, char* argv[])
{
    Panorel::Tests::FileDialogUser::prepareProcess();
    QApplication app(argc, argv);
    Panorel::Tests::LayoutsDialogTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "LayoutsDialogTest.moc"
