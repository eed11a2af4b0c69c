// SPDX-License-Identifier: MIT
#include "SkippedView.h"

#include <QDateTime>
#include <QPoint>
#include <QVariant>
#include <QtTest>

using namespace Panorel;

struct OwnType
{
    int value = 1;
};
Q_DECLARE_METATYPE(OwnType)

/** Which user data makes a view a skipped one. */
class SkippedViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void userData_data();
    void userData();
};

namespace {

QVariant text(const char* value)
{
    return QString::fromLatin1(value);
}

void numberRows()
{
    QTest::newRow("int 0") << QVariant(0) << false;
    QTest::newRow("int 1") << QVariant(1) << true;
    QTest::newRow("int -1") << QVariant(-1) << true;
    QTest::newRow("uint 0") << QVariant(0U) << false;
    QTest::newRow("uint 2") << QVariant(2U) << true;
    QTest::newRow("long long 0") << QVariant(0LL) << false;
    QTest::newRow("long long beyond int") << QVariant(1LL << 40) << true;
    QTest::newRow("double 0") << QVariant(0.0) << false;
    QTest::newRow("double 1.5") << QVariant(1.5) << true;
}

void textRows()
{
    QTest::newRow("null text") << QVariant(QString()) << false;
    QTest::newRow("empty text") << text("") << false;
    QTest::newRow("text true") << text("true") << true;
    QTest::newRow("text false") << text("false") << false;
    QTest::newRow("text FALSE") << text("FALSE") << false;
    QTest::newRow("text 0") << text("0") << false;
    QTest::newRow("text 00") << text("00") << true;
    QTest::newRow("text 1") << text("1") << true;
    QTest::newRow("text no") << text("no") << true;
    QTest::newRow("text false with a blank") << text("false ") << true;
    QTest::newRow("bytes false") << QVariant(QByteArray("false")) << false;
    QTest::newRow("bytes true") << QVariant(QByteArray("true")) << true;
    QTest::newRow("letter a") << QVariant(QLatin1Char('a')) << true;
    QTest::newRow("letter of code 0") << QVariant(QChar()) << false;
}

void otherRows()
{
    QTest::newRow("unset") << QVariant() << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("typed, without a value") << QVariant(QVariant::Bool) << false;
    QTest::newRow("list of texts") << QVariant(QStringList(QStringLiteral("true"))) << false;
    QTest::newRow("list") << QVariant(QVariantList({true})) << false;
    QTest::newRow("map") << QVariant(QVariantMap{{QStringLiteral("skipped"), true}}) << false;
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29)) << false;
    QTest::newRow("point") << QVariant(QPoint(1, 1)) << false;
    QTest::newRow("own type") << QVariant::fromValue(OwnType()) << false;
}

} // namespace

void SkippedViewTest::userData_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<bool>("skipped");

    otherRows();
    numberRows();
    textRows();
}

void SkippedViewTest::userData()
{
    QFETCH(QVariant, data);
    QFETCH(bool, skipped);

    QCOMPARE(isSkippedView(data), skipped);
}

QTEST_GUILESS_MAIN(SkippedViewTest)
#include "SkippedViewTest.moc"
