// SPDX-License-Identifier: MIT
#include "DenyingNetworkAccessManager.h"

#include <QBuffer>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <memory>

using Panorel::Detail::DenyingNetworkAccessManager;

/**
 * The manager that the validator is given for whatever it may want to fetch. Documents are cleared
 * of all that it would ask for, so only here is it asked.
 */
class DenyingNetworkAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refuses_data();
    void refuses();
    void refusesToSend();
    void replyGoesWithTheManager();
};

void DenyingNetworkAccessTest::refuses_data()
{
    QTest::addColumn<QUrl>("url");
    for (const char* url :
         {"http://localhost/schema", "https://localhost/schema", "ftp://localhost/schema",
          "file:///etc/passwd", "data:,text", "qrc:/ViewSettingsXsdSchema", "unknown:schema", ""})
        QTest::newRow(url) << QUrl(QString::fromLatin1(url));
}

// Who asks must neither get anything nor have a reason to wait.
void DenyingNetworkAccessTest::refuses()
{
    QFETCH(QUrl, url);
    DenyingNetworkAccessManager network;
    const QNetworkRequest request(url);
    QNetworkReply* const reply = network.get(request);
    QSignalSpy finished(reply, &QNetworkReply::finished);
    QVERIFY(reply->isFinished());
    QVERIFY(!reply->isRunning());
    QCOMPARE(reply->error(), QNetworkReply::ContentAccessDenied);
    QCOMPARE(reply->url(), url);
    QCOMPARE(reply->request(), request);
    QCOMPARE(reply->openMode(), QIODevice::OpenMode(QIODevice::ReadOnly));
    QCOMPARE(reply->bytesAvailable(), qint64(0));
    QCOMPARE(reply->readAll(), QByteArray());
    char character = 'x';
    QCOMPARE(reply->read(&character, 1), qint64(-1));
    reply->abort();
    QCOMPARE(reply->error(), QNetworkReply::ContentAccessDenied);
    QCOMPARE(finished.count(), 0);
}

void DenyingNetworkAccessTest::refusesToSend()
{
    DenyingNetworkAccessManager network;
    QBuffer content;
    QVERIFY(content.open(QIODevice::ReadWrite));
    content.write("content");
    content.seek(0);
    const QNetworkReply* const reply =
        network.put(QNetworkRequest(QUrl(QStringLiteral("http://localhost/"))), &content);
    QVERIFY(reply->isFinished());
    QCOMPARE(reply->error(), QNetworkReply::ContentAccessDenied);
    QCOMPARE(content.pos(), qint64(0));
}

void DenyingNetworkAccessTest::replyGoesWithTheManager()
{
    auto network = std::make_unique<DenyingNetworkAccessManager>();
    const QPointer<QNetworkReply> reply = network->get(QNetworkRequest());
    QVERIFY(reply);
    network.reset();
    QVERIFY(!reply);
}

QTEST_GUILESS_MAIN(DenyingNetworkAccessTest)
#include "DenyingNetworkAccessTest.moc"
