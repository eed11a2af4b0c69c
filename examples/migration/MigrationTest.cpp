// SPDX-License-Identifier: MIT
#include "Program.h"

#include <QDockWidget>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <functional>
#include <memory>

namespace {

Qt::DockWidgetArea areaOf(const Window& window, const char* name)
{
    return window.dockWidgetArea(window.findChild<QDockWidget*>(QLatin1String(name)));
}

void move(Window& window, const char* name, Qt::DockWidgetArea area)
{
    window.addDockWidget(area, window.findChild<QDockWidget*>(QLatin1String(name)));
}

class German : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        const bool isLayoutName = QLatin1String(text) == QLatin1String("My layout");
        return isLayoutName ? QStringLiteral("Meine Anordnung") : QString();
    }
};

} // namespace

/** The first runs of a program that finds the settings of its earlier release. */
class MigrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFirstRunAdoptsTheOldLayout();
    void theNameIsInTheUsersLanguage();
    void theSecondRunDoesNotAdoptAgain();
    void deletedLayoutsStayDeleted();
    void aBrokenOldLayoutIsLeftAlone();
    void withoutAnOldLayoutThereIsNone();
    void theOldLayoutIsKeptUntilTheNewOnesAreStored();
    void theManagerTakesNoOtherVersion();

private:
    using Function = std::function<void(Program& program)>;

    void runEarlierRelease(Qt::DockWidgetArea filesArea);
    void run(const Function& use);
    QVariant setting(const char* key) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_settingsFile;
    QString m_layoutsFile;
};

void MigrationTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_settingsFile = m_folder->filePath(QStringLiteral("settings.ini"));
    m_layoutsFile = m_folder->filePath(QStringLiteral("layouts.views"));
}

void MigrationTest::runEarlierRelease(Qt::DockWidgetArea filesArea)
{
    QSettings settings(m_settingsFile, QSettings::IniFormat);
    Window window;
    window.resize(800, 500);
    move(window, "files", filesArea);
    //! [before]
    settings.setValue(QStringLiteral("window/geometry"), window.saveGeometry());
    settings.setValue(QStringLiteral("window/state"), window.saveState(3));
    //! [before]
}

void MigrationTest::run(const Function& use)
{
    Program program(m_settingsFile, m_layoutsFile);
    program.start();
    QTRY_VERIFY(program.isLoaded());
    use(program);
    program.save();
}

QVariant MigrationTest::setting(const char* key) const
{
    return QSettings(m_settingsFile, QSettings::IniFormat).value(QLatin1String(key));
}

void MigrationTest::theFirstRunAdoptsTheOldLayout()
{
    runEarlierRelease(Qt::RightDockWidgetArea);
    run([](Program& program) {
        QCOMPARE(program.manager().views(), QStringList{QStringLiteral("My layout")});
        QCOMPARE(program.manager().activeView(), QStringLiteral("My layout"));
        QCOMPARE(areaOf(program.window(), "files"), Qt::RightDockWidgetArea);
        QCOMPARE(areaOf(program.window(), "output"), Qt::BottomDockWidgetArea);
        QCOMPARE(program.window().size(), QSize(800, 500));
        // The layout holds it too.
        move(program.window(), "files", Qt::TopDockWidgetArea);
        QVERIFY(program.manager().activateView(QStringLiteral("My layout")));
        QCOMPARE(areaOf(program.window(), "files"), Qt::RightDockWidgetArea);
    });
    QVERIFY(QFile::exists(m_layoutsFile));
    QVERIFY(!setting("window/state").isValid());
    QVERIFY(setting("window/geometry").isValid());
}

void MigrationTest::theNameIsInTheUsersLanguage()
{
    German german;
    QVERIFY(QCoreApplication::installTranslator(&german));
    runEarlierRelease(Qt::RightDockWidgetArea);
    run([](Program& program) {
        QCOMPARE(program.manager().views(), QStringList{QStringLiteral("Meine Anordnung")});
    });
}

void MigrationTest::theSecondRunDoesNotAdoptAgain()
{
    runEarlierRelease(Qt::RightDockWidgetArea);
    run([](Program& program) { move(program.window(), "files", Qt::TopDockWidgetArea); });
    // The user starts the earlier release once more.
    runEarlierRelease(Qt::BottomDockWidgetArea);
    run([](Program& program) {
        QCOMPARE(program.manager().views(), QStringList{QStringLiteral("My layout")});
        QCOMPARE(areaOf(program.window(), "files"), Qt::TopDockWidgetArea);
        QVERIFY(program.manager().activateView(QStringLiteral("My layout")));
        QCOMPARE(areaOf(program.window(), "files"), Qt::RightDockWidgetArea);
    });
    QVERIFY(!setting("window/state").isValid());
}

void MigrationTest::deletedLayoutsStayDeleted()
{
    runEarlierRelease(Qt::RightDockWidgetArea);
    run([](Program& program) { program.manager().clear(); });
    run([](Program& program) { QCOMPARE(program.manager().views(), QStringList()); });
}

void MigrationTest::aBrokenOldLayoutIsLeftAlone()
{
    QSettings(m_settingsFile, QSettings::IniFormat)
        .setValue(QStringLiteral("window/state"), QByteArray("broken"));
    for (int i = 0; i < 2; ++i) {
        run([](Program& program) {
            QCOMPARE(program.manager().views(), QStringList());
            QCOMPARE(areaOf(program.window(), "files"), Qt::LeftDockWidgetArea);
        });
        QCOMPARE(setting("window/state").toByteArray(), QByteArray("broken"));
    }
}

void MigrationTest::withoutAnOldLayoutThereIsNone()
{
    for (int i = 0; i < 2; ++i) {
        run([](Program& program) {
            QCOMPARE(program.manager().views(), QStringList());
            QCOMPARE(areaOf(program.window(), "files"), Qt::LeftDockWidgetArea);
        });
    }
    QVERIFY(QFile::exists(m_layoutsFile));
}

void MigrationTest::theOldLayoutIsKeptUntilTheNewOnesAreStored()
{
    runEarlierRelease(Qt::RightDockWidgetArea);
    const QString good = m_layoutsFile;
    m_layoutsFile = m_settingsFile + QStringLiteral("/layouts.views"); // Below a file.
    for (int i = 0; i < 2; ++i) {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("could not be saved")));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("could not be saved")));
        run([](Program& program) {
            QCOMPARE(program.manager().views(), QStringList{QStringLiteral("My layout")});
        });
        QVERIFY(setting("window/state").isValid());
    }
    m_layoutsFile = good;
    run([](Program& program) {
        QCOMPARE(areaOf(program.window(), "files"), Qt::RightDockWidgetArea);
    });
    QVERIFY(!setting("window/state").isValid());
}

// Why the window gets the old state itself, and not the Manager.
void MigrationTest::theManagerTakesNoOtherVersion()
{
    runEarlierRelease(Qt::RightDockWidgetArea);
    const QByteArray state = setting("window/state").toByteArray();
    run([&state](Program& program) {
        Panorel::Manager& manager = program.manager();
        QByteArray document = manager.toXml(/*markActive=*/true);
        const QByteArray version0 = program.window().saveState(0).toHex();
        QVERIFY(document.contains(version0));
        document.replace(version0, state.toHex());
        move(program.window(), "files", Qt::TopDockWidgetArea);
        QVERIFY(manager.fromXml(document, /*merge=*/false));
        QCOMPARE(areaOf(program.window(), "files"), Qt::TopDockWidgetArea);
    });
}

QTEST_MAIN(MigrationTest)
#include "MigrationTest.moc"
