// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace {

using Panorel::Manager;
using Panorel::Kit::Layouts;

const QString firstView = QStringLiteral("first");
const QString secondView = QStringLiteral("second");

/** Windows with two layouts to switch between, and others. */
struct Stage
{
    explicit Stage(int dockCount, bool merges)
        : windows(1, dockCount)
        , manager({QStringLiteral("a")}, merges)
    {}

    void createViews(int count)
    {
        for (int i = 2; i < count; ++i)
            manager.createView(QStringLiteral("view %1").arg(i));
        (void)windows.arrangement(0);
        manager.saveCurrentViewAs(firstView);
        (void)windows.arrangement(1);
        manager.saveCurrentViewAs(secondView);
    }

    void goRound()
    {
        manager.activateView(firstView);
        manager.activateView(secondView);
    }

    void saveAndGoRound()
    {
        manager.activateView(firstView);
        manager.saveCurrentViewAs(firstView);
        manager.activateView(secondView);
        manager.saveCurrentViewAs(secondView);
    }

    Windows windows;
    Manager manager;
};

struct KitStage : Stage
{
    KitStage(int dockCount, bool merges, const QString& fileName = QString())
        : Stage(dockCount, merges)
        , layouts(manager)
    {
        layouts.addOwner(windows);
        if (!fileName.isEmpty())
            layouts.start(fileName);
    }

    Layouts layouts;
};

void processEvents()
{
    QCoreApplication::processEvents();
    // As an event loop does. Each event that is left makes the next ones take longer.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Figure switching(int docks, int views, bool merges)
{
    const auto own = std::make_shared<Stage>(docks, merges);
    own->manager.registerManagable(own->windows);
    const auto kit = std::make_shared<KitStage>(docks, merges);
    own->createViews(views);
    kit->createViews(views);
    Figure figure;
    figure.name = QStringLiteral("kit-switch%1, %2 docks, %3 views")
                      .arg(merges ? QStringLiteral(" merging") : QString())
                      .arg(docks)
                      .arg(views);
    figure.goal = 1.15;
    figure.prepare = processEvents;
    figure.subject = [kit] { kit->goRound(); };
    figure.baseline = [own] { own->goRound(); };
    figure.check = [own, kit] {
        own->manager.activateView(firstView);
        kit->manager.activateView(firstView);
        const QStringList first = own->windows.places();
        const bool same = first == kit->windows.places();
        own->manager.activateView(secondView);
        kit->manager.activateView(secondView);
        return same && own->windows.places() == kit->windows.places() &&
               own->windows.places() != first;
    };
    return figure;
}

// One more round after a hundred rounds, against one more after the first.
Figure hundredRounds(int docks)
{
    const auto old = std::make_shared<KitStage>(docks, /*merges=*/true);
    const auto fresh = std::make_shared<KitStage>(docks, /*merges=*/true);
    for (const auto& stage : {old, fresh})
        stage->createViews(2);
    for (int round = 1; round <= 100; ++round) {
        old->saveAndGoRound();
        processEvents();
    }
    Figure figure;
    figure.name = QStringLiteral("kit round 100, %1 docks").arg(docks);
    figure.goal = 1.05;
    figure.prepare = processEvents;
    figure.subject = [old] { old->saveAndGoRound(); };
    figure.baseline = [fresh] { fresh->saveAndGoRound(); };
    figure.check = [old, fresh] {
        fresh->saveAndGoRound();
        const QByteArray first = fresh->manager.toXml(/*markActive=*/true);
        return old->manager.toXml(/*markActive=*/true).size() == first.size();
    };
    return figure;
}

/** The files of a program that starts and ends each day, as they were on the first and the last. */
struct Diary
{
    explicit Diary(int docks)
        : dockCount(docks)
    {
        for (int day = 1; day <= 40; ++day) {
            KitStage program(dockCount, /*merges=*/true, name("today"));
            processEvents();
            if (day == 1)
                program.createViews(2);
            (void)program.layouts.save();
            if (day == 1)
                QFile::copy(name("today"), name("first"));
        }
        QFile::copy(name("today"), name("last"));
    }

    QString name(const char* file) const { return folder.filePath(QString::fromLatin1(file)); }

    void start(const char* file) const
    {
        KitStage program(dockCount, /*merges=*/true, name(file));
        processEvents();
    }

    int dockCount;
    QTemporaryDir folder;
};

Figure fortyDays(int docks)
{
    const auto diary = std::make_shared<Diary>(docks);
    Figure figure;
    figure.name = QStringLiteral("kit start on day 40, %1 docks").arg(docks);
    figure.goal = 1.05;
    figure.subject = [diary] { diary->start("last"); };
    figure.baseline = [diary] { diary->start("first"); };
    figure.check = [diary] {
        return QFile(diary->name("last")).size() == QFile(diary->name("first")).size();
    };
    return figure;
}

} // namespace

QVector<Figure> kitFigures()
{
    QVector<Figure> figures;
    for (const bool merges : {false, true}) {
        for (const int docks : {5, 20, 80})
            figures.append(switching(docks, 2, merges));
        figures.append(switching(20, 1000, merges));
    }
    figures.append(hundredRounds(20));
    figures.append(fortyDays(20));
    return figures;
}
