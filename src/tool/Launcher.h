// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Panorel::Tool {

/** A desktop entry: the file by which a desktop starts a program. */
class Launcher
{
public:
    explicit Launcher(const QByteArray& content);

    /** Whether it starts a program. */
    bool isUsable() const { return m_hasCommand; }
    /** Whether its program brings its own Qt along, as Flatpaks, snaps and AppImages do. */
    bool isContainer() const { return m_isContainer; }
    /** Whether starting() made it. */
    bool isOurs() const { return m_isOurs; }

    /** The same entry with each of its commands started by @p starter, which is the beginning of a
        command as desktop entries have them. */
    QByteArray starting(const QByteArray& starter) const;

    /** How a command starts @p program, if the user's PATH has @p found, which may be empty: by its
        name if the PATH of each desktop session has it as well, else by its path. */
    static QByteArray command(const QString& program, const QString& found);
    /** A path as it is written in a command. */
    static QByteArray quoted(const QByteArray& path);

private:
    QByteArray m_content;
    bool m_hasCommand = false;
    bool m_isContainer = false;
    bool m_isOurs = false;
};

} // namespace Panorel::Tool
