// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/IManagable.h>
#include <panorel/Manager.h>

#include <QByteArray>
#include <QDockWidget>
#include <QMainWindow>
#include <QStringList>
#include <QToolBar>

// What the tests of the view-settings document share: pieces of documents, a window, its owner and
// a record of signals.
namespace Panorel::DocumentTests {

inline QByteArray state(const QByteArray& id, const QByteArray& hex)
{
    return "<State DescriptorId=\"" + id + "\">" + hex + "</State>";
}

inline QByteArray toolBarState(const QByteArray& id, const QByteArray& hex)
{
    return "<ToolBarState DescriptorId=\"" + id + "\">" + hex + "</ToolBarState>";
}

inline QByteArray userData(const QByteArray& text)
{
    return "<UserData>" + text + "</UserData>";
}

/** @param active the value of "Active"; a null array leaves the attribute out. */
inline QByteArray view(const QByteArray& name, const QByteArray& content = {},
                       const QByteArray& active = {})
{
    const QByteArray mark = active.isNull() ? QByteArray() : " Active=\"" + active + "\"";
    return "<View" + mark + " Name=\"" + name + "\">" + content + "</View>";
}

inline QByteArray group(const QByteArray& name, const QByteArray& views,
                        const QByteArray& current = {})
{
    return "<Group Name=\"" + name + "\"><Views>" + views +
           "</Views><CurrentView Name=\"__current__\">" + current + "</CurrentView></Group>";
}

inline QByteArray document(const QByteArray& groups, const QByteArray& toolBarStates = {},
                           const QByteArray& version = "1.1.0")
{
    return "<ViewData Version=\"" + version + "\">" + toolBarStates + "<Groups>" + groups +
           "</Groups></ViewData>";
}

inline QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

inline QStringList names(const char* commaSeparated)
{
    return text(commaSeparated).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

/** 'a' for a name, '' for an empty and null for a null one. */
inline QString quoted(const QString& name)
{
    return name.isNull() ? text("null") : QStringLiteral("'%1'").arg(name);
}

/** Owns no window; answers with the list it was given last. */
class WindowOwner : public IManagable
{
public:
    QList<ManagedWindow> managedWindows() override { return windows; }

    QList<ManagedWindow> windows;
};

/** A window with the dock widget "dock" and the tool bar "bar". */
class SmallWindow : public QMainWindow
{
public:
    SmallWindow()
    {
        setCentralWidget(new QWidget);
        dock->setObjectName(text("dock"));
        bar->setObjectName(text("bar"));
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        addToolBar(Qt::TopToolBarArea, bar);
    }

    // Children of the window, which deletes them.
    QDockWidget* const dock = new QDockWidget(text("Dock"));
    QToolBar* const bar = new QToolBar(text("Bar"));
};

/**
 * The signals of a Manager in their order, each with the active group's views and active view as a
 * receiver finds them: viewActivated('a') [a b] 'a'
 */
class SignalRecord
{
public:
    explicit SignalRecord(Manager& manager)
        : m_manager(manager)
    {
        const auto connect = [this](auto signal, auto slot) {
            QObject::connect(&m_manager, signal, &m_receiver, slot);
        };
        connect(&Manager::groupModified, [this] { add(text("groupModified()")); });
        connect(&Manager::groupActivated,
                [this](const QString& name) { add(call("groupActivated", quoted(name))); });
        connect(&Manager::viewActivated,
                [this](const QString& name) { add(call("viewActivated", quoted(name))); });
        connect(&Manager::viewUserDataChanged, [this] { add(text("viewUserDataChanged")); });
        connect(&Manager::factoryDefaultViewChanged,
                [this](bool valid) { add(call("factoryDefaultViewChanged", shown(valid))); });
        connect(&Manager::programStartViewChanged,
                [this](bool valid) { add(call("programStartViewChanged", shown(valid))); });
    }

    QStringList lines;

private:
    static QString shown(bool value) { return value ? text("true") : text("false"); }

    static QString call(const char* signal, const QString& argument)
    {
        return QStringLiteral("%1(%2)").arg(text(signal), argument);
    }

    void add(const QString& signal)
    {
        const QString views = m_manager.views().join(QLatin1Char(' '));
        lines.append(
            QStringLiteral("%1 [%2] %3").arg(signal, views, quoted(m_manager.activeView())));
    }

    Manager& m_manager;
    // The last member, so that it is gone first.
    QObject m_receiver;
};

} // namespace Panorel::DocumentTests
