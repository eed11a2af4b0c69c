// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <QMetaMethod>
#include <QtTest>

#include <type_traits>

using namespace Panorel;
using namespace Panorel::Tests;

static_assert(std::is_constructible_v<Menu, Manager*, bool, QWidget*>);
static_assert(std::is_constructible_v<ViewButton, Manager*, const QString&, QWidget*>);
static_assert(std::is_base_of_v<QMenu, Menu> && std::is_base_of_v<QToolButton, ViewButton>);
static_assert(!std::is_copy_constructible_v<Menu> && !std::is_copy_constructible_v<ViewButton>);

namespace {

// A handler that a class inherits keeps the type of the base that declares it.
template<typename Handler, typename Base, typename Event>
constexpr bool comesFrom = std::is_same_v<Handler, void (Base::*)(Event*)>;

class MenuHandlers : public Menu
{
public:
    static_assert(comesFrom<decltype(&MenuHandlers::keyPressEvent), QMenu, QKeyEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::mousePressEvent), QMenu, QMouseEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::mouseReleaseEvent), QMenu, QMouseEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::mouseMoveEvent), QMenu, QMouseEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::actionEvent), QMenu, QActionEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::changeEvent), QMenu, QEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::hideEvent), QMenu, QHideEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::showEvent), QWidget, QShowEvent>);
    static_assert(comesFrom<decltype(&MenuHandlers::closeEvent), QWidget, QCloseEvent>);
    static_assert(std::is_same_v<decltype(&MenuHandlers::event), bool (QMenu::*)(QEvent*)>);
};

class ButtonHandlers : public ViewButton
{
public:
    static_assert(comesFrom<decltype(&ButtonHandlers::mousePressEvent), QToolButton, QMouseEvent>);
    static_assert(
        comesFrom<decltype(&ButtonHandlers::mouseReleaseEvent), QToolButton, QMouseEvent>);
    static_assert(comesFrom<decltype(&ButtonHandlers::paintEvent), QToolButton, QPaintEvent>);
    static_assert(comesFrom<decltype(&ButtonHandlers::actionEvent), QToolButton, QActionEvent>);
    static_assert(comesFrom<decltype(&ButtonHandlers::changeEvent), QToolButton, QEvent>);
    static_assert(comesFrom<decltype(&ButtonHandlers::keyPressEvent), QAbstractButton, QKeyEvent>);
    static_assert(std::is_same_v<decltype(&ButtonHandlers::event), bool (QToolButton::*)(QEvent*)>);
    static_assert(
        std::is_same_v<decltype(&ButtonHandlers::sizeHint), QSize (QToolButton::*)() const>);
};

} // namespace

/** The menu and the button as string-based connections see them. */
class MenuMetaObjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void classes();
    void menuMethod_data();
    void menuMethod();
    void menuHasNothingElse();
    void buttonHasNothing();
    void callByName();
};

void MenuMetaObjectTest::classes()
{
    QCOMPARE(Menu::staticMetaObject.className(), "Panorel::Menu");
    QCOMPARE(Menu::staticMetaObject.superClass(), &QMenu::staticMetaObject);
    QCOMPARE(ViewButton::staticMetaObject.className(), "Panorel::ViewButton");
    QCOMPARE(ViewButton::staticMetaObject.superClass(), &QToolButton::staticMetaObject);
}

void MenuMetaObjectTest::menuMethod_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<bool>("isPublic");

    const auto row = [](int index, const char* signature, const char* parameters, bool isPublic) {
        QTest::newRow(signature) << index << QByteArray(parameters) << isPublic;
    };
    row(0, "updateMenu()", "", true);
    row(1, "updateSelection()", "", true);
    row(2, "toggleView()", "", true);
    row(3, "saveCurrentLayoutAs(QString)", "name", true);
    row(4, "onActionTriggered(QAction*)", "action", false);
    row(5, "onSaveLayoutAsTriggered(QString)", "name", false);
    row(6, "onSaveLayoutTriggered()", "", false);
    row(7, "onDeleteLayoutTriggered()", "", false);
    row(8, "onSaveTriggered()", "", false);
    row(9, "onLoadTriggered()", "", false);
    row(10, "onMergeTriggered()", "", false);
}

void MenuMetaObjectTest::menuMethod()
{
    QFETCH(int, index);
    QFETCH(QByteArray, parameters);
    QFETCH(bool, isPublic);

    const QMetaObject& meta = Menu::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), QByteArray(QTest::currentDataTag()));
    QCOMPARE(method.parameterNames().join(','), parameters);
    QCOMPARE(method.typeName(), "void");
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), isPublic ? QMetaMethod::Public : QMetaMethod::Private);
}

void MenuMetaObjectTest::menuHasNothingElse()
{
    const QMetaObject& meta = Menu::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 11);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.enumeratorCount() - meta.enumeratorOffset(), 0);
    QCOMPARE(meta.constructorCount(), 0);
}

void MenuMetaObjectTest::buttonHasNothing()
{
    const QMetaObject& meta = ViewButton::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 0);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.enumeratorCount() - meta.enumeratorOffset(), 0);
    QCOMPARE(meta.constructorCount(), 0);
}

void MenuMetaObjectTest::callByName()
{
    Manager manager({"G"_s}, false);
    Menu menu(&manager, false, nullptr);
    QVERIFY(QMetaObject::invokeMethod(&menu, "saveCurrentLayoutAs", Q_ARG(QString, "a"_s)));
    QCOMPARE(manager.activeView(), "a"_s);
    QVERIFY(manager.createView("b"_s));
    QVERIFY(QMetaObject::invokeMethod(&menu, "toggleView"));
    QCOMPARE(manager.activeView(), "b"_s);
    // Without a sending action there is no name to save or delete.
    QVERIFY(QMetaObject::invokeMethod(&menu, "onSaveLayoutTriggered"));
    QVERIFY(QMetaObject::invokeMethod(&menu, "onDeleteLayoutTriggered"));
    QCOMPARE(manager.views(), lines({"a", "b"}));
}

QTEST_MAIN(MenuMetaObjectTest)
#include "MenuMetaObjectTest.moc"
