// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/ResourceLimits.h"

#include <panorel/Manager.h>

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTextCodec>
#include <QtTest>

#include <functional>
#include <map>

using namespace Panorel::Tests;

namespace {

constexpr int size = 600'000;

QByteArray filled(const QByteArray& piece)
{
    return piece.repeated(size / piece.size());
}

QByteArray utf16(const QByteArray& document)
{
    return QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(document));
}

// As many pieces as fit, each with a number of its own in place of the sign.
QByteArray numbered(const QByteArray& piece)
{
    QByteArray pieces;
    for (int i = 0; pieces.size() < size; ++i)
        pieces += QByteArray(piece).replace('#', QByteArray::number(i));
    return pieces;
}

const QByteArray xsi = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";
const QByteArray anything =
    "<a" + xsi + " xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" xsi:type=\"xs:anyType\">";
// Which leaves the look at the markup to Qt's reader.
const QByteArray unclear = "<!DOCTYPE a [<!ATTLIST b c:d CDATA ''>]>";

struct Case
{
    std::function<QByteArray()> document;
    bool isValid;
};

std::map<QByteArray, Case> cases()
{
    const auto many = []() -> QByteArray {
        return document({}).replace("<ViewData", "<ViewData" + numbered(" xmlns:a#=\"u\""));
    };
    const auto overfull = []() -> QByteArray {
        return document({}).replace("<ViewData", "<ViewData" + numbered(" a#=\"\""));
    };
    const auto nested = []() -> QByteArray { return filled("<a xmlns:b=\"u\">"); };
    const QByteArray root = "<ViewData Version=\"1.1.0\"" + xsi + '>';
    const QByteArray type = "<a xmlns:b=\"u\" xsi:type=\"b:c\">";
    std::map<QByteArray, Case> all{
        {"nested", {nested, false}},
        {"nestedInTheRoot", {[=]() -> QByteArray { return root + nested(); }, false}},
        {"nestedWithTypes", {[=]() -> QByteArray { return root + filled(type); }, false}},
        {"nestedWithUndeclaredType",
         {[=]() -> QByteArray { return root + filled("<a xsi:type=\"b:c\">"); }, false}},
        {"nestedAfterDocumentType",
         {[=]() -> QByteArray { return "<!DOCTYPE a>" + nested(); }, false}},
        {"nestedWhenUnclear",
         {[=]() -> QByteArray { return unclear + root + filled(type); }, false}},
        {"nestedInUtf16", {[=]() -> QByteArray { return utf16(nested()); }, false}},
        {"nestedInAnything", {[=]() -> QByteArray { return anything + filled(type); }, false}},
        {"overfull", {overfull, false}},
        {"overfullAfterDocumentType",
         {[=]() -> QByteArray { return "<!DOCTYPE a>" + overfull(); }, false}},
        {"overfullInUtf16", {[=]() -> QByteArray { return utf16(overfull()); }, false}},
        {"overfullInLatin",
         {[=]() -> QByteArray {
              return "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + overfull();
          },
          false}},
        {"overfullInShiftJis",
         {[=]() -> QByteArray {
              return "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?>" + overfull();
          },
          false}},
        {"namespaces", {many, true}},
        {"namespacesInUtf16", {[=]() -> QByteArray { return utf16(many()); }, true}},
        {"namespacesWhenUnclear", {[=]() -> QByteArray { return unclear + many(); }, true}},
    };
    return all;
}

// What the process has of the address space, which the limit counts.
quint64 addressSpace()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').first().toULongLong() * 4096
                                          : 0;
}

enum ExitCode { AsExpected, OtherResult, NoLimit, UnknownCase, Threw };

int judge(const QByteArray& name, int megabytes)
{
    const std::map<QByteArray, Case> all = cases();
    const auto it = all.find(name);
    if (it == all.end())
        return UnknownCase;
    const QByteArray data = it->second.document();
    Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
    // Starts the threads that Qt has for this.
    if (!manager.fromXml(document({}), /*merge=*/true))
        return OtherResult;
    if (!limitMemory(addressSpace() + static_cast<quint64>(megabytes) * mebibyte))
        return NoLimit;
    try {
        return manager.fromXml(data, /*merge=*/true) == it->second.isValid ? AsExpected
                                                                           : OtherResult;
    } catch (...) {
        return Threw;
    }
}

} // namespace

/**
 * Documents that would take far more memory than their size, each given to a process that may take
 * little more than the guard and the validator need for it.
 */
class DocumentMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isBounded_data();
    void isBounded();
    void runningOutOfMemoryIsARefusal();

private:
    static int run(const QByteArray& name, int megabytes);
};

int DocumentMemoryTest::run(const QByteArray& name, int megabytes)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QString::fromLatin1(name), QString::number(megabytes)});
    return process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit
               ? process.exitCode()
               : -1;
}

void DocumentMemoryTest::isBounded_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const auto& [name, item] : cases())
        QTest::newRow(name.constData()) << name;
}

// 50 bytes for each of the document's make 30 MB, the validator's own part is as large.
void DocumentMemoryTest::isBounded()
{
    QFETCH(QByteArray, name);
    QCOMPARE(run(name, 64), int(AsExpected));
}

// A valid document that needs more than there is.
void DocumentMemoryTest::runningOutOfMemoryIsARefusal()
{
    if (hasAddressSanitizer)
        QSKIP("AddressSanitizer ends the process.");
    QCOMPARE(run("namespaces", 1), int(OtherResult));
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && cases().count(arguments.at(1).toLatin1()) != 0) {
        forbidCoreDumps();
        return judge(arguments.at(1).toLatin1(), arguments.at(2).toInt());
    }
    DocumentMemoryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DocumentMemoryTest.moc"
