// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/SampleWindow.h"
#include "ui/FileDialogUser.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/Layouts.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <QUndoStack>

#include <algorithm>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace Panorel::Tests {

using Kit::LayoutDocument;
using Kit::Layouts;
using OnConflict = LayoutDocument::OnConflict;

namespace {

constexpr int patience = 30000;

QStringList list(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

/** A Manager with the layouts "One" and "Two", and what the user does to import a file. */
class Fixture
{
public:
    explicit Fixture(const QStringList& groups = {"Editing"_s})
        : manager(std::make_unique<Manager>(groups, /*mergeOnApply=*/false))
        , layouts(std::make_unique<Layouts>(*manager))
    {
        layouts->addWindow(window, "main"_s);
        window.palette->setFloating(false);
        window.show();
        manager->createView("One"_s);
        manager->createView("Two"_s);
        own = LayoutDocument(manager->toXml(/*markActive=*/false));
        window.rearrangeDocks();
        other = LayoutDocument::withGroups({"Editing"_s});
        dialog = layouts->createDialog(&window);
        dialog->show();
    }

    /** Puts a layout into the file; one that is arranged like the window now, or like "One". */
    void add(const QString& name, const QByteArray& state)
    {
        LayoutDocument::View view;
        view.name = name;
        view.states.insert("main"_s, state);
        QVERIFY(!other.addView("Editing"_s, view));
    }
    void addNew(const QString& name) { add(name, window.saveState()); }
    void addSame(const QString& name) { add(name, stateOf("One"_s)); }

    QByteArray stateOf(const QString& name)
    {
        return LayoutDocument(manager->toXml(/*markActive=*/false))
            .view("Editing"_s, name)
            .states.value("main"_s);
    }

    /** Chooses a file in the dialog that "Import..." opens, and waits for what comes of it. */
    bool open(const QByteArray& bytes)
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return false;
        file.close();
        return openFile();
    }
    bool open() { return open(other.bytes()); }
    bool openFile() { return chooseFile() && isChooserReady(); }

    static void click(const QString& text, const QWidget* parent)
    {
        const auto buttons = parent->findChildren<QAbstractButton*>();
        for (QAbstractButton* const button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == text)
                return button->click();
        }
        QFAIL(qPrintable(text));
    }
    static QLabel* label(const QString& name, const QWidget* parent)
    {
        return parent->findChild<QLabel*>(name);
    }

    QTreeView* view() const { return chooser->findChild<QTreeView*>(); }
    QModelIndex layout(int row, int number = 0) const
    {
        return view()->model()->index(row, 0, view()->model()->index(number, 0));
    }
    void select(std::initializer_list<int> rows)
    {
        view()->setCurrentIndex(layout(*rows.begin()));
        for (const int row : rows)
            view()->selectionModel()->select(layout(row), QItemSelectionModel::Select);
    }
    /** Each layout with whether it is checked and what is said of it. */
    QStringList notes() const
    {
        QStringList notes;
        for (int row = 0; layout(row).isValid(); ++row)
            notes.append(layout(row).data().toString() +
                         (layout(row).data(Qt::CheckStateRole) == Qt::Checked ? "+ "_s : "- "_s) +
                         layout(row).data(Qt::AccessibleDescriptionRole).toString());
        return notes;
    }
    QAbstractButton* importButton() const
    {
        const auto buttons = chooser->findChildren<QAbstractButton*>();
        const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [](auto* button) {
            return button->text().remove(QLatin1Char('&')) == "Import"_s;
        });
        return *found;
    }

    QString path() const { return m_folder.filePath("file.views"_s); }

    SampleWindow window;
    std::unique_ptr<Manager> manager;
    std::unique_ptr<Layouts> layouts;
    LayoutDocument own;
    LayoutDocument other;
    QPointer<QDialog> dialog;
    QPointer<QDialog> chooser;

private:
    bool chooseFile()
    {
        FileDialogUser user([&](QFileDialog& files) { FileDialogUser::choose(files, path()); });
        click("Import..."_s, dialog);
        const auto isDone = [&] {
            chooser = findChooser();
            return chooser || label("message"_s, dialog)->isVisible();
        };
        return QTest::qWaitFor(isDone, patience) && user.wasUsed();
    }

    bool isChooserReady()
    {
        const auto isReady = [&] {
            if (!chooser || QApplication::activeWindow() == chooser)
                return true;
            // A window manager may have been busy with the dialog that was closed.
            chooser->activateWindow();
            return false;
        };
        return QTest::qWaitFor(isReady, patience);
    }

    QDialog* findChooser() const
    {
        const auto dialogs = dialog->findChildren<QDialog*>();
        for (QDialog* const found : dialogs) {
            if (!qobject_cast<QFileDialog*>(found) && found->isVisible())
                return found;
        }
        return nullptr;
    }

    QTemporaryDir m_folder;
};

/** A state that would crash a window: the side of its first dock record is none. */
QByteArray harmful(const QByteArray& state)
{
    QByteArray digits = state.toHex();
    digits.replace(digits.indexOf("fd00000004") + 10, 8, "00000009");
    return QByteArray::fromHex(digits);
}

} // namespace

/** Import of chosen layouts: what is asked before, and what becomes of each. */
class ImportChooserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void newLayoutsAreChecked();
    void nothingChangesBefore();
    void chosenOnesAreAdded();
    void namesThatAreTaken_data();
    void namesThatAreTaken();
    void activeLayoutStaysActive();
    void whatIsThereAlreadyIsNotOffered();
    void numbersAreFree();
    void severalByKeys();
    void boxesByMouse();
    void allAndNone();
    void groups();
    void userDataComesAlong();
    void importIsUndone();
    void damagedLayoutsAreNamed();
    void refusedFiles_data();
    void refusedFiles();
    void pipeIsRefused();
    void layoutsThatChangeMeanwhile();
    void managerMayGoFirst();
    void dialogMayGoFirst();

private:
    MessageWatch m_watch;
};

void ImportChooserTest::newLayoutsAreChecked()
{
    Fixture f;
    f.addNew("A & B"_s);
    f.addSame("C"_s);
    QVERIFY(f.open());
    QVERIFY(f.chooser);
    QCOMPARE(f.notes(), lines({"A & B+ Added", "C+ Added"}));
    QVERIFY(!f.chooser->findChild<QWidget*>("choices"_s)->isVisible());
    QVERIFY(!Fixture::label("leftOut"_s, f.chooser)->isVisible());
    QCOMPARE(f.view()->accessibleName(), "Layouts of the file"_s);
}

void ImportChooserTest::nothingChangesBefore()
{
    Fixture f;
    f.addNew("A"_s);
    f.addNew("Two"_s);
    const QByteArray before = f.manager->toXml(/*markActive=*/true);
    const int steps = f.layouts->history()->count();
    QVERIFY(f.open());
    f.select({1});
    Fixture::click("Replace yours"_s, f.chooser);
    QCOMPARE(f.manager->toXml(/*markActive=*/true), before);
    QTest::keyClick(f.chooser, Qt::Key_Escape);
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.manager->toXml(/*markActive=*/true), before);
    QCOMPARE(f.layouts->history()->count(), steps);
}

void ImportChooserTest::chosenOnesAreAdded()
{
    Fixture f;
    for (const char* const name : {"A", "B", "C"})
        f.addNew(QString::fromLatin1(name));
    QVERIFY(f.open());
    f.select({1});
    QTest::keyClick(f.view(), Qt::Key_Space);
    QCOMPARE(f.notes(), lines({"A+ Added", "B- Not imported", "C+ Added"}));
    QTest::keyClick(f.view(), Qt::Key_Return);
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.manager->views(), list("One Two A C"));
    QCOMPARE(f.stateOf("A"_s), f.window.saveState());
    QCOMPARE(Fixture::label("message"_s, f.dialog)->text(),
             "Imported from \"file.views\": \"A\", \"C\""_s);
    auto* view = f.dialog->findChild<QTreeView*>();
    QCOMPARE(view->selectionModel()->selectedIndexes().size(), 2);
    QCOMPARE(view->currentIndex().data().toString(), "A"_s);
}

void ImportChooserTest::namesThatAreTaken_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("note");
    QTest::addColumn<QStringList>("views");
    QTest::addColumn<bool>("isReplaced");
    QTest::newRow("untouched") << QString() << "Two+ Added as \"Two (2)\""
                               << QStringList{"One"_s, "Two"_s, "New"_s, "Two (2)"_s} << false;
    QTest::newRow("keep both") << "Keep both"_s
                               << "Two+ Added as \"Two (2)\""
                               << QStringList{"One"_s, "Two"_s, "New"_s, "Two (2)"_s} << false;
    QTest::newRow("replace") << "Replace yours"_s
                             << "Two+ Replaces your layout of this name" << list("One Two New")
                             << true;
    QTest::newRow("skip") << "Skip"_s
                          << "Two- Not imported, the name is taken" << list("One Two New") << false;
}

void ImportChooserTest::namesThatAreTaken()
{
    QFETCH(QString, choice);
    QFETCH(QString, note);
    QFETCH(QStringList, views);
    QFETCH(bool, isReplaced);
    Fixture f;
    const QByteArray before = f.stateOf("Two"_s);
    f.addNew("New"_s);
    f.addNew("Two"_s);
    QVERIFY(f.open());
    f.select({1});
    QVERIFY(f.chooser->findChild<QWidget*>("choices"_s)->isVisible());
    if (!choice.isNull())
        Fixture::click(choice, f.chooser);
    QCOMPARE(f.notes(), (QStringList{"New+ Added"_s, note}));
    f.importButton()->click();
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.manager->views(), views);
    QCOMPARE(f.stateOf("Two"_s), isReplaced ? f.window.saveState() : before);
    if (views.size() == 4)
        QCOMPARE(f.stateOf("Two (2)"_s), f.window.saveState());
}

void ImportChooserTest::activeLayoutStaysActive()
{
    Fixture f;
    f.addNew("Two"_s);
    QVERIFY(f.manager->activateView("Two"_s));
    QVERIFY(f.open());
    f.select({0});
    Fixture::click("Replace yours"_s, f.chooser);
    f.importButton()->click();
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.manager->activeView(), "Two"_s);
    // The windows show what it is now.
    QCOMPARE(f.window.dockWidgetArea(f.window.properties), Qt::LeftDockWidgetArea);
}

void ImportChooserTest::whatIsThereAlreadyIsNotOffered()
{
    Fixture f;
    f.addSame("One"_s);
    QVERIFY(f.open());
    QCOMPARE(f.notes(), lines({"One- You have it already"}));
    QVERIFY(!f.importButton()->isEnabled());
    f.select({0});
    Fixture::click("Keep both"_s, f.chooser);
    QCOMPARE(f.notes(), lines({"One+ Added as \"One (2)\""}));
    QVERIFY(f.importButton()->isEnabled());
}

void ImportChooserTest::numbersAreFree()
{
    Fixture f;
    f.addNew("One (2)"_s);
    f.addNew("One"_s);
    QVERIFY(f.open());
    QCOMPARE(f.notes(), lines({"One (2)+ Added", "One+ Added as \"One (3)\""}));
    // Without the first its number is free.
    f.select({0});
    QTest::keyClick(f.view(), Qt::Key_Space);
    QCOMPARE(f.notes(), lines({"One (2)- Not imported", "One+ Added as \"One (2)\""}));
}

void ImportChooserTest::severalByKeys()
{
    Fixture f;
    f.addNew("A"_s);
    f.addNew("One"_s);
    f.addNew("Two"_s);
    QVERIFY(f.open());
    QTest::keyClick(f.view(), Qt::Key_A, Qt::ControlModifier);
    Fixture::click("Replace yours"_s, f.chooser);
    QCOMPARE(f.notes(), lines({"A+ Added", "One+ Replaces your layout of this name",
                               "Two+ Replaces your layout of this name"}));
    // What is asked for taken names leaves the others alone.
    Fixture::click("Skip"_s, f.chooser);
    QCOMPARE(f.notes(), lines({"A+ Added", "One- Not imported, the name is taken",
                               "Two- Not imported, the name is taken"}));
    f.view()->setFocus();
    QTest::keyClick(f.view(), Qt::Key_Space);
    QCOMPARE(f.notes(), lines({"A- Not imported", "One- Not imported, the name is taken",
                               "Two- Not imported, the name is taken"}));
}

void ImportChooserTest::boxesByMouse()
{
    Fixture f;
    f.addNew("A"_s);
    QVERIFY(f.open());
    const QRect row = f.view()->visualRect(f.layout(0));
    QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {}, row.center());
    QCOMPARE(f.notes(), lines({"A+ Added"}));
    QTest::mouseClick(f.view()->viewport(), Qt::LeftButton, {},
                      QPoint(row.left() + 10, row.center().y()));
    QCOMPARE(f.notes(), lines({"A- Not imported"}));
}

void ImportChooserTest::allAndNone()
{
    Fixture f;
    f.addNew("A"_s);
    f.addNew("One"_s);
    QVERIFY(f.open());
    f.select({1});
    Fixture::click("Replace yours"_s, f.chooser);
    Fixture::click("Select All"_s, f.chooser);
    QCOMPARE(f.notes(), lines({"A+ Added", "One+ Replaces your layout of this name"}));
    Fixture::click("Select None"_s, f.chooser);
    QCOMPARE(f.notes(), lines({"A- Not imported", "One- Not imported, the name is taken"}));
    QVERIFY(!f.importButton()->isEnabled());
    Fixture::click("Select All"_s, f.chooser);
    QCOMPARE(f.notes(), lines({"A+ Added", "One+ Added as \"One (2)\""}));
}

void ImportChooserTest::groups()
{
    Fixture f({"Editing"_s, "Drawing"_s});
    QByteArray document = LayoutDocument::withGroups({"Drawing"_s, "Foreign"_s}).bytes();
    f.other = LayoutDocument(document);
    for (const QString& group : {"Drawing"_s, "Foreign"_s}) {
        LayoutDocument::View view;
        view.name = "A"_s;
        view.states.insert("main"_s, f.window.saveState());
        QVERIFY(!f.other.addView(group, view));
    }
    QVERIFY(f.open());
    QVERIFY(f.chooser);
    QCOMPARE(Fixture::label("leftOut"_s, f.chooser)->text(),
             "Of groups that this program does not have, so left out: \"A\"."_s);
    f.importButton()->click();
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.manager->views(), list("One Two"));
    f.manager->activateGroup("Drawing"_s);
    QCOMPARE(f.manager->views(), list("A"));
}

void ImportChooserTest::userDataComesAlong()
{
    Fixture f;
    f.addNew("A"_s);
    QVERIFY(!f.other.setUserData("Editing"_s, "A"_s, "<mine>"_s));
    QVERIFY(f.open());
    f.importButton()->click();
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(LayoutDocument(f.manager->toXml(true)).view("Editing"_s, "A"_s).userData, "<mine>"_s);
}

void ImportChooserTest::importIsUndone()
{
    Fixture f;
    const QByteArray before = f.stateOf("One"_s);
    f.addNew("One"_s);
    f.addNew("A"_s);
    QVERIFY(f.open());
    f.select({0});
    Fixture::click("Replace yours"_s, f.chooser);
    f.importButton()->click();
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.layouts->history()->undoText(), "Import \"file.views\""_s);
    f.layouts->history()->undo();
    QCOMPARE(f.manager->views(), list("One Two"));
    QCOMPARE(f.stateOf("One"_s), before);
    f.layouts->history()->redo();
    QCOMPARE(f.manager->views(), list("One Two A"));
}

void ImportChooserTest::damagedLayoutsAreNamed()
{
    Fixture f;
    const QByteArray state = f.window.saveState();
    f.addNew("Good"_s);
    // The document's own operations refuse such states.
    const QByteArray views =
        "<View Name=\"Bad\"><State DescriptorId=\"main\">" + harmful(state).toHex() +
        "</State><UserData></UserData></View><View Name=\"Partly\"><State DescriptorId=\"main\">" +
        state.toHex() + "</State><State DescriptorId=\"second\">" + harmful(state).toHex() +
        "</State><UserData></UserData></View>";
    QByteArray document = f.other.bytes();
    document.replace("</Views>", views + "</Views>");
    QVERIFY(LayoutDocument(document).isReadable());
    QVERIFY(!LayoutDocument(document).isSound());
    QVERIFY(f.open(document));
    QVERIFY(f.chooser);
    QCOMPARE(f.notes(), lines({"Good+ Added", "Partly+ Added"}));
    const QLabel* const leftOut = Fixture::label("leftOut"_s, f.chooser);
    QVERIFY(leftOut->isVisible());
    QCOMPARE(leftOut->text(),
             "Damaged, so left out: \"Bad\". Without their damaged parts: \"Partly\"."_s);
    f.importButton()->click();
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.manager->views(), list("One Two Good Partly"));
    QVERIFY(LayoutDocument(f.manager->toXml(true)).isSound());
}

void ImportChooserTest::refusedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    LayoutDocument document = LayoutDocument::withGroups({"Editing"_s});
    QTest::newRow("without layouts")
        << document.bytes() << "\"file.views\" has no layouts for this program.";
    QTest::newRow("of other groups") << LayoutDocument::withGroups({"Foreign"_s}).bytes()
                                     << "\"file.views\" has no layouts for this program.";
    LayoutDocument::View view;
    view.name = "A"_s;
    QVERIFY(!document.addView("Editing"_s, view));
    QTest::newRow("another version")
        << document.bytes().replace("1.1.0", "2.0.0") << "\"file.views\" was not imported: ";
    QTest::newRow("cut off") << document.bytes().chopped(20) << "\"file.views\" was not imported: ";
    QTest::newRow("prose") << QByteArray("Dear user") << "\"file.views\" was not imported: ";
    QTest::newRow("empty") << QByteArray() << "\"file.views\" was not imported: ";
    const QByteArray damaged =
        LayoutDocument::withGroups({"Editing"_s})
            .bytes()
            .replace("<Views/>",
                     "<Views><View Name=\"A\"><State DescriptorId=\"main\">000000ff00</State>"
                     "<UserData></UserData></View></Views>");
    QTest::newRow("all is damaged")
        << damaged << "Nothing in \"file.views\" can be imported: Damaged, so left out: \"A\".";
}

void ImportChooserTest::refusedFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    Fixture f;
    const QByteArray before = f.manager->toXml(/*markActive=*/true);
    QVERIFY(f.open(bytes));
    QVERIFY(!f.chooser);
    const QString text = Fixture::label("message"_s, f.dialog)->text();
    QVERIFY2(text.startsWith(message), qPrintable(text));
    QVERIFY(text.size() > 30);
    QCOMPARE(f.manager->toXml(/*markActive=*/true), before);
}

// It would block who opens it.
void ImportChooserTest::pipeIsRefused()
{
#ifdef Q_OS_UNIX
    Fixture f;
    QCOMPARE(mkfifo(QFile::encodeName(f.path()).constData(), 0600), 0);
    QVERIFY(f.openFile());
    QVERIFY(!f.chooser);
    QVERIFY(Fixture::label("message"_s, f.dialog)->text().contains("file.views"_s));
#endif
}

void ImportChooserTest::layoutsThatChangeMeanwhile()
{
    Fixture f;
    f.addNew("A"_s);
    f.addNew("Two"_s);
    QVERIFY(f.open());
    f.select({1});
    Fixture::click("Replace yours"_s, f.chooser);
    f.manager->createView("A"_s);
    f.manager->deleteView("Two"_s);
    f.importButton()->click();
    QTRY_VERIFY(!f.chooser);
    QCOMPARE(f.manager->views(), (QStringList{"One"_s, "A"_s, "A (2)"_s, "Two"_s}));
}

void ImportChooserTest::managerMayGoFirst()
{
    Fixture f;
    f.addNew("A"_s);
    QVERIFY(f.open());
    QVERIFY(f.chooser);
    f.manager.reset();
    QVERIFY(!f.chooser || !f.chooser->isVisible());
    QVERIFY(!f.dialog->isVisible());
    QCoreApplication::processEvents();
}

void ImportChooserTest::dialogMayGoFirst()
{
    Fixture f;
    f.addNew("A"_s);
    QVERIFY(f.open());
    delete f.dialog;
    QVERIFY(!f.chooser);
    f.manager->createView("B"_s);
    QCoreApplication::processEvents();
    f.layouts.reset();
}

} // namespace Panorel::Tests

int main(int argc, char* argv[])
{
    Panorel::Tests::FileDialogUser::prepareProcess();
    QApplication app(argc, argv);
    Panorel::Tests::ImportChooserTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "ImportChooserTest.moc"
