// SPDX-License-Identifier: MIT
#include "CuresFixture.h"

#include <QScreen>

/** What a person meets in the menu, with the cures, by real keys. */
class MenuCuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameFieldHasTheFocus()
    {
        CuresFixture f;
        QVERIFY(f.isReady);
        LayoutCures::focusNameField(f.menu);
        f.open(f.saveAs());
        auto* edit = qobject_cast<QLineEdit*>(f.saveAs()->focusWidget());
        QVERIFY(edit);
        QVERIFY(edit->placeholderText().size() > 0);
        QCOMPARE(edit->accessibleName(), QStringLiteral("Name of the new layout"));
        QVERIFY(edit->width() > edit->fontMetrics().horizontalAdvance(edit->placeholderText()));
        f.type("Wide");
        QCOMPARE(edit->text(), QStringLiteral("Wide"));
        f.press(Qt::Key_Return);
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("Wide")});
    }

    void leftOverTextIsGone()
    {
        CuresFixture f;
        LayoutCures::focusNameField(f.menu);
        f.open(f.saveAs());
        f.type("Wi");
        f.press(Qt::Key_Escape);
        f.press(Qt::Key_Escape);
        f.press(Qt::Key_Escape);
        QVERIFY(!f.menu.isVisible());
        f.open(f.saveAs());
        auto* edit = qobject_cast<QLineEdit*>(f.saveAs()->focusWidget());
        QVERIFY(edit);
        QCOMPARE(edit->text(), QString());
    }

    void arrowsGoOnFromTheField()
    {
        CuresFixture f;
        f.save(QStringLiteral("Old"));
        LayoutCures::focusNameField(f.menu);
        f.open(f.saveAs());
        f.press(Qt::Key_Down);
        QCOMPARE(f.saveAs()->activeAction()->text(), QStringLiteral("Old"));
        f.press(Qt::Key_Return);
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("Old")});
    }

    void arrowsGoOnAfterTheMouse()
    {
        CuresFixture f;
        f.save(QStringLiteral("Old"));
        LayoutCures::focusNameField(f.menu);
        f.open();
        QAction* way = f.saveAs()->menuAction();
        QTest::mouseClick(&f.menu, Qt::LeftButton, {}, f.menu.actionGeometry(way).center());
        QTRY_VERIFY(qobject_cast<QLineEdit*>(f.saveAs()->focusWidget()));
        f.press(Qt::Key_Down);
        QVERIFY(f.saveAs()->activeAction());
        QCOMPARE(f.saveAs()->activeAction()->text(), QStringLiteral("Old"));
    }

    void keyboardLeavesTheMenuBar()
    {
        CuresFixture f;
        LayoutCures::focusNameField(f.menu);
        LayoutCures::leaveMenuBar(f.menu);
        f.open(f.saveAs());
        f.type("Wide");
        f.press(Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), &f.text);
        f.type("l");
        QCOMPARE(f.text.toPlainText(), QStringLiteral("l"));
    }

    void emptyNameIsRefused_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("blanks") << QByteArray("  ");
    }

    void emptyNameIsRefused()
    {
        QFETCH(QByteArray, typed);
        CuresFixture f;
        LayoutCures::focusNameField(f.menu);
        LayoutCures::refuseEmptyNames(f.menu, f.tell());
        f.open(f.saveAs());
        f.type(typed.constData());
        f.press(Qt::Key_Return);
        QCOMPARE(f.manager.views(), QStringList());
        QVERIFY(f.saveAs()->isVisible());
        QCOMPARE(f.told, QStringList{QStringLiteral(
                             "A layout needs a name: type one, then press Return.")});
        f.press(Qt::Key_Enter);
        QCOMPARE(f.manager.views(), QStringList());
    }

    void namelessViewIsRemoved()
    {
        CuresFixture f;
        f.save(QStringLiteral("Wide"));
        LayoutCures::removeNamelessViews(f.manager, f.tell());
        QVERIFY(f.manager.createView(QString()));
        QCOMPARE(f.manager.views().size(), 2);
        QCoreApplication::processEvents();
        QCOMPARE(f.manager.views(), QStringList{QStringLiteral("Wide")});
        QCOMPARE(f.told.size(), 1);
    }

    void namelessViewOfAnotherGroupIsRemovedThere()
    {
        CuresFixture f;
        QVERIFY(f.manager.activateGroup(QStringLiteral("Second")));
        QVERIFY(f.manager.createView(QString()));
        QVERIFY(f.manager.activateGroup(QStringLiteral("First")));
        LayoutCures::removeNamelessViews(f.manager, f.tell());
        QVERIFY(f.manager.activateGroup(QStringLiteral("Second")));
        QCoreApplication::processEvents();
        QCOMPARE(f.manager.views(), QStringList());
    }

    void manyViewsMakeOneColumn()
    {
        CuresFixture f;
        for (int i = 0; i < 100; ++i)
            f.manager.createView(QStringLiteral("Layout %1").arg(i));
        LayoutCures::makeScrollable(f.menu);
        f.open();
        QVERIFY(f.menu.isVisible());
        const QAction* first = f.entry(f.menu, QStringLiteral("Layout 0"));
        const QAction* last = f.entry(f.menu, QStringLiteral("Layout 99"));
        QCOMPARE(f.menu.actionGeometry(const_cast<QAction*>(first)).left(),
                 f.menu.actionGeometry(const_cast<QAction*>(last)).left());
        QVERIFY(f.menu.height() <= f.window.screen()->geometry().height());
    }

    void titleHasAKey()
    {
        CuresFixture f;
        f.menu.setTitle(QStringLiteral("Layouts"));
        f.open();
        QVERIFY(!f.menu.isVisible());
        LayoutCures::setTitle(f.menu, QStringLiteral("&Layouts"));
        f.open();
        QVERIFY(f.menu.isVisible());
    }

    void ampersandIsShown()
    {
        CuresFixture f;
        LayoutCures::showAmpersand(f.menu);
        QVERIFY(f.entry(f.menu, QStringLiteral("Import && Merge ...")));
    }

    void menuThatIsNotExtendedIsTakenToo()
    {
        CuresFixture f;
        f.save(QStringLiteral("Wide"));
        Panorel::Menu compact(&f.manager, /*extended=*/false);
        LayoutCures::showAmpersand(compact);
        LayoutCures::explainImports(compact, f.manager, f.undo, f.tell());
        LayoutCures::rememberChanges(compact, f.manager, f.undo, f.tell());
        compact.actions().first()->trigger();
        QVERIFY(!f.undo.canUndo());
        QCOMPARE(f.told, QStringList());
    }
};

QTEST_MAIN(MenuCuresTest)
#include "MenuCuresTest.moc"
