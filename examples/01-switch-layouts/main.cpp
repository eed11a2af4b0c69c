// SPDX-License-Identifier: MIT
#include "EditorWindow.h"
#include "LayoutStore.h"
#include "Tour.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QMenuBar>
#include <QMessageBox>

namespace {

// Names the windows to manage. The id is what a stored layout knows a window by, so it stays the
// same in every run.
class ManagedEditor : public Panorel::IManagable
{
public:
    explicit ManagedEditor(EditorWindow& window)
        : m_window(window)
    {}

    QList<Panorel::ManagedWindow> managedWindows() override
    {
        return {{QStringLiteral("editor"), &m_window}};
    }

private:
    EditorWindow& m_window;
};

void show(const QString& problem)
{
    if (!problem.isEmpty())
        QMessageBox::warning(nullptr, QStringLiteral("Layouts"), problem);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({{QStringLiteral("merge"),
                         QStringLiteral("Leave the tool bars as they are on a switch of layouts.")},
                        {QStringLiteral("layouts"), QStringLiteral("Keep the layouts in <file>."),
                         QStringLiteral("file"), LayoutStore::defaultFileName()},
                        {QStringLiteral("tour"),
                         QStringLiteral("Show all this, with and without "
                                        "merging, as pictures in <dir>."),
                         QStringLiteral("dir")}});
    options.process(app);

    EditorWindow window;
    ManagedEditor managed(window);
    if (options.isSet(QStringLiteral("tour")))
        return Tour(window, managed, options.value(QStringLiteral("tour"))).run() ? 0 : 1;

    Panorel::Manager manager({QStringLiteral("Editing")},
                             /*mergeOnApply=*/options.isSet(QStringLiteral("merge")));
    manager.registerManagable(managed);
    Panorel::Menu menu(&manager, /*extended=*/true);
    menu.setTitle(QStringLiteral("&Layouts"));
    window.menuBar()->addMenu(&menu);

    window.start();
    LayoutStore store(options.value(QStringLiteral("layouts")));
    show(store.load(manager));
    if (manager.views().isEmpty())
        manager.saveCurrentViewAs(QStringLiteral("Standard"));
    const int result = QApplication::exec();
    show(store.save(manager));
    return result;
}
