// SPDX-License-Identifier: MIT
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QDialog>
#include <QMenu>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QUndoStack>

#include <algorithm>
#include <memory>
#include <string>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

/** All that an application has of the kit, each of which may be destroyed at any time. */
class Program
{
public:
    explicit Program(const QString& fileName)
        : m_manager(new Manager({"G"_s, "H"_s}, /*mergeOnApply=*/true))
        , m_layouts(new Layouts(*m_manager))
        , m_window(new SmallWindow)
    {
        m_layouts->addWindow(*m_window, "w"_s);
        m_menu = m_layouts->createMenu(nullptr);
        m_button = m_layouts->createButton(nullptr);
        m_dialog = m_layouts->createDialog(nullptr);
        m_stack = m_layouts->history();
        m_window->show();
        m_layouts->start(fileName);
        m_manager->createView("a"_s);
        m_manager->saveCurrentViewAs("b"_s);
        m_layouts->setLocked(true);
        m_layouts->setSlotShortcutsEnabled(true);
        m_dialog->show();
        use();
    }

    ~Program() { destroyAll("MLWmbds"); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /** Each letter is one of them. */
    void destroyAll(const std::string& letters)
    {
        for (const char letter : letters) {
            destroy(letter);
            use();
        }
    }

private:
    void destroy(char letter)
    {
        if (letter == 'M')
            delete m_manager;
        else if (letter == 'L')
            delete m_layouts;
        else if (letter == 'W')
            delete m_window;
        else if (letter == 'm')
            delete m_menu;
        else if (letter == 'b')
            delete m_button;
        else if (letter == 'd')
            delete m_dialog;
        else
            delete m_stack;
    }

    // Uses those that are left in the ways in which they reach the others.
    void use()
    {
        if (m_window)
            m_window->moveDock(Qt::RightDockWidgetArea);
        if (m_manager) {
            m_manager->activateView("a"_s);
            m_manager->activateGroup("H"_s);
            m_manager->activateGroup("G"_s);
            m_manager->saveCurrentViewAs("b"_s);
        }
        if (m_layouts) {
            m_layouts->setLocked(!m_layouts->isLocked());
            m_layouts->nextAction()->trigger();
            (void)m_layouts->history();
        }
        if (m_menu)
            Q_EMIT m_menu->aboutToShow();
        if (m_button)
            m_button->click();
        if (m_stack) {
            m_stack->undo();
            m_stack->redo();
        }
        QCoreApplication::processEvents();
    }

    QPointer<Manager> m_manager;
    QPointer<Layouts> m_layouts;
    QPointer<SmallWindow> m_window;
    QPointer<QMenu> m_menu;
    QPointer<QToolButton> m_button;
    QPointer<QDialog> m_dialog;
    QPointer<QUndoStack> m_stack;
};

std::vector<std::string> orders(std::string letters)
{
    std::vector<std::string> result;
    std::sort(letters.begin(), letters.end());
    do {
        result.push_back(letters);
    } while (std::next_permutation(letters.begin(), letters.end()));
    return result;
}

} // namespace

/** M: Manager, L: Layouts, W: window, m: menu, b: button, d: dialog, s: undo stack. */
class LayoutsDeletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyOrder_data();
    void anyOrder();
};

void LayoutsDeletionTest::anyOrder_data()
{
    QTest::addColumn<QString>("order");
    for (const char* letters : {"MLWmb", "MLWds", "MLmds"}) {
        const std::vector<std::string> all = orders(letters);
        for (const std::string& order : all)
            QTest::newRow(order.c_str()) << QString::fromStdString(order);
    }
}

void LayoutsDeletionTest::anyOrder()
{
    QFETCH(QString, order);
    const QTemporaryDir folder;
    Program program(folder.filePath("f.views"_s));
    program.destroyAll(order.toStdString());
}

QTEST_MAIN(LayoutsDeletionTest)
#include "LayoutsDeletionTest.moc"
