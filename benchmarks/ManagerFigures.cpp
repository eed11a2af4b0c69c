// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>

namespace {

using Panorel::Manager;

const QString firstView = QStringLiteral("first");
const QString secondView = QStringLiteral("second");

// Everything that one figure works on; the figure's functions share it.
struct Stage
{
    Stage(int windowCount, int dockCount, int moreViews, bool mergeOnApply)
        : windows(windowCount, dockCount)
        , manager({QStringLiteral("a"), QStringLiteral("b")}, mergeOnApply)
    {
        manager.registerManagable(windows);
        for (int i = 0; i < moreViews; ++i)
            manager.createView(QStringLiteral("view %1").arg(i));
        first = windows.arrangement(0);
        manager.saveCurrentViewAs(firstView);
        second = windows.arrangement(1);
        manager.saveCurrentViewAs(secondView);
    }

    Windows windows;
    Manager manager;
    QVector<QByteArray> first;
    QVector<QByteArray> second;
};

Figure plainSwitch(const std::shared_ptr<Stage>& stage)
{
    Figure figure;
    figure.name = QStringLiteral("activateView");
    figure.goal = 1.03;
    figure.subject = [stage] {
        stage->manager.activateView(firstView);
        stage->manager.activateView(secondView);
    };
    figure.baseline = [stage] {
        stage->windows.restore(stage->first);
        stage->windows.restore(stage->second);
    };
    figure.check = [stage] {
        stage->manager.activateView(firstView);
        const QVector<QByteArray> byManager = stage->windows.save();
        stage->manager.activateView(secondView);
        stage->windows.restore(stage->first);
        return byManager == stage->windows.save() && byManager != stage->second;
    };
    return figure;
}

// The tool bars of both arrangements are the same, so a merge without QtState's repeats would give
// the stored bytes.
Figure mergingSwitch(const std::shared_ptr<Stage>& stage)
{
    Figure figure;
    figure.name = QStringLiteral("activateView merging");
    figure.goal = 1.17;
    figure.subject = [stage] {
        stage->manager.activateView(firstView);
        stage->manager.activateView(secondView);
    };
    figure.baseline = [stage] {
        (void)stage->windows.save();
        stage->windows.restore(stage->first);
        (void)stage->windows.save();
        stage->windows.restore(stage->second);
    };
    // The bytes differ: with the Manager, the windows keep empty places for what is repeated.
    figure.check = [stage] {
        stage->manager.activateView(firstView);
        const QStringList byManager = stage->windows.places();
        stage->manager.activateView(secondView);
        const QStringList other = stage->windows.places();
        stage->windows.restore(stage->first);
        return byManager == stage->windows.places() && byManager != other;
    };
    return figure;
}

Figure groupSwitch(const std::shared_ptr<Stage>& stage)
{
    Figure figure;
    figure.name = QStringLiteral("activateGroup and back");
    figure.goal = 1.03;
    figure.subject = [stage] {
        stage->manager.activateGroup(QStringLiteral("b"));
        stage->manager.activateGroup(QStringLiteral("a"));
    };
    figure.baseline = [stage] {
        (void)stage->windows.save();
        stage->windows.restore(stage->first);
        (void)stage->windows.save();
        stage->windows.restore(stage->second);
    };
    figure.check = [stage] {
        stage->manager.activateGroup(QStringLiteral("b"));
        stage->windows.restore(stage->first);
        stage->manager.activateGroup(QStringLiteral("a"));
        const bool secondInA = stage->windows.save() == stage->second;
        stage->manager.activateGroup(QStringLiteral("b"));
        const bool firstInB = stage->windows.save() == stage->first;
        stage->manager.activateGroup(QStringLiteral("a"));
        return secondInA && firstInB;
    };
    return figure;
}

Figure saving(const std::shared_ptr<Stage>& stage)
{
    Figure figure;
    figure.name = QStringLiteral("saveCurrentViewAs");
    figure.goal = 1.04;
    figure.subject = [stage] { stage->manager.saveCurrentViewAs(secondView); };
    figure.baseline = [stage] { (void)stage->windows.save(); };
    figure.check = [stage] { return stage->windows.save() == stage->second; };
    return figure;
}

Figure creating(const std::shared_ptr<Stage>& stage)
{
    const QString name = QStringLiteral("created");
    Figure figure;
    figure.name = QStringLiteral("createView");
    figure.goal = 1.04;
    figure.prepare = [stage, name] { stage->manager.deleteView(name); };
    figure.subject = [stage, name] { stage->manager.createView(name); };
    figure.baseline = [stage] { (void)stage->windows.save(); };
    figure.check = [stage, name] { return stage->manager.createView(name); };
    return figure;
}

// A stage, and the series of stages that it is a step of.
struct Setup
{
    int windows;
    int docks;
    int views;
    QVector<Step> steps;
};

QString describe(const Setup& setup)
{
    QString text = QStringLiteral("%1 docks").arg(setup.docks);
    if (setup.windows > 1)
        text = QStringLiteral("%1 windows of ").arg(setup.windows) + text;
    if (setup.views > 2)
        text += QStringLiteral(", %1 views").arg(setup.views);
    return text;
}

QVector<Setup> setups()
{
    const QString docks = QStringLiteral("docks");
    const QString windows = QStringLiteral("windows");
    const QString views = QStringLiteral("views");
    return {{1, 5, 2, {{docks, 5}, {windows, 1}}},
            {1, 20, 2, {{docks, 20}}},
            {1, 80, 2, {{docks, 80}}},
            {5, 5, 2, {{windows, 5}}},
            {20, 5, 2, {{windows, 20}}},
            {1, 20, 10, {{views, 10}}},
            {1, 20, 100, {{views, 100}}},
            {1, 20, 1000, {{views, 1000}}},
            {1, 5, 1000, {}}};
}

void append(QVector<Figure>& figures, Figure figure, const Setup& setup)
{
    for (const Step& step : setup.steps)
        figure.steps.append({figure.name + QStringLiteral(", ") + step.series, step.size});
    figure.name += QStringLiteral(", ") + describe(setup);
    figures.append(figure);
}

} // namespace

QVector<Figure> managerFigures()
{
    QVector<Figure> figures;
    const QVector<Setup> all = setups();
    for (const Setup& setup : all) {
        const auto plain = std::make_shared<Stage>(setup.windows, setup.docks, setup.views - 2,
                                                   /*mergeOnApply=*/false);
        for (const auto& figureOf : {plainSwitch, groupSwitch, saving, creating}) {
            Figure figure = figureOf(plain);
            // The search for the name counts beside so small a window.
            if (setup.views == 1000 && setup.docks == 5)
                figure.goal = 1.2;
            append(figures, figure, setup);
        }
        const auto merging = std::make_shared<Stage>(setup.windows, setup.docks, setup.views - 2,
                                                     /*mergeOnApply=*/true);
        append(figures, mergingSwitch(merging), setup);
    }
    return figures;
}
