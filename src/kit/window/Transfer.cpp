// SPDX-License-Identifier: MIT
#include "Transfer.h"

#include "Activity.h"

#include "../value/WholeFile.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutFile.h>

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace Panorel::Kit::Detail {

Transfer::Transfer(Manager& manager, Activity& activity)
    : m_manager(manager)
    , m_activity(activity)
{}

Transfer::~Transfer() = default;

QString Transfer::exportTo(const QString& fileName)
{
    QString problem = write(fileName, m_manager.toXml(/*markActive=*/false));
    if (problem.isNull())
        Q_EMIT message(tr("Exported the layouts to \"%1\".").arg(QFileInfo(fileName).fileName()));
    return problem;
}

QString Transfer::write(const QString& fileName, const QByteArray& document)
{
    const QFileInfo info(fileName);
    const QString name = info.fileName();
    // Writing to a pipe or a device may never end, and nothing can be put in its place.
    if (info.exists() && !info.isFile())
        return tr("\"%1\" is not a file.").arg(name);
    const QString problem = writeWholeFile(fileName, document);
    if (!problem.isNull())
        return tr("\"%1\" cannot be written: %2").arg(name, problem);
    return QString();
}

Transfer::Content Transfer::read(const QString& fileName) const
{
    Content content;
    content.name = QFileInfo(fileName).fileName();
    const LayoutFile file = LayoutFile::read(fileName);
    if (file.kind() != LayoutFile::Kind::Document) {
        const QString reason = file.error().isEmpty() ? tr("it holds no layouts") : file.error();
        content.problem = tr("\"%1\" was not imported: %2").arg(content.name, reason);
        return content;
    }
    content.document = LayoutDocument(file.bytes());
    check(content);
    return content;
}

void Transfer::check(Content& content) const
{
    LayoutDocument::TidyOptions options;
    options.dropsUnsound = true;
    if (const auto error = content.document.tidy(options, &content.dropped))
        content.problem = tr("\"%1\" was not imported: %2").arg(content.name, error.text);
    else if (!hasViews(content.document))
        content.problem = tr("\"%1\" has no layouts for this program.").arg(content.name);
}

QString Transfer::importFrom(const QString& fileName, Mode mode)
{
    return take(read(fileName), mode);
}

QString Transfer::importDocument(LayoutDocument document, const QString& name, Mode mode)
{
    Content content;
    content.name = name;
    content.document = std::move(document);
    check(content);
    return take(content, mode);
}

QString Transfer::take(const Content& content, Mode mode)
{
    if (!content.problem.isNull())
        return content.problem;
    Q_EMIT importing(content.name);
    const Activity::Reading reading(m_activity);
    if (!m_manager.fromXml(content.document.bytes(), mode == Mode::Add))
        return tr("\"%1\" cannot be read.").arg(content.name);
    const QString text = content.dropped.isEmpty()
                             ? tr("Imported the layouts of \"%1\".")
                             : tr("Imported the layouts of \"%1\"; damaged parts were left out.");
    Q_EMIT message(text.arg(content.name));
    return QString();
}

// Whether there are views in groups that the Manager has.
bool Transfer::hasViews(const LayoutDocument& document) const
{
    const QStringList groups = m_manager.groups();
    return std::any_of(groups.cbegin(), groups.cend(),
                       [&](const QString& group) { return !document.viewNames(group).isEmpty(); });
}

} // namespace Panorel::Kit::Detail
