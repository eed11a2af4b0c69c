// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

#include <QVector>

QVector<Figure> codecFigures();
QVector<Figure> managerFigures();
QVector<Figure> documentFigures();
QVector<Figure> menuFigures();

/** The heap that 1,000 stored views of two windows take, against the bytes of their layouts. */
Result memoryOfViews(int dockCount);
