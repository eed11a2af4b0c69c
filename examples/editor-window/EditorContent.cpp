// SPDX-License-Identifier: MIT
#include "EditorContent.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFont>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QStyle>
#include <QSyntaxHighlighter>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace EditorContent {

namespace {

const char sourceText[] = R"(#include "TideGauge.h"

#include <algorithm>

namespace Harbour {

// A wave lasts seconds, a tide hours: the mean
// over a minute leaves the tide alone.
double TideGauge::level() const
{
    if (m_samples.empty())
        return 0.0;
    double sum = 0.0;
    for (const Sample& sample : m_samples)
        sum += sample.metres;
    return sum / double(m_samples.size());
}

bool TideGauge::isRising() const
{
    return level() > m_lastLevel;
}

std::string TideGauge::name() const
{
    return "gauge " + std::to_string(m_id);
}

} // namespace Harbour
)";

class Text
{
    Q_DECLARE_TR_FUNCTIONS(EditorContent)
};

class CodeHighlighter : public QSyntaxHighlighter
{
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString& text) override
    {
        const bool dark = QApplication::palette().color(QPalette::Base).lightness() < 128;
        const auto color = [dark](QRgb onLight, QRgb onDark) { return dark ? onDark : onLight; };
        paint(text, QStringLiteral("\\b(bool|const|double|for|if|namespace|return)\\b"),
              color(0x1f4e9e, 0x8ab4f8));
        paint(text, QStringLiteral("\"[^\"]*\""), color(0x2e7d32, 0x9ccc65));
        paint(text, QStringLiteral("^#\\w+"), color(0x8e44ad, 0xd7a6e8));
        paint(text, QStringLiteral("//.*$"), color(0x6a6a6a, 0xa0a0a0));
    }

private:
    void paint(const QString& text, const QString& pattern, const QColor& color)
    {
        auto matches = QRegularExpression(pattern).globalMatch(text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            setFormat(match.capturedStart(), match.capturedLength(), color);
        }
    }
};

QPlainTextEdit* createTextView(const QString& text)
{
    auto* view = new QPlainTextEdit(text);
    // Of the size that all other text has.
    QFont font(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    view->setFont(font);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    return view;
}

QTreeWidget* createTable(const QString& firstTitle, const QList<QStringList>& rows)
{
    auto* table = new QTreeWidget;
    table->setHeaderLabels({firstTitle, Text::tr("Value")});
    table->setRootIsDecorated(false);
    for (const QStringList& row : rows)
        table->addTopLevelItem(new QTreeWidgetItem(row));
    table->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    return table;
}

} // namespace

QPlainTextEdit* createEditor()
{
    QPlainTextEdit* editor = createTextView(QString::fromLatin1(sourceText));
    new CodeHighlighter(editor->document());
    return editor;
}

QPlainTextEdit* createConsole()
{
    QPlainTextEdit* console = createTextView(QStringLiteral("[1/3] Compiling TideGauge.cpp\n"
                                                            "[2/3] Compiling Station.cpp\n"
                                                            "[3/3] Linking harbour\n"
                                                            "Build finished, no warnings."));
    console->setReadOnly(true);
    return console;
}

QWidget* createProject()
{
    auto* tree = new QTreeWidget;
    tree->header()->hide();
    const QIcon folder = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
    const QIcon file = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    const auto addFolder = [&](const QString& name, const QStringList& files) {
        auto* item = new QTreeWidgetItem(tree, {name});
        item->setIcon(0, folder);
        for (const QString& fileName : files)
            (new QTreeWidgetItem(item, {fileName}))->setIcon(0, file);
    };
    addFolder(QStringLiteral("include"),
              {QStringLiteral("Sample.h"), QStringLiteral("TideGauge.h")});
    addFolder(QStringLiteral("src"), {QStringLiteral("Station.cpp"), QStringLiteral("main.cpp"),
                                      QStringLiteral("TideGauge.cpp")});
    addFolder(QStringLiteral("tests"), {QStringLiteral("TideTest.cpp")});
    tree->expandAll();
    return tree;
}

QWidget* createOutline()
{
    auto* list = new QListWidget;
    list->addItems(
        {QStringLiteral("level()"), QStringLiteral("isRising()"), QStringLiteral("name()")});
    return list;
}

QWidget* createSearch()
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(new QLineEdit(QStringLiteral("level")));
    auto* hits = new QListWidget;
    hits->addItems({QStringLiteral("Station.cpp:41"), QStringLiteral("TideGauge.cpp:9"),
                    QStringLiteral("TideGauge.cpp:21")});
    layout->addWidget(hits);
    return page;
}

QWidget* createProperties()
{
    return createTable(Text::tr("Property"),
                       {{QStringLiteral("Lines"), QStringLiteral("30")},
                        {QStringLiteral("Encoding"), QStringLiteral("UTF-8")},
                        {QStringLiteral("Indent"), QStringLiteral("4 spaces")}});
}

QWidget* createVariables()
{
    return createTable(Text::tr("Variable"),
                       {{QStringLiteral("sum"), QStringLiteral("86.4")},
                        {QStringLiteral("m_id"), QStringLiteral("7")},
                        {QStringLiteral("m_lastLevel"), QStringLiteral("1.38")}});
}

} // namespace EditorContent
