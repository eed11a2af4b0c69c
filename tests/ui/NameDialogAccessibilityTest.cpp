// SPDX-License-Identifier: MIT
#include "NameDialog.h"

#include "support/Text.h"

#include <panorel/Manager.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** What a screen reader learns about the name dialog. */
class NameDialogAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void field();
    void labelOfTheField();
    void messageInTheField();
    void message();

private:
    QLineEdit* edit() const { return m_dialog->findChild<QLineEdit*>(); }
    QAccessibleInterface* fieldInterface() const
    {
        return QAccessible::queryAccessibleInterface(edit());
    }
    QAccessibleInterface* messageInterface() const
    {
        return QAccessible::queryAccessibleInterface(
            m_dialog->findChild<QLabel*>("messageLabel"_s));
    }

    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<NameDialog> m_dialog;
};

void NameDialogAccessibilityTest::init()
{
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    m_dialog = std::make_unique<NameDialog>(m_manager.get(), lines({"used"}), false);
}

void NameDialogAccessibilityTest::cleanup()
{
    m_dialog.reset();
    m_manager.reset();
}

void NameDialogAccessibilityTest::field()
{
    QCOMPARE(fieldInterface()->role(), QAccessible::EditableText);
    QCOMPARE(fieldInterface()->text(QAccessible::Name), "Name of the layout:"_s);
    edit()->setText("typed"_s);
    QCOMPARE(fieldInterface()->text(QAccessible::Value), "typed"_s);
}

void NameDialogAccessibilityTest::labelOfTheField()
{
    const auto relations = fieldInterface()->relations(QAccessible::Label);
    QCOMPARE(relations.size(), 1);
    QCOMPARE(relations.first().first->role(), QAccessible::StaticText);
    QCOMPARE(relations.first().first->text(QAccessible::Name), "Name of the layout:"_s);
}

void NameDialogAccessibilityTest::messageInTheField()
{
    QCOMPARE(fieldInterface()->text(QAccessible::Description), "Name must not be empty!"_s);
    edit()->setText("used"_s);
    QCOMPARE(fieldInterface()->text(QAccessible::Description), "Name already in use!"_s);
    edit()->setText("new"_s);
    QCOMPARE(fieldInterface()->text(QAccessible::Description), QString());
}

void NameDialogAccessibilityTest::message()
{
    QCOMPARE(messageInterface()->role(), QAccessible::StaticText);
    QCOMPARE(messageInterface()->text(QAccessible::Name), "Name must not be empty!"_s);
    edit()->setText("used"_s);
    QCOMPARE(messageInterface()->text(QAccessible::Name), "Name already in use!"_s);
}

QTEST_MAIN(NameDialogAccessibilityTest)
#include "NameDialogAccessibilityTest.moc"
