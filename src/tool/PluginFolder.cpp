// SPDX-License-Identifier: MIT
#include "PluginFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Panorel::Tool {

namespace {

constexpr auto pathVariable = "QT_PLUGIN_PATH";

bool hasPlugin(const QString& folder)
{
    const QDir plugins(folder + QStringLiteral("/generic"));
    return !plugins.entryList({QStringLiteral("*panorel-plugin*")}, QDir::Files).isEmpty();
}

} // namespace

PluginFolder::PluginFolder()
{
    const QString own = QFileInfo(QCoreApplication::applicationDirPath() +
                                  QStringLiteral("/" PANOREL_PLUGINS_FROM_PROGRAMS))
                            .canonicalFilePath();
    // QT_PLUGIN_PATH and Qt's own folder.
    const QStringList ofQt = QCoreApplication::libraryPaths();
    if (!own.isEmpty() && hasPlugin(own) && !ofQt.contains(own)) {
        m_isFound = true;
        m_path = own;
        return;
    }
    for (const QString& folder : ofQt)
        m_isFound = m_isFound || hasPlugin(folder);
}

void PluginFolder::addToEnvironment() const
{
    if (m_path.isEmpty())
        return;
    const QByteArray own = QFile::encodeName(m_path);
    const QByteArray others = qgetenv(pathVariable);
    const char separator = QDir::listSeparator().toLatin1();
    qputenv(pathVariable, others.isEmpty() ? own : own + separator + others);
    // The plugin takes this folder out again for the programs that the program starts.
    qputenv("PANOREL_PLUGIN_PATH", own);
}

} // namespace Panorel::Tool
