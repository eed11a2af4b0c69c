// SPDX-License-Identifier: MIT
#include "Windows.h"

#include <QDockWidget>
#include <QTextEdit>
#include <QToolBar>

namespace {

constexpr Qt::DockWidgetArea areas[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                        Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea};

std::unique_ptr<QMainWindow> createWindow(int dockCount)
{
    auto window = std::make_unique<QMainWindow>();
    window->setCentralWidget(new QTextEdit);
    for (int i = 0; i < dockCount; ++i) {
        auto* dock = new QDockWidget(QStringLiteral("Dock %1").arg(i));
        dock->setObjectName(QStringLiteral("dock%1").arg(i));
        dock->setWidget(new QWidget);
        window->addDockWidget(areas[i % 4], dock);
    }
    for (int i = 0; i < 3; ++i) {
        QToolBar* bar = window->addToolBar(QStringLiteral("Tool bar %1").arg(i));
        bar->setObjectName(QStringLiteral("toolBar%1").arg(i));
        bar->addAction(QStringLiteral("Action"));
    }
    window->resize(1200, 900);
    window->show();
    return window;
}

// The docks of each area as one tab group, @p shift areas further on.
void arrange(QMainWindow* window, int shift)
{
    QDockWidget* first[4] = {};
    const auto docks = window->findChildren<QDockWidget*>();
    for (int i = 0; i < docks.size(); ++i) {
        const int area = (i + shift) % 4;
        window->addDockWidget(areas[area], docks.at(i));
        if (first[area])
            window->tabifyDockWidget(first[area], docks.at(i));
        else
            first[area] = docks.at(i);
    }
}

} // namespace

Windows::Windows(int windowCount, int dockCount)
{
    for (int i = 0; i < windowCount; ++i)
        m_windows.push_back(createWindow(dockCount));
}

QList<Panorel::ManagedWindow> Windows::managedWindows()
{
    QList<Panorel::ManagedWindow> managed;
    for (std::size_t i = 0; i < m_windows.size(); ++i)
        managed.append(
            {QStringLiteral("window%1").arg(i, 2, 10, QLatin1Char('0')), m_windows[i].get()});
    return managed;
}

QVector<QByteArray> Windows::arrangement(int shift)
{
    for (const auto& window : m_windows)
        arrange(window.get(), shift);
    // Qt moves sizes about in the first rounds; a layout that stays as it is can be compared.
    QVector<QByteArray> states = save();
    for (int i = 0; i < 10; ++i) {
        restore(states);
        const QVector<QByteArray> settled = save();
        if (settled == states)
            break;
        states = settled;
    }
    return states;
}

QVector<QByteArray> Windows::save() const
{
    QVector<QByteArray> states;
    for (const auto& window : m_windows)
        states.append(window->saveState(0));
    return states;
}

QStringList Windows::places() const
{
    QStringList places;
    for (const auto& window : m_windows) {
        for (QDockWidget* dock : window->findChildren<QDockWidget*>())
            places << QStringLiteral("%1: %2 %3 %4")
                          .arg(dock->objectName())
                          .arg(window->dockWidgetArea(dock))
                          .arg(window->tabifiedDockWidgets(dock).size())
                          .arg(dock->isHidden());
        for (QToolBar* bar : window->findChildren<QToolBar*>())
            places << QStringLiteral("%1: %2 %3 %4")
                          .arg(bar->objectName())
                          .arg(window->toolBarArea(bar))
                          .arg(bar->x())
                          .arg(bar->isHidden());
    }
    places.sort(); // A window changes the order of its children.
    return places;
}

void Windows::restore(const QVector<QByteArray>& states)
{
    for (std::size_t i = 0; i < m_windows.size(); ++i)
        m_windows[i]->restoreState(states.at(static_cast<int>(i)), 0);
}
