// SPDX-License-Identifier: MIT
#include "support/Text.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QVector>

#include <algorithm>
#include <utility>

namespace Panorel::Tests {

namespace {

const QLatin1Char lineEnd('\n');

struct Block
{
    /** Such as "README.md:28", or the name of a piece with its file. */
    QString place;
    QString text;
};

QStringList linesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be opened", qPrintable(fileName));
    return QString::fromUtf8(file.readAll()).split(lineEnd);
}

QString withoutIndentation(const QStringList& lines)
{
    int indentation = 1000;
    for (const QString& line : lines) {
        const auto text = std::find_if(line.cbegin(), line.cend(),
                                       [](QChar character) { return !character.isSpace(); });
        if (text != line.cend())
            indentation = std::min(indentation, static_cast<int>(text - line.cbegin()));
    }
    QString result;
    for (const QString& line : lines)
        result += line.mid(indentation) + lineEnd;
    return result;
}

// The blocks of code in a page, in the languages that are compiled.
QVector<Block> blocksOf(const QDir& root, const QString& page)
{
    const QStringList languages{"```cpp"_s, "```cmake"_s, "```sh"_s};
    const QStringList lines = linesOf(root.filePath(page));
    QVector<Block> blocks;
    for (int i = 0; i < lines.size(); ++i) {
        if (!lines[i].startsWith("```"_s))
            continue;
        const int end = lines.indexOf("```"_s, i + 1);
        if (end < 0)
            qFatal("%s: a block has no end", qPrintable(page));
        if (languages.contains(lines[i]))
            blocks.append({page + ":"_s + QString::number(i + 1),
                           lines.mid(i + 1, end - i - 1).join(lineEnd) + lineEnd});
        i = end;
    }
    return blocks;
}

// The pieces of a source file: what is between two lines "//! [name]", or "#! [name]" in CMake.
QVector<Block> piecesOf(const QString& fileName)
{
    static const QRegularExpression marker("^\\s*(?://|#)! \\[([a-z-]+)\\]$"_s);
    QVector<Block> pieces;
    QString name;
    QStringList lines;
    const QStringList all = linesOf(fileName);
    for (const QString& line : all) {
        const QRegularExpressionMatch match = marker.match(line);
        if (!match.hasMatch()) {
            lines.append(line);
        } else if (name.isEmpty()) {
            name = match.captured(1);
            lines.clear();
        } else if (name == match.captured(1)) {
            pieces.append({name + " of "_s + fileName, withoutIndentation(lines)});
            name.clear();
        } else {
            qFatal("%s: [%s] is within another piece", qPrintable(fileName), qPrintable(name));
        }
    }
    if (!name.isEmpty())
        qFatal("%s: [%s] has no end", qPrintable(fileName), qPrintable(name));
    return pieces;
}

// A file that is one piece as a whole, but for its licence line.
Block wholeFile(const QDir& root, const QString& fileName)
{
    return {fileName, linesOf(root.filePath(fileName)).mid(1).join(lineEnd)};
}

} // namespace

/**
 * Every block of code in the pages is a piece of a file that is compiled or configured, word for
 * word, and every piece of such a file is shown.
 */
class CodeBlocksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void blockIsCompiled_data();
    void blockIsCompiled();
    void pieceIsShown_data();
    void pieceIsShown();

private:
    void addRows(const QVector<Block>& blocks);

    QVector<Block> m_blocks;
    QVector<Block> m_pieces;
};

void CodeBlocksTest::initTestCase()
{
    const QDir root(QStringLiteral(PANOREL_SOURCE_DIR));
    QStringList pages = root.entryList({"*.md"_s}, QDir::Files);
    const QStringList docs = QDir(root.filePath("docs"_s)).entryList({"*.md"_s}, QDir::Files);
    for (const QString& page : docs)
        pages.append("docs/"_s + page);
    for (const QString& page : qAsConst(pages))
        m_blocks += blocksOf(root, page);
    m_pieces = {wholeFile(root, "examples/01-first-layouts/main.cpp"_s),
                wholeFile(root, "examples/08-kit/main.cpp"_s)};
    for (const char* folder : {"examples", "tests/docs"}) {
        QDirIterator files(root.filePath(QLatin1String(folder)),
                           {"*.cpp"_s, "*.h"_s, "CMakeLists.txt"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            m_pieces += piecesOf(files.next());
    }
    QVERIFY(pages.contains("README.md"_s) && pages.contains("docs/guide.md"_s));
}

void CodeBlocksTest::addRows(const QVector<Block>& blocks)
{
    QTest::addColumn<QString>("text");
    for (const Block& block : blocks)
        QTest::newRow(qPrintable(block.place)) << block.text;
}

void CodeBlocksTest::blockIsCompiled_data()
{
    addRows(m_blocks);
}

void CodeBlocksTest::blockIsCompiled()
{
    QFETCH(QString, text);
    const bool isThere = std::any_of(m_pieces.cbegin(), m_pieces.cend(),
                                     [&](const Block& piece) { return piece.text == text; });
    QVERIFY2(isThere, qPrintable("no piece of a source file has this text:\n"_s + text));
}

void CodeBlocksTest::pieceIsShown_data()
{
    addRows(m_pieces);
}

void CodeBlocksTest::pieceIsShown()
{
    QFETCH(QString, text);
    const bool isThere = std::any_of(m_blocks.cbegin(), m_blocks.cend(),
                                     [&](const Block& block) { return block.text == text; });
    QVERIFY2(isThere, qPrintable("no page shows this text:\n"_s + text));
}

} // namespace Panorel::Tests

QTEST_MAIN(Panorel::Tests::CodeBlocksTest)
#include "CodeBlocksTest.moc"
