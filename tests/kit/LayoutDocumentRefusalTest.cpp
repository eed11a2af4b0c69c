// SPDX-License-Identifier: MIT
#include "DocumentEdits.h"
#include "document/DocumentFixture.h"
#include "support/MessageWatch.h"

#include <QTest>

using namespace Panorel::Kit;
using namespace Panorel::Tests;

using Code = LayoutDocument::Error::Code;

/** What is refused, and why. */
class LayoutDocumentRefusalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void refused_data();
    void refused();
    void errorsListWhatIsThere();

private:
    MessageWatch m_watch;
};

void LayoutDocumentRefusalTest::refused_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<int>("code");
    const auto row = [](const char* name, const Edit& edit, Code code) {
        QTest::newRow(name) << edit << static_cast<int>(code);
    };
    row("unknown group", rename("edit", "a", "x"_s), Code::UnknownGroup);
    row("unknown view", rename("Edit", "A", "x"_s), Code::UnknownView);
    row("view of another group", rename("Watch", "a", "x"_s), Code::UnknownView);
    row("name taken", rename("Edit", "a", "b"_s), Code::NameTaken);
    row("empty name", rename("Edit", "a", ""_s), Code::EmptyName);
    row("control character", rename("Edit", "a", QString(QChar(0x1F))), Code::NotWritable);
    row("no character", rename("Edit", "a", QString(QChar(0xFFFF))), Code::NotWritable);
    row("half a pair", rename("Edit", "a", QString(QChar(0xDC00))), Code::NotWritable);
    row("move: view", move("x", {}), Code::UnknownView);
    row("move: before", move("a", "x"_s), Code::UnknownView);
    row("move: nameless", move("a", ""_s), Code::UnknownView);
    row(
        "other group: unknown",
        [](LayoutDocument& document) { return document.moveToGroup("Edit"_s, "a"_s, "x"_s); },
        Code::UnknownGroup);
    row(
        "remove: view",
        [](LayoutDocument& document) { return document.removeView("Edit"_s, "x"_s); },
        Code::UnknownView);
    row(
        "duplicate: taken",
        [](LayoutDocument& document) { return document.duplicateView("Edit"_s, "a"_s, "c"_s); },
        Code::NameTaken);
    row(
        "duplicate: unknown",
        [](LayoutDocument& document) { return document.duplicateView("Edit"_s, "x"_s, "y"_s); },
        Code::UnknownView);
    row("add: taken", add("Edit", {"a"_s, false, {}, {}}), Code::NameTaken);
    row("add: group", add("x", {"a"_s, false, {}, {}}), Code::UnknownGroup);
    row("add: no name", add("Edit", {}), Code::EmptyName);
    row("add: name", add("Edit", {QString(QChar(1)), false, {}, {}}), Code::NotWritable);
    row("add: user data", add("Edit", {"x"_s, false, {}, QString(QChar(1))}), Code::NotWritable);
    row("add: window", add("Edit", {"x"_s, false, {{QString(QChar(1)), "00"_hex}}, {}}),
        Code::NotWritable);
    row("user data", data("a", QString(QChar(0))), Code::NotWritable);
    row("activate: view", activate("x"_s), Code::UnknownView);
    row(
        "state: window",
        [](LayoutDocument& document) { return document.removeState("Edit"_s, "c"_s, "main"_s); },
        Code::UnknownWindow);
    row("window: unknown", renameWindow("x", "y"_s), Code::UnknownWindow);
    row("window: empty", renameWindow("main", ""_s), Code::EmptyName);
    row("window: character", renameWindow("main", QString(QChar(2))), Code::NotWritable);
    row(
        "window: taken",
        [](LayoutDocument& document) {
            const LayoutDocument::View view{
                "d"_s, false, {{"main"_s, "00"_hex}, {"x"_s, "00"_hex}}, {}};
            LayoutDocument work(document);
            return work.addView("Watch"_s, view) ? LayoutDocument::Error()
                                                 : work.renameWindow("main"_s, "x"_s);
        },
        Code::NameTaken);
}

void LayoutDocumentRefusalTest::refused()
{
    QFETCH(Edit, edit);
    LayoutDocument document(written);
    const LayoutDocument::Error error = edit(document);
    QVERIFY(error);
    QTEST(static_cast<int>(error.code), "code");
    QVERIFY(!error.text.isEmpty());
    QCOMPARE(document.bytes(), written);
}

void LayoutDocumentRefusalTest::errorsListWhatIsThere()
{
    LayoutDocument document(written);
    QCOMPARE(rename("x", "a", "y"_s)(document).text,
             "There is no group \"x\". There are: \"Edit\", \"Watch\""_s);
    QCOMPARE(rename("Edit", "x", "y"_s)(document).text,
             "There is no layout \"x\" in the group \"Edit\". There are: \"a\", \"b\", \"c\""_s);
    QCOMPARE(rename("Watch", "x", "y"_s)(document).text,
             "There is no layout \"x\" in the group \"Watch\". There are none."_s);
    QCOMPARE(renameWindow("x", "y"_s)(document).text,
             "There is no window \"x\". There are: \"main\""_s);
    LayoutDocument many = LayoutDocument::withGroups(QString("x,"_s).repeated(60).split(u','));
    QVERIFY(many.isReadable());
}

QTEST_GUILESS_MAIN(LayoutDocumentRefusalTest)
#include "LayoutDocumentRefusalTest.moc"
