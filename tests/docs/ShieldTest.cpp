// SPDX-License-Identifier: MIT
#include "EditorWindow.h"
#include "LayoutStore.h"

#include "support/SignalLog.h"
#include "support/Text.h"

#include <panorel/Manager.h>

#include <QTest>
#include <QTimer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <memory>

namespace Panorel::Tests {

namespace {

//! [good-name]
// For names that the program asks for itself. The Manager takes any.
bool isGoodName(const QString& name)
{
    return !name.trimmed().isEmpty() && name != QLatin1String("__current__");
}
//! [good-name]

//! [renamed-id]
// A document in which a window's id is replaced by another.
QByteArray withRenamedId(const QByteArray& document, const QString& from, const QString& to)
{
    QByteArray result;
    QXmlStreamReader reader(document);
    QXmlStreamWriter writer(&result);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            writer.writeCurrentToken(reader);
            continue;
        }
        writer.writeStartElement(reader.name().toString());
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            const bool isReplaced =
                attribute.name() == QLatin1String("DescriptorId") && attribute.value() == from;
            writer.writeAttribute(attribute.name().toString(),
                                  isReplaced ? to : attribute.value().toString());
        }
    }
    return result;
}
//! [renamed-id]

QByteArray otherVersion()
{
    return "<ViewData Version=\"1.1.1\"><Groups/></ViewData>";
}

} // namespace

/** What the guide says of the library's oddities, and of how to shield people from them. */
class ShieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anyNameIsTaken();
    void anotherVersionDropsEverything();
    void theVersionIsAskedFor();
    void aSpecialDocumentIsNotAskedForItsVersion();
    void whatAWindowRefusesIsNotTold();
    void resultsAreLookedAt();
    void aViewOfOtherWindowsIsFound();
    void aRenamedWindowFindsItsLayouts();
    void clearIsToldTwice();
    void signalsAreGatheredToOne();

private:
    std::unique_ptr<EditorWindow> m_window;
    std::unique_ptr<Manager> m_manager;
    QStringList m_told;
};

void ShieldTest::init()
{
    m_window = std::make_unique<EditorWindow>();
    m_manager = std::make_unique<Manager>(QStringList{"Group"_s}, /*mergeOnApply=*/false);
    m_manager->registerManagable(*m_window);
    m_manager->saveCurrentViewAs("Mine"_s);
    m_told.clear();
}

void ShieldTest::cleanup()
{
    m_manager.reset();
    m_window.reset();
}

void ShieldTest::anyNameIsTaken()
{
    for (const QString& name : {QString(), "__current__"_s, " "_s}) {
        QVERIFY(m_manager->createView(name));
        QVERIFY(m_manager->views().contains(name));
        QVERIFY(!isGoodName(name));
    }
    // Only the empty one cannot be chosen any more.
    QVERIFY(!m_manager->activateView(QString()));
    QVERIFY(m_manager->activateView("__current__"_s));
    QVERIFY(m_manager->activateView(" "_s));
    QVERIFY(isGoodName("Mine"_s));
}

void ShieldTest::anotherVersionDropsEverything()
{
    QVERIFY(m_manager->fromXml(otherVersion(), /*merge=*/false));
    QCOMPARE(m_manager->views(), QStringList());
}

void ShieldTest::theVersionIsAskedFor()
{
    Panorel::Manager& manager = *m_manager;
    const QByteArray document = otherVersion();
    //! [version]
    const QString problem = LayoutStore::problemWith(document);
    if (problem.isNull())
        manager.fromXml(document, /*merge=*/false);
    //! [version]
    QCOMPARE(manager.views(), QStringList{"Mine"_s});
    QCOMPARE(problem, "It was written by another version of this program."_s);
    QCOMPARE(LayoutStore::problemWith("<html/>"), "It is damaged."_s);
    QVERIFY(LayoutStore::problemWith(manager.toXml(/*markActive=*/true)).isNull());
}

void ShieldTest::aSpecialDocumentIsNotAskedForItsVersion()
{
    QVERIFY(m_manager->setFactoryDefaultView(otherVersion()));
    QVERIFY(m_manager->activateFactoryDefaultView());
    QCOMPARE(m_manager->views(), QStringList());
}

void ShieldTest::whatAWindowRefusesIsNotTold()
{
    QByteArray document = m_manager->toXml(/*markActive=*/true);
    // Every state gets another marker than 255, which Qt refuses.
    document.replace(">000000ff", ">000000fe");
    QVERIFY(m_manager->fromXml(document, /*merge=*/false));
    m_window->addDockWidget(Qt::RightDockWidgetArea, dockOf(*m_window, "files"_s));
    QVERIFY(m_manager->activateView("Mine"_s));
    QCOMPARE(m_manager->activeView(), "Mine"_s);
    QCOMPARE(m_window->dockWidgetArea(dockOf(*m_window, "files"_s)), Qt::RightDockWidgetArea);
}

void ShieldTest::resultsAreLookedAt()
{
    Panorel::Manager& manager = *m_manager;
    const auto tell = [this](const QString& message) { m_told.append(message); };
    for (const QString& name : {"Mine"_s, "Yours"_s}) {
        //! [results]
        if (!manager.activateView(name))
            tell(tr("There is no layout \"%1\".").arg(name));
        //! [results]
    }
    QCOMPARE(m_told, QStringList{"There is no layout \"Yours\"."_s});
}

void ShieldTest::aViewOfOtherWindowsIsFound()
{
    Manager merging({"Group"_s}, /*mergeOnApply=*/true);
    merging.registerManagable(*m_window);
    QVERIFY(merging.fromXml(m_manager->toXml(/*markActive=*/true), /*merge=*/false));
    QVERIFY(merging.viewsValid());
    const QByteArray document =
        withRenamedId(m_manager->toXml(/*markActive=*/true), "editor"_s, "gone"_s);
    QVERIFY(merging.fromXml(document, /*merge=*/false));
    QVERIFY(!merging.viewsValid());
    // A Manager that does not merge says true to everything.
    QVERIFY(m_manager->fromXml(document, /*merge=*/false));
    QVERIFY(m_manager->viewsValid());
}

void ShieldTest::aRenamedWindowFindsItsLayouts()
{
    const QByteArray written = m_manager->toXml(/*markActive=*/true);
    const QByteArray old = withRenamedId(written, "editor"_s, "main"_s);
    QVERIFY(old.contains("DescriptorId=\"main\""));
    m_window->addDockWidget(Qt::RightDockWidgetArea, dockOf(*m_window, "files"_s));
    QVERIFY(m_manager->fromXml(old, /*merge=*/false));
    QVERIFY(m_manager->activateView("Mine"_s));
    QCOMPARE(m_window->dockWidgetArea(dockOf(*m_window, "files"_s)), Qt::RightDockWidgetArea);
    QVERIFY(m_manager->fromXml(withRenamedId(old, "main"_s, "editor"_s), /*merge=*/false));
    QCOMPARE(m_manager->toXml(/*markActive=*/true), written);
    QCOMPARE(m_window->dockWidgetArea(dockOf(*m_window, "files"_s)), Qt::LeftDockWidgetArea);
}

void ShieldTest::clearIsToldTwice()
{
    SignalLog log(*m_manager);
    m_manager->clear();
    QCOMPARE(log.lines(), QStringList({"viewActivated('')"_s, "groupModified()"_s,
                                       "viewActivated(null)"_s, "groupModified()"_s}));
}

void ShieldTest::signalsAreGatheredToOne()
{
    Panorel::Manager& manager = *m_manager;
    QVector<int> seen;
    const auto update = [&seen, &manager] { seen.append(manager.views().size()); };
    //! [gather]
    auto* later = new QTimer(&manager);
    later->setSingleShot(true);
    QObject::connect(later, &QTimer::timeout, &manager, update);
    const auto start = [later] { later->start(0); };
    QObject::connect(&manager, &Panorel::Manager::groupModified, later, start);
    QObject::connect(&manager, &Panorel::Manager::viewActivated, later, start);
    //! [gather]
    manager.clear();
    QCOMPARE(seen, QVector<int>());
    QTRY_COMPARE(seen, QVector<int>{0});
    QCoreApplication::processEvents();
    QCOMPARE(seen, QVector<int>{0});
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::ShieldTest)
#include "ShieldTest.moc"
