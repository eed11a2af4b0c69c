// SPDX-License-Identifier: MIT
#include "DocumentEdits.h"
#include "document/DocumentFixture.h"
#include "support/MessageWatch.h"

#include <QTest>

using namespace Panorel::Kit;
using namespace Panorel::Tests;

using Code = LayoutDocument::Error::Code;

/** Views of one document in another. */
class LayoutDocumentCopyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void copyBetweenDocuments_data();
    void copyBetweenDocuments();
    void copyFromElsewhere();

private:
    MessageWatch m_watch;
};

void LayoutDocumentCopyTest::copyBetweenDocuments_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QStringList>("views");
    QTest::addColumn<int>("onConflict");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<int>("code");
    using OnConflict = LayoutDocument::OnConflict;
    const auto row = [](const char* name, const QString& group, const QStringList& views,
                        OnConflict onConflict, const QByteArray& expected, Code code = Code::None) {
        QTest::newRow(name) << group << views << static_cast<int>(onConflict) << expected
                            << static_cast<int>(code);
    };
    const QByteArray h = group("H", view("z"));
    const QByteArray x = view("x", state("w", "0c"));
    row("one view", "G"_s, {"x"_s}, OnConflict::Fail,
        document(group("G", view("a", state("w", "01"), "1") + view("b") + x) + h));
    row("a view of several groups", {}, {"x"_s}, OnConflict::Fail,
        document(group("G", view("a", state("w", "01"), "1") + view("b") + x) +
                 group("H", view("z") + view("x"))));
    row("all, replacing", {}, {}, OnConflict::Replace,
        document(group("G", view("a", state("v", "0a") + userData("d"), "1") + view("b") + x) +
                 group("H", view("z") + view("x"))));
    row("all of a group, keeping both", "G"_s, {}, OnConflict::KeepBoth,
        document(group("G", view("a", state("w", "01"), "1") + view("b") +
                                view("a (2)", state("v", "0a") + userData("d")) +
                                "<View Name=\"b (2)\"/>" + x) +
                 h));
    row("taken", "G"_s, {"x"_s, "a"_s}, OnConflict::Fail, {}, Code::NameTaken);
    row("unknown view", "G"_s, {"x"_s, "q"_s}, OnConflict::Replace, {}, Code::UnknownView);
    row("view of another group", "H"_s, {"a"_s}, OnConflict::Replace, {}, Code::UnknownView);
    row("unknown group", "Q"_s, {}, OnConflict::Replace, {}, Code::UnknownGroup);
}

void LayoutDocumentCopyTest::copyBetweenDocuments()
{
    QFETCH(QString, group);
    QFETCH(QStringList, views);
    QFETCH(int, onConflict);
    QFETCH(QByteArray, expected);
    const LayoutDocument from(document(
        Panorel::Tests::group("G", view("a", state("v", "0A") + userData("d")) +
                                       view("b", "", "true") + view("x", state("w", "0C"))) +
        Panorel::Tests::group("H", view("x"))));
    const QByteArray before =
        document(Panorel::Tests::group("G", view("a", state("w", "01"), "1") + view("b")) +
                 Panorel::Tests::group("H", view("z")));
    LayoutDocument into(before);
    const LayoutDocument::Error error =
        into.copyViews(from, group, views, static_cast<LayoutDocument::OnConflict>(onConflict));
    QTEST(static_cast<int>(error.code), "code");
    // What is new and empty has no end tag.
    expected.replace("<View Name=\"x\"></View>", "<View Name=\"x\"/>");
    QCOMPARE(QString::fromUtf8(into.bytes()), QString::fromUtf8(error ? before : expected));
}

void LayoutDocumentCopyTest::copyFromElsewhere()
{
    LayoutDocument into(document(group("G", "")));
    QCOMPARE(into.copyViews(LayoutDocument("text")).code, Code::NotReadable);
    QCOMPARE(into.copyViews(LayoutDocument(document("", "", "2"))).code, Code::OtherVersion);
    const LayoutDocument from(document(group("Other", view("a"))));
    const LayoutDocument::Error error = into.copyViews(from);
    QCOMPARE(error.code, Code::UnknownGroup);
    QCOMPARE(error.text, "There is no group \"Other\". There are: \"G\""_s);
    QCOMPARE(into.bytes(), document(group("G", "")));
}

QTEST_GUILESS_MAIN(LayoutDocumentCopyTest)
#include "LayoutDocumentCopyTest.moc"
