// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentFixture.h"
#include "support/MessageWatch.h"
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

namespace Panorel::Tests {

/** A Manager with two groups and a window, into which documents are put. */
class DocumentJudge
{
public:
    DocumentJudge()
    {
        owner.windows = {{"w"_s, &window}};
        manager.registerManagable(owner);
        const QByteArray groups =
            group("A", view("a1", state("w", "aa") + userData("kept"), "true") + view("a2")) +
            group("B", view("b1", state("x", "bb"), "true"), state("w", "cc"));
        m_ready = manager.fromXml(document(groups), /*merge=*/false) &&
                  manager.setFactoryDefaultView(document(group("A", view("factory"))));
        (void)record.take();
    }

    /** All four ways by which a document comes in take it. */
    void expectAccepted(const QByteArray& data)
    {
        QVERIFY(m_ready);
        const MessageWatch watch(MessageWatch::Started);
        QVERIFY(manager.setFactoryDefaultView(data));
        QVERIFY(manager.setProgramStartView(data));
        QVERIFY(manager.fromXml(data, /*merge=*/true));
        QVERIFY(manager.fromXml(data, /*merge=*/false));
        QCOMPARE(watch.messages(), QStringList());
    }

    /** All four ways refuse it, and nothing changes and nothing is emitted or logged. */
    void expectRefused(const QByteArray& data)
    {
        QVERIFY(m_ready);
        const QByteArrayList before = snapshot();
        const MessageWatch watch(MessageWatch::Started);
        QVERIFY(!manager.fromXml(data, /*merge=*/true));
        QVERIFY(!manager.fromXml(data, /*merge=*/false));
        QVERIFY(!manager.setFactoryDefaultView(data));
        QVERIFY(!manager.setProgramStartView(data));
        QCOMPARE(watch.messages(), QStringList());
        QCOMPARE(record.lines(), QStringList());
        QCOMPARE(snapshot(), before);
        QVERIFY(!manager.programStartViewSet());
        QVERIFY(manager.activateFactoryDefaultView());
        QCOMPARE(manager.views(), names("factory"));
    }

    SmallWindow window;
    Owner owner;
    Manager manager{names("A,B"), /*mergeOnApply=*/false};
    SignalLog record{manager};

private:
    QByteArrayList snapshot()
    {
        return {window.saveState(0), manager.activeGroup().toUtf8(), manager.toXml(true)};
    }

    bool m_ready = false;
};

} // namespace Panorel::Tests
