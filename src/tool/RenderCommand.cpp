// SPDX-License-Identifier: MIT
#include "Choice.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Input.h"

#include <panorel/kit/Picture.h>
#include <panorel/kit/WindowState.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include <algorithm>
#include <limits>

namespace Panorel::Tool {

using Kit::Picture;
using Kit::WindowState;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::RenderCommand)
};

constexpr int widestWindow = 1600;
constexpr int largestEdge = 16384;
constexpr int gap = 24;
// Of a whole picture: more takes hundreds of megabytes, or is more than a painter can do.
constexpr qint64 mostPixels = 100'000'000;
constexpr qint64 longestEdge = 32767;

/** Several windows beside each other with titles, or a single one without. */
class Sheet
{
public:
    Sheet(const QVector<Place>& places, const QSize& size, bool isDark)
        : m_isDark(isDark)
        , m_widest(size.isEmpty() ? widestWindow : std::numeric_limits<int>::max())
    {
        for (const Place& place : places)
            m_windows.append({place.title(), Picture(WindowState(place.state), size)});
        if (m_windows.size() > 1)
            m_titleHeight = QFontMetrics(QGuiApplication::font()).height() + gap / 2;
    }

    bool hasSeveralWindows() const { return m_windows.size() > 1; }

    /** Whether it has more than can be drawn. */
    bool isTooLarge() const
    {
        qint64 width = 0;
        qint64 height = 0;
        for (const Window& window : m_windows) {
            const QSize drawn = drawnSize(window.picture);
            width += drawn.width() + (width > 0 ? gap : 0);
            height = std::max<qint64>(height, qint64(drawn.height()) + m_titleHeight);
        }
        return width > longestEdge || height > longestEdge || width * height > mostPixels;
    }

    /** Of one that is not too large. */
    QSize size() const
    {
        QSize size(0, 0);
        for (const Window& window : m_windows) {
            const QSize drawn = drawnSize(window.picture);
            size.rwidth() += drawn.width() + (size.width() > 0 ? gap : 0);
            size.setHeight(std::max(size.height(), drawn.height() + m_titleHeight));
        }
        return size;
    }

    void paint(QPainter& painter) const
    {
        Picture::Colors colors;
        colors.isDark = m_isDark;
        painter.setPen(m_isDark ? Qt::white : Qt::black);
        int left = 0;
        for (const Window& window : m_windows) {
            const QSize drawn = drawnSize(window.picture);
            if (m_titleHeight > 0)
                paintTitle(painter, QRect(left, 0, drawn.width(), m_titleHeight), window.title);
            window.picture.paint(painter, QRect(QPoint(left, m_titleHeight), drawn), colors);
            left += drawn.width() + gap;
        }
    }

    QColor background() const { return m_isDark ? QColor(0x20, 0x20, 0x20) : QColor(Qt::white); }

private:
    struct Window
    {
        QString title;
        Picture picture;
    };

    QSize drawnSize(const Picture& picture) const
    {
        const QSize size = picture.size();
        return size.width() <= m_widest ? size
                                        : size.scaled(m_widest, largestEdge, Qt::KeepAspectRatio);
    }

    static void paintTitle(QPainter& painter, const QRect& rect, const QString& title)
    {
        const QString shown =
            painter.fontMetrics().elidedText(title, Qt::ElideMiddle, rect.width());
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    }

    QVector<Window> m_windows;
    const bool m_isDark;
    const int m_widest;
    int m_titleHeight = 0;
};

QByteArray toPng(const Sheet& sheet)
{
    QImage image(sheet.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return QByteArray();
    image.fill(sheet.background());
    QPainter painter(&image);
    sheet.paint(painter);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

QByteArray toSvg(const Sheet& sheet)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(sheet.size());
    generator.setViewBox(QRect(QPoint(0, 0), sheet.size()));
    generator.setTitle(Text::tr("Window layout"));
    QPainter painter(&generator);
    painter.fillRect(QRect(QPoint(0, 0), sheet.size()), sheet.background());
    sheet.paint(painter);
    painter.end();
    return bytes;
}

// An empty size if it is not given. Nothing, after a message, if it cannot be understood.
std::optional<QSize> readSize(const CommandLine& line)
{
    const QString text = line.value(QStringLiteral("size"));
    if (text.isNull())
        return QSize();
    const QStringList parts = text.split(QLatin1Char('x'));
    const QSize size(parts.value(0).toInt(), parts.value(1).toInt());
    const bool isUsable = parts.size() == 2 && size.width() > 0 && size.height() > 0 &&
                          size.width() <= largestEdge && size.height() <= largestEdge;
    if (isUsable)
        return size;
    line.reportMisuse(Text::tr("--size needs a width and a height of up to %1 pixels, such as "
                               "800x600")
                          .arg(largestEdge));
    return std::nullopt;
}

int reportTooLarge(const Input& input, const Sheet& sheet)
{
    return reportFailure(input.name, sheet.hasSeveralWindows()
                                         ? Text::tr("the picture is too large; choose one window "
                                                    "by --window")
                                         : Text::tr("the picture is too large"));
}

int render(const CommandLine& line, const Input& input, const QVector<Place>& places)
{
    const std::optional<QSize> size = readSize(line);
    if (!size)
        return Failed;
    const QString output = line.value(QStringLiteral("o"));
    const Sheet sheet(places, *size, line.isSet(QStringLiteral("dark")));
    if (sheet.isTooLarge())
        return reportTooLarge(input, sheet);
    const QByteArray picture =
        output.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive) ? toSvg(sheet) : toPng(sheet);
    if (picture.isEmpty())
        return reportTooLarge(input, sheet);
    return writeResult(output, picture);
}

} // namespace

int runRender(const Command& command, const QStringList& arguments)
{
    CommandLine line(QLatin1String(command.name), QStringLiteral("FILE -o OUT"),
                     command.translatedSummary());
    line.addValue({QStringLiteral("o")},
                  Text::tr("The picture to write: SVG if the name ends in \".svg\", else PNG."),
                  Text::tr("OUT"));
    line.addValue({QStringLiteral("size")},
                  Text::tr("Size of each window in pixels; its own, at most %1 wide, if it is not "
                           "given.")
                      .arg(widestWindow),
                  Text::tr("WxH"));
    line.addSwitch(QStringLiteral("dark"), Text::tr("Draws in dark colours."));
    addChoosingOptions(line);
    addInputOptions(line);
    if (const auto status = line.parse(arguments, 1, 1))
        return *status;
    if (!line.requireValues({QStringLiteral("o")}))
        return Failed;
    const std::optional<Input> input = readInput(line, line.files().constFirst());
    if (!input)
        return Failed;
    if (input->isDocument() && !input->document.isReadable())
        return reportUnreadable(*input);
    const auto places = choosePlaces(readChoice(line), *input);
    if (!places || !areReadable(*input, *places))
        return Failed;
    if (places->isEmpty())
        return reportFailure(input->name, Text::tr("holds no state of a window"));
    return render(line, *input, *places);
}

} // namespace Panorel::Tool
