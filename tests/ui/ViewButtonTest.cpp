// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/SignalLog.h"
#include "support/Text.h"
#include "ui/Differences.h"
#include "ui/Hands.h"
#include "ui/ReportedUserData.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <QLineEdit>
#include <QPointer>
#include <QStyleOptionToolButton>
#include <QTimer>
#include <QToolBar>
#include <QtTest>

#include <functional>

using namespace Panorel;
using namespace Panorel::Tests;

/** The tool button: a click on its main part, a click on its arrow. */
class ViewButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void construction();
    void nothingElseIsSet();
    void menuDiesWithTheButton();
    void clickToggles();
    void pressDoesNotToggle();
    void clickWithoutViews();
    void clickWithOneActiveView();
    void clickWithSkippedViewsOnly();
    void clickOpensNoMenu();
    void spaceToggles();
    void textStays();
    void arrowOpensTheMenu();
    void chooseInTheArrowsMenu();
    void saveInTheArrowsMenu();

private:
    bool show();
    // Opening the menu returns when it is closed again, so what happens meanwhile is given.
    void clickArrow(const std::function<void(Menu&)>& meanwhile);

    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<QToolBar> m_bar;
    ViewButton* m_button = nullptr;
};

namespace {

// Lets the style tell where the arrow is, as it does when the button is clicked.
class ArrowOption : public QStyleOptionToolButton
{
public:
    explicit ArrowOption(const QToolButton& button)
    {
        initFrom(&button);
        subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
        features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::Menu;
    }
};

QPoint inControl(const QToolButton& button, QStyle::SubControl control)
{
    const ArrowOption option(button);
    return button.style()
        ->subControlRect(QStyle::CC_ToolButton, &option, control, &button)
        .center();
}

} // namespace

void ViewButtonTest::init()
{
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    m_bar = std::make_unique<QToolBar>();
    m_button = new ViewButton(m_manager.get(), "Layouts"_s, m_bar.get());
    m_bar->addWidget(m_button);
}

void ViewButtonTest::cleanup()
{
    m_bar.reset();
    m_manager.reset();
    reportedUserData().clear();
}

bool ViewButtonTest::show()
{
    m_bar->show();
    return QTest::qWaitForWindowExposed(m_bar.get());
}

void ViewButtonTest::clickArrow(const std::function<void(Menu&)>& meanwhile)
{
    auto* menu = qobject_cast<Menu*>(m_button->menu());
    bool called = false;
    QTimer::singleShot(0, menu, [&] {
        called = QTest::qWaitFor([&] { return menu->isVisible(); }) &&
                 QTest::qWaitForWindowExposed(menu);
        if (called)
            meanwhile(*menu);
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    });
    Hands::click(*m_button, inControl(*m_button, QStyle::SC_ToolButtonMenu));
    QVERIFY(called);
}

void ViewButtonTest::construction()
{
    QCOMPARE(m_button->parentWidget(), m_bar.get());
    QCOMPARE(m_button->text(), "Layouts"_s);
    QCOMPARE(m_button->popupMode(), QToolButton::MenuButtonPopup);
    QVERIFY(qobject_cast<Menu*>(m_button->menu()));
    QCOMPARE(m_button->menu()->parentWidget(), m_button);
    QCOMPARE(m_button->findChildren<Menu*>().size(), 1);
}

void ViewButtonTest::nothingElseIsSet()
{
    QWidget parent;
    const ViewButton button(m_manager.get(), "Text"_s, &parent);
    QToolButton plain(&parent);
    QMenu menu("Layouts"_s, &plain);
    plain.setText("Text"_s);
    plain.setMenu(&menu);
    plain.setPopupMode(QToolButton::MenuButtonPopup);
    QCOMPARE(widgetDifferences(button, plain), QStringList());
    QCOMPARE(button.actions().size(), plain.actions().size());
    QCOMPARE(button.defaultAction(), nullptr);
    menu.addActions(button.menu()->actions());
    QCOMPARE(widgetDifferences(*button.menu(), menu), QStringList());
}

void ViewButtonTest::menuDiesWithTheButton()
{
    const QPointer<QMenu> menu = m_button->menu();
    delete m_button;
    QVERIFY(menu.isNull());
    QVERIFY(m_manager->createView("a"_s));
}

void ViewButtonTest::clickToggles()
{
    QVERIFY(m_manager->createView("a"_s));
    QVERIFY(m_manager->createView("b"_s));
    QVERIFY(show());
    SignalLog signalLog(*m_manager);
    for (int i = 0; i < 3; ++i)
        Hands::click(*m_button, inControl(*m_button, QStyle::SC_ToolButton));
    QCOMPARE(signalLog.take(),
             lines({"viewActivated('a')", "viewActivated('b')", "viewActivated('a')"}));
    QCOMPARE(entries(*m_button->menu()).mid(0, 2), lines({"* a", "b"}));
}

// Whoever presses by mistake moves away before the release.
void ViewButtonTest::pressDoesNotToggle()
{
    QVERIFY(m_manager->createView("a"_s));
    QVERIFY(m_manager->createView("b"_s));
    QVERIFY(show());
    const QPoint place = inControl(*m_button, QStyle::SC_ToolButton);
    QTest::mousePress(m_button, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(m_manager->activeView(), QString());
    QTest::mouseRelease(m_button, Qt::LeftButton, Qt::NoModifier, QPoint(-10, -10));
    QCOMPARE(m_manager->activeView(), QString());
    QTest::mouseClick(m_button, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(m_manager->activeView(), "a"_s);
}

void ViewButtonTest::clickWithoutViews()
{
    QVERIFY(show());
    SignalLog signalLog(*m_manager);
    Hands::click(*m_button, inControl(*m_button, QStyle::SC_ToolButton));
    QCOMPARE(signalLog.take(), QStringList());
}

void ViewButtonTest::clickWithOneActiveView()
{
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QVERIFY(show());
    SignalLog signalLog(*m_manager);
    Hands::click(*m_button, inControl(*m_button, QStyle::SC_ToolButton));
    QCOMPARE(signalLog.take(), QStringList());
}

void ViewButtonTest::clickWithSkippedViewsOnly()
{
    reportedUserData() = {{"a"_s, true}, {"b"_s, true}};
    QVERIFY(m_manager->createView("a"_s));
    QVERIFY(m_manager->createView("b"_s));
    QVERIFY(show());
    SignalLog signalLog(*m_manager);
    Hands::click(*m_button, inControl(*m_button, QStyle::SC_ToolButton));
    QCOMPARE(signalLog.take(), QStringList());
}

void ViewButtonTest::clickOpensNoMenu()
{
    QVERIFY(m_manager->createView("a"_s));
    QVERIFY(show());
    const QSignalSpy opened(m_button->menu(), &QMenu::aboutToShow);
    Hands::click(*m_button, inControl(*m_button, QStyle::SC_ToolButton));
    QCOMPARE(opened.size(), 0);
    QVERIFY(!m_button->menu()->isVisible());
}

void ViewButtonTest::spaceToggles()
{
    QVERIFY(m_manager->createView("a"_s));
    QVERIFY(show());
    QTest::keyClick(m_button, Qt::Key_Space);
    QCOMPARE(m_manager->activeView(), "a"_s);
}

void ViewButtonTest::textStays()
{
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QVERIFY(m_manager->saveCurrentViewAs("b"_s));
    m_button->click();
    QCOMPARE(m_manager->activeView(), "a"_s);
    QCOMPARE(m_button->text(), "Layouts"_s);
    QCOMPARE(m_button->toolTip(), QToolButton().toolTip());
}

void ViewButtonTest::arrowOpensTheMenu()
{
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QVERIFY(m_manager->setProgramStartView(m_manager->toXml(true)));
    QVERIFY(show());
    QStringList shown;
    SignalLog signalLog(*m_manager);
    clickArrow([&](Menu& menu) { shown = entries(menu); });
    QCOMPARE(shown, lines({"* a", "---", "Save Current Layout As... >", "Delete Layout... >"}));
    QCOMPARE(signalLog.take(), QStringList());
}

void ViewButtonTest::chooseInTheArrowsMenu()
{
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QVERIFY(m_manager->createView("b"_s));
    QVERIFY(show());
    SignalLog signalLog(*m_manager);
    clickArrow([&](Menu& menu) { Hands::click(menu, viewEntries(menu).at(1)); });
    QCOMPARE(signalLog.take(), lines({"viewActivated('b')"}));
    QVERIFY(!m_button->menu()->isVisible());
}

void ViewButtonTest::saveInTheArrowsMenu()
{
    QVERIFY(show());
    clickArrow([&](Menu& menu) {
        QVERIFY(Hands::openSubMenu(menu, *saveAsMenu(menu)));
        Hands::click(*nameEdit(menu));
        Hands::type("new"_s);
        Hands::press(Qt::Key_Return);
        QVERIFY(!menu.isVisible());
    });
    QCOMPARE(m_manager->views(), lines({"new"}));
    QCOMPARE(entries(*m_button->menu()).first(), "* new"_s);
}

QTEST_MAIN(ViewButtonTest)
#include "ViewButtonTest.moc"
