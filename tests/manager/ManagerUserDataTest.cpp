// SPDX-License-Identifier: MIT
#include "ManagerPrivate.h"

#include "Group.h"
#include "support/Text.h"

#include <panorel/Manager.h>

#include <QRect>
#include <QUrl>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** User data that is no text, as a document makes text of it. */
class ManagerUserDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isWrittenAsText_data();
    void isWrittenAsText();
};

void ManagerUserDataTest::isWrittenAsText_data()
{
    QTest::addColumn<QVariant>("userData");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char* name, const QVariant& userData, const char* written) {
        QTest::newRow(name) << QVariant::fromValue(userData) << QByteArray(written);
    };
    row("invalid", QVariant(), "");
    row("true", true, "true");
    row("false", false, "false");
    row("number", -7, "-7");
    row("bytes", QByteArray("by<tes"), "by&lt;tes");
    row("text", "te&xt"_s, "te&amp;xt");
    row("list of texts", QStringList({"a"_s, "b"_s}), "");
    row("rectangle", QRect(1, 2, 3, 4), "");
    row("map", QVariantMap({{"key"_s, 1}}), "");
    row("pointer", QVariant::fromValue<void*>(this), "");
}

void ManagerUserDataTest::isWrittenAsText()
{
    QFETCH(QVariant, userData);
    QFETCH(QByteArray, written);
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    QVERIFY(manager.createView("v"_s));
    Group& group = activeGroupOf(manager);
    group.views[0]->userData = userData;
    group.currentView->userData = userData;
    const QByteArray data = manager.toXml(/*markActive=*/true);
    QCOMPARE(data.count("<UserData>" + written + "</UserData>"), 2);
    QCOMPARE(data.count("<UserData"), 2);
    // It comes back as text, whatever it was.
    QVERIFY(manager.fromXml(data, /*merge=*/false));
    const QVariant text = group.views[0]->userData;
    QCOMPARE(text.userType(), int(QMetaType::QString));
    QCOMPARE(text.toString(), userData.toString());
    QCOMPARE(manager.toXml(/*markActive=*/true), data);
}

QTEST_MAIN(ManagerUserDataTest)
#include "ManagerUserDataTest.moc"
