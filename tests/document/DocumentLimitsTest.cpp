// SPDX-License-Identifier: MIT
#include "DocumentJudge.h"

#include <QThread>

#include <memory>

using namespace Panorel::Tests;

namespace {

void row(const char* name, bool accepted, const QByteArray& data)
{
    QTest::newRow(name) << data << accepted;
}

QByteArray noted(const QByteArray& text)
{
    return document(group("A", view("v", userData(text))));
}

// A thousand pieces with a number in the middle of each.
QByteArray numbered(const QByteArray& before, const QByteArray& after)
{
    QByteArray pieces;
    for (int i = 0; i < 1000; ++i)
        pieces += before + QByteArray::number(i) + after;
    return pieces;
}

// A root that may hold anything, with more levels under it.
QByteArray anything(int levels)
{
    return "<a xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
           " xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" xsi:type=\"xs:anyType\">" +
           QByteArray("<b>").repeated(levels - 1) + QByteArray("</b>").repeated(levels - 1) +
           "</a>";
}

// Which leaves the look at the markup to Qt's reader.
const QByteArray unclear = "<!DOCTYPE a [<!ATTLIST b c:d CDATA ''>]>";

// Entities of which each expands to ten of the one before; the first is @p seed.
QByteArray entities(int levels, const QByteArray& seed)
{
    QByteArray declarations = "<!ENTITY e0 \"" + seed + "\">";
    for (int level = 1; level <= levels; ++level) {
        const QByteArray inner = "&e" + QByteArray::number(level - 1) + ';';
        declarations +=
            "<!ENTITY e" + QByteArray::number(level) + " \"" + inner.repeated(10) + "\">";
    }
    return "<!DOCTYPE ViewData [" + declarations + "]>";
}

} // namespace

/** Documents that are huge, or are meant to become so. */
class DocumentLimitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judge_data();
    void judge();
    void deepestFitsASmallStack();
    void manyViewsAreAllRead();
};

void DocumentLimitsTest::judge_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("accepted");
    const int tenMegabytes = 10 * 1024 * 1024;
    const int depth = 1000000;
    row("10 MB of user data", true, noted(QByteArray(tenMegabytes, 'u')));
    row("10 MB of name", true, document(group("A", view(QByteArray(tenMegabytes, 'n')))));
    row("10 MB of digits", true,
        document(group("A", view("v", state("w", QByteArray(tenMegabytes, '7'))))));
    row("10 MB of digits and one more", false,
        document(group("A", view("v", state("w", QByteArray(tenMegabytes + 1, '7'))))));
    row("10 MB of text and no XML", false, QByteArray(tenMegabytes, 'x'));
    row("10 MB of less-than", false, QByteArray(tenMegabytes, '<'));
    row("10 MB of NUL", false, QByteArray(tenMegabytes, '\0'));
    row("10 MB of text after the root", false, document({}) + QByteArray(tenMegabytes, 'x'));
    row("10 MB of an unfinished tag", false, '<' + QByteArray(tenMegabytes, 'V'));
    row("10 MB of attributes", false, "<ViewData" + QByteArray(" a=''").repeated(tenMegabytes / 5));
    row("a comment of 10 MB", true, "<!--" + QByteArray(tenMegabytes, '.') + "-->" + document({}));
    row("a million elements deep", false,
        document(QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth)));
    row("a million elements deep, never closed", false, QByteArray("<a>").repeated(depth));
    row("a million roots deep", false,
        QByteArray("<ViewData Version=\"1.1.0\">").repeated(depth) +
            QByteArray("</ViewData>").repeated(depth));
    row("groups 100,000 deep", false,
        document(QByteArray("<Group Name=\"A\">").repeated(100000) +
                 QByteArray("</Group>").repeated(100000)));
    row("1,000 levels of anything", true, anything(1000));
    row("1,001 levels of anything", false, anything(1001));
    row("40,000 levels of anything", false, anything(40000));
    row("1,000 levels of anything, read once more", true, unclear + anything(1000));
    row("40,000 levels of anything, read once more", false, unclear + anything(40000));
    row("a tag with a thousand attributes", false,
        document({}).replace("<ViewData", "<ViewData" + numbered(" a", "=\"\"")));
    row("a tag with a thousand attributes, encoding in single quotes", false,
        "<?xml version=\"1.0\" encoding='UTF-8'?>" +
            document({}).replace("<ViewData", "<ViewData" + numbered(" a", "=\"\"")));
    row("a tag with a thousand namespace declarations", true,
        document({}).replace("<ViewData", "<ViewData" + numbered(" xmlns:a", "=\"urn:x\"")));
    row("entities that grow to 400 letters", true,
        entities(1, QByteArray(40, 'l')) + noted("&e1;"));
    row("entities that grow to 3 billion letters", false, entities(9, "lol") + noted("&e9;"));
    row("entities that grow to a billion elements", false,
        entities(9, "<View Name='v'/>") + document(group("A", "&e9;")));
    row("entities that would grow but are not used", true, entities(9, "lol") + noted("e9"));
}

void DocumentLimitsTest::judge()
{
    QFETCH(QByteArray, data);
    QFETCH(bool, accepted);
    // One way in only, because each of them costs a validation.
    Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
    const MessageWatch watch(MessageWatch::Started);
    QCOMPARE(manager.fromXml(data, /*merge=*/true), accepted);
    QCOMPARE(watch.messages(), QStringList());
}

// That of a secondary thread on some systems.
void DocumentLimitsTest::deepestFitsASmallStack()
{
    bool accepted = false;
    const std::unique_ptr<QThread> thread(QThread::create([&accepted] {
        Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
        accepted = manager.fromXml(anything(1000), /*merge=*/true);
    }));
    thread->setStackSize(512 * 1024);
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(accepted);
}

void DocumentLimitsTest::manyViewsAreAllRead()
{
    QByteArray views;
    QStringList expected;
    for (int i = 0; i < 5000; ++i) {
        views += view('v' + QByteArray::number(i));
        expected.append(QStringLiteral("v%1").arg(i));
    }
    Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
    QVERIFY(manager.fromXml(document(group("A", views)), /*merge=*/false));
    QCOMPARE(manager.views(), expected);
}

QTEST_MAIN(DocumentLimitsTest)
#include "DocumentLimitsTest.moc"
