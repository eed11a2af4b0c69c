// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/DeepBlob.h"

#include <panorel/kit/Picture.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

namespace Panorel::Tests {

using Kit::Picture;
using Kit::WindowState;
using Part = Picture::Part;

/** Drawing pictures, and what hostile states cannot do to them. */
class PicturePaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hostileNumbers_data();
    void hostileNumbers();
    void millionNestedBlocks();
    void millionItems();
    void paintsInsideTheTarget();
    void paintLeavesThePainterAsItWas();
    void paintsDark();
};

namespace {

constexpr int vertical = 2;
constexpr int visible = 1;

} // namespace

void PicturePaintTest::hostileNumbers_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("large") << 16777215;
    QTest::newRow("-1") << -1;
    QTest::newRow("zero") << 0;
}

void PicturePaintTest::hostileNumbers()
{
    QFETCH(int, number);
    const int n = number;
    BlobBuilder builder = soundHead().dockSection(4);
    for (const int side : {0, 1, 2, 3}) {
        builder.dock(side, n, n).sequence(side, 4).widget("A%1"_s.arg(side), 1, {n, n, n, n});
        builder.widget("B%1"_s.arg(side), 3, {n, n, n, n})
            .widget("C%1"_s.arg(side), 1, {n, n, n, n});
        builder.nested({n, n, n, n}).tabs(n, 7, 2).widget("D%1"_s.arg(side), 1, {n, n, n, n});
        builder.widget("E%1"_s.arg(side), 1, {n, n, n, n});
    }
    builder.dockTail(n, n, {n, n, n, n}).byte(0xF9).ints({n, n, ~n, ~n}).sequence(n & 3, 1);
    builder.widget("F"_s, 1, {n, n, n, n}).toolBarSection(1).line(2, 2);
    builder.toolBar("G"_s, 3, {n, n, n | 1, n}).toolBar("H"_s, 1, {n, n, 0, n});
    for (const QSize& size : {QSize(), QSize(1, 1), QSize(320, 200), QSize(n, 300)}) {
        const Picture picture(WindowState(builder.blob()), size);
        const QRect limits(0, 0, 32768, 32768);
        QVERIFY(limits.contains(QRect(QPoint(), picture.size())));
        for (const Part& part : picture.parts())
            QVERIFY(part.rect.isEmpty() || limits.contains(part.rect));
        QImage image(32, 20, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        picture.paint(painter, image.rect());
    }
}

void PicturePaintTest::millionNestedBlocks()
{
    const Picture picture((WindowState(deepBlob(1000000))), QSize(640, 480));
    QCOMPARE(picture.size(), QSize(640, 480));
}

void PicturePaintTest::millionItems()
{
    BlobBuilder builder = soundHead().dockSection(1).dock(0, 200, 600).sequence(vertical, 1000000);
    const QByteArray item = BlobBuilder().widget(QString(), visible, {0, 10, 5, 20}).blob();
    builder.raw(item.repeated(1000000)).dockTail(600, 600, {4, 4, 8, 8});
    const Picture picture(WindowState(builder.blob()), QSize(640, 480));
    QCOMPARE(picture.parts().size(), 1000001);
}

void PicturePaintTest::paintsInsideTheTarget()
{
    const Picture picture((WindowState(dockBesideCentral().blob())));
    QImage image(400, 400, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    QPainter painter(&image);
    // 806 x 600 in 200 x 200: 200 x 149, from 126 to 275.
    picture.paint(painter, QRectF(100, 100, 200, 200));
    painter.end();
    const QColor red(Qt::red);
    for (const QPoint& outside : {QPoint(200, 110), QPoint(200, 290), QPoint(90, 200)})
        QCOMPARE(image.pixelColor(outside), red);
    for (const QPoint& inside : {QPoint(200, 130), QPoint(200, 270), QPoint(110, 200)})
        QVERIFY(image.pixelColor(inside) != red);
}

void PicturePaintTest::paintLeavesThePainterAsItWas()
{
    const Picture picture((WindowState(dockBesideCentral().blob())));
    QImage image(400, 400, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    const QFont font = painter.font();
    picture.paint(painter, image.rect());
    QCOMPARE(painter.pen(), QPen(Qt::red));
    QCOMPARE(painter.font(), font);
    QCOMPARE(painter.renderHints().testFlag(QPainter::Antialiasing), false);
}

void PicturePaintTest::paintsDark()
{
    const Picture picture((WindowState(dockBesideCentral().blob())));
    for (const bool isDark : {false, true}) {
        QImage image(806, 600, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        Picture::Colors colors;
        colors.isDark = isDark;
        picture.paint(painter, image.rect(), colors);
        painter.end();
        for (const QPoint& place : {QPoint(100, 300), QPoint(500, 300), QPoint(203, 300)})
            QCOMPARE(image.pixelColor(place).lightness() < 128, isDark);
    }
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::PicturePaintTest)
#include "PicturePaintTest.moc"
