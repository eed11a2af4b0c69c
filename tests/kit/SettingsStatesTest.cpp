// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/Text.h"

#include <panorel/kit/SettingsStates.h>

#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Panorel::Kit;
using namespace Panorel::Tests;

class SettingsStatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void values_data();
    void values();
    void keys_data();
    void keys();
    void lists();
    void repeatedKeys();
    void stateOfAKey();
    void whatQSettingsWrites_data();
    void whatQSettingsWrites();
    void hostileLines();

private:
    MessageWatch m_watch;
};

namespace {

// "000000ff 0a41" in all forms.
const QByteArray state = QByteArray::fromHex("000000ff0a41");

QByteArray only(const QByteArray& file)
{
    const SettingsStates states(file);
    return states.entries().size() == 1 ? states.entries().first().state : QByteArray();
}

QString keysOf(const QByteArray& file)
{
    QStringList keys;
    const QVector<SettingsStates::Entry> entries = SettingsStates(file).entries();
    for (const SettingsStates::Entry& entry : entries)
        keys.append(entry.key);
    return keys.join(u' ');
}

QByteArray randomState(QRandomGenerator& random)
{
    QByteArray bytes = QByteArray::fromHex("000000ff");
    for (int i = random.bounded(300); i > 0; --i)
        bytes.append(static_cast<char>(random.bounded(256)));
    return bytes;
}

} // namespace

void SettingsStatesTest::values_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const char* value, const QByteArray& expected = state) {
        QTest::newRow(name) << QByteArray(value) << expected;
    };
    row("byte array", R"-(@ByteArray(\0\0\0\xff\nA))-");
    row("escape of many digits", R"-(@ByteArray(\x0000\0\0\xff\x00a\x41))-");
    row("octal digits", R"-(@ByteArray(\0\00\000\377\012\101))-");
    row("quotes", R"-("@ByteArray(\0\0\0\xff\nA)")-");
    row("quotes with separators", R"-("@ByteArray(\0\0\0\xff,;)")-", "000000ff2c3b"_hex);
    row("quote in quotes", R"-("@ByteArray(\0\0\0\xff\")")-", "000000ff22"_hex);
    row("backslash", R"-(@ByteArray(\0\0\0\xff\\))-", "000000ff5c"_hex);
    row("parentheses", R"-(@ByteArray(\0\0\0\xff)\)))-", "000000ff2929"_hex);
    row("blank at the end", "@ByteArray(\\0\\0\\0\\xff ) \t", "000000ff20"_hex);
    row("comment after it", R"-(@ByteArray(\0\0\0\xff\nA) ; text)-");
    row("continued line", "@ByteArray(\\0\\0\\0\\xff\\\n\\nA)");
    row("continued line, CR LF", "@ByteArray(\\0\\0\\0\\xff\\\r\n\\nA)");
    row("as the codec wrote it", "@ByteArray(\\0\\0\\0\xC3\xBF\\nA)");
    row("Latin-1", "@ByteArray(\\0\\0\\0\xFF\\nA)");
    row("base64", "AAAA/wpB");
    row("base64 with padding", "AAAA/w==", "000000ff"_hex);
    row("base64 without its padding", "AAAA/w", "000000ff"_hex);
    row("base64 for addresses", "AAAA_wpB");
    row("base64 in a byte array", "@ByteArray(AAAA/wpB)");
    row("base64 with blanks", "AAAA /w pB");
    row("hexadecimal", "000000ff0a41");
    row("hexadecimal, capitals", "000000FF0A41");
    row("hexadecimal in quotes", "\"000000ff0a41\"");
    row("escaped as by KDE", R"-(\x00\x00\x00\xff\x0aA)-");
    row("KDE, a digit after the escape", R"-(\x00\x00\x00\xff\x0a1\sB\\)-",
        "000000ff0a3120425c"_hex);
    row("KDE, separators", R"-(\x00\x00\x00\xff,;"\,)-", "000000ff2c3b222c"_hex);

    const QByteArray none;
    row("other byte array", R"-(@ByteArray(\x1\xd9\xd0\xcb))-", none);
    row("byte array that is not closed", R"-(@ByteArray(\0\0\0\xff)-", none);
    row("text of that kind", R"-(@@ByteArray(\0\0\0\xff\nA))-", none);
    row("characters that are no bytes", R"-(@ByteArray(\0\0\0\xff\x100))-", none);
    row("odd number of digits", "000000ff0a4", none);
    row("no digit", "000000ff0a4g", none);
    row("no base64", "AAAA/w*B", none);
    row("nothing", "", none);
    row("text", "AAAA", none);
}

void SettingsStatesTest::values()
{
    QFETCH(QByteArray, value);
    QTEST(only("[Main]\nstate=" + value + "\nother=1\n"), "expected");
}

void SettingsStatesTest::keys_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* file, const char* expected) {
        QTest::newRow(name) << QByteArray(file).replace("=S", "=AAAA/wpB")
                            << QString::fromUtf8(expected);
    };
    row("section", "[Main]\nstate=S\n", "Main/state");
    row("general", "[General]\nstate=S", "General/state");
    row("before the first section", "state=S\n[Main]\n", "state");
    row("nested sections", "[Main][Window #1]\nState=S", "Main/Window #1/State");
    row("the next section", "[A]\nx=1\n[B]\nstate=S", "B/state");
    row("blanks", " [Main] \n  state = AAAA/wpB ", "Main/state");
    row("group in the key", "[Main]\nleft\\state=S", "Main/left/state");
    row("array", "[Main]\nw\\1\\state=S\nw\\size=1", "Main/w/1/state");
    row("escapes", "[My%20Window]\nst%e4te=S\n", "My Window/st\u00E4te");
    row("long escape", "[%U20AC]\nstate=S\n", "\u20AC/state");
    row("no escape", "[50%]\n%z0=S\n", "50%/%z0");
    row("UTF-8", "[Fen\u00EAtre]\nstate=S\n", "Fen\u00EAtre/state");
    row("byte order mark", "\xEF\xBB\xBF[Main]\nstate=S\n", "Main/state");
    row("CR LF", "[Main]\r\nstate=S\r\n", "Main/state");
    row("CR", "[Main]\rstate=S\r", "Main/state");
    row("flags of KDE", "[Main]\nState[$i]=S\n", "Main/State");
    row("comments", ";a=S\n#b=S\n[Main]\n; c=S\nstate=S", "Main/state");
    row("several, in order", "[B]\nz=S\ny=S\n[A]\nx=S\n", "B/z B/y A/x");
    row("no key", "[Main]\n=S\n", "");
    row("section that is not closed", "[Main\nstate=S", "state");
}

void SettingsStatesTest::keys()
{
    QFETCH(QByteArray, file);
    QTEST(keysOf(file), "expected");
}

void SettingsStatesTest::lists()
{
    const SettingsStates states(R"-([Main]
states=text, @ByteArray(\0\0\0\xff\x1), "@ByteArray(\0\0\0\xff,)" , AAAA/w==
)-");
    QCOMPARE(states.entries().size(), 3);
    QCOMPARE(states.state("Main/states"_s), "000000ff01"_hex);
    QCOMPARE(states.state("Main/states/2"_s), "000000ff2c"_hex);
    QCOMPARE(states.state("Main/states/3"_s), "000000ff"_hex);
}

void SettingsStatesTest::repeatedKeys()
{
    QCOMPARE(keysOf("[A]\nk=AAAA/w==\nk/2=AAAA/w==\nk=AAAA/w==\n[A]\nk=AAAA/w==\n"),
             "A/k A/k/2 A/k/3 A/k/4"_s);
}

void SettingsStatesTest::stateOfAKey()
{
    const SettingsStates states("[A]\nk=AAAA/wpB\n");
    QCOMPARE(states.state("A/k"_s), state);
    QVERIFY(states.state("A/K"_s).isNull());
    QVERIFY(SettingsStates().entries().isEmpty());
}

void SettingsStatesTest::whatQSettingsWrites_data()
{
    QTest::addColumn<bool>("utf8");
    QTest::newRow("escaped") << false;
    QTest::newRow("with a codec") << true;
}

void SettingsStatesTest::whatQSettingsWrites()
{
    QFETCH(bool, utf8);
    QRandomGenerator random(20);
    QTemporaryDir folder;
    const QString name = folder.filePath("program.ini"_s);
    const QStringList keys{"Main Window/state"_s, "A/b/c/state"_s, "\u00E4/\u20AC,;=\"%41"_s};
    for (int round = 0; round < 60; ++round) {
        const QByteArray expected = randomState(random);
        const QString key = keys.at(round % keys.size());
        QFile::remove(name);
        {
            QSettings settings(name, QSettings::IniFormat);
            if (utf8)
                settings.setIniCodec("UTF-8");
            settings.setValue(key, expected);
            settings.setValue("Other/geometry"_s, QByteArray("\x01\xD9\xD0\xCB"));
            settings.setValue("Other/list"_s, QVariantList{QByteArray("x"), expected});
        }
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const SettingsStates states(file.readAll());
        QCOMPARE(states.entries().size(), 2);
        QCOMPARE(states.state(key), expected);
        QCOMPARE(states.state("Other/list"_s), expected);
    }
}

// A list of many values, a long value and a long row of keys that are alike take linear time: each
// would take minutes otherwise.
void SettingsStatesTest::hostileLines()
{
    QCOMPARE(SettingsStates("k=" + QByteArray("AAAA/w==,").repeated(50000)).entries().size(),
             50000);
    QCOMPARE(SettingsStates(QByteArray("k=AAAA/w==\n").repeated(50000)).entries().size(), 50000);
    QCOMPARE(only("k=AAAA/w" + QByteArray(1000000, 'A')).size(), 750004);
    QCOMPARE(keysOf(QByteArray("[").repeated(1000000)), QString());
    QCOMPARE(keysOf(QByteArray("\\\n").repeated(1000000)), QString());
    QCOMPARE(keysOf("k=" + QByteArray("\\x1234567").repeated(100000)), QString());
    QCOMPARE(keysOf(QByteArray("%").repeated(1000000) + "=AAAA/w==").size(), 1000000);
}

QTEST_APPLESS_MAIN(SettingsStatesTest)
#include "SettingsStatesTest.moc"
