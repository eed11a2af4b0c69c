// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/**
 * Runs TranslationProbe in an installed tree of its own, with catalogues in different folders and
 * under different languages, and compares the texts that it sees. Each catalogue translates
 * "Layouts" to its own name, "one" to "three".
 */
class TranslationCenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesTheCatalogue_data();
    void choosesTheCatalogue();
    void readsQtsFolder();
    void followsTheApplication_data();
    void followsTheApplication();
    void tellsTheWidgets_data();
    void tellsTheWidgets();
};

namespace {

/** An installed tree with the probe, the service's library and, where wanted, catalogues. */
class InstalledTree
{
public:
    InstalledTree();
    bool isValid() const { return m_valid; }
    /** @param entry "path=content"; the path is relative to the tree. */
    bool add(const QString& entry);
    QString run(const QString& languages, const QString& steps) const;

private:
    QString path(const QString& relative) const;

    QTemporaryDir m_folder;
    bool m_valid = false;
};

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray catalogue(const QString& content)
{
    if (content == QLatin1String("no catalogue"))
        return QByteArrayLiteral("This is a text.");
    if (content == QLatin1String("cut off"))
        return contentOf(QStringLiteral(CATALOGUES "/one.qm")).left(40);
    if (content == QLatin1String("paths"))
        return QByteArrayLiteral("[Paths]\nPrefix=..\nTranslations=elsewhere\n");
    return contentOf(QStringLiteral(CATALOGUES "/") + content + QLatin1String(".qm"));
}

InstalledTree::InstalledTree()
    : m_folder(QStringLiteral(CATALOGUES "/tree-XXXXXX"))
{
    const QFileInfo library(QFile::decodeName(START_UP_LIBRARY));
    const QDir tree(m_folder.path());
    m_valid = tree.mkpath(QStringLiteral("bin")) && tree.mkpath(QStringLiteral(LIBRARY_FOLDER)) &&
              QFile::copy(QFile::decodeName(PROBE), path(QStringLiteral("bin/probe"))) &&
              QFile::copy(library.filePath(),
                          path(QStringLiteral(LIBRARY_FOLDER "/")) + library.fileName());
}

QString InstalledTree::path(const QString& relative) const
{
    return m_folder.filePath(relative);
}

bool InstalledTree::add(const QString& entry)
{
    const QString relative = entry.section(QLatin1Char('='), 0, 0);
    const QString content = entry.section(QLatin1Char('='), 1);
    if (content == QLatin1String("a folder"))
        return QDir().mkpath(path(relative));
    QFile file(path(relative));
    const QByteArray bytes = catalogue(content);
    return !bytes.isEmpty() && QDir().mkpath(QFileInfo(file).path()) &&
           file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString InstalledTree::run(const QString& languages, const QString& steps) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_LIBRARY_PATH"), path(QStringLiteral(LIBRARY_FOLDER)));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), languages);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), path(QStringLiteral("home")));
    environment.insert(QStringLiteral("XDG_DATA_DIRS"), path(QStringLiteral("system")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
    QProcess probe;
    probe.setProcessEnvironment(environment);
    probe.setProcessChannelMode(QProcess::MergedChannels);
    probe.start(path(QStringLiteral("bin/probe")), steps.split(QLatin1Char(' ')));
    if (!probe.waitForFinished(60000))
        return QStringLiteral("does not end");
    if (probe.exitStatus() != QProcess::NormalExit || probe.exitCode() != 0)
        return QLatin1String("fails: ") + QString::fromUtf8(probe.readAll());
    return QString::fromUtf8(probe.readAll()).simplified();
}

} // namespace

void TranslationCenterTest::choosesTheCatalogue_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* languages, const QStringList& files,
                        const char* text) {
        QTest::newRow(name) << QString::fromLatin1(languages) << files << QString::fromLatin1(text);
    };
    const auto besideProgram = QStringLiteral("bin/panorel_de.qm=one");
    const auto inTranslations = QStringLiteral("bin/translations/panorel_de.qm=two");
    const auto ofInstallation =
        QStringLiteral(DATA_FOLDER "/panorel/translations/panorel_de.qm=three");
    const auto ofUser = QStringLiteral("home/panorel/translations/panorel_de.qm=one");
    const auto ofSystem = QStringLiteral("system/panorel/translations/panorel_de.qm=two");

    row("no catalogue at all", "de", {}, "Layouts");
    row("beside the program", "de", {besideProgram}, "one");
    row("in translations beside it", "de", {inTranslations}, "two");
    row("of the installation", "de", {ofInstallation}, "three");
    row("of the user", "de", {ofUser}, "one");
    row("of the system", "de", {ofSystem}, "two");
    row("program before translations", "de", {besideProgram, inTranslations}, "one");
    row("translations before installation", "de", {inTranslations, ofInstallation}, "two");
    row("installation before user", "de", {ofInstallation, ofUser}, "three");
    row("user before system", "de", {ofUser, ofSystem}, "one");
    row("another module's", "de", {QStringLiteral("bin/other_de.qm=one")}, "Layouts");
    row("name in capitals", "de", {QStringLiteral("bin/Panorel_de.qm=one")}, "Layouts");

    const QStringList germanAndFrench{QStringLiteral("bin/panorel_de.qm=one"),
                                      QStringLiteral("system/panorel/translations/"
                                                     "panorel_fr.qm=two")};
    row("first language", "de:fr", germanAndFrench, "one");
    row("language before folder", "fr:de", germanAndFrench, "two");
    row("second language", "it:fr", germanAndFrench, "two");
    row("English first", "en:de", germanAndFrench, "Layouts");
    row("English of a country first", "en_GB:de", germanAndFrench, "Layouts");
    row("English second", "it:en:de", germanAndFrench, "Layouts");
    row("English after what there is", "de:en", germanAndFrench, "one");
    row("English catalogue", "en_GB:de",
        germanAndFrench + QStringList{QStringLiteral("bin/panorel_en.qm=three")}, "three");
    row("no language", "C", germanAndFrench, "Layouts");
    row("language unknown to Qt first", "tlh:de", germanAndFrench, "one");
    row("only languages unknown to Qt", "tlh", germanAndFrench, "Layouts");
    row("catalogue of a language unknown to Qt", "tlh:de",
        germanAndFrench + QStringList{QStringLiteral("bin/panorel_tlh.qm=three")}, "three");
    row("language with like beginning", "d", germanAndFrench, "Layouts");

    const QStringList austrian{QStringLiteral("bin/panorel_de.qm=one"),
                               QStringLiteral("system/panorel/translations/panorel_de_AT.qm=two")};
    row("country before folder", "de_AT", austrian, "two");
    row("other country", "de_CH", austrian, "one");
    row("country that was not asked for", "de", {austrian.last()}, "Layouts");
    row("country before the next language", "de_AT:fr", germanAndFrench, "one");

    const QStringList chinese{QStringLiteral("bin/panorel_zh.qm=one"),
                              QStringLiteral("bin/panorel_zh_Hant.qm=two")};
    row("script before bare language", "zh_TW", chinese, "two");
    row("no script", "zh_CN", chinese, "one");
    row("bare language with scripts", "zh", chinese, "one");
    row("script and country", "zh_TW",
        chinese + QStringList{QStringLiteral("bin/panorel_zh_Hant_TW.qm=three")}, "three");
    row("country with script known", "zh_TW",
        chinese + QStringList{QStringLiteral("bin/panorel_zh_TW.qm=three")}, "three");

    row("no catalogue in the file", "de",
        {QStringLiteral("bin/panorel_de.qm=no catalogue"), inTranslations}, "two");
    row("catalogue cut off", "de", {QStringLiteral("bin/panorel_de.qm=cut off"), inTranslations},
        "two");
    row("folder of that name", "de", {QStringLiteral("bin/panorel_de.qm=a folder"), inTranslations},
        "two");
    row("broken file of the better language", "de_AT",
        {QStringLiteral("bin/panorel_de_AT.qm=cut off"), besideProgram}, "one");
    row("broken file of the first language", "fr:de",
        {QStringLiteral("bin/panorel_fr.qm=cut off"), besideProgram}, "one");
    row("folder for the better language", "fr_CA:de_AT",
        {QStringLiteral("bin/panorel_de_AT.qm=a folder"), QStringLiteral("bin/panorel.qm=one"),
         inTranslations},
        "two");
    row("file with the suffix twice", "de", {QStringLiteral("bin/panorel_de.qm.qm=one")},
        "Layouts");
}

void TranslationCenterTest::choosesTheCatalogue()
{
    QFETCH(const QString, languages);
    QFETCH(const QStringList, files);
    QFETCH(const QString, text);
    InstalledTree tree;
    QVERIFY(tree.isValid());
    for (const QString& file : files)
        QVERIFY2(tree.add(file), qPrintable(file));
    QCOMPARE(tree.run(languages, QStringLiteral("register:Panorel app text")), text);
}

void TranslationCenterTest::readsQtsFolder()
{
    InstalledTree tree;
    QVERIFY(tree.isValid());
    QVERIFY(tree.add(QStringLiteral("elsewhere/panorel_de.qm=one")));
    QCOMPARE(tree.run(QStringLiteral("de"), QStringLiteral("register:Panorel app text")),
             QStringLiteral("Layouts"));
    QVERIFY(tree.add(QStringLiteral("bin/qt.conf=paths")));
    QCOMPARE(tree.run(QStringLiteral("de"), QStringLiteral("register:Panorel app text")),
             QStringLiteral("one"));
    QVERIFY(tree.add(QStringLiteral("system/panorel/translations/panorel_de.qm=two")));
    QCOMPARE(tree.run(QStringLiteral("de"), QStringLiteral("register:Panorel app text")),
             QStringLiteral("two"));
}

void TranslationCenterTest::followsTheApplication_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("output");
    const auto row = [](const char* name, const char* steps, const char* output) {
        QTest::newRow(name) << QString::fromLatin1(steps) << QString::fromLatin1(output);
    };
    row("registered before", "register:Panorel app text", "one");
    row("registered after", "app text register:Panorel text", "Layouts one");
    row("unregistered", "app register:Panorel unregister:Panorel text events text",
        "Layouts Layouts");
    row("unregistered before", "register:Panorel unregister:Panorel app text", "Layouts");
    row("unregistered only", "app unregister:Panorel text register:Panorel text", "Layouts one");
    row("registered twice",
        "app register:Panorel register:Panorel unregister:Panorel events text "
        "unregister:Panorel text",
        "one Layouts");
    row("registered again", "app register:Panorel unregister:Panorel register:Panorel events text",
        "one");
    row("unregistered after the application", "app register:Panorel end-app unregister:Panorel",
        "");
    row("second application", "register:Panorel app text end-app app text", "one one");
    row("second application without it",
        "register:Panorel app end-app unregister:Panorel app text events", "Layouts");
    row("second application, registered between", "app end-app register:Panorel app text", "one");
    row("second application, registered again",
        "app register:Panorel end-app unregister:Panorel register:Panorel app text", "one");
    row("second application ends unregistration",
        "register:Panorel app unregister:Panorel "
        "end-app app text events",
        "Layouts");
    row("no application", "register:Panorel unregister:Panorel", "");
    row("no application, left registered", "register:Panorel", "");
    row("no catalogue for the name", "app register:Other text unregister:Other text",
        "Layouts Layouts");
    row("two names", "app register:Other register:Panorel unregister:Other text", "one");
    row("name that leads to another folder", "app register:../Panorel text", "Layouts");
    row("name with a folder", "app register:sub/Panorel text", "Layouts");
    row("empty name", "app register: text unregister: text", "Layouts Layouts");

    row("thread registers", "app register-in-thread:Panorel text events text", "Layouts one");
    row("thread registers before", "register-in-thread:Panorel app text", "one");
    row("thread unregisters", "app register:Panorel unregister-in-thread:Panorel text events text",
        "one Layouts");
    row("thread changes its mind",
        "app register-in-thread:Panorel unregister-in-thread:Panorel events text", "Layouts");
    row("application ends first", "app register-in-thread:Panorel end-app app text events text",
        "one one");

    row("library loaded before", "load app text", "one");
    row("library loaded after", "app load text", "one");
    row("library unloaded", "app load unload text events text", "Layouts Layouts");
    row("library unloaded before", "load unload app text", "Layouts");
    row("library loaded again", "app load unload load text events text", "one one");
    row("library loaded by a thread", "app load-in-thread events text unload text", "one Layouts");
    row("library loaded by a thread while another registers",
        "app load-and-register-at-once load events text", "one");
    row("library unloaded after the application", "app load end-app unload app text", "Layouts");
    row("library at exit", "app load text exit", "one");
    row("library at exit without application", "load exit", "");
    row("library at exit after the application", "app load end-app exit", "");
}

void TranslationCenterTest::followsTheApplication()
{
    QFETCH(const QString, steps);
    QFETCH(const QString, output);
    InstalledTree tree;
    QVERIFY(tree.isValid());
    QVERIFY(tree.add(QStringLiteral("bin/panorel_de.qm=one")));
    // Where the odd names would lead.
    QVERIFY(tree.add(QStringLiteral("panorel_de.qm=two")));
    QVERIFY(tree.add(QStringLiteral("bin/sub/panorel_de.qm=three")));
    QCOMPARE(tree.run(QStringLiteral("de"), steps), output);
}

void TranslationCenterTest::tellsTheWidgets_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("output");
    QTest::newRow("loaded") << QStringLiteral("widgets load events text exit")
                            << QStringLiteral("application-changed window-changed one");
    QTest::newRow("unloaded") << QStringLiteral("load widgets events unload text events exit")
                              << QStringLiteral("Layouts application-changed window-changed");
    QTest::newRow("change unregisters another")
        << QStringLiteral("widgets unregister-on-change:Panorel register-in-thread:First "
                          "register:Panorel text")
        << QStringLiteral("application-changed two");
    QTest::newRow("exit") << QStringLiteral("load widgets events text exit")
                          << QStringLiteral("one");
    QTest::newRow("return") << QStringLiteral("load widgets events text") << QStringLiteral("one");
}

void TranslationCenterTest::tellsTheWidgets()
{
    QFETCH(const QString, steps);
    QFETCH(const QString, output);
    InstalledTree tree;
    QVERIFY(tree.isValid());
    QVERIFY(tree.add(QStringLiteral("bin/panorel_de.qm=one")));
    QVERIFY(tree.add(QStringLiteral("bin/first_de.qm=two")));
    // How often Qt announces one change is not specified.
    QStringList words = tree.run(QStringLiteral("de"), steps).split(QLatin1Char(' '));
    words.removeDuplicates();
    QCOMPARE(words.join(QLatin1Char(' ')), output);
}

QTEST_GUILESS_MAIN(TranslationCenterTest)
#include "TranslationCenterTest.moc"
