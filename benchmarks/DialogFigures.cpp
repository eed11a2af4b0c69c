// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>
#include <panorel/kit/Picture.h>

#include <QCoreApplication>
#include <QDialog>
#include <QPainter>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <memory>

namespace {

using Panorel::Manager;
using Panorel::Kit::Layouts;
using Panorel::Kit::Picture;
using Panorel::Kit::WindowState;

const QSize thumbnail(96, 64);

/** A plain list of the same names with a picture each, all of which are drawn. */
std::unique_ptr<QDialog> plainDialog(const Manager& manager, const QVector<QByteArray>& states)
{
    auto dialog = std::make_unique<QDialog>();
    auto* list = new QTreeWidget(dialog.get());
    list->setIconSize(thumbnail);
    const QStringList views = manager.views();
    for (int i = 0; i < views.size(); ++i) {
        QPixmap pixmap(thumbnail);
        pixmap.fill(Qt::white);
        QPainter painter(&pixmap);
        Picture(WindowState(states[i % states.size()])).paint(painter, QRectF(pixmap.rect()));
        painter.end();
        auto* item = new QTreeWidgetItem(list, {views[i]});
        item->setIcon(0, pixmap);
    }
    (new QVBoxLayout(dialog.get()))->addWidget(list);
    return dialog;
}

void show(QDialog& dialog)
{
    dialog.show();
    QCoreApplication::processEvents();
    dialog.repaint();
}

/** A Manager with so many layouts that no two neighbours are alike. */
struct Stage
{
    explicit Stage(int views)
        : windows(1, 20)
        , manager({QStringLiteral("a")}, /*mergeOnApply=*/false)
        , layouts(manager)
    {
        layouts.addOwner(windows);
        for (int shift = 0; shift < 4; ++shift)
            states.append(windows.arrangement(shift).first());
        for (int i = 0; i < views; ++i) {
            windows.restore({states[i % states.size()]});
            manager.createView(QStringLiteral("view %1").arg(i));
        }
    }

    Windows windows;
    Manager manager;
    Layouts layouts;
    QVector<QByteArray> states;
};

Figure opening(int views)
{
    const auto stage = std::make_shared<Stage>(views);
    Figure figure;
    figure.name = QStringLiteral("dialog, opening with %1 layouts").arg(views);
    figure.goal = views == 1000 ? 1 : 0;
    figure.steps = {{QStringLiteral("dialog opening, layouts"), double(views)}};
    figure.subject = [stage] {
        const std::unique_ptr<QDialog> dialog(stage->layouts.createDialog(nullptr));
        show(*dialog);
    };
    figure.baseline = [stage] { show(*plainDialog(stage->manager, stage->states)); };
    figure.check = [stage, views] {
        const std::unique_ptr<QDialog> dialog(stage->layouts.createDialog(nullptr));
        show(*dialog);
        const auto* view = dialog->findChild<QTreeView*>();
        return view->model()->rowCount(view->rootIndex()) == views;
    };
    return figure;
}

} // namespace

QVector<Figure> dialogFigures()
{
    return {opening(10), opening(100), opening(1000)};
}
