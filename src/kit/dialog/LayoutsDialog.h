// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutId.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>

class QAction;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QToolBar;

namespace Panorel::Kit::Detail {

class DetailsPane;
class LayoutCommands;
class LayoutsModel;
class LayoutsView;
struct Session;

/** The dialog "Layouts": all layouts of all groups with their pictures, and what can be done with
    them. It shows changes from elsewhere at once. */
class LayoutsDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param session may be destroyed first; then the dialog closes and does nothing. */
    LayoutsDialog(Session& session, QWidget* parent);
    ~LayoutsDialog() override;

    /** The dialog of @p session that is a child of @p window; null if there is none. */
    static LayoutsDialog* find(const QWidget& window, const Session& session);

Q_SIGNALS:
    /** What was done or why it was not, one sentence for the user. */
    void message(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void createActions();
    QAction* createAction(const QString& text, const char* icon, const QKeySequence& shortcut);
    void createGroupMenu();
    QToolBar* createToolBar();
    QDialogButtonBox* createButtons();
    void arrange();
    void follow();
    void retire();

    void refresh();
    void updateActions();
    void updateDetails();
    void updateDifferences();
    QStringList slotNames() const;
    QStringList remindersOf(const LayoutId& layout) const;
    bool isShown(const LayoutId& layout) const;
    void assignSlot(int slot);
    void tell(const QString& text);

    void rename();
    void remove();
    void duplicate();
    void move(int step);
    void moveTo(const LayoutIds& layouts, const QString& group, int row);
    void moveToGroup(const QString& group);
    void showResult(const LayoutIds& layouts);
    void chooseExport();
    void chooseImport();
    void openImport(const QString& fileName);

    Session* m_session;
    LayoutCommands* m_commands;
    LayoutsModel* m_model;
    LayoutsView* m_view;
    DetailsPane* m_details;
    QLabel* m_message;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_switch = nullptr;
    QAction* m_rename = nullptr;
    QAction* m_duplicate = nullptr;
    QAction* m_delete = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
    QAction* m_toGroup = nullptr;
    QAction* m_export = nullptr;
    QPushButton* m_switchButton = nullptr;
    QPushButton* m_exportButton = nullptr;
    /** Run when the layouts, or the windows, may have changed. */
    QTimer m_refresh;
    QTimer m_compare;
};

} // namespace Panorel::Kit::Detail
