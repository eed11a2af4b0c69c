// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

#include <QVector>

QVector<Figure> codecFigures();
QVector<Figure> managerFigures();
QVector<Figure> documentFigures();
QVector<Figure> menuFigures();
