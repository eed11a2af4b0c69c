// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "EditorWindow.h"
#include "Picture.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFont>
#include <QImage>
#include <QTextStream>
#include <QToolBar>

namespace {

const QStringList groups{QStringLiteral("Editing")};
const QString wide = QStringLiteral("Wide");
const QString focus = QStringLiteral("Focus");

void print(const QString& line)
{
    QTextStream(stdout) << line << '\n';
}

} // namespace

Tour::Tour(EditorWindow& window, Panorel::IManagable& owner, const QString& directory)
    : m_window(window)
    , m_owner(owner)
    , m_directory(directory)
{}

bool Tour::run()
{
    if (!QDir().mkpath(m_directory)) {
        print(QStringLiteral("FAILED: cannot create the folder %1").arg(m_directory));
        return false;
    }
    // The same look everywhere, so that pictures can be compared.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("sans-serif"), 9));
    placeWindow();
    return showSwitching() && showMerging();
}

// Within the 800 x 600 pixels of the offscreen platform: a restored dock widget that would float
// outside of its screen is moved.
void Tour::placeWindow()
{
    m_window.setGeometry(16, 40, 760, 560);
    m_window.start();
    (void)settled();
}

bool Tour::showSwitching()
{
    Panorel::Manager manager(groups, /*mergeOnApply=*/false);
    manager.registerManagable(m_owner);
    return showViews(manager);
}

bool Tour::showViews(Panorel::Manager& manager)
{
    manager.saveCurrentViewAs(wide);
    const Arrangement wideArrangement = settled();
    if (!step(QStringLiteral("wide-saved"), QStringLiteral("Saved the layout as \"Wide\".")))
        return false;

    disturbDocks();
    m_window.toolBar(QStringLiteral("File"))->hide();
    m_window.toolBar(QStringLiteral("Debug"))->hide();
    const Arrangement focusArrangement = settled();
    if (difference(wideArrangement.docks, focusArrangement.docks).isEmpty()) {
        print(QStringLiteral("FAILED: nothing has moved"));
        return false;
    }
    if (!step(QStringLiteral("disturbed"),
              QStringLiteral(
                  "Moved a dock widget into other tabs, closed three, hid two tool bars.")))
        return false;

    manager.saveCurrentViewAs(focus);
    if (!step(QStringLiteral("focus-saved"), QStringLiteral("Saved that as \"Focus\"."),
              focusArrangement))
        return false;

    manager.activateView(wide);
    if (!step(QStringLiteral("wide-again"), QStringLiteral("Switched to \"Wide\": all is back."),
              wideArrangement))
        return false;

    manager.activateView(focus);
    if (!step(QStringLiteral("focus-again"), QStringLiteral("Switched to \"Focus\": all is back."),
              focusArrangement))
        return false;
    manager.activateView(wide);
    return true;
}

bool Tour::showMerging()
{
    Panorel::Manager manager(groups, /*mergeOnApply=*/true);
    manager.registerManagable(m_owner);
    manager.saveCurrentViewAs(wide);
    const Arrangement saved = settled();

    disturbDocks();
    // Not the tool bar that has a line to itself: the dock widgets would gain its height.
    m_window.toolBar(QStringLiteral("File"))->hide();
    const Arrangement disturbed = settled();
    if (!step(QStringLiteral("merge-disturbed"),
              QStringLiteral("With merging: saved \"Wide\", disturbed it and hid a tool bar.")))
        return false;

    manager.activateView(wide);
    return step(QStringLiteral("merge-wide-again"),
                QStringLiteral("With merging: switched to \"Wide\": the dock widgets are back, "
                               "the tool bar stays hidden."),
                {saved.docks, disturbed.toolBars});
}

void Tour::disturbDocks()
{
    QDockWidget* outline = m_window.dock(QStringLiteral("Outline"));
    m_window.addDockWidget(Qt::LeftDockWidgetArea, outline);
    m_window.tabifyDockWidget(m_window.dock(QStringLiteral("Project")), outline);
    outline->raise();
    m_window.dock(QStringLiteral("Search"))->close();
    m_window.dock(QStringLiteral("Console"))->close();
    m_window.dock(QStringLiteral("Properties"))->close();
}

bool Tour::step(const QString& picture, const QString& text)
{
    ++m_steps;
    const Arrangement now = settled();
    print(QStringLiteral("%1. %2 Dock widgets: %3. Tool bars: %4.")
              .arg(m_steps)
              .arg(text, describe(now.docks), describe(now.toolBars)));
    return savePicture(
        QStringLiteral("%1-%2.png").arg(m_steps, 2, 10, QLatin1Char('0')).arg(picture));
}

bool Tour::step(const QString& picture, const QString& text, const Arrangement& expected)
{
    const Arrangement now = settled();
    const bool written = step(picture, text);
    const QString wrong =
        difference(expected.docks, now.docks) + difference(expected.toolBars, now.toolBars);
    if (!wrong.isEmpty())
        print(QStringLiteral("FAILED: %1").arg(wrong));
    return written && wrong.isEmpty();
}

bool Tour::savePicture(const QString& name)
{
    const QString path = QDir(m_directory).filePath(name);
    if (pictureOf(m_window).save(path))
        return true;
    print(QStringLiteral("FAILED: cannot write %1").arg(path));
    return false;
}

// What a person would see: after the window system and Qt's layouts have had their turn.
Arrangement Tour::settled() const
{
    QApplication::sync();
    QApplication::processEvents();
    return Arrangement::of(m_window);
}
