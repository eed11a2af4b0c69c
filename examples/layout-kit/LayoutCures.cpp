// SPDX-License-Identifier: MIT
#include "LayoutCures.h"

#include "ImportWatch.h"
#include "LayoutUndo.h"
#include "MenuParts.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QShortcut>
#include <QTimer>
#include <QWidgetAction>

using Panorel::Manager;
using Panorel::Menu;
using Panorel::ViewButton;

namespace LayoutCures {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(LayoutCures)
};

struct NameField
{
    /** Both null if there is none. */
    QWidgetAction* action = nullptr;
    QLineEdit* edit = nullptr;
};

// The menu makes a new one whenever it is rebuilt.
NameField nameFieldOf(const QMenu& saveAs)
{
    const QList<QAction*> actions = saveAs.actions();
    for (QAction* candidate : actions) {
        auto* action = qobject_cast<QWidgetAction*>(candidate);
        if (auto* edit = action ? qobject_cast<QLineEdit*>(action->defaultWidget()) : nullptr)
            return {action, edit};
    }
    return {};
}

// Calls a function before Return reaches the field. If it returns true, Return does not.
class ReturnWatch : public QObject
{
public:
    using Function = std::function<bool(const QString& text)>;

    ReturnWatch(Menu& menu, const Function& onReturn)
        : QObject(&menu)
        , m_onReturn(onReturn)
    {
        QMenu* saveAs = MenuParts(menu).saveAs();
        connect(saveAs, &QMenu::aboutToShow, this, [this, saveAs] {
            if (QLineEdit* edit = nameFieldOf(*saveAs).edit)
                edit->installEventFilter(this);
        });
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* edit = qobject_cast<QLineEdit*>(watched);
        if (!edit || event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<const QKeyEvent*>(event)->key();
        return (key == Qt::Key_Return || key == Qt::Key_Enter) && m_onReturn(edit->text());
    }

private:
    Function m_onReturn;
};

bool isBlank(const QString& name)
{
    return name.trimmed().isEmpty();
}

// When the menu has done what is going on now.
void tellLater(QObject& context, const Tell& tell, const QString& message)
{
    QTimer::singleShot(0, &context, [tell, message] { tell(message); });
}

// Gives the message for when it is saved.
QString rememberSaving(const Manager& manager, const QString& name, LayoutUndo& undo)
{
    const bool isThere = manager.views().contains(name);
    undo.remember(isThere ? Text::tr("Overwrite \"%1\"").arg(name)
                          : Text::tr("Save \"%1\"").arg(name),
                  LayoutUndo::Windows::Stay);
    return isThere ? Text::tr("Saved the layout over \"%1\".").arg(name)
                   : Text::tr("Saved the layout as \"%1\".").arg(name);
}

// Short enough for a button, and an ampersand stays one.
QString buttonText(const QString& change)
{
    constexpr int maximum = 36;
    QString text = change.size() <= maximum ? change : change.left(maximum - 1) + QChar(0x2026);
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

// Lets the keys for undoing through to the layouts after a change of them.
class UndoKeys : public QObject
{
public:
    UndoKeys(const LayoutUndo& undo, QObject* parent)
        : QObject(parent)
    {
        connect(&undo, &LayoutUndo::lastChangeChanged, this,
                [this, &undo] { m_layoutsFirst = undo.canUndo(); });
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (m_layoutsFirst && key->matches(QKeySequence::Undo)) {
                event->ignore();
                return true; // The field that has the focus is not asked whether it wants them.
            }
        } else if (event->type() == QEvent::KeyPress && qobject_cast<QWidget*>(watched)) {
            const QString text = static_cast<QKeyEvent*>(event)->text();
            if (!text.isEmpty() && !QApplication::activePopupWidget())
                m_layoutsFirst = false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_layoutsFirst = false;
};

} // namespace

void focusNameField(Menu& menu)
{
    QMenu* saveAs = MenuParts(menu).saveAs();
    QObject::connect(saveAs, &QMenu::aboutToShow, saveAs, [saveAs] {
        const NameField field = nameFieldOf(*saveAs);
        if (!field.edit)
            return;
        const QString placeholder = Text::tr("New name, then Return");
        field.edit->clear();
        field.edit->setPlaceholderText(placeholder);
        field.edit->setAccessibleName(Text::tr("Name of the new layout"));
        field.edit->setMinimumWidth(field.edit->fontMetrics().horizontalAdvance(placeholder) + 24);
        // Once the menu is open, for it gives the focus to itself then.
        QTimer::singleShot(0, field.edit, [saveAs, field] {
            saveAs->setActiveAction(field.action);
            field.edit->setFocus(Qt::PopupFocusReason);
        });
    });
}

void leaveMenuBar(Menu& menu)
{
    new ReturnWatch(menu, [&menu](const QString& /*name*/) {
        // Once the menu is closed.
        QTimer::singleShot(0, &menu, [] {
            auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
            if (!bar || QApplication::activePopupWidget())
                return;
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(bar, &escape);
        });
        return false;
    });
}

void refuseEmptyNames(Menu& menu, const Tell& tell)
{
    new ReturnWatch(menu, [tell](const QString& name) {
        if (!isBlank(name))
            return false;
        tell(Text::tr("A layout needs a name: type one, then press Return."));
        return true;
    });
}

void removeNamelessViews(Manager& manager, const Tell& tell)
{
    const auto remove = [&manager, tell] {
        if (!manager.views().contains(QString()))
            return;
        manager.deleteView(QString());
        tell(Text::tr("A layout without a name was removed, for it could never be chosen."));
    };
    // Later: whoever has made it is not ready yet.
    const auto removeLater = [&manager, remove] { QTimer::singleShot(0, &manager, remove); };
    QObject::connect(&manager, &Manager::groupModified, &manager, removeLater);
    QObject::connect(&manager, &Manager::groupActivated, &manager, removeLater);
}

void saveAs(Manager& manager, const QString& name, LayoutUndo& undo, const Tell& tell)
{
    const QString message = rememberSaving(manager, name, undo);
    manager.saveCurrentViewAs(name);
    tell(message);
}

void rememberChanges(Menu& menu, Manager& manager, LayoutUndo& undo, const Tell& tell)
{
    const MenuParts parts(menu);
    const auto onSaving = [&menu, &manager, &undo, tell](const QString& name) {
        tellLater(menu, tell, rememberSaving(manager, name, undo));
    };
    new ReturnWatch(menu, [onSaving](const QString& name) {
        if (!isBlank(name))
            onSaving(name);
        return false;
    });
    // A menu tells that an action was triggered before those learn it who, like Panorel, connected
    // to the action after it was added.
    QObject::connect(parts.saveAs(), &QMenu::triggered, &menu, [onSaving](const QAction* action) {
        if (!qobject_cast<const QWidgetAction*>(action))
            onSaving(action->text());
    });
    QObject::connect(
        parts.deletion(), &QMenu::triggered, &menu, [&menu, &undo, tell](const QAction* action) {
            const QString name = action->text();
            undo.remember(Text::tr("Delete \"%1\"").arg(name), LayoutUndo::Windows::Stay);
            tellLater(menu, tell, Text::tr("Deleted \"%1\".").arg(name));
        });
    const QList<const QAction*> resets{parts.programStart(), parts.factoryDefault()};
    QObject::connect(&menu, &QMenu::triggered, &menu,
                     [&menu, &undo, tell, resets](const QAction* action) {
                         if (!resets.contains(action))
                             return;
                         undo.remember(Text::tr("Reset"), LayoutUndo::Windows::GoBack);
                         tellLater(menu, tell,
                                   action == resets.first()
                                       ? Text::tr("All layouts are as they were at the start.")
                                       : Text::tr("All layouts are as they came."));
                     });
}

void explainImports(Menu& menu, Manager& manager, LayoutUndo& undo, const Tell& tell)
{
    new ImportWatch(menu, manager, undo, tell);
}

void makeScrollable(Menu& menu)
{
    menu.setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }"));
}

void setTitle(Menu& menu, const QString& title)
{
    menu.setTitle(title);
}

void showAmpersand(Menu& menu)
{
    if (QAction* action = MenuParts(menu).importAndMerge())
        action->setText(action->text().replace(QLatin1String(" & "), QLatin1String(" && ")));
}

void openByKeys(ViewButton& button, const QKeySequence& keys, QWidget& window)
{
    auto* shortcut = new QShortcut(keys, &window);
    QObject::connect(shortcut, &QShortcut::activated, &button, [&button, &window] {
        // The tool bar may be hidden.
        if (button.isVisible())
            button.showMenu();
        else
            button.menu()->popup(window.mapToGlobal(window.rect().center()));
    });
}

void describeButton(ViewButton& button, Manager& manager, const QString& hint)
{
    const auto describe = [&button, &manager, hint] {
        const QString active = manager.activeView();
        const QString state = active.isEmpty() ? Text::tr("No layout is active.")
                                               : Text::tr("\"%1\" is active.").arg(active);
        const QString description = state + QLatin1Char(' ') + hint;
        // Escaped, for a name may look like markup.
        button.setToolTip(QStringLiteral("<qt>%1</qt>").arg(description.toHtmlEscaped()));
        button.setAccessibleDescription(description);
    };
    // Whatever changes the active view, this signal tells.
    QObject::connect(&manager, &Manager::viewActivated, &button, describe);
    describe();
}

QAction* createUndoAction(LayoutUndo& undo, const QList<QWidget*>& windows, const Tell& tell)
{
    auto* action = new QAction(&undo);
    action->setShortcuts(QKeySequence::Undo);
    const auto update = [action, &undo] {
        action->setEnabled(undo.canUndo());
        const QString change = buttonText(undo.lastChange());
        action->setText(undo.canUndo() ? Text::tr("Undo: %1").arg(change) : Text::tr("Undo"));
    };
    QObject::connect(&undo, &LayoutUndo::lastChangeChanged, action, update);
    QObject::connect(action, &QAction::triggered, &undo, [&undo, tell] {
        const QString change = undo.lastChange();
        undo.undo();
        tell(Text::tr("Undone: %1.").arg(change));
    });
    for (QWidget* window : windows)
        window->addAction(action);
    new UndoKeys(undo, action);
    update();
    return action;
}

} // namespace LayoutCures
