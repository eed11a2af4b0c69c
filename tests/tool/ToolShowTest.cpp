// SPDX-License-Identifier: MIT
#include "ToolTest.h"

using namespace Panorel::Tests;

namespace {

// What smallState() says.
QJsonObject smallStateAsJson(const QString& area = QStringLiteral("right"))
{
    QJsonObject state = QJsonDocument::fromJson(
                            R"({"bytes": 117, "sound": true, "layoutVersion": 0, "repeats": 0,
                "central": [400, 300], "corners": ["left", "right", "left", "bottom"],
                "toolBars": [{"name": "T", "area": "top", "line": 0, "visible": true,
                              "vertical": false}]})")
                            .object();
    QJsonObject dock = QJsonDocument::fromJson(R"({"name": "AB", "visible": true,
        "floating": false, "tabs": null, "size": [200, 200]})")
                           .object();
    dock.insert(QStringLiteral("area"), area);
    state.insert(QStringLiteral("docks"), QJsonArray{dock});
    return state;
}

} // namespace

class ToolShowTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void stateAsJson();
    void unreadableStateAsJson();
    void tabsAsJson();
    void namesThatAreNullOrEmpty();
    void documentAsJson();
    void settingsAsJson();
    void choiceNarrowsJson();
    void stateAsText();
    void documentAsText();
    void refusedDocument();
};

void ToolShowTest::stateAsJson()
{
    write("file", smallState());
    const CommandResult result = panorel("show --json file");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.object(), (QJsonObject{{QStringLiteral("kind"), QStringLiteral("state")},
                                           {QStringLiteral("state"), smallStateAsJson()}}));
}

void ToolShowTest::unreadableStateAsJson()
{
    write("file", smallState().chopped(1));
    const CommandResult result = panorel("show --json file");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.object().value(QStringLiteral("state")).toObject(),
             (QJsonObject{{QStringLiteral("bytes"), 116}, {QStringLiteral("sound"), false}}));
}

void ToolShowTest::tabsAsJson()
{
    // Left: the tabs "A" and "B" with "B" in front, then "C", closed. "D" floats.
    write("file", QByteArray::fromHex("000000ff00000000"
                                      "fd00000001"
                                      "00000000000000640000012c"
                                      "fc0200000003"
                                      "fc000000000000006400000000"
                                      "00000000"
                                      "fa000000010200000002"
                                      "fb00000002004101"
                                      "00000000ffffffff0000000000000000"
                                      "fb00000002004201"
                                      "00000000ffffffff0000000000000000"
                                      "fb00000002004300"
                                      "00000065000000320000000000000000"
                                      "fb00000002004403"
                                      "0000000a000000140000001e00000028"
                                      "000001900000012c"
                                      "00000004000000040000000800000008"));
    const QJsonObject state =
        panorel("show --json file").object().value(QStringLiteral("state")).toObject();
    QCOMPARE(state.value(QStringLiteral("corners")),
             QJsonValue(QJsonArray{QStringLiteral("top"), QStringLiteral("top"),
                                   QStringLiteral("bottom"), QStringLiteral("bottom")}));
    const QJsonArray docks = state.value(QStringLiteral("docks")).toArray();
    QCOMPARE(docks.size(), 4);
    const auto tab = [&](int dock) {
        return docks.at(dock).toObject().value(QStringLiteral("tabs"));
    };
    QCOMPARE(tab(0), QJsonValue(QJsonObject{{QStringLiteral("group"), 0},
                                            {QStringLiteral("index"), 0},
                                            {QStringLiteral("front"), false}}));
    QCOMPARE(tab(1), QJsonValue(QJsonObject{{QStringLiteral("group"), 0},
                                            {QStringLiteral("index"), 1},
                                            {QStringLiteral("front"), true}}));
    QCOMPARE(tab(2), QJsonValue(QJsonValue::Null));
    QCOMPARE(docks.at(2).toObject().value(QStringLiteral("visible")), QJsonValue(false));
    QCOMPARE(docks.at(3).toObject().value(QStringLiteral("floating")), QJsonValue(true));
    QCOMPARE(docks.at(3).toObject().value(QStringLiteral("size")), QJsonValue(QJsonArray{30, 40}));
}

void ToolShowTest::namesThatAreNullOrEmpty()
{
    QByteArray state = smallState();
    state.replace(QByteArray::fromHex("0000000400410042"), QByteArray::fromHex("ffffffff"));
    state.replace(QByteArray::fromHex("000000020054"), QByteArray::fromHex("00000000"));
    write("file", state);
    const QJsonObject object =
        panorel("show --json file").object().value(QStringLiteral("state")).toObject();
    QCOMPARE(object.value(QStringLiteral("docks"))
                 .toArray()
                 .at(0)
                 .toObject()
                 .value(QStringLiteral("name")),
             QJsonValue(QJsonValue::Null));
    QCOMPARE(object.value(QStringLiteral("toolBars"))
                 .toArray()
                 .at(0)
                 .toObject()
                 .value(QStringLiteral("name")),
             QJsonValue(QStringLiteral("")));
}

void ToolShowTest::documentAsJson()
{
    write("file", smallDocument());
    const CommandResult result = panorel("show --json file");
    QCOMPARE(result.status, 0);
    const QJsonObject wide{
        {QStringLiteral("name"), QStringLiteral("Wide")},
        {QStringLiteral("active"), true},
        {QStringLiteral("userData"), QStringLiteral("true")},
        {QStringLiteral("windows"), QJsonObject{{QStringLiteral("main"), smallStateAsJson()}}}};
    const QJsonObject narrow{
        {QStringLiteral("name"), QStringLiteral("Narrow")},
        {QStringLiteral("active"), false},
        {QStringLiteral("userData"), QStringLiteral("")},
        {QStringLiteral("windows"),
         QJsonObject{{QStringLiteral("main"), smallStateAsJson(QStringLiteral("left"))}}}};
    const QJsonObject current{
        {QStringLiteral("userData"), QStringLiteral("")},
        {QStringLiteral("windows"), QJsonObject{{QStringLiteral("main"), smallStateAsJson()}}}};
    const QJsonObject noCurrent{{QStringLiteral("userData"), QStringLiteral("")},
                                {QStringLiteral("windows"), QJsonObject()}};
    const QJsonObject editing{{QStringLiteral("name"), QStringLiteral("Editing")},
                              {QStringLiteral("views"), QJsonArray{wide, narrow}},
                              {QStringLiteral("current"), current}};
    const QJsonObject debugging{{QStringLiteral("name"), QStringLiteral("Debugging")},
                                {QStringLiteral("views"), QJsonArray()},
                                {QStringLiteral("current"), noCurrent}};
    QCOMPARE(result.object(),
             (QJsonObject{{QStringLiteral("kind"), QStringLiteral("document")},
                          {QStringLiteral("version"), QStringLiteral("1.1.0")},
                          {QStringLiteral("toolBarStates"), QJsonObject()},
                          {QStringLiteral("groups"), QJsonArray{editing, debugging}}}));
}

void ToolShowTest::settingsAsJson()
{
    write("file", "[MainWindow]\nState=" + smallState().toBase64() + "\n");
    QCOMPARE(
        panorel("show --json file").object(),
        (QJsonObject{{QStringLiteral("kind"), QStringLiteral("settings")},
                     {QStringLiteral("states"),
                      QJsonObject{{QStringLiteral("MainWindow/State"), smallStateAsJson()}}}}));
}

void ToolShowTest::choiceNarrowsJson()
{
    write("file", smallDocument());
    const QJsonArray groups = panorel("show --json file --group Editing --view Narrow")
                                  .object()
                                  .value(QStringLiteral("groups"))
                                  .toArray();
    QCOMPARE(groups.size(), 1);
    const QJsonArray views = groups.at(0).toObject().value(QStringLiteral("views")).toArray();
    QCOMPARE(views.size(), 1);
    QCOMPARE(views.at(0).toObject().value(QStringLiteral("name")),
             QJsonValue(QStringLiteral("Narrow")));
    QCOMPARE(panorel("show --json file --view Nothing").status, 2);
    QCOMPARE(panorel("show --json file --view Wide --current").status, 2);
}

void ToolShowTest::stateAsText()
{
    write("file", smallState());
    const CommandResult result = panorel("show file");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray("Right:\n"
                                       "  AB  200 x 200\n"
                                       "Tool bars, top, line 1:\n"
                                       "  T\n"
                                       "Central area: 400 x 300\n"));
}

void ToolShowTest::documentAsText()
{
    write("file", smallDocument());
    const CommandResult result = panorel("show file --window main --group Editing");
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains("Group \"Editing\"\n  Layout \"Wide\" (active)\n"));
    QVERIFY(result.output.contains("\n  Layout \"Narrow\"\n    Window \"main\"\n      Left:\n"));
    QVERIFY(result.output.contains("\n  Working layout\n"));
}

void ToolShowTest::refusedDocument()
{
    write("file", smallDocument().chopped(20));
    const CommandResult result = panorel("show file");
    QCOMPARE(result.status, 2);
    QVERIFY(result.messages.startsWith("panorel: file: "));
}

QTEST_GUILESS_MAIN(ToolShowTest)
#include "ToolShowTest.moc"
