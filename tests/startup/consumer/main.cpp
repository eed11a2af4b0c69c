// SPDX-License-Identifier: MIT
#include <panorel/QtState.h>

#include <QByteArray>

#include <cstdio>

int main()
{
    std::puts(Panorel::QtState().read(QByteArray()) ? "unexpected" : "main");
    return 0;
}
