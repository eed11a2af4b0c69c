// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QObject>
#include <QtTest>

#include <dlfcn.h>

/**
 * What a program that loads the library at run time finds before, between and after. The program
 * itself is linked with Qt only.
 */
class ModuleUnloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void addsOneFileToTheRoot();
    void takesTheFileAway();
    void loadsAgain();
    void staysWhileSomebodyHoldsIt();
    void leavesAfterUse();
};

namespace {

const char* const library = PANOREL_LIBRARY;
const char* const user = MODULE_USER;

QString schemaPath()
{
    return QStringLiteral(":/ViewSettingsXsdSchema");
}

QStringList rootEntries()
{
    return QDir(QStringLiteral(":/")).entryList();
}

bool isLoaded(const char* file)
{
    void* const handle = dlopen(file, RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle;
}

} // namespace

void ModuleUnloadTest::init()
{
    QVERIFY(!isLoaded(library));
    QVERIFY(!QFile::exists(schemaPath()));
}

void ModuleUnloadTest::addsOneFileToTheRoot()
{
    const QStringList before = rootEntries();
    void* const handle = dlopen(library, RTLD_NOW);
    QVERIFY2(handle, dlerror());
    QStringList added = rootEntries();
    for (const QString& entry : before)
        added.removeOne(entry);
    dlclose(handle);
    QCOMPARE(added, QStringList{QStringLiteral("ViewSettingsXsdSchema")});
    QCOMPARE(rootEntries(), before);
}

void ModuleUnloadTest::takesTheFileAway()
{
    void* const handle = dlopen(library, RTLD_NOW);
    QVERIFY2(handle, dlerror());
    QVERIFY(QFile::exists(schemaPath()));
    dlclose(handle);
    QVERIFY(!isLoaded(library));
    QVERIFY(!QFile::exists(schemaPath()));
    QFile schema(schemaPath());
    QVERIFY(!schema.open(QIODevice::ReadOnly));
}

void ModuleUnloadTest::loadsAgain()
{
    for (int round = 0; round < 3; ++round) {
        void* const handle = dlopen(library, RTLD_NOW);
        QVERIFY2(handle, dlerror());
        QFile schema(schemaPath());
        QVERIFY(schema.open(QIODevice::ReadOnly));
        QCOMPARE(schema.readAll().size(), 2725);
        schema.close();
        dlclose(handle);
        QVERIFY(!isLoaded(library));
    }
}

void ModuleUnloadTest::staysWhileSomebodyHoldsIt()
{
    void* const first = dlopen(library, RTLD_NOW);
    QVERIFY2(first, dlerror());
    void* const second = dlopen(library, RTLD_NOW);
    QCOMPARE(second, first);
    dlclose(first);
    QVERIFY(isLoaded(library));
    QVERIFY(QFile::exists(schemaPath()));
    dlclose(second);
    QVERIFY(!isLoaded(library));
}

void ModuleUnloadTest::leavesAfterUse()
{
    void* const handle = dlopen(user, RTLD_NOW);
    QVERIFY2(handle, dlerror());
    const auto useModule = reinterpret_cast<bool (*)()>(dlsym(handle, "useModule"));
    QVERIFY(useModule);
    QVERIFY(useModule());
    dlclose(handle);
    QVERIFY(!isLoaded(user));
    QVERIFY(!isLoaded(library));
    QVERIFY(!QFile::exists(schemaPath()));
}

QTEST_GUILESS_MAIN(ModuleUnloadTest)
#include "ModuleUnloadTest.moc"
