// SPDX-License-Identifier: MIT
#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>

#include <QtTest>

#include <type_traits>
#include <utility>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Panorel;

namespace {

template<typename Tag, typename Tag::Type member>
struct Opened
{
    friend typename Tag::Type open(Tag) { return member; }
};

// Names the private field and lets it be found, and asserts that it is of this type.
#define PANOREL_FIELD(name, ...)                                                                   \
    struct name##Tag                                                                               \
    {                                                                                              \
        using Type = __VA_ARGS__ Manager::*;                                                       \
        friend Type open(name##Tag);                                                               \
    };                                                                                             \
    template struct Opened<name##Tag, &Manager::name>;                                             \
    template<typename T, typename = void>                                                          \
    struct name##IsPublic : std::false_type                                                        \
    {};                                                                                            \
    template<typename T>                                                                           \
    struct name##IsPublic<T, std::void_t<decltype(std::declval<T&>().name)>> : std::true_type      \
    {};                                                                                            \
    static_assert(!name##IsPublic<Manager>::value)

PANOREL_FIELD(m_managables, QList<IManagable*>);
PANOREL_FIELD(m_groups, QVector<Group*>);
PANOREL_FIELD(m_activeGroup, Group*);
PANOREL_FIELD(m_mergeOnApply, bool);
PANOREL_FIELD(m_factoryDefaultView, QByteArray);
PANOREL_FIELD(m_programStartView, QByteArray);

#undef PANOREL_FIELD

// Whether Call, given these arguments, compiles.
template<typename Call, typename... Arguments>
constexpr bool compiles(Call, Arguments&&...)
{
    return std::is_invocable_v<Call, Arguments...>;
}

const auto toXml = [](auto& manager, auto... a) -> decltype(manager.toXml(a...)) {
    return manager.toXml(a...);
};
const auto fromXml = [](auto& manager, auto... a) -> decltype(manager.fromXml(a...)) {
    return manager.fromXml(a...);
};
const auto createView = [](auto& manager, auto... a) -> decltype(manager.createView(a...)) {
    return manager.createView(a...);
};
const auto setUserData = [](auto& manager, auto... a) -> decltype(manager.setViewUserData(a...)) {
    return manager.setViewUserData(a...);
};

} // namespace

/** What users compile against: the order and privacy of fields, and default arguments. */
class ManagerShapeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreInOrder();
    void noFurtherDefaultArguments();
    void groupsGoWithTheManager();
};

void ManagerShapeTest::fieldsAreInOrder()
{
    Manager manager({QStringLiteral("G")}, /*mergeOnApply=*/false);
    const void* const fields[] = {
        &(manager.*open(m_managablesTag())),         &(manager.*open(m_groupsTag())),
        &(manager.*open(m_activeGroupTag())),        &(manager.*open(m_mergeOnApplyTag())),
        &(manager.*open(m_factoryDefaultViewTag())), &(manager.*open(m_programStartViewTag()))};
    QVERIFY(std::is_sorted(std::begin(fields), std::end(fields)));
    const auto* const end = reinterpret_cast<const char*>(&manager) + sizeof(Manager);
    QCOMPARE(static_cast<const void*>(end - sizeof(QByteArray)), fields[5]);
    const auto* const object = reinterpret_cast<const char*>(static_cast<QObject*>(&manager));
    QCOMPARE(object, reinterpret_cast<const char*>(&manager));
    QVERIFY(!(std::is_convertible_v<Manager*, IManagable*>));
}

void ManagerShapeTest::noFurtherDefaultArguments()
{
    Manager manager({QStringLiteral("G")}, /*mergeOnApply=*/false);
    QVERIFY(!compiles(toXml, manager));
    QVERIFY(compiles(toXml, manager, true));
    QVERIFY(!compiles(fromXml, manager, QByteArray()));
    QVERIFY(compiles(fromXml, manager, QByteArray(), true));
    QVERIFY(!compiles(createView, manager));
    QVERIFY(!compiles(setUserData, manager));
    QVERIFY(!(std::is_constructible_v<Manager>));
    QVERIFY(!(std::is_constructible_v<Manager, QStringList>));
    QVERIFY((std::is_constructible_v<Manager, QStringList, bool>));
    QVERIFY(!(std::is_constructible_v<Menu, Manager*>));
    QVERIFY((std::is_constructible_v<Menu, Manager*, bool>));
    QVERIFY(!(std::is_constructible_v<ViewButton, Manager*>));
    QVERIFY((std::is_constructible_v<ViewButton, Manager*, QString>));
}

// AddressSanitizer has its own heap and finds what leaks.
void ManagerShapeTest::groupsGoWithTheManager()
{
#ifdef __GLIBC__
    const auto heapBytes = [] {
        const struct mallinfo2 info = mallinfo2();
        return qint64(info.uordblks + info.hblkhd);
    };
    const qint64 before = heapBytes();
    for (int i = 0; i < 20; ++i) {
        Manager manager({QStringLiteral("G"), QStringLiteral("H")}, /*mergeOnApply=*/false);
        QVERIFY(manager.createView(QString(500'000, QLatin1Char('v'))));
        QVERIFY(manager.activateGroup(QStringLiteral("H")));
        QVERIFY(manager.createView(QString(500'000, QLatin1Char('w'))));
    }
    // 40 names of a megabyte were there.
    QVERIFY(heapBytes() - before < 1'000'000);
#endif
}

QTEST_MAIN(ManagerShapeTest)
#include "ManagerShapeTest.moc"
