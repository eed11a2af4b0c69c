// SPDX-License-Identifier: MIT
#include "WholeFile.h"

#include <QSaveFile>

namespace Panorel::Kit::Detail {

QString writeWholeFile(const QString& fileName, const QByteArray& content)
{
    QSaveFile file(fileName);
    // QSaveFile does not notice if its buffer cannot be written at the end.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    // A disk that becomes full takes a part first, and gives the reason at the next attempt.
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 part = file.write(content.constData() + written, content.size() - written);
        if (part <= 0)
            return file.errorString();
        written += part;
    }
    return file.commit() ? QString() : file.errorString();
}

} // namespace Panorel::Kit::Detail
