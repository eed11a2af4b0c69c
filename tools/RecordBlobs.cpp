// SPDX-License-Identifier: MIT
//
// Records the state blobs of real main windows, for tests to read:
//
//     RecordBlobs <folder>               the blobs, and a picture of each window beside its blob
//     RecordBlobs --pictures <folder>    the pictures only
//
// Each window is built by one function below; its name in the list is the name of the file. Run it
// with QT_QPA_PLATFORM=offscreen, so that no window manager has a say in the sizes. It builds with
// Qt 6 as well, whose blobs are recorded too.

#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QPainter>
#include <QTextStream>
#include <QToolBar>

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QDockWidget* addDock(QMainWindow& window, Qt::DockWidgetArea area, const char* name)
{
    auto* const dock = new QDockWidget(text(name), &window);
    dock->setObjectName(text(name));
    dock->setWidget(new QLabel(text(name)));
    window.addDockWidget(area, dock);
    return dock;
}

QToolBar* addToolBar(QMainWindow& window, Qt::ToolBarArea area, const char* name)
{
    auto* const toolBar = new QToolBar(text(name), &window);
    toolBar->setObjectName(text(name));
    toolBar->addAction(text(name));
    window.addToolBar(area, toolBar);
    return toolBar;
}

void empty(QMainWindow&) {}

void oneArea(QMainWindow& window)
{
    addDock(window, Qt::LeftDockWidgetArea, "Files");
}

void twoAreas(QMainWindow& window)
{
    addDock(window, Qt::LeftDockWidgetArea, "Files");
    addDock(window, Qt::RightDockWidgetArea, "Outline");
}

void threeAreas(QMainWindow& window)
{
    twoAreas(window);
    addDock(window, Qt::BottomDockWidgetArea, "Log");
}

void fourAreas(QMainWindow& window)
{
    threeAreas(window);
    addDock(window, Qt::TopDockWidgetArea, "Search");
    addToolBar(window, Qt::TopToolBarArea, "Main");
}

void tabs(QMainWindow& window)
{
    QDockWidget* const first = addDock(window, Qt::RightDockWidgetArea, "First");
    QDockWidget* const second = addDock(window, Qt::RightDockWidgetArea, "Second");
    QDockWidget* const third = addDock(window, Qt::RightDockWidgetArea, "Third");
    window.tabifyDockWidget(first, second);
    window.tabifyDockWidget(second, third);
    second->raise();
}

void tabsBesideDock(QMainWindow& window)
{
    QDockWidget* const alone = addDock(window, Qt::BottomDockWidgetArea, "Alone");
    QDockWidget* const first = addDock(window, Qt::BottomDockWidgetArea, "First");
    QDockWidget* const second = addDock(window, Qt::BottomDockWidgetArea, "Second");
    window.splitDockWidget(alone, first, Qt::Horizontal);
    window.tabifyDockWidget(first, second);
    addToolBar(window, Qt::TopToolBarArea, "Main");
}

void nestedSplits(QMainWindow& window)
{
    window.setDockNestingEnabled(true);
    QDockWidget* const a = addDock(window, Qt::LeftDockWidgetArea, "A");
    QDockWidget* const b = addDock(window, Qt::LeftDockWidgetArea, "B");
    QDockWidget* const c = addDock(window, Qt::LeftDockWidgetArea, "C");
    QDockWidget* const d = addDock(window, Qt::LeftDockWidgetArea, "D");
    QDockWidget* const e = addDock(window, Qt::LeftDockWidgetArea, "E");
    window.splitDockWidget(a, b, Qt::Vertical);
    window.splitDockWidget(b, c, Qt::Horizontal);
    window.splitDockWidget(c, d, Qt::Vertical);
    window.tabifyDockWidget(d, e);
}

void floatingDock(QMainWindow& window)
{
    addDock(window, Qt::LeftDockWidgetArea, "Docked");
    QDockWidget* const dock = addDock(window, Qt::LeftDockWidgetArea, "Floating");
    dock->setFloating(true);
    dock->setGeometry(40, 50, 160, 120);
}

void hiddenParts(QMainWindow& window)
{
    addDock(window, Qt::LeftDockWidgetArea, "Shown");
    addDock(window, Qt::LeftDockWidgetArea, "Hidden")->hide();
    addToolBar(window, Qt::TopToolBarArea, "Shown bar");
    addToolBar(window, Qt::TopToolBarArea, "Hidden bar")->hide();
}

void closedFloatingDock(QMainWindow& window)
{
    floatingDock(window);
    window.findChild<QDockWidget*>(text("Floating"))->close();
}

void oneToolBarLine(QMainWindow& window)
{
    addToolBar(window, Qt::TopToolBarArea, "File");
    addToolBar(window, Qt::TopToolBarArea, "Edit");
    addToolBar(window, Qt::TopToolBarArea, "View");
}

void severalToolBarLines(QMainWindow& window)
{
    addToolBar(window, Qt::TopToolBarArea, "File");
    addToolBar(window, Qt::TopToolBarArea, "Edit");
    window.addToolBarBreak();
    addToolBar(window, Qt::TopToolBarArea, "View");
    window.addToolBarBreak();
    addToolBar(window, Qt::TopToolBarArea, "Help");
}

void toolBarsInAllAreas(QMainWindow& window)
{
    addToolBar(window, Qt::LeftToolBarArea, "Left");
    addToolBar(window, Qt::RightToolBarArea, "Right");
    addToolBar(window, Qt::TopToolBarArea, "Top");
    addToolBar(window, Qt::BottomToolBarArea, "Bottom");
}

void verticalToolBar(QMainWindow& window)
{
    addToolBar(window, Qt::LeftToolBarArea, "Tools");
}

void floatingToolBar(QMainWindow& window)
{
    QToolBar* const toolBar = addToolBar(window, Qt::TopToolBarArea, "Torn off");
    toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    toolBar->move(70, 80);
    toolBar->show();
}

void movedCorners(QMainWindow& window)
{
    oneArea(window);
    window.setCorner(Qt::TopLeftCorner, Qt::TopDockWidgetArea);
    window.setCorner(Qt::TopRightCorner, Qt::RightDockWidgetArea);
    window.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
}

// QMainWindow::saveState() warns about each; that is what is recorded here.
void unnamed(QMainWindow& window)
{
    addDock(window, Qt::LeftDockWidgetArea, "x")->setObjectName(QString());
    addToolBar(window, Qt::TopToolBarArea, "x")->setObjectName(QString());
}

void foreignNames(QMainWindow& window)
{
    addDock(window, Qt::LeftDockWidgetArea, "x")
        ->setObjectName(QString::fromUtf16(u"\u0424\u0430\u0439\u043B \U0001F5C2"));
    addToolBar(window, Qt::TopToolBarArea, "x")
        ->setObjectName(QString::fromUtf16(u"\u9053\u5177\u680F"));
}

void manyParts(QMainWindow& window)
{
    nestedSplits(window);
    tabs(window);
    severalToolBarLines(window);
    addToolBar(window, Qt::BottomToolBarArea, "Status");
    addDock(window, Qt::BottomDockWidgetArea, "Log")->hide();
    QDockWidget* const dock = addDock(window, Qt::TopDockWidgetArea, "Floating");
    dock->setFloating(true);
}

// A user makes one by dropping a floating dock widget on another. Here the window is given a state
// that holds such a group, which it restores and then saves in its own words.
void floatingTabs(QMainWindow& window)
{
    window.setDockOptions(window.dockOptions() | QMainWindow::GroupedDragging);
    addDock(window, Qt::LeftDockWidgetArea, "First");
    addDock(window, Qt::LeftDockWidgetArea, "Second");
    QByteArray group;
    QDataStream stream(&group, QIODevice::WriteOnly);
    stream << quint8(0xF9) << QRect(100, 100, 201, 201);
    stream << quint8(0xFA) << qint32(1) << quint8(Qt::Horizontal) << qint32(2);
    for (const char* const name : {"First", "Second"})
        stream << quint8(0xFB) << text(name) << quint8(1) << QRect(0, 0, 201, 0);
    // The group comes before the tool-bar section, here an empty one: a marker and a count.
    QByteArray state = window.saveState();
    state.insert(state.size() - 5, group);
    if (!window.restoreState(state))
        qFatal("The window refuses the floating tab group");
}

struct Case
{
    const char* name;
    void (*build)(QMainWindow&);
    int version = 0;
};

const Case cases[] = {
    {"empty", &empty},
    {"empty-version-7", &empty, 7},
    {"empty-version-minus-2", &empty, -2},
    {"one-area", &oneArea},
    {"two-areas", &twoAreas},
    {"three-areas", &threeAreas},
    {"four-areas", &fourAreas},
    {"tabs", &tabs},
    {"tabs-beside-dock", &tabsBesideDock},
    {"nested-splits", &nestedSplits},
    {"floating-dock", &floatingDock},
    {"hidden-parts", &hiddenParts},
    {"closed-floating-dock", &closedFloatingDock},
    {"one-tool-bar-line", &oneToolBarLine},
    {"several-tool-bar-lines", &severalToolBarLines},
    {"tool-bars-in-all-areas", &toolBarsInAllAreas},
    {"vertical-tool-bar", &verticalToolBar},
    {"floating-tool-bar", &floatingToolBar},
    {"moved-corners", &movedCorners},
    {"unnamed", &unnamed},
    {"foreign-names", &foreignNames},
    {"many-parts", &manyParts},
    {"rejected/floating-tabs", &floatingTabs},
};

/** The window and what floats above it, in few colours, because there is a picture for each blob.
 */
QImage picture(QMainWindow& window)
{
    QImage image(window.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, window.grab());
    const QList<QWidget*> children = window.findChildren<QWidget*>();
    for (QWidget* const child : children) {
        if (!child->isWindow() || !child->isVisible())
            continue;
        const QPoint place = child->pos() - window.pos();
        painter.drawPixmap(place, child->grab());
        painter.drawRect(QRect(place, child->size() - QSize(1, 1)));
    }
    painter.end();
    return image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
}

bool save(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool record(const Case& what, const QDir& folder, bool onlyPicture)
{
    QMainWindow window;
    window.setCentralWidget(new QLabel(text("Centre")));
    window.resize(640, 480);
    window.show();
    QCoreApplication::processEvents();
    what.build(window);
    QCoreApplication::processEvents();
    const QString name = folder.filePath(text(what.name));
    const QByteArray blob = window.saveState(what.version);
    QTextStream(stdout) << blob.size() << ' ' << what.name << '\n';
    return (onlyPicture || save(name + QStringLiteral(".blob"), blob)) &&
           picture(window).save(name + QStringLiteral(".png"), nullptr, /*quality=*/0);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool onlyPictures = arguments.removeAll(QStringLiteral("--pictures")) > 0;
    if (arguments.size() != 1) {
        QTextStream(stdout) << "Usage: RecordBlobs [--pictures] <folder>\n";
        return 2;
    }
    const QDir folder(arguments[0]);
    if (!folder.mkpath(text("rejected")))
        return 1;
    for (const Case& what : cases) {
        if (!record(what, folder, onlyPictures))
            return 1;
    }
    return 0;
}
