// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

#include <QByteArray>

/** A line of the table on standard output; "over" marks what exceeds its goal. */
void printHeader();
void printResult(const Result& result);

void printGrowths(const QVector<Growth>& growths);

QByteArray toJson(const QVector<Result>& results, const QVector<Growth>& growths, int rounds);
