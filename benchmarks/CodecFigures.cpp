// SPDX-License-Identifier: MIT
#include "Figures.h"

#include <panorel/QtState.h>

#include <QDataStream>

#include <memory>
#include <vector>

namespace {

using Panorel::QtState;

// Reads every field with QDataStream and keeps nothing: the bare work of any reader.
class Walk
{
public:
    explicit Walk(const QByteArray& blob)
        : m_stream(blob)
    {
        m_stream >> m_int >> m_int;
        while (!m_stream.atEnd()) {
            quint8 marker = 0;
            m_stream >> marker;
            if (marker == QtState::QDockAreaLayout_DockWidgetStateMarker)
                dockSection();
            else
                toolBarSection(marker == QtState::QToolBarAreaLayout_ToolBarStateMarkerEx ? 4 : 3);
        }
    }

    bool isOk() const { return m_stream.status() == QDataStream::Ok; }

private:
    int takeInt()
    {
        m_stream >> m_int;
        return m_int;
    }

    void ints(int count)
    {
        for (int i = 0; i < count; ++i)
            m_stream >> m_int;
    }

    void dockSection()
    {
        const int docks = takeInt();
        for (int i = 0; i < docks; ++i) {
            m_stream >> m_int >> m_size;
            blockHead();
            while (!m_open.empty())
                nextItem();
        }
        m_stream >> m_size;
        ints(4);
    }

    void blockHead()
    {
        m_stream >> m_byte;
        if (m_byte == QtState::QDockAreaLayoutInfo_TabMarker)
            m_stream >> m_int;
        m_stream >> m_byte;
        m_open.push_back(takeInt());
    }

    void nextItem()
    {
        if (m_open.back()-- <= 0) {
            m_open.pop_back();
            return;
        }
        quint8 marker = 0;
        m_stream >> marker;
        if (marker == QtState::QDockAreaLayoutInfo_WidgetMarker)
            m_stream >> m_name >> m_byte;
        ints(4);
        if (marker == QtState::QDockAreaLayoutInfo_SequenceMarker)
            blockHead();
    }

    void toolBarSection(int valueCount)
    {
        const int lines = takeInt();
        for (int i = 0; i < lines; ++i) {
            m_stream >> m_int;
            const int items = takeInt();
            for (int j = 0; j < items; ++j) {
                m_stream >> m_name >> m_byte;
                ints(valueCount);
            }
        }
    }

    QDataStream m_stream;
    std::vector<int> m_open;
    qint32 m_int = 0;
    quint8 m_byte = 0;
    QSize m_size;
    QString m_name;
};

void putDock(QDataStream& stream, int number)
{
    stream << QtState::QDockAreaLayoutInfo_WidgetMarker
           << QStringLiteral("dockWidget%1").arg(number) << quint8(1) << 0 << number << 200 << 300;
}

void putNestedBlock(QDataStream& stream, unsigned char marker, int itemCount)
{
    stream << QtState::QDockAreaLayoutInfo_SequenceMarker << 0 << 0 << 0 << 0 << marker;
    if (marker == QtState::QDockAreaLayoutInfo_TabMarker)
        stream << 0;
    stream << quint8(1) << itemCount;
}

void putHead(QDataStream& stream, int itemCount)
{
    stream << QtState::QMainWindowLayout_VersionMarker << 0
           << QtState::QDockAreaLayout_DockWidgetStateMarker << 1 << 0 << QSize(200, 300)
           << QtState::QDockAreaLayoutInfo_SequenceMarker << quint8(1) << itemCount;
}

void putTail(QDataStream& stream)
{
    stream << QSize(400, 300) << 0 << 1 << 2 << 3;
}

// One dock area of which every fourth item is a pair of tabs, and one line of tool bars.
QByteArray wideBlob(int dockCount, int toolBarCount)
{
    QByteArray blob;
    QDataStream stream(&blob, QIODevice::WriteOnly);
    putHead(stream, dockCount);
    for (int i = 0; i < dockCount; ++i) {
        if (i % 4 == 3) {
            putNestedBlock(stream, QtState::QDockAreaLayoutInfo_TabMarker, 2);
            putDock(stream, i + dockCount);
        }
        putDock(stream, i);
    }
    putTail(stream);
    stream << QtState::QToolBarAreaLayout_ToolBarStateMarkerEx << 1 << 0 << toolBarCount;
    for (int i = 0; i < toolBarCount; ++i)
        stream << QStringLiteral("toolBar%1").arg(i) << quint8(1) << 0 << 1 << 2 << 3;
    return blob;
}

QByteArray deepBlob(int depth)
{
    QByteArray blob;
    QDataStream stream(&blob, QIODevice::WriteOnly);
    putHead(stream, 1);
    for (int i = 1; i <= depth; ++i)
        putNestedBlock(stream, QtState::QDockAreaLayoutInfo_SequenceMarker, i < depth ? 1 : 0);
    putTail(stream);
    return blob;
}

void appendFigures(QVector<Figure>& figures, const QString& what, const QByteArray& blob,
                   const char* dimension, int size)
{
    const auto state = std::make_shared<QtState>();
    (void)state->read(blob);
    Figure figure;
    figure.baseline = [blob] { const Walk walk(blob); };
    figure.check = [state, blob] { return Walk(blob).isOk() && state->write() == blob; };
    const auto append = [&](const char* operation, double goal,
                            const std::function<void()>& subject) {
        figure.name = QStringLiteral("QtState %1, %2").arg(QLatin1String(operation), what);
        figure.goal = goal;
        figure.steps = {{QStringLiteral("QtState %1, %2")
                             .arg(QLatin1String(operation), QLatin1String(dimension)),
                         static_cast<double>(size)}};
        figure.subject = subject;
        figures.append(figure);
    };
    append("read", 1.0, [blob] {
        QtState value;
        (void)value.read(blob);
    });
    append("write", 0.6, [state] { (void)state->write(); });
    append("copy", 0.15, [state] { const QtState copy(*state); });
    append("merge", 0.15, [state] { const QtState both(QtState::merge(*state, *state)); });
}

} // namespace

QVector<Figure> codecFigures()
{
    QVector<Figure> figures;
    const auto append = [&](const QString& what, const QByteArray& blob, const char* dimension,
                            int size) { appendFigures(figures, what, blob, dimension, size); };
    append(QStringLiteral("0.5 KB"), wideBlob(6, 4), "width", 1);
    append(QStringLiteral("5 KB"), wideBlob(60, 40), "width", 10);
    append(QStringLiteral("50 KB"), wideBlob(600, 400), "width", 100);
    append(QStringLiteral("nested 100 deep"), deepBlob(100), "depth", 100);
    append(QStringLiteral("nested 1,000 deep"), deepBlob(1000), "depth", 1000);
    append(QStringLiteral("nested 10,000 deep"), deepBlob(10000), "depth", 10000);
    return figures;
}
