// SPDX-License-Identifier: MIT
#include "TagScan.h"

#include <QTest>

using Panorel::Detail::TagScan;

class TagScanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isPlain_data();
    void isPlain();
    void hasOverfullTag_data();
    void hasOverfullTag();
    void isLinear_data();
    void isLinear();
};

namespace {

void row(const char* name, const QByteArray& document, bool expected)
{
    QTest::newRow(name) << document << expected;
}

QByteArray utf16(const char* text)
{
    QByteArray bytes;
    for (const char* c = text; *c; ++c)
        bytes.append('\0').append(*c);
    return bytes;
}

} // namespace

void TagScanTest::isPlain_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("expected");
    row("element", "<a/>", true);
    row("declared UTF-8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>", true);
    row("declared utf-8", "<?xml version=\"1.0\" encoding=\"utf-8\"?><a/>", true);
    row("no encoding declared", "<?xml version=\"1.0\"?><a/>", true);
    row("blanks first", "\n <a/>", true);
    row("byte order mark", "\xEF\xBB\xBF<a/>", true);
    row("byte order mark and declaration", "\xEF\xBB\xBF<?xml version=\"1.0\"?><a/>", true);
    row("encoding in a later instruction", "<?xml version=\"1.0\"?><?x encoding=\"y\"?><a/>", true);
    row("comment that looks like a document type", "<a><!-- <!DOCTYPE b> --></a>", true);
    row("CDATA that looks like a document type", "<a><![CDATA[<!DOCTYPE b>]]></a>", true);
    row("instruction that looks like a document type", "<a><?p <!DOCTYPE b>?></a>", true);

    row("empty", "", false);
    row("blanks only", " \t\r\n ", false);
    row("byte order mark only", "\xEF\xBB\xBF", false);
    row("encoding twice", "<?xml version=\"1.0\" encoding=\"UTF-8\" encoding=\"UTF-7\"?><a/>",
        false);
    row("encoding twice, the other way",
        "<?xml version=\"1.0\" encoding=\"UTF-7\" encoding=\"UTF-8\"?><a/>", false);
    row("declaration behind a blank", " <?xml version=\"1.0\"?><a/>", false);
    row("NUL behind a blank", QByteArray(" <\0a/>", 6), false);
    row("other encoding", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a/>", false);
    row("single quotes", "<?xml version='1.0' encoding='utf-8'?><a/>", true);
    row("single quotes, no encoding", "<?xml version='1.0'?><a/>", true);
    row("other encoding in single quotes", "<?xml version='1.0' encoding='UTF-16'?><a/>", false);
    row("two encodings in single quotes",
        "<?xml version='1.0' encoding='UTF-8' encoding='UTF-7'?><a/>", false);
    row("only the encoding in single quotes", "<?xml version=\"1.0\" encoding='UTF-8'?><a/>",
        false);
    row("quotes of two kinds", "<?xml version='1.0\" encoding=\"UTF-8'?><a/>", false);
    row("declaration that does not end", "<?xml encoding=\"UTF-7\"", false);
    row("UTF-16", utf16("<a/>"), false);
    row("UTF-16, marked", QByteArray("\xFE\xFF").append(utf16("<a/>")), false);
    row("document type", "<!DOCTYPE a><a/>", false);
    row("document type behind a comment", "<!-- --><!DOCTYPE a><a/>", false);
    row("start of markup at the end", "<a><", true);
    row("start of a comment at the end", "<a><!-", false);
    row("start of an instruction at the end", "<a><?", true);
    row("namespace", "<a xmlns:b=\"c\"/>", false);
    row("namespace, blanks before the sign", "<a xmlns:b  = \"c\"/>", false);
    row("default namespace", "<a xmlns=\"c\"/>", false);
    row("namespace close behind a value", "<a b=''xmlns='c'/>", false);
    row("namespace deep inside", "<a><b><c d=\"e\" xmlns:x=\"y\"/></b></a>", false);
}

void TagScanTest::isPlain()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, expected);
    QCOMPARE(TagScan(document).isPlain(), expected);
    // With nothing behind it, where AddressSanitizer sees a look.
    const auto bytes = std::make_unique<char[]>(static_cast<std::size_t>(document.size()));
    std::copy(document.cbegin(), document.cend(), bytes.get());
    const QByteArray raw = QByteArray::fromRawData(bytes.get(), document.size());
    QCOMPARE(TagScan(raw).isPlain(), expected);
}

void TagScanTest::hasOverfullTag_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("expected");
    row("only the start of markup", "<a><", false);
    row("only the start of a comment", "<a><!-", false);
    row("six", "<a b='' c='' d='' e='' f='' g=''/>", false);
    row("seven", "<a b='' c='' d='' e='' f='' g='' h=''/>", true);
    row("seven, blanks around the signs", "<a b = '' c= '' d =''\ne='' f='' g='' h=''/>", true);
    row("seven, double quotes", "<a b=\"\" c=\"\" d=\"\" e=\"\" f=\"\" g=\"\" h=\"\"/>", true);
    row("seven, none of them apart", "<a b=''c=''d=''e=''f=''g=''h=''/>", true);
    row("seven in an inner element", "<x><a b='' c='' d='' e='' f='' g='' h=''/></x>", true);
    row("seven behind a comment", "<!-- > --><a b='' c='' d='' e='' f='' g='' h=''/>", true);
    row("seven behind an empty comment", "<!----><a b='' c='' d='' e='' f='' g='' h=''/>", true);
    row("seven behind an end of a tag in a value", "<a b='>' c='' d='' e='' f='' g='' h=''/>",
        true);
    row("six and three in two tags", "<a b='' c='' d='' e='' f='' g=''><a b='' c='' d=''/></a>",
        false);
    row("six and namespaces", "<a xmlns='' b='' c='' xmlns:y = '' d='' e='' f='' g='' xmlns:z=''/>",
        false);
    row("seven and namespaces", "<a xmlns='' b='' c='' xmlns:y='' d='' e='' f='' g='' h=''/>",
        true);
    row("seven behind blanks", "\r\n\t <a b='' c='' d='' e='' f='' g='' h=''/>", true);
    row("signs in a value", "<a b='========' c=\"========\"/>", false);
    row("signs in text", "<a>=========</a>", false);
    row("signs behind a tag without a name", "<>=========<a/>", false);
    row("signs in a comment", "<a><!-- <b ========= --></a>", false);
    row("signs in CDATA", "<a><![CDATA[<b =========]]></a>", false);
    row("signs in an instruction", "<a><?b =========?></a>", false);
    row("other quotes in a value", "<a b='\"' c='' d=\"'\" e='' f='' g='' h=''/>", true);
    row("tag that does not end", "<a b='' c='' d='' e='' f='' g='' h=''", true);
    row("value that does not end", "<a b='", false);
    // Where the encoding is not known for sure the slower guard counts, see DocumentLimitsTest.
    row("seven behind single quotes",
        "<?xml version='1.0' encoding='UTF-8'?><a b='' c='' d='' e='' f='' g='' h=''/>", true);
    row("seven, only the encoding in single quotes",
        "<?xml version=\"1.0\" encoding='UTF-8'?><a b='' c='' d='' e='' f='' g='' h=''/>", false);
    row("seven behind a document type", "<!DOCTYPE a><a b='' c='' d='' e='' f='' g='' h=''/>",
        false);
    row("only a bracket", "<", false);
}

void TagScanTest::hasOverfullTag()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, expected);
    QCOMPARE(TagScan(document).hasOverfullTag(), expected);
}

void TagScanTest::isLinear_data()
{
    QTest::addColumn<QByteArray>("document");
    const int size = 4'000'000;
    QTest::newRow("signs behind a long name")
        << "<a " + QByteArray(size, 'x') + QByteArray(size, '=');
    QTest::newRow("signs and blanks") << "<a " + QByteArray("= ").repeated(size / 2);
    QTest::newRow("comments that do not end") << QByteArray("<!--").repeated(size / 4);
    QTest::newRow("brackets") << QByteArray(size, '<');
}

// What takes a blink when it is linear does not end within the time limit of the tests otherwise.
void TagScanTest::isLinear()
{
    QFETCH(QByteArray, document);
    QVERIFY(TagScan(document).isPlain());
}

QTEST_APPLESS_MAIN(TagScanTest)
#include "TagScanTest.moc"
