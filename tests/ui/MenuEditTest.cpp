// SPDX-License-Identifier: MIT
#include "MenuEdit.h"

#include "support/Text.h"
#include "ui/Differences.h"
#include "ui/Hands.h"

#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

/** The line edit of the menu, on its own. */
class MenuEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void construction();
    void nothingElseIsSet();
    void confirmed_data();
    void confirmed();
    void clearedBeforeTheSignal();
    void plainHandlingOfReturnIsLeftOut();
    void deletedByTheReceiver();
    void otherKeys_data();
    void otherKeys();
    void editing();
};

namespace {

/** What a widget made of a key: whether it took it, and the text afterwards. */
template<typename Edit>
QString outcome(Edit& edit, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    edit.setCursorPosition(2);
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&edit, &event);
    return (event.isAccepted() ? "taken: "_s : "ignored: "_s) + edit.text() + " at "_s +
           QString::number(edit.cursorPosition()) + " marked "_s + edit.selectedText();
}

} // namespace

void MenuEditTest::metaObject()
{
    const QMetaObject& meta = MenuEdit::staticMetaObject;
    QCOMPARE(meta.className(), "Panorel::MenuEdit");
    QCOMPARE(meta.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("inputAccepted(QString)"));
    QCOMPARE(method.parameterNames(), QList<QByteArray>{"input"});
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
}

void MenuEditTest::construction()
{
    QWidget parent;
    const auto* edit = new MenuEdit("text"_s, &parent);
    QCOMPARE(edit->text(), "text"_s);
    QCOMPARE(edit->parentWidget(), &parent);
    QCOMPARE(MenuEdit(QString(), nullptr).text(), QString());
}

void MenuEditTest::nothingElseIsSet()
{
    QWidget parent;
    QLineEdit plain(&parent);
    plain.setText("text"_s);
    const MenuEdit edit("text"_s, &parent);
    QCOMPARE(widgetDifferences(edit, plain), QStringList());
}

void MenuEditTest::confirmed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");

    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers keypad = Qt::KeypadModifier;
    const Qt::KeyboardModifiers held = Qt::ShiftModifier | Qt::ControlModifier;
    QTest::newRow("Return") << "name"_s << Qt::Key_Return << none;
    QTest::newRow("Enter of the keypad") << "name"_s << Qt::Key_Enter << keypad;
    QTest::newRow("Return with other keys held") << "name"_s << Qt::Key_Return << held;
    QTest::newRow("blanks around") << "  na me "_s << Qt::Key_Return << none;
    QTest::newRow("blanks only") << "   "_s << Qt::Key_Enter << keypad;
    QTest::newRow("empty, Return") << ""_s << Qt::Key_Return << none;
    QTest::newRow("empty, Enter") << ""_s << Qt::Key_Enter << keypad;
}

void MenuEditTest::confirmed()
{
    QFETCH(QString, text);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);

    MenuEdit edit(text, nullptr);
    const QSignalSpy spy(&edit, &MenuEdit::inputAccepted);
    QTest::keyClick(&edit, key, modifiers);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(), text);
    QCOMPARE(edit.text(), QString());
}

void MenuEditTest::clearedBeforeTheSignal()
{
    MenuEdit edit("name"_s, nullptr);
    QStringList texts;
    connect(&edit, &MenuEdit::inputAccepted, &edit, [&] { texts.append(edit.text()); });
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(texts, lines({""}));
}

void MenuEditTest::plainHandlingOfReturnIsLeftOut()
{
    MenuEdit edit("name"_s, nullptr);
    const QSignalSpy returned(&edit, &QLineEdit::returnPressed);
    const QSignalSpy finished(&edit, &QLineEdit::editingFinished);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&edit, &event);
        // Taken: a menu around the field gets to see nothing of it.
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(returned.size(), 0);
    QCOMPARE(finished.size(), 0);
}

void MenuEditTest::deletedByTheReceiver()
{
    QWidget window;
    QPointer<MenuEdit> edit = new MenuEdit("name"_s, &window);
    edit->setFocus();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QString input;
    connect(edit, &MenuEdit::inputAccepted, this, [&](const QString& text) {
        delete edit;
        // The text is the receiver's to use for as long as it runs.
        input = text;
    });
    Hands::press(Qt::Key_Return);
    QVERIFY(edit.isNull());
    QCOMPARE(input, "name"_s);
}

void MenuEditTest::otherKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("letter") << Qt::Key_X << none << "x"_s
                            << "taken: naxme at 3 marked "_s;
    QTest::newRow("Backspace") << Qt::Key_Backspace << none << ""
                               << "taken: nme at 1 marked "_s;
    QTest::newRow("Delete") << Qt::Key_Delete << none << ""
                            << "taken: nae at 2 marked "_s;
    QTest::newRow("Home") << Qt::Key_Home << none << ""
                          << "taken: name at 0 marked "_s;
    QTest::newRow("marking") << Qt::Key_End << shift << ""
                             << "taken: name at 4 marked me"_s;
    QTest::newRow("select all") << Qt::Key_A << control << ""
                                << "taken: name at 4 marked name"_s;
    QTest::newRow("Escape") << Qt::Key_Escape << none << ""
                            << "ignored: name at 2 marked "_s;
    QTest::newRow("Down") << Qt::Key_Down << none << ""
                          << "ignored: name at 2 marked "_s;
    QTest::newRow("F1") << Qt::Key_F1 << none << ""
                        << "ignored: name at 2 marked "_s;
}

void MenuEditTest::otherKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QFETCH(QString, expected);

    MenuEdit edit("name"_s, nullptr);
    const QSignalSpy spy(&edit, &MenuEdit::inputAccepted);
    QCOMPARE(outcome(edit, key, modifiers, text), expected);
    QCOMPARE(spy.size(), 0);
    QLineEdit plain("name"_s);
    QCOMPARE(outcome(plain, key, modifiers, text), expected);
}

void MenuEditTest::editing()
{
    MenuEdit edit(QString(), nullptr);
    const QSignalSpy spy(&edit, &MenuEdit::inputAccepted);
    QTest::keyClicks(&edit, "first"_s);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, "second"_s);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Enter);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).first().toString(), "first"_s);
    QCOMPARE(spy.at(1).first().toString(), "secon"_s);
}

QTEST_MAIN(MenuEditTest)
#include "MenuEditTest.moc"
