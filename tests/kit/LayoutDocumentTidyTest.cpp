// SPDX-License-Identifier: MIT
#include "document/DocumentFixture.h"
#include "support/BlobBuilder.h"
#include "support/MessageWatch.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/WindowState.h>

#include <QTest>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** What tidying drops, and what it leaves as it is. */
class LayoutDocumentTidyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void nothingToDo_data();
    void nothingToDo();
    void repeats();
    void namelessViews_data();
    void namelessViews();
    void unsoundStates();
    void unsoundStatesDropped();
    void unsoundStateOfANamelessView();
    void otherVersion();

private:
    MessageWatch m_watch;
};

namespace {

// The second dock record has AB again, as merging leaves it.
QByteArray grown()
{
    return soundHead()
        .dockSection(2)
        .dock(0, 100, 300)
        .sequence(2, 1)
        .widget("AB"_s, 1, {0, 100, 0, 0})
        .dock(1, 100, 300)
        .sequence(2, 2)
        .widget("AB"_s, 1, {0, 100, 0, 0})
        .widget("CD"_s, 1, {0, 100, 0, 0})
        .dockTail()
        .toolBarSection(0)
        .blob();
}

// Its dock record is on side 4, which does not exist.
QByteArray harmful()
{
    return exampleBlob().replace(16, 1, "\x04");
}

} // namespace

void LayoutDocumentTidyTest::nothingToDo_data()
{
    QTest::addColumn<QByteArray>("bytes");
    Manager manager({"A"_s}, /*mergeOnApply=*/false);
    QVERIFY(manager.createView("a"_s) && manager.createView("\u00E4"_s));
    QTest::newRow("as a Manager wrote it") << manager.toXml(/*markActive=*/true);
    QTest::newRow("sound states, in capitals")
        << document(group("G", view("a", state("w", exampleBlob().toHex().toUpper())),
                          state("w", "\n" + exampleBlob().toHex())));
    QTest::newRow("empty states") << document(group("G", view("a", state("w", ""))));
    QTest::newRow("repeated views")
        << document(group("G", view("a", "", "1") + view("a", "", "1")));
    QTest::newRow("document type")
        << "<!DOCTYPE ViewData [<!ENTITY e 'a'>]>" + document(group("&e;", view("&e;")));
}

void LayoutDocumentTidyTest::nothingToDo()
{
    QFETCH(QByteArray, bytes);
    LayoutDocument document(bytes);
    QVERIFY(document.isReadable());
    const LayoutDocument::Error error = document.tidy({});
    QVERIFY2(!error, qPrintable(error.text));
    QCOMPARE(document.bytes(), bytes);
}

void LayoutDocumentTidyTest::repeats()
{
    const QByteArray tidied = WindowState(grown()).tidied();
    QVERIFY(!tidied.isEmpty() && tidied.size() < grown().size());
    const auto with = [](const QByteArray& digits) {
        return document(group("G", view("a", state("w", digits) + userData("x"), "1") + view("b"),
                              state("v", digits)),
                        toolBarState("t", digits));
    };
    LayoutDocument document(with(grown().toHex().toUpper()));
    QVector<Problem> dropped;
    const LayoutDocument::Error error = document.tidy({}, &dropped);
    QVERIFY2(!error, qPrintable(error.text));
    QCOMPARE(QString::fromUtf8(document.bytes()), QString::fromUtf8(with(tidied.toHex())));
    QVERIFY(dropped.isEmpty());
}

void LayoutDocumentTidyTest::namelessViews_data()
{
    QTest::addColumn<QByteArray>("views");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray nothing = view("");
    QTest::newRow("several") << nothing + view("a") + nothing << view("a");
    QTest::newRow("only such") << "\n" + nothing << QByteArray();
    QTest::newRow("the active one") << view("a") + view("", "", "1") << view("a");
    QTest::newRow("the active one of several marked")
        << view("a", "", "true") + view("", "", "1") << view("a");
    QTest::newRow("another is active")
        << view("", "", "1") + view("a", "", "1") << view("a", "", "1");
    QTest::newRow("with states") << view("", state("w", grown().toHex())) + view("a") << view("a");
}

void LayoutDocumentTidyTest::namelessViews()
{
    QFETCH(QByteArray, views);
    QFETCH(QByteArray, expected);
    const QByteArray bytes = document(group("G", views) + group("H", view("h", "", "1")));
    LayoutDocument tidied(bytes);
    QVERIFY(!tidied.tidy({}));
    QCOMPARE(QString::fromUtf8(tidied.bytes()),
             QString::fromUtf8(document(group("G", expected) + group("H", view("h", "", "1")))));
    LayoutDocument kept(bytes);
    LayoutDocument::TidyOptions options;
    options.keepsNameless = true;
    QVERIFY(!kept.tidy(options));
    QCOMPARE(kept.viewNames("G"_s), LayoutDocument(bytes).viewNames("G"_s));
}

void LayoutDocumentTidyTest::unsoundStates()
{
    const QByteArray bytes = document(
        group("G", view("a", state("w", grown().toHex()) + state("v", harmful().toHex()))));
    LayoutDocument document(bytes);
    QVector<Problem> dropped;
    const LayoutDocument::Error error = document.tidy({}, &dropped);
    QCOMPARE(error.code, LayoutDocument::Error::Code::Unsound);
    QCOMPARE(error.text,
             "The state of the window \"v\" in the layout \"a\" of the group \"G\" is not sound: "
             "Dock widgets are on a side that does not exist"_s);
    QCOMPARE(document.bytes(), bytes);
    QVERIFY(dropped.isEmpty());
    const QByteArray damaged = "000000ff";
    QCOMPARE(LayoutDocument(Tests::document(group("G", "", state("w", damaged)))).tidy({}).code,
             LayoutDocument::Error::Code::Unsound);
    QCOMPARE(LayoutDocument(Tests::document("", toolBarState("w", damaged))).tidy({}).code,
             LayoutDocument::Error::Code::Unsound);
}

void LayoutDocumentTidyTest::unsoundStatesDropped()
{
    const QByteArray bad = harmful().toHex();
    const QByteArray good = exampleBlob().toHex();
    LayoutDocument document(Tests::document(
        group("G", view("a", state("v", bad) + "\n" + state("w", good)), "\n " + state("v", bad)),
        toolBarState("t", "0102")));
    LayoutDocument::TidyOptions options;
    options.dropsUnsound = true;
    QVector<Problem> dropped;
    const LayoutDocument::Error error = document.tidy(options, &dropped);
    QVERIFY2(!error, qPrintable(error.text));
    QCOMPARE(
        QString::fromUtf8(document.bytes()),
        QString::fromUtf8(Tests::document(group("G", view("a", "\n" + state("w", good)), ""))));
    QStringList reasons;
    for (const Problem& problem : qAsConst(dropped))
        reasons.append(problem.window + " "_s + identifierOf(problem.code));
    QCOMPARE(reasons.first(), "t marker"_s);
    QCOMPARE(reasons.mid(1), lines({"v dock-area", "v dock-area"}));
    QVERIFY(dropped.last().isInCurrentView);
    QVERIFY(document.isSound());
}

void LayoutDocumentTidyTest::unsoundStateOfANamelessView()
{
    LayoutDocument document(Tests::document(group("G", view("", state("w", harmful().toHex())))));
    QVERIFY(!document.tidy({}));
    QCOMPARE(document.viewNames("G"_s), QStringList());
}

void LayoutDocumentTidyTest::otherVersion()
{
    QCOMPARE(LayoutDocument(document("", {}, "1")).tidy({}).code,
             LayoutDocument::Error::Code::OtherVersion);
    QCOMPARE(LayoutDocument("x").tidy({}).code, LayoutDocument::Error::Code::NotReadable);
}

QTEST_GUILESS_MAIN(LayoutDocumentTidyTest)
#include "LayoutDocumentTidyTest.moc"
