// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace Panorel {

class Manager;

/**
 * Asks for the name of a layout. The name is checked while it is typed: OK is enabled only for one
 * that is not blank and not in use. A name that differs from one in use by blanks at its ends is
 * another name.
 */
class NameDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param manager asked for its active view; not owned, must outlive the dialog.
     * @param existingNames the names in use, such as Manager::views().
     * @param allowActiveName whether the active view's name is accepted although it is in use.
     */
    NameDialog(Manager* manager, const QStringList& existingNames, bool allowActiveName,
               QWidget* parent = nullptr);
    ~NameDialog() override = default;

    /** The text as typed, blanks included. */
    QString name() const;

private Q_SLOTS:
    void onTextChanged(const QString& text);

private:
    bool isInUse(const QString& text) const;

    QLineEdit* m_nameEdit;
    QLabel* m_messageLabel;
    QDialogButtonBox* m_buttonBox;
    Manager* m_manager;
    QStringList m_existingNames;
    QString m_errorStyleSheet;
    bool m_allowActiveName;
};

} // namespace Panorel
