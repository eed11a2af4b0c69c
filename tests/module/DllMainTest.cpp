// SPDX-License-Identifier: MIT
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtTest>

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);

// Takes the service's place and records the calls.
class TranslationCenter
{
public:
    static TranslationCenter& Instance();
    void Register(const QString& name);
    void Unregister(const QString& name);

    QStringList calls;
};

TranslationCenter& TranslationCenter::Instance()
{
    static TranslationCenter instance;
    return instance;
}

void TranslationCenter::Register(const QString& name)
{
    calls += QLatin1String("Register ") + name;
}

void TranslationCenter::Unregister(const QString& name)
{
    calls += QLatin1String("Unregister ") + name;
}

/** The entry point for Windows, run here with a few declarations in place of its API. */
class DllMainTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void callsTheService_data();
    void callsTheService();
    void callsOncePerLoad();
};

void DllMainTest::init()
{
    TranslationCenter::Instance().calls.clear();
}

void DllMainTest::callsTheService_data()
{
    QTest::addColumn<unsigned int>("reason");
    QTest::addColumn<QStringList>("calls");
    const QStringList none;
    QTest::newRow("process detach") << 0u << QStringList{QStringLiteral("Unregister Panorel")};
    QTest::newRow("process attach") << 1u << QStringList{QStringLiteral("Register Panorel")};
    QTest::newRow("thread attach") << 2u << none;
    QTest::newRow("thread detach") << 3u << none;
    QTest::newRow("the first unknown reason") << 4u << none;
    QTest::newRow("the last unknown reason") << 0xffffffffu << none;
}

void DllMainTest::callsTheService()
{
    QFETCH(const unsigned int, reason);
    QFETCH(const QStringList, calls);
    int process = 0;
    // The last argument tells whether the process ends or only the library leaves.
    for (void* const reserved : {static_cast<void*>(nullptr), static_cast<void*>(&process)}) {
        TranslationCenter::Instance().calls.clear();
        QCOMPARE(DllMain(nullptr, reason, reserved), TRUE);
        QCOMPARE(TranslationCenter::Instance().calls, calls);
    }
}

void DllMainTest::callsOncePerLoad()
{
    for (const unsigned int reason : {1u, 2u, 2u, 3u, 3u, 0u})
        QCOMPARE(DllMain(nullptr, reason, nullptr), TRUE);
    const QStringList expected{QStringLiteral("Register Panorel"),
                               QStringLiteral("Unregister Panorel")};
    QCOMPARE(TranslationCenter::Instance().calls, expected);
}

QTEST_APPLESS_MAIN(DllMainTest)
#include "DllMainTest.moc"
