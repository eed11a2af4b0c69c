// SPDX-License-Identifier: MIT
#include "NameDialog.h"

#include "support/Text.h"
#include "ui/Hands.h"

#include <panorel/Manager.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

// Relative luminance and contrast as WCAG 2.1 defines them.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

/** The dialog that asks for a name and checks it while it is typed. */
class NameDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void metaObject();
    void parts();
    void partsStandBelowEachOther();
    void atFirst();
    void checked_data();
    void checked();
    void checkedAtEveryKey();
    void checkedWhateverTheMessageIs();
    void activeViewOfTheMoment();
    void lookOfAnError();
    void errorIsReadable_data();
    void errorIsReadable();
    void acceptedWithReturn();
    void acceptedWithTheMouse();
    void returnOnNothing();
    void returnOnNameInUse();
    void cancelled_data();
    void cancelled();
    void tabOrder();
    void keyToTheField();

private:
    void open(const QStringList& existing, bool allowActiveName);
    bool show();
    double messageContrast() const;

    QLineEdit* edit() const { return m_dialog->findChild<QLineEdit*>(); }
    QLabel* message() const { return m_dialog->findChild<QLabel*>("messageLabel"_s); }
    QPushButton* button(QDialogButtonBox::StandardButton which) const
    {
        return m_dialog->findChild<QDialogButtonBox*>()->button(which);
    }

    std::unique_ptr<Manager> m_manager;
    std::unique_ptr<NameDialog> m_dialog;
};

void NameDialogTest::init()
{
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    QVERIFY(m_manager->createView("other"_s));
    QVERIFY(m_manager->saveCurrentViewAs("active"_s));
}

void NameDialogTest::cleanup()
{
    m_dialog.reset();
    m_manager.reset();
}

void NameDialogTest::open(const QStringList& existing, bool allowActiveName)
{
    m_dialog = std::make_unique<NameDialog>(m_manager.get(), existing, allowActiveName);
}

bool NameDialogTest::show()
{
    open(m_manager->views(), false);
    m_dialog->show();
    return QTest::qWaitForWindowActive(m_dialog.get());
}

// The text's background is taken from the picture. The text's colour is not: a machine without
// fonts draws none.
double NameDialogTest::messageContrast() const
{
    const QPoint corner = message()->mapTo(m_dialog.get(), QPoint(0, 0));
    const QColor ground = m_dialog->grab().toImage().pixelColor(corner);
    return contrast(message()->palette().color(message()->foregroundRole()), ground);
}

void NameDialogTest::metaObject()
{
    const QMetaObject& meta = NameDialog::staticMetaObject;
    QCOMPARE(meta.className(), "Panorel::NameDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("onTextChanged(QString)"));
    QCOMPARE(method.parameterNames(), QList<QByteArray>{"text"});
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Private);
}

void NameDialogTest::parts()
{
    QWidget parent;
    const NameDialog dialog(m_manager.get(), QStringList(), false, &parent);
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowTitle(), "Save Layout"_s);
    QCOMPARE(dialog.findChildren<QLineEdit*>().size(), 1);
    const QList<QDialogButtonBox*> boxes = dialog.findChildren<QDialogButtonBox*>();
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first()->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QCOMPARE(dialog.findChildren<QLabel*>("messageLabel"_s).size(), 1);
}

void NameDialogTest::partsStandBelowEachOther()
{
    QVERIFY(show());
    const QList<QLabel*> labels = m_dialog->findChildren<QLabel*>();
    QCOMPARE(labels.size(), 2);
    QLabel* const nameLabel = labels[0] == message() ? labels[1] : labels[0];
    const auto* const box = m_dialog->findChild<QDialogButtonBox*>();
    int bottom = -1;
    for (const QWidget* part :
         std::initializer_list<const QWidget*>{nameLabel, edit(), message(), box}) {
        QVERIFY(m_dialog->rect().contains(part->geometry()));
        QVERIFY(part->y() > bottom);
        bottom = part->geometry().bottom();
    }
}

void NameDialogTest::atFirst()
{
    open(m_manager->views(), false);
    QCOMPARE(m_dialog->name(), QString());
    QCOMPARE(message()->text(), "Name must not be empty!"_s);
    QVERIFY(!message()->styleSheet().isEmpty());
    QVERIFY(!button(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(button(QDialogButtonBox::Cancel)->isEnabled());
}

void NameDialogTest::checked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("allowActiveName");
    QTest::addColumn<QString>("problem");

    const QString empty = "Name must not be empty!"_s;
    const QString inUse = "Name already in use!"_s;
    QTest::newRow("empty") << ""_s << false << empty;
    QTest::newRow("empty, active allowed") << ""_s << true << empty;
    QTest::newRow("blank") << " "_s << false << empty;
    QTest::newRow("blanks of all kinds") << " \t\u00a0\u2003 "_s << true << empty;
    QTest::newRow("blanks only, though in use") << "  "_s << false << empty;
    QTest::newRow("new") << "new"_s << false << QString();
    QTest::newRow("in use") << "other"_s << false << inUse;
    QTest::newRow("in use, active allowed") << "other"_s << true << inUse;
    QTest::newRow("active") << "active"_s << false << inUse;
    QTest::newRow("active and allowed") << "active"_s << true << QString();
    QTest::newRow("another case") << "Other"_s << false << QString();
    QTest::newRow("active in another case") << "ACTIVE"_s << true << QString();
    QTest::newRow("blank before") << " other"_s << false << QString();
    QTest::newRow("blank after") << "other "_s << false << QString();
    QTest::newRow("blanks around the active") << " active "_s << true << QString();
    QTest::newRow("blanks as they are in use") << " padded "_s << false << inUse;
    QTest::newRow("blanks left away") << "padded"_s << false << QString();
    QTest::newRow("beginning of one in use") << "oth"_s << false << QString();
    QTest::newRow("reserved word") << "__current__"_s << false << QString();
    QTest::newRow("markup") << "<b>"_s << false << QString();
}

void NameDialogTest::checked()
{
    QFETCH(QString, name);
    QFETCH(bool, allowActiveName);
    QFETCH(QString, problem);

    open(lines({"other", "active", " padded ", "  "}), allowActiveName);
    edit()->setText("x"_s);
    edit()->setText(name);
    QCOMPARE(message()->text(), problem);
    QCOMPARE(message()->styleSheet().isEmpty(), problem.isEmpty());
    QCOMPARE(button(QDialogButtonBox::Ok)->isEnabled(), problem.isEmpty());
    QCOMPARE(m_dialog->name(), name);
}

void NameDialogTest::checkedAtEveryKey()
{
    QVERIFY(show());
    QStringList messages;
    for (const QChar character : "others"_s) {
        Hands::type(QString(character));
        messages.append(message()->text());
    }
    Hands::press(Qt::Key_Backspace);
    messages.append(message()->text());
    QCOMPARE(messages, lines({"", "", "", "", "Name already in use!", "", "Name already in use!"}));
}

namespace {

class EmptyTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override
    {
        Q_UNUSED(context)
        Q_UNUSED(sourceText)
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        return ""_s;
    }
};

} // namespace

void NameDialogTest::checkedWhateverTheMessageIs()
{
    EmptyTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    open(m_manager->views(), false);
    QCOMPARE(message()->text(), QString());
    QVERIFY(!button(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(!message()->styleSheet().isEmpty());
    edit()->setText("other"_s);
    QVERIFY(!button(QDialogButtonBox::Ok)->isEnabled());
    edit()->setText("new"_s);
    QVERIFY(button(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(message()->styleSheet().isEmpty());
}

void NameDialogTest::activeViewOfTheMoment()
{
    open(m_manager->views(), true);
    edit()->setText("other"_s);
    QVERIFY(!button(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(m_manager->activateView("other"_s));
    edit()->setText("others"_s);
    edit()->setText("other"_s);
    QVERIFY(button(QDialogButtonBox::Ok)->isEnabled());
}

void NameDialogTest::lookOfAnError()
{
    open(m_manager->views(), false);
    const QString errorStyle = message()->styleSheet();
    edit()->setText("new"_s);
    QCOMPARE(message()->styleSheet(), QString());
    edit()->setText("other"_s);
    QCOMPARE(message()->styleSheet(), errorStyle);
    // The dialog's own look is left alone.
    QCOMPARE(m_dialog->styleSheet(), QString());
    QCOMPARE(edit()->styleSheet(), QString());
}

void NameDialogTest::errorIsReadable_data()
{
    QTest::addColumn<QColor>("ground");

    QTest::newRow("white") << QColor(255, 255, 255);
    QTest::newRow("light") << QColor(239, 239, 239);
    QTest::newRow("lighter than the middle") << QColor(160, 160, 160);
    QTest::newRow("middle grey") << QColor(128, 128, 128);
    QTest::newRow("darker than the middle") << QColor(96, 96, 96);
    QTest::newRow("dark") << QColor(45, 45, 45);
    QTest::newRow("black") << QColor(0, 0, 0);
    QTest::newRow("the colour of an error") << QColor(0xB3, 0x26, 0x1E);
}

// The least contrast that WCAG 2.1 (1.4.3) gives to text of ordinary size is 4.5.
void NameDialogTest::errorIsReadable()
{
    QFETCH(QColor, ground);

    const bool dark = ground.lightness() < 128;
    const QPalette palette(dark ? Qt::white : Qt::black, ground, ground, ground, ground,
                           dark ? Qt::white : Qt::black, ground);
    QVERIFY(show());
    QCOMPARE(message()->text(), "Name must not be empty!"_s);
    QVERIFY2(messageContrast() >= 4.5, "before the palette changes");
    m_dialog->setPalette(palette);
    QCOMPARE(m_dialog->grab().toImage().pixelColor(0, 0), ground);
    QVERIFY2(messageContrast() >= 4.5, "when the palette has changed");
    edit()->setText("new"_s);
    edit()->setText("other"_s);
    QVERIFY2(messageContrast() >= 4.5, "at the next error");
}

void NameDialogTest::acceptedWithReturn()
{
    QVERIFY(show());
    Hands::type("  new "_s);
    Hands::press(Qt::Key_Return);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->name(), "  new "_s);
    // What is done with the name is the caller's to decide.
    QCOMPARE(m_manager->views(), lines({"other", "active"}));
}

void NameDialogTest::acceptedWithTheMouse()
{
    QVERIFY(show());
    Hands::type("new"_s);
    Hands::click(*button(QDialogButtonBox::Ok));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void NameDialogTest::returnOnNothing()
{
    QVERIFY(show());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Hands::press(key);
        QVERIFY(m_dialog->isVisible());
    }
    Hands::click(*button(QDialogButtonBox::Ok));
    QVERIFY(m_dialog->isVisible());
}

void NameDialogTest::returnOnNameInUse()
{
    QVERIFY(show());
    Hands::type("other"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Hands::press(key);
        QVERIFY(m_dialog->isVisible());
    }
}

void NameDialogTest::cancelled_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");

    QTest::newRow("Escape") << QList<Qt::Key>{Qt::Key_Escape};
    QTest::newRow("Space on Cancel") << QList<Qt::Key>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space};
    QTest::newRow("Return on Cancel") << QList<Qt::Key>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return};
}

void NameDialogTest::cancelled()
{
    QFETCH(QList<Qt::Key>, keys);

    QVERIFY(show());
    Hands::type("new"_s);
    for (const Qt::Key key : qAsConst(keys))
        Hands::press(key);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

void NameDialogTest::tabOrder()
{
    QVERIFY(show());
    QCOMPARE(m_dialog->focusWidget(), edit());
    Hands::press(Qt::Key_Tab);
    // OK is disabled as long as there is no name.
    QCOMPARE(m_dialog->focusWidget(), button(QDialogButtonBox::Cancel));
    Hands::press(Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), edit());
    Hands::type("new"_s);
    Hands::press(Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), button(QDialogButtonBox::Ok));
    Hands::press(Qt::Key_Space);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void NameDialogTest::keyToTheField()
{
    QVERIFY(show());
    Hands::press(Qt::Key_Tab);
    QVERIFY(!edit()->hasFocus());
    Hands::press(Qt::Key_N, Qt::AltModifier);
    QVERIFY(edit()->hasFocus());
    QCOMPARE(edit()->text(), QString());
}

QTEST_MAIN(NameDialogTest)
#include "NameDialogTest.moc"
