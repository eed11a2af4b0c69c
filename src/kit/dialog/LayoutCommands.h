// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutId.h"

#include "../window/Snapshot.h"

#include <QObject>

namespace Panorel::Kit::Detail {

struct Session;

/** What the dialog "Layouts" does to the layouts. Each change is one step that can be undone. */
class LayoutCommands : public QObject
{
    Q_OBJECT

public:
    /** @param session may be destroyed after end(). */
    LayoutCommands(Session& session, QObject* parent);
    ~LayoutCommands() override;

    /** Does nothing from now on. */
    void end() { m_session = nullptr; }

    /** Makes @p layout the active one, and its group the active group. */
    void activate(const LayoutId& layout);
    void rename(const LayoutId& layout, const QString& name);
    void remove(const LayoutIds& layouts);
    /** @return the copies. */
    LayoutIds duplicate(const LayoutIds& layouts);
    /** Puts @p layouts before the one that is at @p row of @p group. @return their names there. */
    LayoutIds move(const LayoutIds& layouts, const QString& group, int row);
    /** Takes over what an import has made of the layouts. @param layouts those that were imported.
     */
    void import(const Snapshot& result, const LayoutIds& layouts, const QString& fileName);
    /** Writes @p layouts to a file. */
    void exportTo(const QString& fileName, const LayoutIds& layouts);

Q_SIGNALS:
    /** What was done or why it was not, one sentence for the user. */
    void message(const QString& text);

private:
    Session* m_session;
};

} // namespace Panorel::Kit::Detail
