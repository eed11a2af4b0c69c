// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "support/MessageWatch.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

struct Program
{
    explicit Program(const QString& fileName)
    {
        QObject::connect(layouts.get(), &Layouts::message, layouts.get(),
                         [this](const QString& text) { messages.append(text); });
        layouts->addWindow(window, "w"_s);
        window.show();
        layouts->start(fileName);
        QCoreApplication::processEvents();
    }

    SmallWindow window;
    QStringList messages;
    std::unique_ptr<Manager> manager =
        std::make_unique<Manager>(QStringList({"G"_s, "H"_s}), /*mergeOnApply=*/false);
    std::unique_ptr<Layouts> layouts = std::make_unique<Layouts>(*manager);
};

/** Nothing can be written in the folder while it exists, not even by the superuser. */
class WithoutRights
{
public:
    explicit WithoutRights(const QString& folder)
        : m_folder(folder.toLocal8Bit())
    {
        chmod(m_folder.constData(), 0555);
        if (m_user == 0)
            isEffective = seteuid(65534) == 0 &&
                          faccessat(AT_FDCWD, m_folder.constData(), R_OK | X_OK, AT_EACCESS) == 0;
    }
    ~WithoutRights()
    {
        if (seteuid(m_user) == 0)
            chmod(m_folder.constData(), 0755);
    }
    WithoutRights(const WithoutRights&) = delete;
    WithoutRights& operator=(const WithoutRights&) = delete;

    bool isEffective = true;

private:
    QByteArray m_folder;
    uid_t m_user = geteuid();
};

class TimerCount : public QObject
{
public:
    TimerCount() { qApp->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Timer ? 1 : 0;
        return false;
    }

    int count = 0;
};

bool isQuietFor(int milliseconds)
{
    const TimerCount timers;
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < milliseconds && timers.count == 0) {
        QCoreApplication::processEvents();
        QTest::qSleep(10);
    }
    return timers.count == 0;
}

} // namespace

/** What may go wrong around the file, and what must not be done when nothing goes on. */
class LayoutsTroubleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFullDisk();
    void aFolderWithoutRights();
    void aDamagedFileInAFolderWithoutRights();
    void theFileIsFreeWhenMessagesCome();
    void nothingRunsWhenNothingChanges();
    void touchesThatChangeNothingReadNoDocument();
    void theManagerGoesFirst_data();
    void theManagerGoesFirst();
    void anotherProgramsLayoutsAreKeptWhenTheManagerGoesFirst();
    void findingsAreLoggedOnce();

private:
    QString path() const { return m_folder->filePath("f.views"_s); }
    QByteArray content() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void LayoutsTroubleTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    chmod(m_folder->path().toLocal8Bit().constData(), 0755);
}

QByteArray LayoutsTroubleTest::content() const
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void LayoutsTroubleTest::aFullDisk()
{
    Program program(path());
    program.manager->createView("first"_s);
    QVERIFY(program.layouts->save());
    const QByteArray before = content();
    QVERIFY(before.size() > 1000);
    {
        const FullDisk disk(1000);
        program.manager->createView("second"_s);
        QVERIFY(!program.layouts->save());
        program.window.moveDock(Qt::RightDockWidgetArea);
        QVERIFY(!program.layouts->save());
    }
    QCOMPARE(program.messages.size(), 1);
    QVERIFY(program.messages.constFirst().contains("f.views"_s));
    QCOMPARE(program.layouts->problem(), program.messages.constFirst());
    QCOMPARE(content(), before);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("f.views"_s));
    // By itself, with the next change.
    program.manager->createView("third"_s);
    QTRY_VERIFY_WITH_TIMEOUT(content().contains("third"), 25000);
    QVERIFY(content().contains("second"));
    QCOMPARE(program.layouts->problem(), QString());
    QCOMPARE(program.messages.size(), 1);
}

void LayoutsTroubleTest::aFolderWithoutRights()
{
    Program program(path());
    program.manager->createView("first"_s);
    QVERIFY(program.layouts->save());
    const QByteArray before = content();
    {
        const WithoutRights rights(m_folder->path());
        if (!rights.isEffective)
            QSKIP("The rights cannot be given up.");
        program.manager->createView("second"_s);
        QVERIFY(!program.layouts->save());
        QVERIFY(!program.layouts->save());
    }
    QCOMPARE(program.messages.size(), 1);
    QCOMPARE(program.layouts->problem(), program.messages.constFirst());
    QCOMPARE(content(), before);
    program.manager->createView("third"_s);
    QTRY_VERIFY_WITH_TIMEOUT(content().contains("third"), 25000);
    QVERIFY(content().contains("second"));
    QCOMPARE(program.layouts->problem(), QString());
}

void LayoutsTroubleTest::aDamagedFileInAFolderWithoutRights()
{
    for (int start = 1; start <= 2; ++start) {
        Program program(path());
        program.manager->createView(QString::number(start));
    }
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("garbage");
    file.close();
    const QStringList names{path(), path() + ".1"_s};
    for (const QString& name : names)
        QVERIFY(
            QFile::setPermissions(name, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    {
        const WithoutRights rights(m_folder->path());
        if (!rights.isEffective)
            QSKIP("The rights cannot be given up.");
        Program program(path());
        // What was there at the last start.
        QCOMPARE(program.manager->views(), QStringList("1"_s));
        QCOMPARE(program.messages.size(), 1);
        QCOMPARE(program.layouts->problem(), program.messages.constFirst());
        program.manager->createView("new"_s);
        QVERIFY(!program.layouts->save());
        QCOMPARE(program.messages.size(), 1);
    }
    QCOMPARE(content(), QByteArray("garbage"));
}

// A receiver may show a dialog, and other programs wait for the file.
void LayoutsTroubleTest::theFileIsFreeWhenMessagesCome()
{
    const auto damage = [&] {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no layouts") == 10);
    };
    damage();
    SmallWindow window;
    auto manager = std::make_unique<Manager>(QStringList("G"_s), /*mergeOnApply=*/false);
    Layouts layouts(*manager);
    QList<bool> wasFree;
    connect(&layouts, &Layouts::message, this, [&] {
        QLockFile lock(path() + ".lock"_s);
        wasFree.append(lock.tryLock(0));
    });
    layouts.addWindow(window, "w"_s);
    layouts.start(path());
    QCOMPARE(wasFree, QList<bool>{true});
    manager->createView("a"_s);
    QVERIFY(layouts.save());
    damage();
    manager->createView("b"_s);
    QVERIFY(layouts.save());
    QCOMPARE(wasFree, (QList<bool>{true, true}));
    {
        const FullDisk disk(1000);
        manager->createView("c"_s);
        QVERIFY(!layouts.save());
    }
    QCOMPARE(wasFree, (QList<bool>{true, true, true}));
}

void LayoutsTroubleTest::nothingRunsWhenNothingChanges()
{
    Program program(path());
    program.manager->createView("first"_s);
    program.layouts->createMenu(&program.window);
    program.layouts->createButton(&program.window);
    program.layouts->setLocked(true);
    // Whatever runs more often than once in this time is never quiet.
    QTRY_VERIFY_WITH_TIMEOUT(isQuietFor(1500), 60000);
    QVERIFY(content().contains("first"));
}

void LayoutsTroubleTest::touchesThatChangeNothingReadNoDocument()
{
    Program program(path());
    Owner owner;
    program.manager->registerManagable(owner);
    QVERIFY(program.layouts->save());
    // The Manager asks for windows whenever it writes its document.
    owner.calls = 0;
    QEvent touch(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(&program.window, &touch);
    QVERIFY(program.layouts->save());
    QCOMPARE(owner.calls, 0);
    program.window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(program.layouts->save());
    QVERIFY(owner.calls > 0);
}

void LayoutsTroubleTest::theManagerGoesFirst_data()
{
    QTest::addColumn<bool>("later");
    QTest::newRow("delete") << false;
    QTest::newRow("deleteLater()") << true;
}

// With what has changed in the last half second.
void LayoutsTroubleTest::theManagerGoesFirst()
{
    QFETCH(bool, later);
    {
        Program program(path());
        program.manager->createView("first"_s);
        program.manager->activateGroup("H"_s);
        QVERIFY(program.layouts->save());
        if (later)
            program.manager->createView("last"_s);
        program.window.moveDock(Qt::RightDockWidgetArea);
        program.window.resize(345, 234);
        if (later) {
            program.manager.release()->deleteLater();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        } else
            program.manager.reset();
        QVERIFY(!program.layouts->save());
    }
    Program program(path());
    QCOMPARE(program.manager->activeGroup(), "H"_s);
    QCOMPARE(program.manager->views(), later ? QStringList("last"_s) : QStringList());
    QCOMPARE(program.window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(program.window.size(), QSize(345, 234));
    program.manager->activateGroup("G"_s);
    QCOMPARE(program.window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(program.manager->views(), QStringList("first"_s));
}

void LayoutsTroubleTest::anotherProgramsLayoutsAreKeptWhenTheManagerGoesFirst()
{
    {
        Program one(path());
        QVERIFY(one.layouts->save());
        Program two(path());
        two.manager->createView("of two"_s);
        QVERIFY(two.layouts->save());
        one.window.moveDock(Qt::RightDockWidgetArea);
        one.manager.reset();
    }
    Program program(path());
    QCOMPARE(program.manager->views(), QStringList("of two"_s));
    QCOMPARE(program.window.dockArea(), Qt::RightDockWidgetArea);
}

void LayoutsTroubleTest::findingsAreLoggedOnce()
{
    const MessageWatch watch(MessageWatch::Started);
    for (int time = 1; time <= 2; ++time) {
        Manager manager({"G"_s}, /*mergeOnApply=*/false);
        QMainWindow first;
        QMainWindow second;
        for (QMainWindow* window : {&first, &second}) {
            window->setCentralWidget(new QWidget);
            window->addDockWidget(Qt::LeftDockWidgetArea, new QDockWidget("Tools"_s, window));
        }
        Layouts layouts(manager);
        layouts.addWindow(first);
        layouts.start(path());
        second.addDockWidget(Qt::LeftDockWidgetArea, new QDockWidget("Late"_s, &second));
        layouts.addWindow(second);
    }
#ifdef QT_NO_DEBUG
    QCOMPARE(watch.messages(), QStringList());
#else
    QCOMPARE(watch.messages(), lines({"The dock widget \"Tools\" has no object name.",
                                      "The dock widget \"Late\" has no object name."}));
#endif
}

QTEST_MAIN(LayoutsTroubleTest)
#include "LayoutsTroubleTest.moc"
