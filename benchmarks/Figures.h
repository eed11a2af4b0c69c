// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

#include <QVector>

QVector<Figure> codecFigures();
QVector<Figure> managerFigures();
QVector<Figure> dialogFigures();
QVector<Figure> documentFigures();
QVector<Figure> guardFigures();
QVector<Figure> menuFigures();
QVector<Figure> kitFigures();
QVector<Figure> pictureFigures();
QVector<Figure> stateFigures();
QVector<Figure> layoutDocumentFigures();

/** The heap that 1,000 stored views of two windows take, against the bytes of their layouts. */
Result memoryOfViews(int dockCount);

/** The heap that 1,000 steps of a history take, beside a document of 7 MB, against 64 MB. */
Result memoryOfHistory();
