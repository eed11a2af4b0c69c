// SPDX-License-Identifier: MIT
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/Layouts.h>
#include <panorel/kit/WindowState.h>

#include <QMainWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

/** A window with the button in one tool bar, and another tool bar. */
struct Program
{
    Program()
    {
        home->setObjectName("home"_s);
        other->setObjectName("other"_s);
        layouts.addWindow(window, "w"_s);
        button = layouts.createButton(&window);
        home->addWidget(button);
        window.setCentralWidget(new QWidget);
        window.show();
        QCoreApplication::processEvents();
    }

    /** Makes the layouts "with" and "without" tool bars, and shows them again. */
    void createLayouts()
    {
        manager.createView("with"_s);
        home->hide();
        other->hide();
        manager.createView("without"_s);
        manager.activateView("with"_s);
    }

    QStringList shownIn(const QString& view)
    {
        const LayoutDocument document(manager.toXml(/*markActive=*/true));
        QStringList shown;
        const auto bars = WindowState(document.view("G"_s, view).states.value("w"_s)).toolBars();
        for (const WindowState::ToolBar& bar : bars) {
            if (bar.isVisible)
                shown.append(bar.name);
        }
        return shown;
    }

    QMainWindow window;
    QToolBar* home = window.addToolBar("Home"_s);
    QToolBar* other = window.addToolBar("Other"_s);
    Manager manager{{"G"_s, "H"_s}, /*mergeOnApply=*/false};
    Layouts layouts{manager};
    QToolButton* button = nullptr;
};

} // namespace

/** The view button stays where it can be reached. */
class LayoutsButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSwitchKeepsItsToolBar();
    void groupsAndDocumentsKeepIt();
    void whatTheUserHidesStaysHidden();
    void theStartHidesIt();
};

void LayoutsButtonTest::aSwitchKeepsItsToolBar()
{
    Program p;
    p.createLayouts();
    QVERIFY(p.button->isVisible());
    p.manager.activateView("without"_s);
    QVERIFY(p.button->isVisible());
    QVERIFY(p.other->isHidden());
    QVERIFY(!p.layouts.isModified());
    QCOMPARE(p.shownIn("without"_s), QStringList());
    QCOMPARE(p.shownIn("with"_s), lines({"home", "other"}));
    // By itself the button goes round.
    p.button->click();
    QCOMPARE(p.manager.activeView(), "with"_s);
    QVERIFY(!p.other->isHidden());
    p.button->click();
    QVERIFY(p.button->isVisible());
    QVERIFY(p.other->isHidden());
}

void LayoutsButtonTest::groupsAndDocumentsKeepIt()
{
    Program p;
    p.createLayouts();
    const QByteArray shown = p.manager.toXml(/*markActive=*/true);
    p.manager.activateGroup("H"_s);
    p.home->hide();
    p.other->hide();
    p.manager.activateGroup("G"_s);
    QVERIFY(p.button->isVisible());
    p.manager.activateGroup("H"_s);
    QVERIFY(p.button->isVisible());
    QVERIFY(p.other->isHidden());
    p.home->hide();
    p.manager.activateGroup("G"_s);
    p.home->hide();
    p.other->hide();
    const QByteArray hidden = p.manager.toXml(/*markActive=*/true);
    QVERIFY(p.manager.fromXml(shown, /*merge=*/false));
    QVERIFY(p.button->isVisible());
    p.manager.setFactoryDefaultView(hidden);
    p.manager.activateFactoryDefaultView();
    QVERIFY(p.button->isVisible());
    QVERIFY(p.other->isHidden());
}

void LayoutsButtonTest::whatTheUserHidesStaysHidden()
{
    Program p;
    p.createLayouts();
    p.home->hide();
    p.manager.activateView("without"_s);
    QVERIFY(p.home->isHidden());
    p.manager.saveCurrentViewAs("saved"_s);
    QVERIFY(p.home->isHidden());
    p.manager.activateView("with"_s);
    QVERIFY(p.button->isVisible());
    (void)p.manager.toXml(/*markActive=*/true);
    QCoreApplication::processEvents();
    p.home->hide();
    p.manager.deleteView("saved"_s);
    QVERIFY(p.home->isHidden());
}

// It shows what the user left.
void LayoutsButtonTest::theStartHidesIt()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("f.views"_s);
    {
        Program p;
        p.layouts.start(name);
        p.home->hide();
    }
    Program p;
    p.layouts.start(name);
    QCoreApplication::processEvents();
    QVERIFY(p.home->isHidden());
    QVERIFY(!p.other->isHidden());
}

QTEST_MAIN(LayoutsButtonTest)
#include "LayoutsButtonTest.moc"
