// SPDX-License-Identifier: MIT

// Gives a fuzzer every file of the folders named on the command line, in place of libFuzzer, so
// that its corpus is a test with any compiler.

#include "Fuzz.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char** argv)
{
    int runs = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir folder(QString::fromLocal8Bit(argv[i]));
        for (const QFileInfo& info : folder.entryInfoList(QDir::Files, QDir::Name)) {
            QFile file(info.filePath());
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            const QByteArray input = file.readAll();
            // An abort leaves no other trace of which file it was.
            std::fprintf(stderr, "%s\n", qUtf8Printable(info.fileName()));
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                                   static_cast<std::size_t>(input.size()));
            ++runs;
        }
    }
    std::printf("%d inputs\n", runs);
    return runs > 0 ? 0 : 1;
}
