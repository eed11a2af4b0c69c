// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/Text.h"

#include <panorel/kit/LayoutFile.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Panorel::Kit;
using namespace Panorel::Tests;

class LayoutFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void kinds_data();
    void kinds();
    void stateBytes_data();
    void stateBytes();
    void identifiers();
    void wholeFile();
    void missingFile();
    void emptyFile();
    void unusableNames();
    void limit();
    void hugeFile();
    void whatIsNoRegularFile();
    void endlessDevice();
    void deviceLikeStandardInput();

private:
    QString write(const QByteArray& bytes);

    MessageWatch m_watch;
    QTemporaryDir m_folder;
};

namespace {

QByteArray inEncoding(const QByteArray& text, const char* codec)
{
    return QTextCodec::codecForName(codec)->fromUnicode(QString::fromLatin1(text));
}

/** Gives zeros for ever. */
class EndlessDevice : public QIODevice
{
public:
    EndlessDevice() { setOpenMode(QIODevice::ReadOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }
    qint64 given = 0;

protected:
    qint64 readData(char* data, qint64 size) override
    {
        std::fill_n(data, size, '\0');
        given += size;
        return size;
    }
    qint64 writeData(const char*, qint64) override { return -1; }
};

} // namespace

QString LayoutFileTest::write(const QByteArray& bytes)
{
    const QString name = m_folder.filePath("file"_s);
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return QString();
    return name;
}

void LayoutFileTest::kinds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char* name, const QByteArray& bytes, const char* kind) {
        QTest::newRow(name) << bytes << QString::fromLatin1(kind);
    };
    row("raw state", "000000ff00000000"_hex, "state");
    row("only the marker", "000000ff"_hex, "state");
    row("hexadecimal", "000000ff00", "state");
    row("hexadecimal in lines", " 00\n00\r\n\t00 FF\n00\v\f\n", "state");
    row("base64", "AAAA/wAAAAA=", "state");
    row("base64 in lines", "AAAA\n/wAA\nAAA=\n", "state");

    row("document", "<ViewData Version='1.1.0'><Groups/></ViewData>", "document");
    row("document with a declaration", "<?xml version='1.0'?>\n<ViewData/>", "document");
    row("byte order mark", "\xEF\xBB\xBF<ViewData/>", "document");
    row("UTF-16", inEncoding("<?xml version='1.0' encoding='UTF-16'?><ViewData/>", "UTF-16"),
        "document");
    row("UTF-16 without a mark", inEncoding("<ViewData/>", "UTF-16LE"), "document");
    row("UTF-16, big end, without a mark", inEncoding("<ViewData/>", "UTF-16BE"), "document");
    row("Latin-1", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><!--\xE4--><ViewData/>",
        "document");
    row("comments and instructions", "<!-- <a> --><?b <c> ?>\n<!-- - -->\n<ViewData/>", "document");
    row("document type",
        "<!DOCTYPE ViewData [<!ENTITY a '>]><x>'><!-- ' ]> --><?y ]> ' ?><!ELEMENT z EMPTY>]>\n"
        "<ViewData/>",
        "document");
    row("blanks before it", " \n\t<ViewData/>", "document");
    row("damaged document", "<ViewData Version='1.1.0'><Groups>", "document");
    row("document of a namespace", "<ViewData xmlns='a'/>", "document");

    row("settings", "[Main]\nstate=AAAA/wAAAAA=\n", "settings");
    row("settings with a mark", "\xEF\xBB\xBFstate=000000ff\n", "settings");

    row("nothing", "", "");
    row("text", "Hello", "");
    row("other bytes", "01d9d0cb"_hex, "");
    row("other XML", "<ViewDataOf/>", "");
    row("root with a prefix", "<a:ViewData xmlns:a='b'/>", "");
    row("not the root", "<a><ViewData/></a>", "");
    row("in a comment", "<!-- <ViewData/> -->", "");
    row("comment without an end", "<!-- <ViewData/>", "");
    row("document type without an end", "<!DOCTYPE a [ <ViewData/>", "");
    row("tag without an end", "<ViewData Version='>", "");
    row("settings without a state", "[Main]\ngeometry=@ByteArray(\\x1\\xd9\\xd0\\xcb)\n", "");
    row("odd digits", "000000ff0", "");
}

void LayoutFileTest::kinds()
{
    QFETCH(QByteArray, bytes);
    const LayoutFile file = LayoutFile::fromBytes(bytes);
    QTEST(identifierOf(file.kind()), "kind");
    QCOMPARE(file.bytes(), bytes);
    QCOMPARE(file.error().isNull(), file.kind() != LayoutFile::Kind::Unrecognised);
}

void LayoutFileTest::stateBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("state");
    QTest::newRow("raw") << "000000ff0a"_hex
                         << "000000ff0a"_hex;
    QTest::newRow("hexadecimal") << QByteArray("0000 00FF\n0a") << "000000ff0a"_hex;
    QTest::newRow("base64") << QByteArray("AAAA/w\no=") << "000000ff0a"_hex;
    QTest::newRow("document") << QByteArray("<ViewData/>") << QByteArray();
    QTest::newRow("settings") << QByteArray("a=AAAA/w==") << QByteArray();
}

void LayoutFileTest::stateBytes()
{
    QFETCH(QByteArray, bytes);
    QTEST(LayoutFile::fromBytes(bytes).state(), "state");
}

void LayoutFileTest::identifiers()
{
    QCOMPARE(identifierOf(LayoutFile::Kind::Document), "document"_s);
    QCOMPARE(identifierOf(LayoutFile::Kind::State), "state"_s);
    QCOMPARE(identifierOf(LayoutFile::Kind::Settings), "settings"_s);
    QVERIFY(identifierOf(LayoutFile::Kind::Unrecognised).isNull());
}

void LayoutFileTest::wholeFile()
{
    const QByteArray bytes = "000000ff"_hex + QByteArray(3000000, 'x');
    const LayoutFile file = LayoutFile::read(write(bytes));
    QVERIFY2(file.error().isNull(), qPrintable(file.error()));
    QCOMPARE(file.bytes(), bytes);
    QCOMPARE(file.kind(), LayoutFile::Kind::State);
}

void LayoutFileTest::missingFile()
{
    const LayoutFile file = LayoutFile::read(m_folder.filePath("missing"_s));
    QCOMPARE(file.error(), "No such file or directory"_s);
    QCOMPARE(file.kind(), LayoutFile::Kind::Unrecognised);
}

void LayoutFileTest::emptyFile()
{
    QCOMPARE(LayoutFile::read(write(QByteArray())).error(), "The file is empty"_s);
}

// Qt itself would print something about such names.
void LayoutFileTest::unusableNames()
{
    QVERIFY(!LayoutFile::read(QString()).error().isEmpty());
    QVERIFY(!LayoutFile::read(QString(u'a') + QChar(u'\0')).error().isEmpty());
}

void LayoutFileTest::limit()
{
    const QString name = write("000000ff0a"_hex);
    QCOMPARE(LayoutFile::read(name, 5).bytes(), "000000ff0a"_hex);
    const LayoutFile file = LayoutFile::read(name, 4);
    QCOMPARE(file.error(), "The file is larger than the limit of 4 bytes"_s);
    QVERIFY(file.bytes().isEmpty());
    QVERIFY(!LayoutFile::read(name, -1).error().isEmpty());
}

void LayoutFileTest::hugeFile()
{
    const QString name = m_folder.filePath("huge"_s);
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(200) * 1000 * 1000));
    QCOMPARE(LayoutFile::read(name).error(), "The file is larger than the limit of 64.00 MiB"_s);
}

void LayoutFileTest::whatIsNoRegularFile()
{
    const QString expected = "This is not a regular file"_s;
    QCOMPARE(LayoutFile::read(m_folder.path()).error(), expected);
#ifdef Q_OS_UNIX
    QCOMPARE(LayoutFile::read("/dev/zero"_s).error(), expected);
    // To open it would block until something writes to it.
    const QString pipe = m_folder.filePath("pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(LayoutFile::read(pipe).error(), expected);
#endif
}

void LayoutFileTest::endlessDevice()
{
    EndlessDevice device;
    const LayoutFile file = LayoutFile::read(device, 5000000);
    QCOMPARE(file.error(), "The file is larger than the limit of 4.77 MiB"_s);
    QCOMPARE(device.given, 5000001);
    QVERIFY(file.bytes().isEmpty());
}

void LayoutFileTest::deviceLikeStandardInput()
{
    QBuffer buffer;
    buffer.setData("AAAA/w==\n");
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(LayoutFile::read(buffer).state(), "000000ff"_hex);
}

QTEST_APPLESS_MAIN(LayoutFileTest)
#include "LayoutFileTest.moc"
