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
            manager.createView(QStringLiteral("view %1").arg(i));
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

    // The same entries with the same properties and one connection each.
    void rebuildBare()
    {
        qDeleteAll(bareGroup->actions());
        QStringList names = manager.views();
        for (const QString& name : qAsConst(names))
            addBareEntry(name);
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

Figure rebuilding(int viewCount, double goal)
{
    const auto stage = std::make_shared<Stage>(viewCount);
    Figure figure;
    figure.name = QStringLiteral("menu rebuild, %1 views").arg(viewCount);
    figure.goal = goal;
    figure.subject = [stage] { stage->menu->updateMenu(); };
    figure.baseline = [stage] { stage->rebuildBare(); };
    figure.check = [stage] {
        const auto texts = [](const QMenu& menu) {
            QStringList list;
            for (const QAction* action : menu.actions())
                list.append(action->data().toString());
            return list;
        };
        return texts(*stage->menu) == texts(stage->bareMenu);
    };
    return figure;
}

} // namespace

QVector<Figure> menuFigures()
{
    return {rebuilding(10, 1.06), rebuilding(100, 1.05), rebuilding(1000, 1.03)};
}
