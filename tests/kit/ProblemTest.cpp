// SPDX-License-Identifier: MIT
#include <panorel/kit/Problem.h>

#include <QTest>

using namespace Panorel::Kit;

Q_DECLARE_METATYPE(Panorel::Kit::ProblemCode)

class ProblemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codes_data();
    void codes();
    void soundness_data();
    void soundness();
    void textNamesTheDetail();
};

void ProblemTest::codes_data()
{
    QTest::addColumn<ProblemCode>("code");
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QString>("severity");
    const auto row = [](ProblemCode code, const char* identifier, const char* severity) {
        QTest::newRow(identifier) << code << QString::fromLatin1(identifier)
                                  << QString::fromLatin1(severity);
    };
    row(ProblemCode::DockArea, "dock-area", "harmful");
    row(ProblemCode::Malformed, "malformed", "harmful");
    row(ProblemCode::Nesting, "nesting", "harmful");
    row(ProblemCode::Size, "size", "harmful");
    row(ProblemCode::NotWellFormed, "not-well-formed", "refused");
    row(ProblemCode::NotValid, "not-valid", "refused");
    row(ProblemCode::Version, "version", "refused");
    row(ProblemCode::Marker, "marker", "refused");
    row(ProblemCode::NamelessView, "nameless-view", "note");
    row(ProblemCode::RepeatedView, "repeated-view", "note");
    row(ProblemCode::NamelessPart, "nameless-part", "note");
    row(ProblemCode::RepeatedPart, "repeated-part", "note");
    row(ProblemCode::Repeats, "repeats", "note");
    row(ProblemCode::FloatingTabs, "floating-tabs", "note");
    row(ProblemCode::ToolBarArea, "tool-bar-area", "note");
}

void ProblemTest::codes()
{
    QFETCH(ProblemCode, code);
    Problem problem;
    problem.code = code;
    QTEST(identifierOf(code), "identifier");
    QTEST(identifierOf(problem.severity()), "severity");
    QVERIFY(!problem.text().isEmpty());
}

void ProblemTest::soundness_data()
{
    QTest::addColumn<QVector<ProblemCode>>("codes");
    QTest::addColumn<bool>("sound");
    QTest::newRow("nothing") << QVector<ProblemCode>{} << true;
    QTest::newRow("notes") << QVector<ProblemCode>{ProblemCode::Repeats, ProblemCode::FloatingTabs}
                           << true;
    QTest::newRow("refused") << QVector<ProblemCode>{ProblemCode::Repeats, ProblemCode::Marker}
                             << false;
    QTest::newRow("harmful") << QVector<ProblemCode>{ProblemCode::DockArea} << false;
}

void ProblemTest::soundness()
{
    QFETCH(QVector<ProblemCode>, codes);
    QVector<Problem> problems;
    for (const ProblemCode code : codes) {
        problems.append(Problem());
        problems.last().code = code;
    }
    QTEST(isSound(problems), "sound");
}

void ProblemTest::textNamesTheDetail()
{
    Problem problem;
    problem.code = ProblemCode::RepeatedView;
    problem.detail = QStringLiteral("Wide %1");
    QCOMPARE(problem.text(), QStringLiteral("Several layouts have the name \"Wide %1\""));
}

QTEST_APPLESS_MAIN(ProblemTest)
#include "ProblemTest.moc"
