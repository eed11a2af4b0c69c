// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "MenuParts.h"
#include "Picture.h"
#include "TourHands.h"

#include <panorel/ViewButton.h>

#include <QApplication>
#include <QDockWidget>
#include <QImage>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
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

// Only for names of layouts, which are the same in all languages.
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
                      deleteAndUndo() && askForName() && openByKeys() && switchGroups() &&
                      importBadFiles() && importGoodFile() && resetAll() && showManyLayouts();
    if (!done)
        print(QStringLiteral("FAILED: the tour ends after picture %1").arg(m_steps));
    return done && m_hasAllPictures;
}

bool Tour::refuseEmptyName()
{
    const QStringList before = m_workbench.manager().views();
    if (!step(QStringLiteral("menu"), QStringLiteral("Alt+L opens the menu."), openMenu()))
        return false;
    if (!step(QStringLiteral("save-as"),
              QStringLiteral("Its first sub-menu opens with the field for a name ready."),
              openSubMenu(saveAsMenu()) && qobject_cast<QLineEdit*>(saveAsMenu().focusWidget())))
        return false;
    press(Qt::Key_Return);
    return step(QStringLiteral("empty-name"),
                QStringLiteral("Return in the empty field is refused."),
                m_workbench.manager().views() == before && saveAsMenu().isVisible() &&
                    told(QStringLiteral("A layout needs a name: type one, then press Return.")));
}

bool Tour::saveFromMenu()
{
    type(QStringLiteral("Wide"));
    picture(QStringLiteral("name-typed"));
    press(Qt::Key_Return);
    return step(QStringLiteral("wide-saved"), QStringLiteral("A name and Return save the layout."),
                m_workbench.manager().activeView() == QLatin1String("Wide") &&
                    told(QStringLiteral("Saved the layout as \"Wide\".")));
}

bool Tour::switchByMouse()
{
    const Shown wide = shown();
    disturb();
    picture(QStringLiteral("disturbed"));
    if (!openMenu())
        return false;
    Panorel::Menu& menu = m_workbench.menu();
    if (QAction* action = entry(menu, QStringLiteral("Wide"))) {
        click(menu, QStyle::visualPos(QApplication::layoutDirection(), menu.rect(),
                                      menu.actionGeometry(action).center()));
    }
    return step(QStringLiteral("wide-again"),
                QStringLiteral("A click on \"Wide\" brings both windows back."), wide) &&
           told(QStringLiteral("Switched to \"Wide\"."));
}

bool Tour::cycle()
{
    const Shown wide = shown();
    QWidget& button = m_workbench.button();
    // Standard, Focus, Wide: after the last comes the first.
    click(button, QPoint(8, button.height() / 2));
    if (!step(QStringLiteral("next"), QStringLiteral("The button goes on to \"Standard\"."),
              m_workbench.manager().activeView() == QLatin1String("Standard")))
        return false;
    click(button, QPoint(8, button.height() / 2));
    if (!step(QStringLiteral("next-again"), QStringLiteral("Once more to \"Focus\"."),
              m_workbench.manager().activeView() == QLatin1String("Focus")))
        return false;
    click(button, QPoint(8, button.height() / 2));
    return step(QStringLiteral("next-wide"), QStringLiteral("And round to \"Wide\"."), wide);
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
              !m_workbench.manager().views().contains(QStringLiteral("Wide")) &&
                  told(QStringLiteral("Deleted \"Wide\"."))))
        return false;
    press(Qt::Key_Z, Qt::ControlModifier);
    return step(QStringLiteral("undone"), QStringLiteral("Ctrl+Z brings it back."),
                m_workbench.manager().views() == before &&
                    told(QStringLiteral("Undone: Delete \"Wide\".")));
}

bool Tour::askForName()
{
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    if (!step(QStringLiteral("dialog-empty"), QStringLiteral("The dialog wants a name."),
              QApplication::activeModalWidget()))
        return false;
    type(QStringLiteral("Focus"));
    picture(QStringLiteral("dialog-in-use"));
    press(Qt::Key_Return);
    if (!step(QStringLiteral("dialog-refused"), QStringLiteral("It refuses one that is in use."),
              QApplication::activeModalWidget()))
        return false;
    type(QStringLiteral(" 2"));
    picture(QStringLiteral("dialog-ok"));
    press(Qt::Key_Return);
    return step(QStringLiteral("dialog-saved"), QStringLiteral("Another name is taken."),
                m_workbench.manager().activeView() == QLatin1String("Focus 2") &&
                    told(QStringLiteral("Saved the layout as \"Focus 2\".")));
}

bool Tour::openByKeys()
{
    bool opened = false;
    QTimer::singleShot(0, &m_workbench, [this, &opened] {
        settle();
        opened = m_workbench.button().menu()->isVisible();
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        picture(QStringLiteral("button-menu"));
        press(Qt::Key_Return);
    });
    press(Qt::Key_L, Qt::ControlModifier);
    return step(QStringLiteral("by-keys"), QStringLiteral("Ctrl+L opens the button's menu."),
                opened && m_workbench.manager().activeView() == QLatin1String("Focus"));
}

bool Tour::switchGroups()
{
    // Saved in no view: it comes back all the same, for each group keeps a layout of its own.
    m_workbench.editor().dock(QStringLiteral("Project"))->show();
    const Shown editing = shown();
    press(Qt::Key_2, Qt::ControlModifier);
    if (!step(QStringLiteral("debugging"), QStringLiteral("Ctrl+2 goes to the second group."),
              m_workbench.manager().activeGroup() == QLatin1String("Debugging")))
        return false;
    press(Qt::Key_3, Qt::ControlModifier);
    if (!step(QStringLiteral("review"), QStringLiteral("Ctrl+3 goes to the third."),
              m_workbench.manager().activeGroup() == QLatin1String("Review")))
        return false;
    press(Qt::Key_1, Qt::ControlModifier);
    return step(QStringLiteral("editing-again"), QStringLiteral("The first is as it was left."),
                editing);
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
        !step(QStringLiteral("import-damaged"), QStringLiteral("A damaged file is told."),
              m_workbench.manager().views() == before &&
                  told(QStringLiteral("\"damaged.views\" cannot be read; nothing was changed."))))
        return false;
    return import(future, QString()) &&
           step(QStringLiteral("import-future"),
                QStringLiteral("One of another version is told too, and nothing is lost."),
                m_workbench.manager().views() == before &&
                    told(QStringLiteral(
                        "\"future.views\" is of another version; nothing was changed.")));
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
                m_workbench.manager().views() == before &&
                    told(QStringLiteral("Imported the layouts of \"good.views\".")));
}

bool Tour::resetAll()
{
    disturb();
    if (!openMenu() || !goTo(m_workbench.menu(), MenuParts(m_workbench.menu()).factoryDefault()))
        return false;
    picture(QStringLiteral("reset"));
    press(Qt::Key_Return);
    const QStringList shipped{QStringLiteral("Standard"), QStringLiteral("Focus")};
    if (!step(QStringLiteral("reset-done"), QStringLiteral("The last entry resets all."),
              m_workbench.manager().views() == shipped &&
                  told(QStringLiteral("All layouts are as they came."))))
        return false;
    click(*m_workbench.status().undoButton(), QPoint(8, 8));
    return step(QStringLiteral("reset-undone"), QStringLiteral("The button undoes even that."),
                m_workbench.manager().views().contains(QStringLiteral("Wide")));
}

bool Tour::showManyLayouts()
{
    for (int i = 1; i <= 100; ++i)
        m_workbench.manager().createView(QStringLiteral("Layout %1").arg(i));
    if (!openMenu())
        return false;
    const QRect screen = m_workbench.editor().screen()->availableGeometry();
    // As high as the screen at most, and one column wide: an entry takes the width of its column.
    const Panorel::Menu& menu = m_workbench.menu();
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
    m_workbench.manager().activateView(QStringLiteral("Standard"));
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
    press(Qt::Key_L, Qt::AltModifier);
    if (!m_workbench.menu().isVisible())
        print(QStringLiteral("FAILED: the menu has not opened"));
    return m_workbench.menu().isVisible();
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

bool Tour::import(const QString& fileName, const QString& name)
{
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
    print(QStringLiteral("%1. %2 %3")
              .arg(m_steps)
              .arg(text,
                   m_workbench.status().message().prepend(QLatin1Char('[')) + QLatin1Char(']')));
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

bool Tour::told(const QString& message) const
{
    return m_workbench.status().message() == message;
}
