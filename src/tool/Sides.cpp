// SPDX-License-Identifier: MIT
#include "Sides.h"

#include <QCoreApplication>

namespace Panorel::Tool {

namespace {

static_assert(int(Qt::LeftDockWidgetArea) == int(Qt::LeftToolBarArea) &&
              int(Qt::RightDockWidgetArea) == int(Qt::RightToolBarArea) &&
              int(Qt::TopDockWidgetArea) == int(Qt::TopToolBarArea) &&
              int(Qt::BottomDockWidgetArea) == int(Qt::BottomToolBarArea));

const char* sideText(int area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return QT_TRANSLATE_NOOP("Panorel::Tool::Sides", "left");
    case Qt::RightDockWidgetArea:
        return QT_TRANSLATE_NOOP("Panorel::Tool::Sides", "right");
    case Qt::TopDockWidgetArea:
        return QT_TRANSLATE_NOOP("Panorel::Tool::Sides", "top");
    case Qt::BottomDockWidgetArea:
        return QT_TRANSLATE_NOOP("Panorel::Tool::Sides", "bottom");
    default:
        return "";
    }
}

} // namespace

QString identifierOfSide(int area)
{
    return QString::fromLatin1(sideText(area));
}

QString nameOfSide(int area)
{
    const char* text = sideText(area);
    return *text ? QCoreApplication::translate("Panorel::Tool::Sides", text) : QString();
}

} // namespace Panorel::Tool
