// SPDX-License-Identifier: MIT
#include "document/DocumentFixture.h"
#include "support/BlobBuilder.h"
#include "support/MessageWatch.h"

#include <panorel/kit/LayoutDocument.h>

#include <QTest>

using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** What differs between two documents. */
class LayoutDocumentDifferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void documents_data();
    void documents();
    void views();
    void unreadableDocuments();

private:
    MessageWatch m_watch;
};

namespace {

// A window with the dock widget AB on the right, and one in which it is closed.
const QByteArray open = exampleBlob().toHex();
const QByteArray closed = exampleBlob().replace(40, 1, QByteArray(1, '\0')).toHex();

QStringList placesOf(const QVector<LayoutDocument::Differences::Place>& places)
{
    QStringList lines;
    for (const LayoutDocument::Differences::Place& place : places)
        lines.append(quoted(place.group) + quoted(place.view));
    return lines;
}

QStringList changesOf(const QVector<Difference>& differences)
{
    QStringList lines;
    for (const Difference& difference : differences)
        lines.append(quoted(difference.group) + quoted(difference.view) +
                     quoted(difference.window) + " "_s + difference.name + " "_s +
                     identifierOf(difference.aspect) +
                     (difference.isInCurrentView ? " current"_s : ""_s));
    return lines;
}

} // namespace

void LayoutDocumentDifferenceTest::documents_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<QStringList>("onlyInA");
    QTest::addColumn<QStringList>("onlyInB");
    QTest::addColumn<QStringList>("changed");
    const auto row = [](const char* name, const QByteArray& a, const QByteArray& b,
                        const QStringList& onlyInA, const QStringList& onlyInB,
                        const QStringList& changed) {
        QTest::newRow(name) << a << b << onlyInA << onlyInB << changed;
    };
    const QByteArray one = state("w", open);
    const QByteArray other = state("w", closed);
    row("the same", document(group("G", view("a", one), one)),
        "<?xml version='1.0'?>" + document(group("G", view("a", one, "1"), one)), {}, {}, {});
    row("order and user data", document(group("G", view("a") + view("b"))),
        document(group("G", view("b", userData("x")) + view("a"))), {}, {}, {});
    row("views", document(group("G", view("a") + view("b") + view("c"))),
        document(group("G", view("d") + view("b"))), lines({"'G''a'", "'G''c'"}), {"'G''d'"_s}, {});
    row("a group", document(group("G", view("a")) + group("H", "")), document(group("H", "")),
        lines({"'G''a'", "'G'null"}), {}, {});
    row("a state", document(group("G", view("a", one) + view("b", one))),
        document(group("G", view("a", other) + view("b", one))), {}, {},
        {"'G''a''w' AB visible"_s});
    row("the current view", document(group("G", "", one)), document(group("G", "", other)), {}, {},
        {"'G'null'w' AB visible current"_s});
    row("a tool-bar state", document("", toolBarState("w", open)),
        document("", toolBarState("w", closed)), {}, {}, {"nullnull'w' AB visible"_s});
    row("a window", document(group("G", view("a", one))), document(group("G", view("a"))), {}, {},
        lines({"'G''a''w' AB removed", "'G''a''w' T removed"}));
    row("the last of a name counts", document(group("G", view("a", one) + view("a", other))),
        document(group("G", view("a", other))), {}, {}, {});
    row("the last of an id counts", document(group("G", view("a", one + other))),
        document(group("G", view("a", other))), {}, {}, {});
}

void LayoutDocumentDifferenceTest::documents()
{
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    const LayoutDocument first(a);
    const LayoutDocument second(b);
    const LayoutDocument::Differences differences = LayoutDocument::differences(first, second);
    QTEST(placesOf(differences.onlyInA), "onlyInA");
    QTEST(placesOf(differences.onlyInB), "onlyInB");
    QTEST(changesOf(differences.changed), "changed");
    QCOMPARE(LayoutDocument::differences(second, first).isEmpty(), differences.isEmpty());
    QVERIFY(LayoutDocument::differences(first, first).isEmpty());
}

void LayoutDocumentDifferenceTest::views()
{
    LayoutDocument::View a;
    LayoutDocument::View b;
    a.name = "a"_s;
    a.states.insert("w"_s, QByteArray::fromHex(open));
    QVERIFY(LayoutDocument::differences(a, a).isEmpty());
    b.states.insert("w"_s, QByteArray::fromHex(closed));
    QCOMPARE(changesOf(LayoutDocument::differences(a, b)), QStringList("nullnull'w' AB visible"_s));
}

void LayoutDocumentDifferenceTest::unreadableDocuments()
{
    const LayoutDocument document(Panorel::Tests::document(group("G", "")));
    QCOMPARE(placesOf(LayoutDocument::differences(document, LayoutDocument()).onlyInA),
             QStringList("'G'null"_s));
    QVERIFY(LayoutDocument::differences(LayoutDocument(), LayoutDocument("x")).isEmpty());
}

QTEST_GUILESS_MAIN(LayoutDocumentDifferenceTest)
#include "LayoutDocumentDifferenceTest.moc"
