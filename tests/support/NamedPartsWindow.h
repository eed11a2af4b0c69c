// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

namespace Panorel::Tests {

/** A window that makes parts whose object name is their title. */
class NamedPartsWindow : public QMainWindow
{
protected:
    /** Not added to an area. It takes over @p content. */
    QDockWidget* dock(const QString& name, QWidget* content)
    {
        auto* result = new QDockWidget(name, this);
        result->setObjectName(name);
        result->setWidget(content);
        return result;
    }

    /** Not added to an area; with one action. */
    QToolBar* bar(const QString& name)
    {
        auto* result = new QToolBar(name, this);
        result->setObjectName(name);
        result->addAction(name);
        return result;
    }
};

} // namespace Panorel::Tests
