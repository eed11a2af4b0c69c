// SPDX-License-Identifier: MIT
#include "DenyingNetworkAccessManager.h"

#include <QNetworkReply>

namespace Panorel::Detail {

namespace {

class RefusedReply : public QNetworkReply
{
public:
    RefusedReply(const QNetworkRequest& request, QObject* parent)
        : QNetworkReply(parent)
    {
        setRequest(request);
        setUrl(request.url());
        setOpenMode(QIODevice::ReadOnly);
        setError(QNetworkReply::ContentAccessDenied, QString());
        // Finished from the start, so whoever asked has no reason to wait in an event loop, where
        // the application's own events would be served in the middle of a validation.
        setFinished(true);
    }

    void abort() override {}

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        Q_UNUSED(data)
        Q_UNUSED(maxSize)
        return -1;
    }
};

} // namespace

QNetworkReply* DenyingNetworkAccessManager::createRequest(Operation operation,
                                                          const QNetworkRequest& request,
                                                          QIODevice* outgoingData)
{
    Q_UNUSED(operation)
    Q_UNUSED(outgoingData)
    return new RefusedReply(request, this);
}

} // namespace Panorel::Detail
