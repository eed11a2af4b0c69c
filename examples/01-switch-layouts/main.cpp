// SPDX-License-Identifier: MIT
#include "EditorWindow.h"
#include "LayoutsMenu.h"
#include "Tour.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>

#include <QApplication>
#include <QCommandLineParser>

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

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({{QStringLiteral("merge"),
                         QStringLiteral("Leave the tool bars as they are on a switch of layouts.")},
                        {QStringLiteral("tour"),
                         QStringLiteral("Show all this, with and without "
                                        "merging, as pictures in <dir>."),
                         QStringLiteral("dir")}});
    options.process(app);

    EditorWindow window;
    ManagedEditor managed(window);
    if (options.isSet(QStringLiteral("tour")))
        return Tour(window, managed, options.value(QStringLiteral("tour"))).run() ? 0 : 1;

    Panorel::Manager manager({QStringLiteral("Editing"), QStringLiteral("Debugging")},
                             /*mergeOnApply=*/options.isSet(QStringLiteral("merge")));
    manager.registerManagable(managed);
    LayoutsMenu menu(manager, window);

    window.start();
    manager.saveCurrentViewAs(QStringLiteral("Standard"));
    return QApplication::exec();
}
