// SPDX-License-Identifier: MIT
#include "ui/MenuFileFixture.h"

#include "support/MenuReading.h"
#include "support/Text.h"
#include "ui/Hands.h"

#include <QFile>
#include <QtTest>

namespace Panorel::Tests {

void MenuFileFixture::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_manager = std::make_unique<Manager>(lines({"G"}), false);
    QVERIFY(m_manager->saveCurrentViewAs("own"_s));
    QVERIFY(m_manager->createView("n"_s));
    m_menu = std::make_unique<Menu>(m_manager.get(), true, nullptr);
    m_signals = std::make_unique<SignalLog>(*m_manager);
    m_watch.start();
}

void MenuFileFixture::cleanup()
{
    m_signals.reset();
    m_menu.reset();
    m_manager.reset();
    m_folder.reset();
    QCOMPARE(m_watch.finish(), QStringList());
}

bool MenuFileFixture::use(const char* entryText, const FileDialogUser::Use& use,
                          QMessageBox::StandardButton answer)
{
    if (!Hands::open(*m_menu))
        return false;
    const FileDialogUser user(use, answer);
    Hands::click(*m_menu, entry(m_menu.get(), QString::fromUtf8(entryText)));
    return user.wasUsed() && !m_menu->isVisible();
}

bool MenuFileFixture::choose(const char* entryText, const QString& fileName,
                             QMessageBox::StandardButton answer)
{
    return use(
        entryText, [&](QFileDialog& dialog) { FileDialogUser::choose(dialog, fileName); }, answer);
}

QString MenuFileFixture::fileWith(const QByteArray& content) const
{
    QFile file(path("given.views"));
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return written ? file.fileName() : QString();
}

QByteArray MenuFileFixture::content(const QString& fileName) const
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

QByteArray MenuFileFixture::document()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <Groups>
        <Group Name="G">
            <Views>
                <View Name="own">
                    <UserData></UserData>
                </View>
                <View Name="n">
                    <UserData></UserData>
                </View>
            </Views>
            <CurrentView Name="__current__">
                <UserData></UserData>
            </CurrentView>
        </Group>
    </Groups>
</ViewData>
)";
}

QByteArray MenuFileFixture::documentWith(const char* view)
{
    return document().replace("Name=\"n\"", QByteArray("Name=\"") + view + "\"");
}

} // namespace Panorel::Tests
