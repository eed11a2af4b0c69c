// SPDX-License-Identifier: MIT
#include "CuresFixture.h"

#include <panorel/ViewButton.h>

#include <QTimer>
#include <QToolBar>

/** What a person meets at the view button, with the cures. */
class ButtonCuresTest : public QObject
{
    Q_OBJECT

private:
    // Presses the keys, and tells whether the menu was open after them.
    static bool opens(Panorel::ViewButton& button)
    {
        bool wasOpen = false;
        // The button runs an event loop of its own while its menu is open.
        QTimer::singleShot(0, &button, [&button, &wasOpen] {
            wasOpen = button.menu()->isVisible();
            button.menu()->close();
        });
        CuresFixture::press(Qt::Key_M, Qt::ControlModifier);
        return wasOpen;
    }

private Q_SLOTS:
    void keysOpenTheMenu()
    {
        CuresFixture f;
        QVERIFY(f.isReady);
        QToolBar* bar = f.window.addToolBar(QStringLiteral("Bar"));
        auto* button = new Panorel::ViewButton(&f.manager, QStringLiteral("Next"), bar);
        bar->addWidget(button);
        QCoreApplication::processEvents();
        LayoutCures::openByKeys(*button, QStringLiteral("Ctrl+M"), f.window);
        QVERIFY(opens(*button));
    }

    void keysOpenTheMenuOfAHiddenButton()
    {
        CuresFixture f;
        QToolBar* bar = f.window.addToolBar(QStringLiteral("Bar"));
        auto* button = new Panorel::ViewButton(&f.manager, QStringLiteral("Next"), bar);
        bar->addWidget(button);
        bar->hide();
        LayoutCures::openByKeys(*button, QStringLiteral("Ctrl+M"), f.window);
        QCoreApplication::processEvents();
        f.press(Qt::Key_M, Qt::ControlModifier);
        QVERIFY(button->menu()->isVisible());
    }

    void tipFollowsTheActiveView()
    {
        CuresFixture f;
        Panorel::ViewButton button(&f.manager, QStringLiteral("Next"));
        LayoutCures::describeButton(button, f.manager, QStringLiteral("Click it."));
        QCOMPARE(button.accessibleDescription(), QStringLiteral("No layout is active. Click it."));
        f.save(QStringLiteral("<b>"));
        QCOMPARE(button.accessibleDescription(), QStringLiteral("\"<b>\" is active. Click it."));
        QCOMPARE(button.toolTip(),
                 QStringLiteral("<qt>&quot;&lt;b&gt;&quot; is active. Click it.</qt>"));
        f.manager.activateGroup(QStringLiteral("Second"));
        QCOMPARE(button.accessibleDescription(), QStringLiteral("No layout is active. Click it."));
        f.manager.activateGroup(QStringLiteral("First"));
        f.manager.deleteView(QStringLiteral("<b>"));
        QCOMPARE(button.accessibleDescription(), QStringLiteral("No layout is active. Click it."));
    }
};

QTEST_MAIN(ButtonCuresTest)
#include "ButtonCuresTest.moc"
