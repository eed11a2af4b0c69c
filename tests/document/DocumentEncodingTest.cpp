// SPDX-License-Identifier: MIT
#include "DocumentEncoding.h"

#include <QTest>

using Panorel::Detail::DocumentEncoding;

namespace {

enum { Same, Copied, Uncertain };

QByteArray wide(const QByteArray& text, bool isBigEndian)
{
    QByteArray bytes;
    for (const char c : text) {
        bytes.append(isBigEndian ? '\0' : c);
        bytes.append(isBigEndian ? c : '\0');
    }
    return bytes;
}

} // namespace

/** In which documents the markup can be looked for, and where it is. */
class DocumentEncodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textOf_data();
    void textOf();
};

void DocumentEncodingTest::textOf_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* name, const QByteArray& document, int kind,
                        const QByteArray& text = {}) {
        QTest::newRow(name) << document << kind << text;
    };
    row("no declaration", "<a/>", Same);
    row("blanks first", "\n <a/>", Same);
    row("byte order mark", "\xEF\xBB\xBF<a/>", Same);
    row("byte order mark and declaration", "\xEF\xBB\xBF<?xml version=\"1.0\"?><a/>", Same);
    row("UTF-8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>\xC3\xA9</a>", Same);
    row("utf-8 in single quotes", "<?xml version='1.0' encoding='utf-8' standalone='yes'?><a/>",
        Same);
    row("blanks in the declaration", "<?xml  version = \"1.0\"\n encoding =\t'UTF-8' ?><a/>", Same);
    row("no encoding", "<?xml version=\"1.0\"?><a/>", Same);
    row("Latin", "<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?><a>\xE9</a>", Same);
    row("Windows", "<?xml version=\"1.0\" encoding=\"windows-1252\"?><a>\xE9</a>", Same);
    row("ASCII", "<?xml version=\"1.0\" encoding=\"us-ascii\"?><a/>", Same);
    row("encoding in a later instruction", "<?xml version=\"1.0\"?><?x encoding=\"UTF-7\"?><a/>",
        Same);

    row("UTF-7", "<?xml version=\"1.0\" encoding=\"UTF-7\"?><a>+AHg-</a>", Copied,
        "<?xml version=\"1.0\" encoding=\"UTF-7\"?><a>x</a>");
    row("Shift-JIS", "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><a>\x82\xA0</a>", Copied,
        "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><a>\xE3\x81\x82</a>");
    row("UTF-16, big end first", "\xFE\xFF" + wide("<a/>", true), Copied, "<a/>");
    row("UTF-16, little end first", "\xFF\xFE" + wide("<a/>", false), Copied, "<a/>");
    const QByteArray declared = "<?xml version='1.0' encoding='utf-16'?><a/>";
    row("UTF-16, declared", "\xFE\xFF" + wide(declared, true), Copied, declared);
    row("UTF-16, half a character", "\xFE\xFF" + wide("<a/>", true) + '\0', Copied, "<a/>");

    // The reader goes by the last, and by what it has decoded until then.
    row("encoding twice", "<?xml version=\"1.0\" encoding=\"UTF-8\" encoding=\"UTF-7\"?><a/>",
        Uncertain);
    row("blank before the declaration", " <?xml version=\"1.0\" encoding=\"UTF-7\"?><a/>", Same);
    row("other version", "<?xml version=\"1.1\"?><a/>", Uncertain);
    row("quotes of two kinds", "<?xml version='1.0\" encoding=\"UTF-8'?><a/>", Uncertain);
    row("declaration that does not end", "<?xml version=\"1.0\" encoding=\"UTF-7\"", Uncertain);
    row("a long declaration",
        "<?xml version=\"1.0\"" + QByteArray(1000, ' ') + " encoding=\"UTF-7\"?><a/>", Uncertain);
    row("no such encoding", "<?xml version=\"1.0\" encoding=\"none\"?><a/>", Uncertain);
    row("another encoding than its mark", "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-7\"?>",
        Uncertain);
    row("UTF-16 that is declared UTF-8",
        "\xFE\xFF" + wide("<?xml version='1.0' encoding='UTF-8'?><a/>", true), Uncertain);
    row("UTF-16 without a mark", wide("<a/>", true), Uncertain);
    row("UTF-32", QByteArray("\xFF\xFE\0\0<\0\0\0", 8), Uncertain);
    row("declared UTF-16 in single bytes", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a/>",
        Uncertain);
    row("text", "text", Uncertain);
    row("nothing", "", Uncertain);
}

void DocumentEncodingTest::textOf()
{
    QFETCH(QByteArray, document);
    QFETCH(int, kind);
    QFETCH(QByteArray, text);
    const QByteArray found = DocumentEncoding::textOf(document);
    QCOMPARE(found.isNull(), kind == Uncertain);
    QCOMPARE(found, kind == Same ? document : text);
    // What is not copied costs no memory.
    QCOMPARE(found.constData() == document.constData(), kind == Same);
}

QTEST_APPLESS_MAIN(DocumentEncodingTest)
#include "DocumentEncodingTest.moc"
