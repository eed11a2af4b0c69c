// SPDX-License-Identifier: MIT
#include <panorel/QtState.h>

#include <QByteArray>

#include <cstdio>
#include <cstdlib>

// A program that is linked with the library; it ends as the argument says.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::puts("main begins");
    if (Panorel::QtState().read(QByteArray()))
        return 1;
    std::puts("main ends");
    std::fflush(stdout);
    if (QByteArray(argv[1]) == "exit")
        std::exit(0);
    return 0;
}
