// SPDX-License-Identifier: MIT
#include "CuresFixture.h"

/** Every change from the menu has a way back, and the way back takes nothing else along. */
class UndoCuresTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray viewOf(CuresFixture& f) { return f.manager.toXml(/*markActive=*/false); }

private Q_SLOTS:
    void deletingIsUndone()
    {
        CuresFixture f;
        for (const char* name : {"A", "B", "C"})
            f.save(QLatin1String(name));
        f.manager.activateView(QStringLiteral("B"));
        LayoutCures::rememberChanges(f.menu, f.manager, f.undo, f.tell());
        f.open(f.deletion());
        f.choose(*f.deletion(), QStringLiteral("B"));
        QCOMPARE(f.manager.views(), QStringList({QStringLiteral("A"), QStringLiteral("C")}));
        QCOMPARE(f.told, QStringList{QStringLiteral("Deleted \"B\".")});
        QCOMPARE(f.undo.lastChange(), QStringLiteral("Delete \"B\""));
        f.undo.undo();
        QCOMPARE(f.manager.views(),
                 QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
        QCOMPARE(f.manager.activeView(), QStringLiteral("B"));
        QVERIFY(!f.undo.canUndo());
    }

    void overwritingIsUndone_data()
    {
        QTest::addColumn<bool>("typed");
        QTest::newRow("by its entry") << false;
        QTest::newRow("by typing its name") << true;
    }

    void overwritingIsUndone()
    {
        QFETCH(bool, typed);
        CuresFixture f;
        f.save(QStringLiteral("A"));
        LayoutCures::focusNameField(f.menu);
        LayoutCures::rememberChanges(f.menu, f.manager, f.undo, f.tell());
        f.dock.close();
        f.open(f.saveAs());
        if (typed) {
            f.type("A");
            f.press(Qt::Key_Return);
        } else {
            f.choose(*f.saveAs(), QStringLiteral("A"));
        }
        QCOMPARE(f.told, QStringList{QStringLiteral("Saved the layout over \"A\".")});
        f.undo.undo();
        // What is shown now stays, and the layout has its dock widget again.
        QVERIFY(f.dock.isHidden());
        QVERIFY(f.manager.activateView(QStringLiteral("A")));
        QVERIFY(!f.dock.isHidden());
    }

    void savingIsUndone()
    {
        CuresFixture f;
        LayoutCures::focusNameField(f.menu);
        LayoutCures::rememberChanges(f.menu, f.manager, f.undo, f.tell());
        f.open(f.saveAs());
        f.type("New");
        f.press(Qt::Key_Return);
        QCOMPARE(f.told, QStringList{QStringLiteral("Saved the layout as \"New\".")});
        f.undo.undo();
        QCOMPARE(f.manager.views(), QStringList());
    }

    void resettingIsUndone_data()
    {
        QTest::addColumn<QString>("label");
        QTest::newRow("program start") << QStringLiteral("Reset Layout to Program Start");
        QTest::newRow("factory default") << QStringLiteral("Reset Layout to Factory Default");
    }

    void resettingIsUndone()
    {
        QFETCH(QString, label);
        CuresFixture f;
        const QByteArray document = viewOf(f);
        QVERIFY(f.manager.setProgramStartView(document));
        QVERIFY(f.manager.setFactoryDefaultView(document));
        f.save(QStringLiteral("A"));
        f.dock.close();
        LayoutCures::rememberChanges(f.menu, f.manager, f.undo, f.tell());
        f.open();
        f.choose(f.menu, label);
        QCOMPARE(f.manager.views(), QStringList());
        QVERIFY(!f.dock.isHidden());
        QCOMPARE(f.told.size(), 1);
        f.undo.undo();
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("A")});
        QVERIFY(f.dock.isHidden());
    }

    // As a keyboard shortcut does, without the menu being open.
    void actionTriggeredByItselfIsUndone()
    {
        CuresFixture f;
        f.save(QStringLiteral("A"));
        LayoutCures::rememberChanges(f.menu, f.manager, f.undo, f.tell());
        f.entry(*f.deletion(), QStringLiteral("A"))->trigger();
        QCOMPARE(f.manager.views(), QStringList());
        f.undo.undo();
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("A")});
    }

    void switchingIsNoChange()
    {
        CuresFixture f;
        f.save(QStringLiteral("A"));
        LayoutCures::rememberChanges(f.menu, f.manager, f.undo, f.tell());
        f.open();
        f.press(Qt::Key_Return);
        QVERIFY(!f.undo.canUndo());
    }

    void otherGroupKeepsItsWorkingLayout()
    {
        CuresFixture f;
        f.save(QStringLiteral("A"));
        f.undo.remember(QStringLiteral("Delete"), LayoutUndo::Windows::Stay);
        f.manager.deleteView(QStringLiteral("A"));
        QVERIFY(f.manager.activateGroup(QStringLiteral("Second")));
        f.dock.close();
        f.undo.undo();
        QCOMPARE(f.manager.activeGroup(), QStringLiteral("First"));
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("A")});
        QVERIFY(!f.dock.isHidden());
        QVERIFY(f.manager.activateGroup(QStringLiteral("Second")));
        QVERIFY(f.dock.isHidden());
    }

    void namesThatLookLikeMarkupComeBack()
    {
        CuresFixture f;
        const QString name = QStringLiteral("</Views><Views> & \"x\"");
        f.save(name);
        f.undo.remember(QString(), LayoutUndo::Windows::Stay);
        f.manager.deleteView(name);
        f.undo.undo();
        QCOMPARE(f.manager.views(), QStringList{name});
    }

    void oldestStepIsForgotten()
    {
        CuresFixture f;
        for (int i = 0; i < 60; ++i)
            f.undo.remember(QString::number(i), LayoutUndo::Windows::Stay);
        int undone = 0;
        for (; f.undo.canUndo(); ++undone)
            f.undo.undo();
        QCOMPARE(undone, 50);
    }

    void savingElsewhereIsUndoneToo()
    {
        CuresFixture f;
        LayoutCures::saveAs(f.manager, QStringLiteral("A"), f.undo, f.tell());
        QCOMPARE(f.manager.activeView(), QStringLiteral("A"));
        QCOMPARE(f.told, QStringList{QStringLiteral("Saved the layout as \"A\".")});
        f.undo.undo();
        QCOMPARE(f.manager.views(), QStringList());
    }

    void keysUndoTheLayoutUntilSomethingIsTyped()
    {
        CuresFixture f;
        LayoutCures::createUndoAction(f.undo, {&f.window}, f.tell());
        f.type("x");
        QCOMPARE(f.text.toPlainText(), QStringLiteral("x"));
        LayoutCures::saveAs(f.manager, QStringLiteral("A"), f.undo, f.tell());
        f.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.manager.views(), QStringList());
        QCOMPARE(f.told.last(), QStringLiteral("Undone: Save \"A\"."));
        QCOMPARE(f.text.toPlainText(), QStringLiteral("x"));

        LayoutCures::saveAs(f.manager, QStringLiteral("B"), f.undo, f.tell());
        f.type("y");
        f.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("B")});
        QVERIFY(f.text.toPlainText() != QStringLiteral("xy"));
    }

    void actionSaysWhatItUndoes()
    {
        CuresFixture f;
        QAction* action = LayoutCures::createUndoAction(f.undo, {&f.window}, f.tell());
        QVERIFY(!action->isEnabled());
        f.undo.remember(QStringLiteral("Delete \"R&D\""), LayoutUndo::Windows::Stay);
        QVERIFY(action->isEnabled());
        QCOMPARE(action->text(), QStringLiteral("Undo: Delete \"R&&D\""));
    }
};

QTEST_MAIN(UndoCuresTest)
#include "UndoCuresTest.moc"
