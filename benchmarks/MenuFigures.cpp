// SPDX-License-Identifier: MIT
#include "Figures.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QActionGroup>
#include <QApplication>
#include <QLineEdit>
#include <QWidgetAction>

#include <algorithm>

namespace {

using Panorel::Manager;
using Panorel::Menu;

struct Stage
{
    explicit Stage(int viewCount)
        : manager({QStringLiteral("a")}, /*mergeOnApply=*/false)
    {
        for (int i = 0; i < viewCount; ++i)
            manager.saveCurrentViewAs(QStringLiteral("view %1").arg(i));
        menu = std::make_unique<Menu>(&manager, /*extended=*/false);
        bareGroup = new QActionGroup(&bareMenu);
        bareSeparator = bareMenu.addSeparator();
        bareSaveAs = bareMenu.addMenu(QStringLiteral("Save"));
        bareDelete = bareMenu.addMenu(QStringLiteral("Delete"));
        rebuildBare();
    }

    void addBareEntry(const QString& name)
    {
        auto* entry = new QAction(name, &bareMenu);
        entry->setFont(font);
        entry->setData(name);
        entry->setCheckable(true);
        bareGroup->addAction(entry);
        bareMenu.insertAction(bareSeparator, entry);
    }

    // The same entries with the same properties and one connection each, the last one checked.
    void rebuildBare()
    {
        qDeleteAll(bareGroup->actions());
        QStringList names = manager.views();
        for (const QString& name : qAsConst(names))
            addBareEntry(name);
        bareGroup->actions().constLast()->setChecked(true);
        bareSaveAs->clear();
        bareDelete->clear();
        names.sort();
        auto* edit = new QWidgetAction(bareSaveAs);
        edit->setDefaultWidget(new QLineEdit(bareSaveAs));
        bareSaveAs->addAction(edit);
        for (const QString& name : qAsConst(names)) {
            QObject::connect(bareSaveAs->addAction(name), &QAction::triggered, &bareMenu,
                             &QWidget::close);
            QObject::connect(bareDelete->addAction(name), &QAction::triggered, &bareMenu,
                             &QWidget::close);
        }
    }

    Manager manager;
    std::unique_ptr<Menu> menu;
    QFont font = QApplication::font();
    QMenu bareMenu;
    QActionGroup* bareGroup;
    QAction* bareSeparator;
    QMenu* bareSaveAs;
    QMenu* bareDelete;
};

// What an entry shows; empty for those that are not for a view.
QStringList entries(const QMenu& menu)
{
    QStringList list;
    for (const QAction* action : menu.actions()) {
        list.append(action->data().toString() +
                    (action->isChecked() ? QStringLiteral(" checked") : QString()));
    }
    return list;
}

Figure against(const std::shared_ptr<Stage>& stage, int viewCount, const QString& name)
{
    Figure figure;
    figure.name = QStringLiteral("%1, %2 views").arg(name).arg(viewCount);
    figure.steps = {{name + QStringLiteral(", views"), static_cast<double>(viewCount)}};
    figure.baseline = [stage] { stage->rebuildBare(); };
    return figure;
}

Figure rebuilding(const std::shared_ptr<Stage>& stage, int viewCount)
{
    Figure figure = against(stage, viewCount, QStringLiteral("menu rebuild"));
    figure.subject = [stage] { stage->menu->updateMenu(); };
    figure.check = [stage] { return entries(*stage->menu) == entries(stage->bareMenu); };
    return figure;
}

// The check mark to the first view and back to the last.
Figure selecting(const std::shared_ptr<Stage>& stage, int viewCount)
{
    const QString first = stage->manager.views().constFirst();
    const QString last = stage->manager.views().constLast();
    Figure figure = against(stage, viewCount, QStringLiteral("menu selection"));
    figure.subject = [stage, first, last] {
        stage->manager.activateView(first);
        stage->manager.activateView(last);
    };
    figure.check = [stage, first, last] {
        stage->manager.activateView(first);
        const bool moved = entries(*stage->menu).contains(first + QStringLiteral(" checked"));
        stage->manager.activateView(last);
        return moved && entries(*stage->menu) == entries(stage->bareMenu);
    };
    return figure;
}

} // namespace

QVector<Figure> menuFigures()
{
    struct Size
    {
        int views;
        double goal;
    };
    QVector<Figure> figures;
    for (const Size size : {Size{10, 1.06}, Size{100, 1.05}, Size{1000, 1.03}}) {
        const auto stage = std::make_shared<Stage>(size.views);
        for (const auto& figure : {rebuilding, selecting}) {
            figures.append(figure(stage, size.views));
            figures.last().goal = size.goal;
        }
    }
    return figures;
}
