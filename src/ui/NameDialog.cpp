// SPDX-License-Identifier: MIT
#include "NameDialog.h"

#include <panorel/Manager.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Panorel {

NameDialog::NameDialog(Manager* manager, const QStringList& existingNames, bool allowActiveName,
                       QWidget* parent)
    : QDialog(parent)
    , m_nameEdit(new QLineEdit(this))
    , m_messageLabel(new QLabel(this))
    , m_buttonBox(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
    , m_manager(manager)
    , m_existingNames(existingNames)
    // With a background of its own, because no red is readable on every palette.
    , m_errorStyleSheet(QStringLiteral("color: #8c1d18; background-color: #f9dedc"))
    , m_allowActiveName(allowActiveName)
{
    setWindowTitle(tr("Save Layout"));
    auto* nameLabel = new QLabel(tr("&Name of the layout:"), this);
    nameLabel->setBuddy(m_nameEdit);
    m_messageLabel->setObjectName(QStringLiteral("messageLabel"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(nameLabel);
    layout->addWidget(m_nameEdit);
    layout->addWidget(m_messageLabel);
    layout->addWidget(m_buttonBox);

    connect(m_nameEdit, &QLineEdit::textChanged, this, &NameDialog::onTextChanged);
    connect(m_buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    onTextChanged(m_nameEdit->text());
}

QString NameDialog::name() const
{
    return m_nameEdit->text();
}

void NameDialog::onTextChanged(const QString& text)
{
    const bool isEmpty = text.trimmed().isEmpty();
    const bool isAcceptable = !isEmpty && !isInUse(text);
    QString message;
    if (!isAcceptable)
        message = isEmpty ? tr("Name must not be empty!") : tr("Name already in use!");
    m_messageLabel->setStyleSheet(isAcceptable ? QString() : m_errorStyleSheet);
    m_messageLabel->setText(message);
    m_buttonBox->button(QDialogButtonBox::Ok)->setEnabled(isAcceptable);
    // The focus stays in the field, so this is where a screen reader looks for the message.
    m_nameEdit->setAccessibleDescription(message);
}

bool NameDialog::isInUse(const QString& text) const
{
    // Deliberate: not trimmed, so a name with other blanks at its ends passes as new.
    const bool isAllowed = m_allowActiveName && text == m_manager->activeView();
    return m_existingNames.contains(text) && !isAllowed;
}

} // namespace Panorel
