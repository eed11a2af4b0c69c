// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "MenuParts.h"
#include "Picture.h"
#include "TourHands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QImage>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTextStream>
#include <QToolBar>
#include <QToolButton>

using namespace TourHands;

namespace {

void print(const QString& line)
{
    QTextStream(stdout) << line << '\n';
}

bool write(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QAction* entry(const QMenu& menu, const QString& name)
{
    const QList<QAction*> actions = menu.actions();
    for (QAction* action : actions) {
        if (action->text() == name)
            return action;
    }
    return nullptr;
}

} // namespace

Tour::Tour(Workbench& workbench, const QDir& pictures)
    : m_workbench(workbench)
    , m_pictures(pictures)
{}

bool Tour::run()
{
    place();
    picture(QStringLiteral("start"));
    const bool done = refuseEmptyName() && saveFromMenu() && switchByMouse() && cycle() &&
                      deleteAndUndo() && nextByKeys() && switchGroups() && importBadFiles() &&
                      importGoodFile() && useDialog() && chooseImports() && resetAll() &&
                      showLongName() && showManyLayouts();
    if (!done)
        print(QStringLiteral("FAILED: the tour ends after picture %1").arg(m_steps));
    return done && m_hasAllPictures;
}

bool Tour::refuseEmptyName()
{
    const QStringList before = m_workbench.manager().views();
    if (!step(QStringLiteral("menu"), QStringLiteral("Its mnemonic opens the menu."), openMenu()))
        return false;
    if (!step(QStringLiteral("save-as"),
              QStringLiteral("Its first sub-menu opens with the field for a name ready."),
              openSubMenu(saveAsMenu()) && qobject_cast<QLineEdit*>(saveAsMenu().focusWidget())))
        return false;
    press(Qt::Key_Return);
    return step(
        QStringLiteral("empty-name"), QStringLiteral("Return in the empty field is refused."),
        m_workbench.manager().views() == before && saveAsMenu().isVisible() && hasMessage());
}

bool Tour::saveFromMenu()
{
    type(QStringLiteral("Wide"));
    picture(QStringLiteral("name-typed"));
    press(Qt::Key_Return);
    return step(QStringLiteral("wide-saved"), QStringLiteral("A name and Return save the layout."),
                m_workbench.manager().activeView() == QLatin1String("Wide"));
}

bool Tour::switchByMouse()
{
    const Shown wide = shown();
    disturb();
    if (!step(QStringLiteral("disturbed"), QStringLiteral("A star says that it was rearranged."),
              QTest::qWaitFor([this] { return isMarked(); }, patience)) ||
        !openMenu())
        return false;
    QMenu& menu = m_workbench.menu();
    if (QAction* action = entry(menu, QStringLiteral("Wide"))) {
        click(menu, QStyle::visualPos(QApplication::layoutDirection(), menu.rect(),
                                      menu.actionGeometry(action).center()));
    }
    return step(QStringLiteral("wide-again"),
                QStringLiteral("A click on \"Wide\" brings both windows back."), wide);
}

bool Tour::cycle()
{
    const Shown wide = shown();
    QWidget& button = m_workbench.button();
    const QPoint place = button.mapToGlobal(QPoint());
    const QPoint left(8, button.height() / 2);
    // Standard, Focus, Wide: after the last comes the first.
    click(button, left);
    if (!step(QStringLiteral("next"), QStringLiteral("The button goes on to \"Standard\"."),
              m_workbench.manager().activeView() == Workbench::tr("Standard")))
        return false;
    click(button, left);
    if (!step(QStringLiteral("next-again"), QStringLiteral("Once more to \"Focus\"."),
              m_workbench.manager().activeView() == Workbench::tr("Focus")))
        return false;
    const bool stays = button.mapToGlobal(QPoint()) == place;
    click(button, left);
    return step(QStringLiteral("next-wide"), QStringLiteral("And round to \"Wide\"."), wide) &&
           step(QStringLiteral("next-stays"), QStringLiteral("It has always been under the mouse."),
                stays);
}

bool Tour::deleteAndUndo()
{
    const QStringList before = m_workbench.manager().views();
    if (!openMenu() || !openSubMenu(deleteMenu()))
        return false;
    const bool found = goTo(deleteMenu(), entry(deleteMenu(), QStringLiteral("Wide")));
    if (!step(QStringLiteral("delete"), QStringLiteral("The other sub-menu deletes."), found))
        return false;
    press(Qt::Key_Return);
    if (!step(QStringLiteral("deleted"), QStringLiteral("The layout is gone, with a way back."),
              !m_workbench.manager().views().contains(QStringLiteral("Wide"))))
        return false;
    press(Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier);
    return step(QStringLiteral("undone"), QStringLiteral("Ctrl+Alt+Z brings it back."),
                m_workbench.manager().views() == before) &&
           undoSwitch();
}

// What was not saved comes back, too.
bool Tour::undoSwitch()
{
    m_workbench.manager().activateView(QStringLiteral("Wide"));
    disturb();
    const Shown disturbed = shown();
    m_workbench.manager().activateView(Workbench::tr("Focus"));
    // Typing in the editor has its own undo, and does not take this one away.
    press(Qt::Key_Escape);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier);
    return step(QStringLiteral("switch-undone"),
                QStringLiteral("A switch is undone, with what was not saved."), disturbed) &&
           step(QStringLiteral("switch-undone-name"), QStringLiteral("The name is right as well."),
                QTest::qWaitFor([this] { return isMarked(); }, patience));
}

bool Tour::nextByKeys()
{
    m_workbench.manager().activateView(Workbench::tr("Standard"));
    press(Qt::Key_L, Qt::ControlModifier);
    return step(QStringLiteral("by-keys"), QStringLiteral("Ctrl+L goes to the next layout."),
                m_workbench.manager().activeView() == Workbench::tr("Focus"));
}

bool Tour::switchGroups()
{
    // Saved in no view. It comes back all the same, because each group keeps a working layout.
    m_workbench.editor().dock(QStringLiteral("Project"))->show();
    const Shown editing = shown();
    if (!switchGroup(1) ||
        !step(QStringLiteral("debugging"), QStringLiteral("The menu goes to the second group."),
              m_workbench.manager().activeGroup() == QLatin1String("Debugging")))
        return false;
    if (!switchGroup(2) || !step(QStringLiteral("review"), QStringLiteral("And to the third."),
                                 m_workbench.manager().activeGroup() == QLatin1String("Review")))
        return false;
    return switchGroup(0) && step(QStringLiteral("editing-again"),
                                  QStringLiteral("The first is as it was left."), editing);
}

bool Tour::importBadFiles()
{
    const QStringList before = m_workbench.manager().views();
    const QString damaged = m_pictures.filePath(QStringLiteral("damaged.views"));
    const QString future = m_pictures.filePath(QStringLiteral("future.views"));
    QByteArray document = m_workbench.manager().toXml(/*markActive=*/false);
    if (!write(damaged, document.left(document.size() / 2)) ||
        !write(future, document.replace("Version=\"1.1.0\"", "Version=\"9.0\"")))
        return false;
    if (!import(damaged, QStringLiteral("import-dialog")) ||
        !step(QStringLiteral("import-damaged"), QStringLiteral("A damaged file is reported."),
              m_workbench.manager().views() == before && hasMessage()))
        return false;
    return import(future, QString()) &&
           step(QStringLiteral("import-future"),
                QStringLiteral("So is one of another version, and nothing is lost."),
                m_workbench.manager().views() == before && hasMessage());
}

bool Tour::importGoodFile()
{
    const QString good = m_pictures.filePath(QStringLiteral("good.views"));
    const QStringList before = m_workbench.manager().views();
    if (!write(good, m_workbench.manager().toXml(/*markActive=*/true)))
        return false;
    m_workbench.manager().deleteView(QStringLiteral("Wide"));
    return import(good, QString()) &&
           step(QStringLiteral("import-good"), QStringLiteral("A good file is imported."),
                m_workbench.manager().views() == before && hasMessage());
}

bool Tour::useDialog()
{
    QDialog* dialog = openDialog();
    press(Qt::Key_Up);
    if (!step(QStringLiteral("dialog"), QStringLiteral("A dialog shows all layouts."), dialog))
        return false;
    const QStringList before = m_workbench.manager().views();
    press(Qt::Key_Delete);
    if (!step(QStringLiteral("dialog-deleted"), QStringLiteral("In it they are deleted by key."),
              m_workbench.manager().views().size() == before.size() - 1))
        return false;
    press(Qt::Key_Z, Qt::ControlModifier);
    const bool isBack = step(QStringLiteral("dialog-undone"), QStringLiteral("And brought back."),
                             m_workbench.manager().views() == before);
    dialog->close();
    return isBack;
}

bool Tour::chooseImports()
{
    QDialog* dialog = openDialog();
    if (!dialog)
        return false;
    const QString good = m_pictures.filePath(QStringLiteral("good.views"));
    const auto* box = dialog->findChild<QDialogButtonBox*>();
    QAbstractButton* import = nullptr;
    for (QAbstractButton* button : box->buttons()) {
        // Import and export have this role, in this order.
        if (!import && box->buttonRole(button) == QDialogButtonBox::ResetRole)
            import = button;
    }
    chooseFile(
        good, [import] { click(*import, import->rect().center()); }, [] {});
    QWidget* chooser = nullptr;
    (void)QTest::qWaitFor(
        [&chooser] {
            chooser = QApplication::activeModalWidget();
            return chooser && !qobject_cast<QFileDialog*>(chooser);
        },
        patience);
    if (!step(QStringLiteral("import-chooser"),
              QStringLiteral("An import shows what is in the file, before anything changes."),
              chooser))
        return false;
    press(Qt::Key_Escape);
    dialog->close();
    settle();
    return true;
}

bool Tour::resetAll()
{
    disturb();
    if (!openMenu() || !goTo(m_workbench.menu(), MenuParts(m_workbench.menu()).factoryDefault()))
        return false;
    picture(QStringLiteral("reset"));
    press(Qt::Key_Return);
    const QStringList shipped{Workbench::tr("Standard"), Workbench::tr("Focus")};
    if (!step(QStringLiteral("reset-done"),
              QStringLiteral("A reset brings back the first layouts."),
              m_workbench.manager().views() == shipped))
        return false;
    press(Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier);
    return step(QStringLiteral("reset-undone"), QStringLiteral("Even that can be undone."),
                m_workbench.manager().views().contains(QStringLiteral("Wide")));
}

bool Tour::showLongName()
{
    m_workbench.manager().saveCurrentViewAs(QString(200, QLatin1Char('W')));
    const QString message = QStringLiteral("A message");
    QStatusBar& bar = *m_workbench.editor().statusBar();
    bar.showMessage(message);
    settle();
    // Half of the bar at least is for messages.
    const bool fits = m_workbench.button().isVisible() &&
                      bar.findChild<QLabel*>()->width() < bar.width() / 2 &&
                      bar.currentMessage() == message;
    const bool shown = step(QStringLiteral("long-name"),
                            QStringLiteral("A long name leaves room for messages."), fits);
    m_workbench.manager().deleteView(m_workbench.manager().activeView());
    return shown;
}

bool Tour::showManyLayouts()
{
    for (int i = 1; i <= 100; ++i)
        m_workbench.manager().createView(QStringLiteral("Layout %1").arg(i));
    if (!openMenu())
        return false;
    const QRect screen = m_workbench.editor().screen()->availableGeometry();
    // As high as the screen at most, and one column wide: an entry takes the width of its column.
    const QMenu& menu = m_workbench.menu();
    const int column = menu.actionGeometry(menu.actions().first()).width();
    const bool fits = menu.height() <= screen.height() && 2 * column > menu.width();
    const bool shown =
        step(QStringLiteral("many"), QStringLiteral("A hundred layouts scroll."), fits);
    press(Qt::Key_Escape);
    return shown;
}

// The offscreen platform has a screen of 800 x 600 pixels: the second window is below it.
void Tour::place()
{
    const QRect screen = m_workbench.editor().screen()->availableGeometry();
    const bool small = screen.width() < 1250;
    m_workbench.editor().setGeometry(16, 40, 766, 470);
    m_workbench.plot().setGeometry(small ? QRect(300, 560, 440, 210) : QRect(800, 40, 440, 300));
    m_workbench.manager().activateView(Workbench::tr("Standard"));
    settle();
    // Away from what is shown.
    m_workbench.editor().dock(QStringLiteral("Properties"))->setGeometry(380, 215, 190, 125);
    m_workbench.editor().centralWidget()->setFocus();
    startFrom(m_workbench.editor());
}

void Tour::disturb()
{
    CodeWindow& editor = m_workbench.editor();
    editor.dock(QStringLiteral("Project"))->close();
    editor.addDockWidget(Qt::LeftDockWidgetArea, editor.dock(QStringLiteral("Search")));
    editor.toolBar(QStringLiteral("File"))->hide();
    m_workbench.plot().dock(QStringLiteral("Readings"))->close();
    settle();
}

bool Tour::openMenu()
{
    const int keys = QKeySequence::mnemonic(m_workbench.menu().title())[0];
    press(static_cast<Qt::Key>(keys & ~int(Qt::ALT)), Qt::AltModifier);
    if (!m_workbench.menu().isVisible())
        print(QStringLiteral("FAILED: the menu has not opened"));
    return m_workbench.menu().isVisible();
}

QDialog* Tour::openDialog()
{
    if (!openMenu() || !goTo(m_workbench.menu(), m_workbench.menu().actions().last()))
        return nullptr;
    press(Qt::Key_Return);
    auto* dialog = m_workbench.editor().findChild<QDialog*>();
    if (!dialog || !QTest::qWaitForWindowActive(dialog, patience))
        return nullptr;
    settle();
    return dialog;
}

bool Tour::openSubMenu(QMenu& subMenu)
{
    if (!goTo(m_workbench.menu(), subMenu.menuAction()))
        return false;
    press(QApplication::isRightToLeft() ? Qt::Key_Left : Qt::Key_Right);
    if (!subMenu.isVisible())
        print(QStringLiteral("FAILED: the sub-menu has not opened"));
    return subMenu.isVisible();
}

QMenu& Tour::saveAsMenu() const
{
    return *MenuParts(m_workbench.menu()).saveAs();
}

QMenu& Tour::deleteMenu() const
{
    return *MenuParts(m_workbench.menu()).deletion();
}

bool Tour::switchGroup(int index)
{
    QMenu& groups = *MenuParts(m_workbench.menu()).groups();
    if (!openMenu() || !openSubMenu(groups) || !goTo(groups, groups.actions().value(index)))
        return false;
    press(Qt::Key_Return);
    return true;
}

bool Tour::import(const QString& fileName, const QString& name)
{
    m_workbench.editor().statusBar()->clearMessage();
    if (!openMenu() || !goTo(m_workbench.menu(), MenuParts(m_workbench.menu()).import()))
        return false;
    chooseFile(
        fileName, [] { press(Qt::Key_Return); },
        [this, name] {
            if (!name.isEmpty())
                picture(name);
        });
    return true;
}

Tour::Shown Tour::shown() const
{
    settle();
    return {Arrangement::of(m_workbench.editor()), Arrangement::of(m_workbench.plot())};
}

void Tour::picture(const QString& name)
{
    settle();
    const QString file =
        QStringLiteral("%1-%2.png").arg(++m_steps, 2, 10, QLatin1Char('0')).arg(name);
    // A real screen shows what no program can tell of itself.
    const bool offscreen = QGuiApplication::platformName() == QLatin1String("offscreen");
    const QImage image =
        offscreen ? pictureOfAll() : QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    if (!image.save(m_pictures.filePath(file))) {
        print(QStringLiteral("FAILED: cannot write %1").arg(file));
        m_hasAllPictures = false;
    }
}

bool Tour::step(const QString& name, const QString& text, bool holds)
{
    picture(name);
    print(QStringLiteral("%1. %2 [%3]")
              .arg(m_steps)
              .arg(text, m_workbench.editor().statusBar()->currentMessage()));
    if (!holds)
        print(QStringLiteral("FAILED"));
    return holds;
}

bool Tour::step(const QString& name, const QString& text, const Shown& expected)
{
    const Shown now = shown();
    const QString wrong = difference(expected.editor.docks, now.editor.docks) +
                          difference(expected.editor.toolBars, now.editor.toolBars) +
                          difference(expected.plot.docks, now.plot.docks) +
                          difference(expected.plot.toolBars, now.plot.toolBars);
    if (!wrong.isEmpty())
        print(wrong);
    return step(name, text, wrong.isEmpty());
}

bool Tour::isMarked() const
{
    const auto* label = m_workbench.editor().statusBar()->findChild<QLabel*>();
    return label->text() == QLatin1String("Wide*");
}

bool Tour::hasMessage() const
{
    return !m_workbench.editor().statusBar()->currentMessage().isEmpty();
}
