// SPDX-License-Identifier: MIT
#include <panorel/kit/Problem.h>

#include <QMainWindow>

// The second library alone brings the first one and Qt's widgets along.
int main()
{
    static_assert(sizeof(QMainWindow) > 0);
    return Panorel::Kit::isSound({}) ? 0 : 1;
}
