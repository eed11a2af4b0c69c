// SPDX-License-Identifier: MIT
#include "TourHands.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QTimer>

namespace TourHands {

namespace {

QWidget* home = nullptr;

// A dialog that has just come up, or the main window where no window manager chose one.
void waitForActiveWindow()
{
    QWidget* wanted = QApplication::activeModalWidget();
    if (!wanted && !QApplication::activeWindow())
        wanted = home;
    if (!wanted || wanted == QApplication::activeWindow())
        return;
    wanted->activateWindow();
    const auto isReady = [wanted] {
        const QWidget* focus = QApplication::focusWidget();
        return QApplication::activeWindow() == wanted && focus && focus->window() == wanted;
    };
    if (!QTest::qWaitFor(isReady, 2000))
        QApplication::setActiveWindow(wanted);
}

// As Qt does it: an open menu has all keys, and within it the widget with its focus.
QWidget* receiver()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->focusWidget() ? popup->focusWidget() : popup;
    waitForActiveWindow();
    if (QWidget* focus = QApplication::focusWidget())
        return focus;
    return QApplication::activeWindow();
}

} // namespace

void startFrom(QWidget& window)
{
    home = &window;
    settle();
}

void settle()
{
    QApplication::sync();
    for (int round = 0; round < 3; ++round)
        QApplication::processEvents();
    // A window manager answers when it likes, and an answer that comes late closes a menu.
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QTest::qWait(80);
    // Here and not only before a key, because a timer that is to act after that key would act now.
    if (!QApplication::activePopupWidget())
        waitForActiveWindow();
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // QTest knows the texts of Latin keys only.
    const QString text = key < Qt::Key_Escape ? QString(QChar(key)) : QString();
    if (QWidget* widget = receiver()) {
        if (key > Qt::Key_ydiaeresis && !text.isEmpty())
            QTest::sendKeyEvent(QTest::Click, widget, key, text, modifiers);
        else
            QTest::keyClick(widget, key, modifiers);
    }
    settle();
}

void type(const QString& text)
{
    if (QWidget* widget = receiver())
        QTest::keyClicks(widget, text);
    settle();
}

bool goTo(const QMenu& menu, const QAction* action)
{
    for (int i = 0; i <= menu.actions().size(); ++i) {
        if (action && menu.activeAction() == action)
            return true;
        press(Qt::Key_Down);
    }
    return false;
}

void click(QWidget& widget, const QPoint& position)
{
    const QPoint mirrored =
        QStyle::visualPos(QApplication::layoutDirection(), widget.rect(), position);
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, mirrored);
    settle();
}

void chooseFile(const QString& fileName, const std::function<void()>& open,
                const std::function<void()>& look)
{
    // The dialog has an event loop of its own, which open() does not leave before it is closed.
    QTimer::singleShot(0, [fileName, look] {
        QFileDialog* dialog = nullptr;
        const auto isOpen = [&dialog] {
            dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            return dialog != nullptr;
        };
        if (!QTest::qWaitFor(isOpen, patience))
            return;
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        edit->setText(fileName);
        settle();
        look();
        QTest::keyClick(edit, fileName.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    });
    open();
    settle();
}

} // namespace TourHands
