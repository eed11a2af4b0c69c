// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

#include <QByteArray>

/** A line of the table on standard output. */
void printHeader();
void printResult(const Result& result);

QByteArray toJson(const QVector<Result>& results, int rounds);
