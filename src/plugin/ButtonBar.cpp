// SPDX-License-Identifier: MIT
#include "ButtonBar.h"

#include "ProgramFiles.h"

#include <panorel/kit/Layouts.h>

#include <QEvent>
#include <QFile>
#include <QLayout>
#include <QThread>
#include <QTimer>
#include <QToolButton>

namespace Panorel::Plugin {

namespace {

constexpr int returnDelay = 100;

} // namespace

ButtonBar::ButtonBar(QMainWindow& window, Kit::Layouts& layouts)
    : m_widget(&window)
    , m_layouts(layouts)
    , m_entry(tr("Show Button in a Tool Bar"))
{
    m_entry.setCheckable(true);
    m_entry.setMenuRole(QAction::NoRole);
    // Before the filters of the layouts are, which come before it then and still see the tool bar.
    window.installEventFilter(this);
    const bool isOn = QFile::exists(ProgramFiles::button());
    m_entry.setChecked(isOn);
    if (isOn)
        show();
    connect(&m_entry, &QAction::toggled, this, &ButtonBar::setOn);
}

ButtonBar::~ButtonBar()
{
    delete m_bar;
}

// An empty file says that it is on.
void ButtonBar::setOn(bool isOn)
{
    if (isOn) {
        show();
        QFile file(ProgramFiles::button());
        (void)file.open(QIODevice::WriteOnly); // If it fails, the tool bar is off next time.
        return;
    }
    delete m_bar;
    (void)QFile::remove(ProgramFiles::button());
}

void ButtonBar::show()
{
    if (m_bar || !window())
        return;
    m_bar = new QToolBar(tr("Layouts"));
    m_bar->setObjectName(QStringLiteral("panorel-layouts"));
    m_bar->addWidget(m_layouts.createButton(m_bar));
    window()->addToolBar(m_bar);
    m_bar->show();
    // Hidden by the program's own list of tool bars, it is off as well.
    connect(m_bar->toggleViewAction(), &QAction::triggered, this, [this](bool isShown) {
        if (!isShown)
            QMetaObject::invokeMethod(
                &m_entry, [this] { m_entry.setChecked(false); }, Qt::QueuedConnection);
    });
}

bool ButtonBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_widget || !m_bar || !window())
        return false;
    if (event->type() == QEvent::Close)
        leave();
    else if (event->type() == QEvent::Show && m_isAway)
        comeBack();
    return false;
}

void ButtonBar::leave()
{
    if (m_isAway)
        return; // Closed again while the program still asks.
    m_area = window()->toolBarArea(m_bar);
    window()->removeToolBar(m_bar);
    (void)window()->layout()->activate(); // The sizes without it are to be saved as well.
    m_isAway = true;
    comeBackIfRefused(QThread::currentThread()->loopLevel());
}

// The window may refuse to be closed. The program may ask its user first, in an event loop of its
// own, and is still to save its state after that.
void ButtonBar::comeBackIfRefused(int loopLevel)
{
    QTimer::singleShot(returnDelay, this, [this, loopLevel] {
        if (QThread::currentThread()->loopLevel() > loopLevel)
            comeBackIfRefused(loopLevel);
        else if (m_isAway && window() && window()->isVisible())
            comeBack();
    });
}

void ButtonBar::comeBack()
{
    m_isAway = false;
    if (!m_bar)
        return;
    window()->addToolBar(m_area == Qt::NoToolBarArea ? Qt::TopToolBarArea : m_area, m_bar);
    m_bar->show();
}

} // namespace Panorel::Plugin
