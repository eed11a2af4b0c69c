// SPDX-License-Identifier: MIT

// Drives a Manager, the menu on it and the window that it arranges through any sequence of
// operations, and a small model through the same. After each operation both must agree on
// - what it returned and which signals it emitted, in order and with null and empty names apart;
// - the groups, the views and their order, and which of them are active;
// - where the window's dock widget and tool bar are;
// - the menu's entries, its check mark, and which of its resets are enabled;
// and at the end, as often in between, on every character of the document.
// An input is a byte of flags, then two bytes for each operation: which one, and what with. The
// flags say whether the Manager merges, whether it has the window from the start, and how many
// documents may be validated.

#include "Fuzz.h"
#include "MenuReader.h"
#include "ModelText.h"
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

const QString viewNames[] = {"a"_s, "b"_s, "B"_s, ""_s, "__current__"_s, "&x <y> \"z\""_s};
const QString groupNames[] = {"G"_s, "H"_s, "unknown"_s};

struct Document
{
    QByteArray bytes;
    ArrangementModel::Document content;
};

class Session
{
public:
    explicit Session(int flags)
        : m_manager({"G"_s, "H"_s, "G"_s}, (flags & 1) != 0)
        , m_menu(&m_manager, /*extended=*/true)
        , m_log(m_manager)
        , m_model({"G"_s, "H"_s}, (flags & 1) != 0)
        , m_validationsLeft((flags >> 2) % 4)
    {
        m_model.onSignal = [this](const QString& signal) { m_modelSignals << signal; };
        if ((flags & 2) != 0)
            registerWindow(0);
        // So that there always is one to load.
        keepDocument(1);
    }

    void run(int operation, int argument)
    {
        using Operation = void (Session::*)(int);
        // Last come those that validate a document.
        static constexpr Operation operations[] = {
            &Session::createView,   &Session::saveView,        &Session::deleteView,
            &Session::activateView, &Session::activateGroup,   &Session::clear,
            &Session::keepDocument, &Session::moveDock,        &Session::moveBar,
            &Session::updateMenu,   &Session::toggleView,      &Session::chooseView,
            &Session::chooseSave,   &Session::chooseDelete,    &Session::enterName,
            &Session::askForData,   &Session::saveFromOutside, &Session::registerWindow,
            &Session::loadDocument, &Session::keepSpecial,     &Session::activateSpecial,
            &Session::loadDamaged,  &Session::chooseReset,     &Session::loadOtherVersion,
        };
        constexpr std::size_t cheapOperations = 18;
        const auto index = static_cast<std::size_t>(operation) % std::size(operations);
        if (index >= cheapOperations && m_validationsLeft-- <= 0)
            return;
        context = QString::fromUtf8("In operation %1 with %2").arg(index).arg(argument);
        m_model.live.state = m_registered ? m_window.saveState(0) : QByteArray();
        (this->*operations[index])(argument);
        check();
    }

private:
    static const QString& viewName(int argument)
    {
        return viewNames[static_cast<std::size_t>(argument) % std::size(viewNames)];
    }

    const Document& document(int argument) const
    {
        return m_documents[static_cast<std::size_t>(argument) % m_documents.size()];
    }

    void requireResult(bool actual, bool expected) { require(actual == expected, "the result"); }

    void createView(int argument)
    {
        const QString& name = viewName(argument);
        requireResult(m_manager.createView(name), m_model.createView(name));
    }

    void saveView(int argument)
    {
        const QString& name = viewName(argument);
        requireResult(m_manager.saveCurrentViewAs(name), m_model.saveCurrentViewAs(name));
    }

    void deleteView(int argument)
    {
        m_manager.deleteView(viewName(argument));
        m_model.deleteView(viewName(argument));
    }

    void activateView(int argument)
    {
        const QString& name = viewName(argument);
        requireResult(m_manager.activateView(name), m_model.activateView(name));
    }

    void activateGroup(int argument)
    {
        const QString& name =
            groupNames[static_cast<std::size_t>(argument) % std::size(groupNames)];
        requireResult(m_manager.activateGroup(name), m_model.activateGroup(name));
    }

    void clear(int)
    {
        m_manager.clear();
        m_model.clear();
    }

    void keepDocument(int argument)
    {
        const bool markActive = argument % 2 != 0;
        Document kept{m_manager.toXml(markActive), m_model.toXml(markActive)};
        requireSame(QString::fromUtf8(kept.bytes), documentText(kept.content), "the document");
        m_documents.push_back(std::move(kept));
    }

    void loadDocument(int argument)
    {
        const Document& loaded = document(argument / 2);
        const bool merge = argument % 2 != 0;
        require(m_manager.fromXml(loaded.bytes, merge), "a written document is accepted");
        (void)m_model.fromXml(loaded.content, merge);
    }

    void loadOtherVersion(int argument)
    {
        const QByteArray other = QByteArray(document(argument / 2).bytes).replace("1.1.0", "1.1");
        const bool merge = argument % 2 != 0;
        require(m_manager.fromXml(other, merge), "another version is accepted");
        (void)m_model.fromXml({}, merge);
    }

    void loadDamaged(int argument)
    {
        QByteArray damaged = document(argument / 4).bytes;
        damaged.truncate(damaged.size() * argument / 256);
        const bool accepted = argument % 4 == 0   ? m_manager.setFactoryDefaultView(damaged)
                              : argument % 4 == 1 ? m_manager.setProgramStartView(damaged)
                                                  : m_manager.fromXml(damaged, argument % 4 == 2);
        require(!accepted, "half a document is refused");
    }

    void keepSpecial(int argument)
    {
        const Document& kept = document(argument / 2);
        if (argument % 2 != 0) {
            require(m_manager.setProgramStartView(kept.bytes), "the program start is kept");
            (void)m_model.setProgramStartView(kept.content);
        } else {
            require(m_manager.setFactoryDefaultView(kept.bytes), "the factory default is kept");
            (void)m_model.setFactoryDefaultView(kept.content);
        }
    }

    void activateSpecial(int argument)
    {
        if (argument % 2 != 0)
            requireResult(m_manager.activateProgramStartView(), m_model.activateProgramStartView());
        else
            requireResult(m_manager.activateFactoryDefaultView(),
                          m_model.activateFactoryDefaultView());
    }

    void moveDock(int argument)
    {
        m_model.live.dock = static_cast<Qt::DockWidgetArea>(1 << argument % 4);
        m_window.moveDock(m_model.live.dock);
    }

    void moveBar(int argument)
    {
        m_model.live.bar = static_cast<Qt::ToolBarArea>(1 << argument % 4);
        m_window.moveBar(m_model.live.bar);
    }

    void registerWindow(int)
    {
        if (!m_registered)
            m_manager.registerManagable(m_owner);
        m_registered = true;
        m_model.live.state = m_window.saveState(0);
    }

    void updateMenu(int argument)
    {
        if (argument % 2 != 0)
            m_menu.updateMenu();
        else
            m_menu.updateSelection();
        followActiveView();
    }

    void toggleView(int)
    {
        const QStringList names = m_model.views();
        const int checked = m_checked.isNull() ? -1 : names.indexOf(m_checked);
        m_menu.toggleView();
        // After the last one comes the first, but never the checked one again.
        const int next = checked + 1 < names.size() ? checked + 1 : 0;
        if (next != checked && next < names.size())
            (void)m_model.activateView(names[next]);
    }

    void chooseView(int argument)
    {
        QAction* entry = pick(m_reader.viewEntries(), argument);
        if (!entry)
            return;
        // The mark moves even when the Manager then refuses the name, an empty one.
        m_checked = m_model.views()[argument % m_model.views().size()];
        const QString name = m_checked;
        entry->trigger();
        (void)m_model.activateView(name);
    }

    void chooseSave(int argument)
    {
        if (QAction* entry = pick(m_reader.saveEntries(), argument)) {
            const QString name = entry->text();
            entry->trigger();
            m_model.saveCurrentViewAs(name);
        }
    }

    void chooseDelete(int argument)
    {
        if (QAction* entry = pick(m_reader.deleteEntries(), argument)) {
            const QString name = entry->text();
            entry->trigger();
            m_model.deleteView(name);
        }
    }

    void chooseReset(int argument)
    {
        if (argument % 2 != 0) {
            m_reader.programStartEntry()->trigger();
            (void)m_model.activateProgramStartView();
        } else {
            m_reader.factoryDefaultEntry()->trigger();
            (void)m_model.activateFactoryDefaultView();
        }
    }

    void enterName(int argument)
    {
        m_reader.enterName(viewName(argument));
        m_model.saveCurrentViewAs(viewName(argument));
    }

    void saveFromOutside(int argument)
    {
        m_menu.saveCurrentLayoutAs(viewName(argument));
        if (!viewName(argument).isEmpty())
            m_model.saveCurrentViewAs(viewName(argument));
    }

    void askForData(int argument)
    {
        require(m_manager.setViewUserData(argument), "user data seems to be taken");
        require(!m_manager.viewUserData().isValid(), "there is no user data");
        require(!m_manager.viewUserData(viewName(argument)).isValid(), "no view has user data");
        requireResult(m_manager.viewsValid(), m_model.viewsValid());
    }

    static QAction* pick(const QList<QAction*>& entries, int argument)
    {
        return entries.isEmpty() ? nullptr : entries[argument % entries.size()];
    }

    void followActiveView()
    {
        const QString active = m_model.activeView();
        m_checked = active.isEmpty() ? QString() : active;
    }

    void check()
    {
        const QStringList expected = std::exchange(m_modelSignals, QStringList());
        requireSame(m_log.take().join("\n"_s), expected.join("\n"_s), "signals");
        const auto movesMark = [](const QString& line) {
            return line.startsWith("view"_s) || line.startsWith("group"_s);
        };
        if (std::any_of(expected.cbegin(), expected.cend(), movesMark))
            followActiveView();
        const QString separator = "|"_s;
        requireSame(m_manager.groups().join(separator), "G|H"_s, "the groups");
        requireSame(m_manager.activeGroup(), m_model.activeGroup(), "the active group");
        requireSame(m_manager.views().join(separator), m_model.views().join(separator),
                    "the views");
        requireSame(quoted(m_manager.activeView()), quoted(m_model.activeView()),
                    "the active view");
        requireSame(m_reader.text(), MenuReader::expectedText(m_model.views(), m_checked),
                    "the menu");
        require(m_window.dockArea() == m_model.live.dock, "the dock widget's place");
        require(m_window.barArea() == m_model.live.bar, "the tool bar's place");
        const bool programStart = m_model.programStartViewSet();
        const bool factoryDefault = m_model.factoryDefaultViewSet();
        require(m_manager.programStartViewSet() == programStart, "whether there is a start");
        require(m_manager.factoryDefaultViewSet() == factoryDefault, "whether there is a default");
        require(m_reader.programStartEntry()->isEnabled() == programStart, "the start's entry");
        require(m_reader.factoryDefaultEntry()->isEnabled() == factoryDefault,
                "the default's entry");
    }

    SmallWindow m_window;
    Owner m_owner{{{"window"_s, &m_window}}};
    bool m_registered = false;
    Manager m_manager;
    Menu m_menu;
    MenuReader m_reader{m_menu};
    SignalLog m_log;
    ArrangementModel m_model;
    QStringList m_modelSignals;
    /** The view whose entry has the check mark; null for none. */
    QString m_checked;
    std::vector<Document> m_documents;
    // Each takes as long as a hundred other operations, so most inputs should do with few.
    int m_validationsLeft;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argumentCount = 1;
    static char* arguments[] = {const_cast<char*>("ManagerFuzzer"), nullptr};
    static auto* application = new QApplication(argumentCount, arguments);
    Q_UNUSED(application)
    forbidMessages();

    if (size == 0)
        return 0;
    Session session(data[0]);
    for (std::size_t i = 1; i + 1 < size; i += 2)
        session.run(data[i], data[i + 1]);
    session.run(/*keepDocument*/ 6, 1);
    return 0;
}
