// SPDX-License-Identifier: MIT
#include "ProgramUser.h"

#include "plugin/ProgramMenu.h"
#include "support/Text.h"

#include <QApplication>
#include <QDockWidget>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QToolBar>

#include <unistd.h>

namespace Panorel::Tests {

namespace {

constexpr int interval = 20;
// Looks without a change until a window counts as settled, at the start and later.
constexpr int restAtStart = 60;
constexpr int rest = 7;
// Looks until a step is given up: a minute.
constexpr int patience = 3000;
constexpr int switches = 20;
// A second.
constexpr int mostComparisons = 50;

QJsonObject readJson(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

void writeJson(const QString& fileName, const QJsonObject& object)
{
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly))
        (void)file.write(QJsonDocument(object).toJson());
}

// The parts of a window have names while it exists, in the order of their making.
class NamesForPlainStates
{
public:
    explicit NamesForPlainStates(QMainWindow& window)
    {
        int number = 0;
        const PartPlaces parts(window);
        const auto docks = parts.dockWidgets();
        for (QDockWidget* dock : docks)
            name(dock, ++number);
        const auto bars = parts.toolBars();
        for (QToolBar* bar : bars)
            name(bar, ++number);
    }
    ~NamesForPlainStates()
    {
        for (QWidget* part : qAsConst(m_named))
            part->setObjectName(QString());
    }
    NamesForPlainStates(const NamesForPlainStates&) = delete;
    NamesForPlainStates& operator=(const NamesForPlainStates&) = delete;

private:
    void name(QWidget* part, int number)
    {
        if (!part->objectName().isEmpty())
            return;
        part->setObjectName("try-%1"_s.arg(number));
        m_named.append(part);
    }

    QList<QWidget*> m_named;
};

// The entry of a menu, or of one of its sub-menus, whose text begins so.
QAction* entryOf(const QMenu& menu, const QString& text)
{
    const QList<QAction*> entries = menu.actions();
    for (QAction* entry : entries) {
        if (QString(entry->text()).remove(QLatin1Char('&')).startsWith(text) && entry->isVisible())
            return entry;
    }
    return nullptr;
}

Qt::DockWidgetArea otherArea(const QDockWidget& dock, Qt::DockWidgetArea area)
{
    for (const Qt::DockWidgetArea other : {Qt::RightDockWidgetArea, Qt::LeftDockWidgetArea,
                                           Qt::BottomDockWidgetArea, Qt::TopDockWidgetArea}) {
        if (other != area && dock.isAreaAllowed(other))
            return other;
    }
    return area;
}

} // namespace

ProgramUser::ProgramUser(const QString& phase)
    : m_isPlain(phase.endsWith("-plain"_s))
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_steps.emplace_back([this] { return findWindow(); });
    m_steps.emplace_back([this] { return hasSettled() && m_sameShown >= restAtStart; });
    if (phase.startsWith("first"_s))
        addFirst();
    else
        addSecond();
    addEnd();
    connect(&m_timer, &QTimer::timeout, this, &ProgramUser::look);
    m_timer.start(interval);
}

ProgramUser::~ProgramUser() = default;

void ProgramUser::look()
{
    ++m_looks;
    if (m_looks - m_looksAtStep > patience) {
        fail("step %1 takes too long"_s.arg(m_next));
        report();
        _exit(99);
    }
    if (QWidget* const dialog = QApplication::activeModalWidget())
        return useDialog(*dialog);
    if (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
    // A step may wait for a dialog, and this timer does not fire again before it has been served.
    if (!m_isInStep)
        QMetaObject::invokeMethod(this, &ProgramUser::runStep, Qt::QueuedConnection);
}

void ProgramUser::useDialog(QWidget& dialog) const
{
    auto* const files = qobject_cast<QFileDialog*>(&dialog);
    if (files && !m_fileToChoose.isEmpty()) {
        if (auto* edit = files->findChild<QLineEdit*>("fileNameEdit"_s))
            edit->setText(m_fileToChoose);
        (void)QMetaObject::invokeMethod(files, "accept", Qt::QueuedConnection);
        return;
    }
    // What asks whether to save or overwrite something is answered so that the program goes on.
    if (auto* const question = qobject_cast<QMessageBox*>(&dialog)) {
        for (const auto answer : {QMessageBox::Discard, QMessageBox::No, QMessageBox::Yes,
                                  QMessageBox::Ok, QMessageBox::Close}) {
            if (QAbstractButton* const button = question->button(answer))
                return QTimer::singleShot(0, button, [button] { button->click(); });
        }
    }
    QTimer::singleShot(0, &dialog, [target = &dialog] { target->close(); });
}

void ProgramUser::runStep()
{
    if (m_isInStep || m_next >= m_steps.size() || QApplication::activeModalWidget())
        return;
    m_isInStep = true;
    const bool isEnding = m_next + 1 == m_steps.size();
    if (m_next > 1 && !m_window && !isEnding) {
        fail("the window is gone"_s);
        report();
        _exit(98);
    }
    if (m_steps[m_next]()) {
        ++m_next;
        m_looksAtStep = m_looks;
        m_sameShown = 0;
    }
    m_isInStep = false;
}

void ProgramUser::addFirst()
{
    const auto step = [this](const std::function<void()>& use) {
        m_steps.emplace_back([use] {
            use();
            return true;
        });
        addSettling();
    };
    step([this] { save("A"_s); });
    for (int i = 0; i < 6; ++i)
        step([this, i] { rearrange(i); });
    step([this] { save("B"_s); });
    for (int i = 1; i <= switches; ++i)
        addSwitch(i % 2 ? "A"_s : "B"_s, "switch %1"_s.arg(i));
    step([this] { transferFile("Export"_s); });
    m_steps.emplace_back([this] {
        writeJson(file("saved"_s), m_saved);
        writeJson(file("last"_s), m_shown);
        return true;
    });
}

void ProgramUser::addSecond()
{
    m_steps.emplace_back([this] {
        m_saved = readJson(file("saved"_s));
        m_saved.insert("last"_s, readJson(file("last"_s)));
        return true;
    });
    addComparison("last"_s, "start"_s);
    addSwitch("A"_s, "second run, A"_s);
    addSwitch("B"_s, "second run, B"_s);
    addSwitch("A"_s, "second run, A again"_s);
    m_steps.emplace_back([this] {
        transferFile("Import ..."_s);
        return true;
    });
    addSettling();
    if (m_isPlain)
        return;
    addComparison("B"_s, "import"_s);
    m_steps.emplace_back([this] {
        undo();
        return true;
    });
    addSettling();
    addComparison("A"_s, "undo"_s);
}

void ProgramUser::addSwitch(const QString& name, const QString& what)
{
    m_steps.emplace_back([this, name] {
        switchTo(name);
        return true;
    });
    addSettling();
    addComparison(name, what);
}

void ProgramUser::addComparison(const QString& expected, const QString& what)
{
    // The window manager may still move a window that floats.
    m_steps.emplace_back([this, expected, what] {
        const bool isLast = ++m_comparisons >= mostComparisons;
        if (!isLast && !differences(expected).isEmpty())
            return false;
        m_comparisons = 0;
        compare(expected, what);
        return true;
    });
}

void ProgramUser::addSettling()
{
    m_steps.emplace_back([this] { return hasSettled() && m_sameShown >= rest; });
}

void ProgramUser::addEnd()
{
    m_steps.emplace_back([this] {
        report();
        return true;
    });
    m_steps.emplace_back([this] { return close(); });
}

// Not a splash screen or an assistant: the first window that has a menu bar and parts.
bool ProgramUser::findWindow()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        auto* const window = qobject_cast<QMainWindow*>(widget);
        if (!window || !window->isVisible() || window->windowType() != Qt::Window)
            continue;
        const PartPlaces parts(*window);
        if (parts.dockWidgets().isEmpty() && parts.toolBars().isEmpty())
            continue;
        if (!m_isPlain && !pluginMenu(*window))
            continue;
        m_window = window;
        return true;
    }
    return false;
}

bool ProgramUser::hasSettled()
{
    const QJsonObject shown = PartPlaces(*m_window).describe();
    m_sameShown = shown == m_shown ? m_sameShown + 1 : 0;
    m_shown = shown;
    return m_sameShown > 0;
}

void ProgramUser::save(const QString& name)
{
    const PartPlaces parts(*m_window);
    m_saved.insert(name, parts.describe());
    m_report.insert("docks"_s, parts.dockWidgets().size());
    m_report.insert("toolBars"_s, parts.toolBars().size());
    if (!m_isPlain)
        return menu()->saveCurrentLayoutAs(name);
    const NamesForPlainStates names(*m_window);
    QFile state(file("plain-"_s + name));
    if (state.open(QIODevice::WriteOnly))
        (void)state.write(m_window->saveState());
}

void ProgramUser::switchTo(const QString& name)
{
    if (!m_isPlain)
        return Tests::switchTo(*menu(), name);
    const NamesForPlainStates names(*m_window);
    QFile state(file("plain-"_s + name));
    if (state.open(QIODevice::ReadOnly))
        (void)m_window->restoreState(state.readAll());
}

// What a user does with the mouse, one thing at a time.
void ProgramUser::rearrange(int step)
{
    const PartPlaces parts(*m_window);
    QList<QDockWidget*> docks;
    QList<QDockWidget*> closed;
    const QList<QDockWidget*> allDocks = parts.dockWidgets();
    for (QDockWidget* dock : allDocks)
        (dock->isHidden() || dock->isFloating() ? closed : docks).append(dock);
    QList<QToolBar*> bars;
    const QList<QToolBar*> allBars = parts.toolBars();
    for (QToolBar* bar : allBars) {
        if (!bar->isHidden())
            bars.append(bar);
    }
    QStringList done;
    if (step == 0 && docks.size() + closed.size() > 1 && docks.size() < 3 && !closed.isEmpty()) {
        closed.constFirst()->show();
        done.append("open"_s);
    } else if (step == 1 && !docks.isEmpty()) {
        m_window->addDockWidget(
            otherArea(*docks.constFirst(), m_window->dockWidgetArea(docks.constFirst())),
            docks.constFirst());
        done.append("move"_s);
    } else if (step == 2 && docks.size() > 2) {
        m_window->tabifyDockWidget(docks.at(1), docks.at(2));
        done.append("tab"_s);
    } else if (step == 3 && !docks.isEmpty() &&
               docks.constFirst()->features().testFlag(QDockWidget::DockWidgetFloatable)) {
        docks.constFirst()->setFloating(true);
        docks.constFirst()->setGeometry(m_window->x() + 150, m_window->y() + 150, 320, 260);
        done.append("float"_s);
    } else if (step == 4 && docks.size() > 1 &&
               docks.constLast()->features().testFlag(QDockWidget::DockWidgetClosable)) {
        docks.constLast()->close();
        done.append("close"_s);
    } else if (step == 5) {
        if (!bars.isEmpty()) {
            bars.constFirst()->hide();
            done.append("hide tool bar"_s);
        }
        if (bars.size() > 1) {
            m_window->addToolBar(Qt::BottomToolBarArea, bars.constLast());
            done.append("move tool bar"_s);
        }
    }
    QJsonArray all = m_report.value("done"_s).toArray();
    for (const QString& what : qAsConst(done))
        all.append(what);
    m_report.insert("done"_s, all);
}

void ProgramUser::transferFile(const QString& entry)
{
    m_fileToChoose = file("exported.views"_s);
    // Qt keeps what its file dialogs look like for all programs, so each run uses one.
    if (m_isPlain)
        (void)QFileDialog::getSaveFileName(m_window);
    else if (QAction* const action = entryOf(*menu(), entry))
        useFileDialog(*action);
    else
        fail("no entry "_s + entry);
    m_fileToChoose.clear();
    if (m_isPlain)
        return;
    if (!QFile::exists(file("exported.views"_s)))
        fail("nothing was exported"_s);
}

// The file is used after the dialog.
void ProgramUser::useFileDialog(QAction& action)
{
    action.trigger();
    QEventLoop loop;
    QWidget* const dialog = QApplication::activeModalWidget();
    if (!dialog)
        return fail("no file dialog"_s);
    connect(dialog, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec();
    QCoreApplication::processEvents();
}

void ProgramUser::undo()
{
    QAction* const action = entryOf(*menu(), "Undo"_s);
    if (action && action->isEnabled())
        action->trigger();
    else
        fail("nothing to undo"_s);
}

QStringList ProgramUser::differences(const QString& expected) const
{
    return PartPlaces::differences(m_saved.value(expected).toObject(),
                                   PartPlaces(*m_window).describe());
}

void ProgramUser::compare(const QString& expected, const QString& what)
{
    const QStringList found = differences(expected);
    QJsonObject all = m_report.value("differences"_s).toObject();
    if (!found.isEmpty())
        all.insert(what, QJsonArray::fromStringList(found));
    m_report.insert("differences"_s, all);
    if (PartPlaces::isResized(m_saved.value(expected).toObject(), PartPlaces(*m_window).describe()))
        m_report.insert("resized"_s, m_report.value("resized"_s).toInt() + 1);
    m_report.insert("comparisons"_s, m_report.value("comparisons"_s).toInt() + 1);
}

// A program may ask, or close only this window.
bool ProgramUser::close()
{
    if (!m_window || !m_window->isVisible()) {
        QCoreApplication::quit();
        return true;
    }
    (void)m_window->close();
    return false;
}

void ProgramUser::report()
{
    writeJson(qEnvironmentVariable("TRY_REPORT"), m_report);
}

Menu* ProgramUser::menu() const
{
    return pluginMenu(*m_window);
}

QString ProgramUser::file(const QString& name) const
{
    return qEnvironmentVariable("TRY_FOLDER") + QLatin1Char('/') + name;
}

void ProgramUser::fail(const QString& problem)
{
    QJsonArray problems = m_report.value("problems"_s).toArray();
    problems.append(problem);
    m_report.insert("problems"_s, problems);
}

} // namespace Panorel::Tests
