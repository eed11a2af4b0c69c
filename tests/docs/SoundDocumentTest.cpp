// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>

#include <QtTest>

namespace Panorel::Tests {

namespace {

// As SECURITY.md has it.
void load(Panorel::Manager& manager, const QByteArray& document)
{
    //! [sound]
    if (Panorel::Kit::LayoutDocument(document).isSound())
        manager.fromXml(document, /*merge=*/false);
    //! [sound]
}

} // namespace

/** The check that SECURITY.md gives to applications. */
class SoundDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ownDocumentIsLoaded();
    void cutOffOneIsNot();
    void harmfulStateIsNot();

private:
    SmallWindow m_window;
    Owner m_owner{{{"1"_s, &m_window}}};
    QByteArray m_document;
};

void SoundDocumentTest::init()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("a"_s));
    m_document = manager.toXml(/*markActive=*/true);
}

void SoundDocumentTest::ownDocumentIsLoaded()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    load(manager, m_document);
    QCOMPARE(manager.views(), QStringList{"a"_s});
}

void SoundDocumentTest::cutOffOneIsNot()
{
    Manager manager({"G"_s}, /*mergeOnApply=*/false);
    load(manager, m_document.chopped(20));
    QCOMPARE(manager.views(), QStringList());
}

// Every state of it in turn: of the tool bars, of the view and of the current view.
void SoundDocumentTest::harmfulStateIsNot()
{
    // One dock record, and its side.
    const QByteArray record = "fd0000000100000000";
    int states = 0;
    for (int at = m_document.indexOf(record); at >= 0; at = m_document.indexOf(record, at + 1)) {
        ++states;
        Manager manager({"G"_s}, /*mergeOnApply=*/false);
        load(manager, QByteArray(m_document).replace(at, 18, "fd0000000100000004"));
        QCOMPARE(manager.views(), QStringList());
    }
    QCOMPARE(states, 3);
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::SoundDocumentTest)
#include "SoundDocumentTest.moc"
