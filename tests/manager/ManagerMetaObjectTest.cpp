// SPDX-License-Identifier: MIT
#include "support/SignalLog.h"

#include <panorel/Manager.h>

#include <QMetaMethod>
#include <QtTest>

#include <type_traits>

using namespace Panorel;
using namespace Panorel::Tests;

// The window owner in the Manager is its own affair: a Manager is not registered with another.
static_assert(std::is_base_of_v<QObject, Manager> && std::is_convertible_v<Manager*, QObject*>);
static_assert(std::is_base_of_v<IManagable, Manager> &&
              !std::is_convertible_v<Manager*, IManagable*>);
static_assert(std::is_constructible_v<Manager, const QStringList&, bool, QObject*>);
static_assert(!std::is_copy_constructible_v<Manager> && !std::is_copy_assignable_v<Manager>);

static_assert(std::is_abstract_v<IManagable> && std::has_virtual_destructor_v<IManagable>);
static_assert(
    std::is_same_v<decltype(&IManagable::managedWindows), QList<ManagedWindow> (IManagable::*)()>);
static_assert(std::is_copy_constructible_v<ManagedWindow> &&
              std::is_copy_assignable_v<ManagedWindow>);
static_assert(std::is_same_v<decltype(ManagedWindow::descriptorId), QString>);
static_assert(std::is_same_v<decltype(ManagedWindow::window), QMainWindow*>);
static_assert(std::is_same_v<StateMap, QMap<QString, QByteArray>>);

Q_DECLARE_METATYPE(QMetaMethod::MethodType)

/** The Manager as string-based connections and scripts see it. */
class ManagerMetaObjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void className();
    void methodCount();
    void method_data();
    void method();
    void objectComesFirst();
    void connectByName();
    void activateGroupByName();
    void activateViewByName();
    void specialViewsByName_data();
    void specialViewsByName();
    void invokeWithoutReturnSlot();
};

void ManagerMetaObjectTest::className()
{
    QCOMPARE(Manager::staticMetaObject.className(), "Panorel::Manager");
    QCOMPARE(Manager::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void ManagerMetaObjectTest::methodCount()
{
    const QMetaObject& meta = Manager::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 10);
}

void ManagerMetaObjectTest::method_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QMetaMethod::MethodType>("type");
    QTest::addColumn<QByteArray>("returned");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QByteArray>("parameters");

    const auto row = [](int index, QMetaMethod::MethodType type, const char* returned,
                        const char* signature, const char* parameters) {
        QTest::newRow(signature) << index << type << QByteArray(returned) << QByteArray(signature)
                                 << QByteArray(parameters);
    };
    row(0, QMetaMethod::Signal, "void", "groupModified()", "");
    row(1, QMetaMethod::Signal, "void", "groupActivated(QString)", "name");
    row(2, QMetaMethod::Signal, "void", "viewActivated(QString)", "name");
    row(3, QMetaMethod::Signal, "void", "viewUserDataChanged(QVariant)", "userData");
    row(4, QMetaMethod::Signal, "void", "factoryDefaultViewChanged(bool)", "valid");
    row(5, QMetaMethod::Signal, "void", "programStartViewChanged(bool)", "valid");
    row(6, QMetaMethod::Slot, "bool", "activateGroup(QString)", "name");
    row(7, QMetaMethod::Slot, "bool", "activateView(QString)", "name");
    row(8, QMetaMethod::Slot, "bool", "activateFactoryDefaultView()", "");
    row(9, QMetaMethod::Slot, "bool", "activateProgramStartView()", "");
}

void ManagerMetaObjectTest::method()
{
    QFETCH(int, index);
    QFETCH(QMetaMethod::MethodType, type);
    QFETCH(QByteArray, returned);
    QFETCH(QByteArray, signature);
    QFETCH(QByteArray, parameters);

    const QMetaObject& meta = Manager::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.parameterNames().join(','), parameters);
    QCOMPARE(method.typeName(), returned.constData());
    QCOMPARE(method.methodType(), type);
    QCOMPARE(method.access(), QMetaMethod::Public);
}

void ManagerMetaObjectTest::objectComesFirst()
{
    Manager manager(lines({"G"}), false);
    QCOMPARE(static_cast<void*>(static_cast<QObject*>(&manager)), static_cast<void*>(&manager));
}

void ManagerMetaObjectTest::connectByName()
{
    Manager source(lines({"G", "H"}), false);
    Manager follower(lines({"G", "H"}), false);
    QVERIFY(
        connect(&source, SIGNAL(groupActivated(QString)), &follower, SLOT(activateGroup(QString))));
    QVERIFY(source.activateGroup("H"_s));
    QCOMPARE(follower.activeGroup(), "H"_s);
}

void ManagerMetaObjectTest::activateGroupByName()
{
    Manager manager(lines({"G", "H"}), false);
    bool result = false;
    QVERIFY(QMetaObject::invokeMethod(&manager, "activateGroup", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, "H"_s)));
    QCOMPARE(result, true);
    QCOMPARE(manager.activeGroup(), "H"_s);
    QVERIFY(QMetaObject::invokeMethod(&manager, "activateGroup", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, "unknown"_s)));
    QCOMPARE(result, false);
    QCOMPARE(manager.activeGroup(), "H"_s);
}

void ManagerMetaObjectTest::activateViewByName()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    bool result = false;
    QVERIFY(QMetaObject::invokeMethod(&manager, "activateView", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, "a"_s)));
    QCOMPARE(result, true);
    QCOMPARE(manager.activeView(), "a"_s);
    QVERIFY(QMetaObject::invokeMethod(&manager, "activateView", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, ""_s)));
    QCOMPARE(result, false);
    QCOMPARE(manager.activeView(), "a"_s);
}

void ManagerMetaObjectTest::specialViewsByName_data()
{
    QTest::addColumn<QByteArray>("slot");

    QTest::newRow("factory default") << QByteArray("activateFactoryDefaultView");
    QTest::newRow("program start") << QByteArray("activateProgramStartView");
}

void ManagerMetaObjectTest::specialViewsByName()
{
    QFETCH(QByteArray, slot);
    Manager manager(lines({"G"}), false);
    // Neither document is set.
    bool result = true;
    QVERIFY(QMetaObject::invokeMethod(&manager, slot.constData(), Q_RETURN_ARG(bool, result)));
    QCOMPARE(result, false);
    QVERIFY(manager.setFactoryDefaultView(manager.toXml(false)));
    QVERIFY(manager.setProgramStartView(manager.toXml(false)));
    QVERIFY(QMetaObject::invokeMethod(&manager, slot.constData(), Q_RETURN_ARG(bool, result)));
    QCOMPARE(result, true);
}

void ManagerMetaObjectTest::invokeWithoutReturnSlot()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(QMetaObject::invokeMethod(&manager, "activateGroup", Q_ARG(QString, "H"_s)));
    QCOMPARE(manager.activeGroup(), "H"_s);
}

QTEST_MAIN(ManagerMetaObjectTest)
#include "ManagerMetaObjectTest.moc"
