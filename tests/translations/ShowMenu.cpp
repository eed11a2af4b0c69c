// SPDX-License-Identifier: MIT
// Prints the title and the entries of the Layouts menu in UTF-8, one a line. Like any application
// it leaves the language to the library.
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QApplication>

#include <cstdio>

namespace {

void print(const QString& text)
{
    if (!text.isEmpty())
        std::puts(text.toUtf8().constData());
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    Panorel::Manager manager({QStringLiteral("group")}, /*mergeOnApply=*/false);
    const Panorel::Menu menu(&manager, /*extended=*/true);
    print(menu.title());
    const QList<QAction*> entries = menu.actions();
    for (const QAction* entry : entries)
        print(entry->text());
}
