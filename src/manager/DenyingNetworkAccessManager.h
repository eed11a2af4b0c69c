// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkAccessManager>

namespace Panorel::Detail {

/**
 * Answers every request at once with a refusal. A document can name a schema of its own, by file
 * name or address, and the validator would fetch it.
 */
class DenyingNetworkAccessManager : public QNetworkAccessManager
{
    Q_OBJECT

public:
    DenyingNetworkAccessManager() = default;
    ~DenyingNetworkAccessManager() override = default;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;
};

} // namespace Panorel::Detail
