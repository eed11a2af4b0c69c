// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QRandomGenerator>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

// A random document with names, ids and marks that occur more than once, some of them empty.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed)
        : m_random(seed)
    {}

    QByteArray make()
    {
        return document(
            repeat(
                4,
                [this] {
                    return group(
                        pick({"A", "B", "C", ""}),
                        repeat(
                            6,
                            [this] {
                                return view(name(), content(), pick({nullptr, "1", "true", "0"}));
                            }),
                        content());
                }),
            repeat(3, [this] { return toolBarState(name(), hex()); }));
    }

private:
    template<typename Piece>
    QByteArray repeat(int most, Piece piece)
    {
        QByteArray pieces;
        for (int left = m_random.bounded(most + 1); left > 0; --left)
            pieces += piece();
        return pieces;
    }

    QByteArray pick(const QByteArrayList& list) { return list.at(m_random.bounded(list.size())); }
    QByteArray name() { return pick({"a", "b", "&lt;c&gt;", "", " d ", "\xC3\xA9", "&#9;"}); }
    QByteArray hex() { return pick({"", "00", "FF00", " aBcD ", "0123456789"}); }
    QByteArray content()
    {
        const QByteArray states = repeat(3, [this] { return state(name(), hex()); });
        return states + pick({"", "<UserData/>", "<UserData> a\nb &amp; </UserData>"});
    }

    QRandomGenerator m_random;
};

QByteArray viewsOf(const QByteArray& data)
{
    const int start = data.indexOf("<Views>");
    return data.mid(start, data.indexOf("</Views>") - start);
}

} // namespace

/** What is read is written so that reading it again gives the same. */
class DocumentFixedPointTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writtenDocumentIsReadAsItself_data();
    void writtenDocumentIsReadAsItself();
    void liveLayoutsComeBack();
};

void DocumentFixedPointTest::writtenDocumentIsReadAsItself_data()
{
    QTest::addColumn<bool>("merge");
    QTest::newRow("replace") << false;
    QTest::newRow("merge into an empty Manager") << true;
}

void DocumentFixedPointTest::writtenDocumentIsReadAsItself()
{
    QFETCH(bool, merge);
    for (quint32 seed = 1; seed <= 100; ++seed) {
        const QByteArray data = RandomDocument(seed).make();
        Manager first(names("A,B"), /*mergeOnApply=*/false);
        QVERIFY2(first.fromXml(data, merge), data.constData());
        const QByteArray written = first.toXml(/*markActive=*/true);
        Manager second(names("A,B"), /*mergeOnApply=*/false);
        QVERIFY(second.fromXml(written, merge));
        QCOMPARE(second.toXml(/*markActive=*/true), written);
        QVERIFY(first.fromXml(written, merge));
        QCOMPARE(first.toXml(/*markActive=*/true), written);
    }
}

void DocumentFixedPointTest::liveLayoutsComeBack()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(names("A,B"), /*mergeOnApply=*/true);
    manager.registerManagable(owner);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.saveCurrentViewAs("right"_s));
    const QByteArray written = manager.toXml(/*markActive=*/true);
    QVERIFY(manager.activateView("left"_s));
    manager.deleteView("right"_s);
    QVERIFY(manager.fromXml(written, /*merge=*/false));
    QCOMPARE(manager.views(), names("left,right"));
    QCOMPARE(manager.activeView(), "right"_s);
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
    // The saved views only: the live layout is a new one of Qt's for the same arrangement.
    QCOMPARE(viewsOf(manager.toXml(/*markActive=*/true)), viewsOf(written));
}

QTEST_MAIN(DocumentFixedPointTest)
#include "DocumentFixedPointTest.moc"
