// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <vector>

namespace Panorel::Tests {

struct RecordedBlob
{
    /** File name without its ending. */
    QByteArray name;
    QByteArray bytes;
};

/** The *.blob files of @p folder by name; a file that cannot be read has no bytes. */
inline std::vector<RecordedBlob> recordedBlobs(const QString& folder)
{
    std::vector<RecordedBlob> blobs;
    const QStringList filter(QStringLiteral("*.blob"));
    for (const QFileInfo& info : QDir(folder).entryInfoList(filter, QDir::Files, QDir::Name)) {
        QFile file(info.filePath());
        const bool opened = file.open(QIODevice::ReadOnly);
        blobs.push_back({info.completeBaseName().toUtf8(), opened ? file.readAll() : QByteArray()});
    }
    return blobs;
}

} // namespace Panorel::Tests
