// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "Windows.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>

#include <memory>

namespace {

using Panorel::Manager;
using Panorel::Kit::LayoutDocument;

// What a Manager writes of real windows.
QByteArray written(int viewCount, int dockCount)
{
    Windows windows(2, dockCount);
    Manager manager({QStringLiteral("a")}, /*mergeOnApply=*/false);
    manager.registerManagable(windows);
    (void)windows.arrangement(0);
    for (int i = 0; i < viewCount; ++i)
        manager.createView(QStringLiteral("view %1").arg(i));
    return manager.toXml(/*markActive=*/true);
}

// Many views without anything in them.
QByteArray tiny()
{
    QByteArray views;
    for (int i = 0; i < 8000; ++i)
        views += "<View Name=\"v" + QByteArray::number(i) + "\"/>";
    return "<ViewData Version=\"1.1.0\"><Groups><Group Name=\"a\"><Views>" + views +
           "</Views><CurrentView Name=\"c\"/></Group></Groups></ViewData>";
}

// Reading a document and checking all that is in it, against the validation alone.
Figure checking(const QString& name, const QByteArray& document)
{
    const auto manager = std::make_shared<Manager>(QStringList(QStringLiteral("a")),
                                                   /*mergeOnApply=*/false);
    Figure figure;
    figure.name = QStringLiteral("check of a document, ") + name;
    figure.goal = 1.3;
    figure.subject = [document] { (void)LayoutDocument(document).check(); };
    figure.baseline = [manager, document] { (void)manager->setFactoryDefaultView(document); };
    figure.check = [manager, document] {
        return manager->setFactoryDefaultView(document) && LayoutDocument(document).isSound();
    };
    return figure;
}

} // namespace

QVector<Figure> layoutDocumentFigures()
{
    return {checking(QStringLiteral("1 view"), written(1, 10)),
            checking(QStringLiteral("10 views"), written(10, 10)),
            checking(QStringLiteral("100 views"), written(100, 10)),
            checking(QStringLiteral("100 views of 80 docks"), written(100, 80)),
            checking(QStringLiteral("8,000 empty views"), tiny())};
}
