// SPDX-License-Identifier: MIT
#include "PlotWindow.h"

#include <QDockWidget>
#include <QHeaderView>
#include <QListWidget>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>
#include <QtMath>

namespace {

// Two days of a tide.
class TidePlot : public QWidget
{
public:
    using QWidget::QWidget;

    QSize minimumSizeHint() const override { return {120, 80}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().base());
        painter.setRenderHint(QPainter::Antialiasing);
        QColor grid = palette().color(QPalette::Text);
        grid.setAlphaF(0.2);
        painter.setPen(grid);
        for (int line = 1; line < 4; ++line)
            painter.drawLine(0, height() * line / 4, width(), height() * line / 4);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawPath(curve());
    }

private:
    QPainterPath curve() const
    {
        QPainterPath path;
        for (int x = 0; x < width(); ++x) {
            const double days = 2.0 * x / width();
            const double metres =
                qSin(days * 4 * M_PI * 0.966) + 0.35 * qSin(days * 4 * M_PI + 0.8);
            const QPointF point(x, height() * (0.5 - 0.3 * metres));
            if (x == 0)
                path.moveTo(point);
            else
                path.lineTo(point);
        }
        return path;
    }
};

QListWidget* createStations()
{
    auto* list = new QListWidget;
    list->addItems(
        {QStringLiteral("North pier"), QStringLiteral("Lock"), QStringLiteral("Outer buoy")});
    list->setCurrentRow(0);
    return list;
}

QTreeWidget* createReadings()
{
    auto* table = new QTreeWidget;
    table->setHeaderLabels({PlotWindow::tr("Time"), PlotWindow::tr("Level")});
    table->setRootIsDecorated(false);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    const QList<QStringList> rows{{QStringLiteral("06:00"), QStringLiteral("1.38 m")},
                                  {QStringLiteral("06:10"), QStringLiteral("1.44 m")},
                                  {QStringLiteral("06:20"), QStringLiteral("1.51 m")}};
    for (const QStringList& row : rows)
        table->addTopLevelItem(new QTreeWidgetItem(row));
    return table;
}

} // namespace

PlotWindow::PlotWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(tr("Tide - Harbour"));
    setCentralWidget(new TidePlot);
    addDock(QStringLiteral("Stations"), tr("Stations"), createStations(), Qt::LeftDockWidgetArea);
    addDock(QStringLiteral("Readings"), tr("Readings"), createReadings(), Qt::RightDockWidgetArea);
    QToolBar* bar = addToolBar(tr("Plot"));
    bar->setObjectName(QStringLiteral("Plot"));
    bar->addAction(style()->standardIcon(QStyle::SP_BrowserReload), tr("Reload"));
    bar->addAction(style()->standardIcon(QStyle::SP_DialogSaveButton), tr("Save Picture"));
    resize(460, 300);
}

void PlotWindow::start()
{
    show();
    resizeDocks({dock(QStringLiteral("Stations")), dock(QStringLiteral("Readings"))}, {95, 145},
                Qt::Horizontal);
}

QDockWidget* PlotWindow::dock(const QString& name) const
{
    return findChild<QDockWidget*>(name);
}

void PlotWindow::addDock(const QString& name, const QString& title, QWidget* content,
                         Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
}
