// SPDX-License-Identifier: MIT

// Usage: WriteSeeds BLOBS SEEDS
// Writes what the fuzzers start from, a folder for each, from the recorded states in the folder
// BLOBS and from documents of real windows.

#include "support/Owner.h"
#include "support/RecordedBlobs.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

/** Writes seeds into one folder, named by their number. */
class Seeds
{
public:
    explicit Seeds(const QString& folder)
        : m_folder(folder)
    {
        QDir().mkpath(folder);
    }

    void add(const QByteArray& seed)
    {
        QFile file(m_folder + "/"_s + QString::number(++m_count));
        if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size()) {
            std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file.fileName()));
            std::exit(1);
        }
    }

private:
    QString m_folder;
    int m_count = 0;
};

void writeStates(const std::vector<RecordedBlob>& blobs, const QString& folder)
{
    Seeds codec(folder + "/CodecFuzzer"_s);
    Seeds merge(folder + "/MergeFuzzer"_s);
    Seeds state(folder + "/StateFuzzer"_s);
    for (std::size_t i = 0; i < blobs.size(); ++i) {
        const QByteArray& first = blobs[i].bytes;
        const QByteArray& second = blobs[(i * 7 + 3) % blobs.size()].bytes;
        codec.add(first);
        state.add(first);
        const char length[] = {static_cast<char>(first.size() >> 8),
                               static_cast<char>(first.size() & 0xFF)};
        merge.add(QByteArray(length, 2) + first + second);
    }
}

/** A document of two groups with views of a small window in several arrangements. */
QByteArray smallDocument(bool mergeOnApply, bool markActive)
{
    SmallWindow window;
    Owner owner({{"window"_s, &window}});
    Manager manager({"G"_s, "H"_s}, mergeOnApply);
    manager.registerManagable(owner);
    manager.createView("a"_s);
    window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    manager.saveCurrentViewAs("new"_s);
    manager.activateGroup("H"_s);
    window.arrange(Qt::TopDockWidgetArea, Qt::LeftToolBarArea);
    manager.saveCurrentViewAs("old"_s);
    manager.createView(""_s);
    return manager.toXml(markActive);
}

void writeDocuments(const QString& folder)
{
    Seeds seeds(folder + "/DocumentFuzzer"_s);
    for (const bool mergeOnApply : {false, true}) {
        for (const bool markActive : {false, true})
            seeds.add(smallDocument(mergeOnApply, markActive));
    }
    const QByteArray document = smallDocument(/*mergeOnApply=*/true, /*markActive=*/true);
    seeds.add(QByteArray(document).replace("1.1.0", "1.0.0"));
    seeds.add(QByteArray(document).replace("<UserData></UserData>", ""));
    seeds.add(QByteArray(document).replace("<UserData>", "<UserData>some text &#10;<![CDATA[<]]>"));
    seeds.add(QByteArray(document).replace("Name=\"new\"", "Active=\"1\" Name=\"a\""));
    seeds.add(QByteArray(document).replace("Name=\"H\"", "Name=\"G\""));
    seeds.add(QByteArray(document).replace("DescriptorId=\"window\"", "DescriptorId=\"\""));
    seeds.add(QByteArray(document).left(document.size() / 2));
    seeds.add("<ViewData Version='1.1.0'><Groups/></ViewData>");
    seeds.add("<ViewData Version='1.1.0'><Groups><Group Name='G'><Views><View Name='a'/></Views>"
              "<CurrentView Name=''/></Group></Groups></ViewData>");
    seeds.add("<!DOCTYPE ViewData [<!ENTITY e \"0a\"><!ATTLIST View Name CDATA 'old'>]>"
              "<ViewData Version='1.1.0'><ToolBarState DescriptorId='&e;'>&e;</ToolBarState>"
              "<Groups/><!-- --><?p?></ViewData>");
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: WriteSeeds BLOBS SEEDS\n");
        return 2;
    }
    std::vector<RecordedBlob> blobs = recordedBlobs(QString::fromLocal8Bit(argv[1]));
    for (const auto& blob : recordedBlobs(QString::fromLocal8Bit(argv[1]) + "/rejected"_s))
        blobs.push_back(blob);
    if (blobs.empty()) {
        std::fprintf(stderr, "no recorded states in %s\n", argv[1]);
        return 1;
    }
    const QString folder = QString::fromLocal8Bit(argv[2]);
    writeStates(blobs, folder);
    writeDocuments(folder);
    return 0;
}
