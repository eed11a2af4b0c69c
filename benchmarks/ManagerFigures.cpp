// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>
#include <panorel/QtState.h>

namespace {

using Panorel::Manager;
using Panorel::QtState;

const QString firstView = QStringLiteral("first");
const QString secondView = QStringLiteral("second");

// Everything that one figure works on; the figure's functions share it.
struct Stage
{
    Stage(int windowCount, int dockCount, bool mergeOnApply)
        : windows(windowCount, dockCount)
        , manager({QStringLiteral("a"), QStringLiteral("b")}, mergeOnApply)
    {
        manager.registerManagable(windows);
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

QVector<QByteArray> merged(const QVector<QByteArray>& stored, const QVector<QByteArray>& live)
{
    QVector<QByteArray> result;
    for (int i = 0; i < stored.size(); ++i) {
        QtState a;
        QtState b;
        (void)a.read(stored.at(i));
        (void)b.read(live.at(i));
        result.append(QtState::merge(a, b).write());
    }
    return result;
}

Figure plainSwitch(const QString& what, const std::shared_ptr<Stage>& stage)
{
    Figure figure;
    figure.name = QStringLiteral("activateView, ") + what;
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

Figure mergingSwitch(const QString& what, const std::shared_ptr<Stage>& stage)
{
    const QVector<QByteArray> first = merged(stage->first, stage->second);
    const QVector<QByteArray> second = merged(stage->second, stage->first);
    Figure figure;
    figure.name = QStringLiteral("activateView merging, ") + what;
    figure.goal = 1.05;
    figure.subject = [stage] {
        stage->manager.activateView(firstView);
        stage->manager.activateView(secondView);
    };
    figure.baseline = [stage, first, second] {
        (void)stage->windows.save();
        stage->windows.restore(first);
        (void)stage->windows.save();
        stage->windows.restore(second);
    };
    figure.check = [stage, first] {
        stage->manager.activateView(firstView);
        const QVector<QByteArray> byManager = stage->windows.save();
        stage->manager.activateView(secondView);
        stage->windows.restore(first);
        return byManager == stage->windows.save();
    };
    return figure;
}

Figure groupSwitch(const std::shared_ptr<Stage>& stage)
{
    Figure figure;
    figure.name = QStringLiteral("activateGroup and back, 20 docks");
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
    figure.name = QStringLiteral("saveCurrentViewAs, 20 docks");
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
    figure.name = QStringLiteral("createView, 20 docks");
    figure.goal = 1.04;
    figure.prepare = [stage, name] { stage->manager.deleteView(name); };
    figure.subject = [stage, name] { stage->manager.createView(name); };
    figure.baseline = [stage] { (void)stage->windows.save(); };
    figure.check = [stage, name] { return stage->manager.createView(name); };
    return figure;
}

} // namespace

QVector<Figure> managerFigures()
{
    QVector<Figure> figures;
    for (const int docks : {5, 20, 80}) {
        figures.append(plainSwitch(QStringLiteral("%1 docks").arg(docks),
                                   std::make_shared<Stage>(1, docks, /*mergeOnApply=*/false)));
    }
    figures.append(plainSwitch(QStringLiteral("20 windows of 5 docks"),
                               std::make_shared<Stage>(20, 5, /*mergeOnApply=*/false)));
    auto crowded = std::make_shared<Stage>(1, 20, /*mergeOnApply=*/false);
    for (int i = 0; i < 1000; ++i)
        crowded->manager.createView(QStringLiteral("view %1").arg(i));
    figures.append(plainSwitch(QStringLiteral("20 docks, 1,000 views"), crowded));
    auto single = std::make_shared<Stage>(1, 20, /*mergeOnApply=*/false);
    figures.append(groupSwitch(single));
    figures.append(saving(single));
    figures.append(creating(single));
    for (const int docks : {5, 20, 80}) {
        figures.append(mergingSwitch(QStringLiteral("%1 docks").arg(docks),
                                     std::make_shared<Stage>(1, docks, /*mergeOnApply=*/true)));
    }
    return figures;
}
