// SPDX-License-Identifier: MIT
#include "ToolTest.h"

#include <QImage>

using namespace Panorel::Tests;

class ToolRenderTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void pictureHasTheSizeThatWasAsked();
    void darkAndLightDiffer();
    void toStandardOutput();
    void scalableGraphics();
    void severalWindowsBesideEachOther();
    void damagedState();
    void unsoundStateIsDrawn();
    void choiceThatIsNotThere();
    void wideWindowAsAsked();
    void tooLarge_data();
    void tooLarge();
};

void ToolRenderTest::pictureHasTheSizeThatWasAsked()
{
    write("file", smallState());
    QCOMPARE(panorel("render file -o out.png --size 800x600").status, 0);
    const QImage image(path("out.png"));
    QCOMPARE(image.size(), QSize(800, 600));
    QCOMPARE(panorel("render file -o out2.png").status, 0);
    QVERIFY(QImage(path("out2.png")).width() >= 600);
}

void ToolRenderTest::darkAndLightDiffer()
{
    write("file", smallState());
    QCOMPARE(panorel("render file -o light.png --size 400x300").status, 0);
    QCOMPARE(panorel("render file -o dark.png --size 400x300 --dark").status, 0);
    const QColor light = QImage(path("light.png")).pixelColor(100, 150);
    const QColor dark = QImage(path("dark.png")).pixelColor(100, 150);
    QVERIFY(light.lightness() > 128);
    QVERIFY(dark.lightness() < 128);
}

void ToolRenderTest::toStandardOutput()
{
    const CommandResult result = panorel("render - -o - --size 200x100", smallState());
    QCOMPARE(result.status, 0);
    QCOMPARE(QImage::fromData(result.output, "PNG").size(), QSize(200, 100));
}

void ToolRenderTest::scalableGraphics()
{
    write("file", smallState());
    QCOMPARE(panorel("render file -o out.svg --size 400x300").status, 0);
    const QByteArray picture = read("out.svg");
    QVERIFY(picture.contains("<svg"));
    QVERIFY(picture.contains("viewBox=\"0 0 400 300\""));
}

void ToolRenderTest::severalWindowsBesideEachOther()
{
    const QByteArray state = "<State DescriptorId=\"main\">" + leftState().toHex() + "</State>";
    write("file", smallDocument().replace(state, state + "<State DescriptorId=\"other\">" +
                                                     leftState().toHex() + "</State>"));
    QCOMPARE(panorel("render file --view Narrow --window main -o one.png --size 300x200").status,
             0);
    QCOMPARE(QImage(path("one.png")).size(), QSize(300, 200));
    QCOMPARE(panorel("render file --view Narrow -o two.png --size 300x200").status, 0);
    QVERIFY(QImage(path("two.png")).width() >= 600);
    QVERIFY(QImage(path("two.png")).height() > 200);
}

void ToolRenderTest::damagedState()
{
    write("file", smallState().chopped(1));
    QCOMPARE(panorel("render file -o out.png").status, 2);
    QVERIFY(!exists("out.png"));
}

void ToolRenderTest::unsoundStateIsDrawn()
{
    write("file", harmfulState());
    QCOMPARE(panorel("render file -o out.png").status, 0);
}

void ToolRenderTest::choiceThatIsNotThere()
{
    write("file", smallDocument());
    const CommandResult result = panorel("render file --view Other -o out.png");
    QCOMPARE(result.status, 2);
    QVERIFY(result.messages.contains("Wide"));
}

void ToolRenderTest::wideWindowAsAsked()
{
    write("file", smallState());
    QCOMPARE(panorel("render file -o out.png --size 2400x300").status, 0);
    QCOMPARE(QImage(path("out.png")).size(), QSize(2400, 300));
}

void ToolRenderTest::tooLarge_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("pixels") << QStringLiteral("--view Wide --size 10001x10000")
                            << QByteArray("panorel: file: the picture is too large\n");
    const QByteArray choose =
        "panorel: file: the picture is too large; choose one window by --window\n";
    // Three windows: Wide, Narrow and the working layout.
    QTest::newRow("width") << QStringLiteral("--size 10930x10") << choose;
    QTest::newRow("pixels of several") << QStringLiteral("--size 6000x6000") << choose;
}

void ToolRenderTest::tooLarge()
{
    QFETCH(QString, arguments);
    write("file", smallDocument());
    for (const char* output : {" -o out.png", " -o out.svg"}) {
        const CommandResult result =
            panorel(QStringLiteral("render file ") + arguments + QLatin1String(output));
        QCOMPARE(result.status, 2);
        QTEST(result.messages, "message");
        QVERIFY(!exists("out.png") && !exists("out.svg"));
    }
}

QTEST_GUILESS_MAIN(ToolRenderTest)
#include "ToolRenderTest.moc"
