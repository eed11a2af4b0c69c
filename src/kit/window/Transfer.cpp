// SPDX-License-Identifier: MIT
#include "Transfer.h"

#include <panorel/Manager.h>
#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/LayoutFile.h>

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace Panorel::Kit::Detail {

Transfer::Transfer(Manager& manager)
    : m_manager(manager)
{}

Transfer::~Transfer() = default;

QString Transfer::exportTo(const QString& fileName)
{
    const QFileInfo info(fileName);
    const QString name = info.fileName();
    // Writing to a pipe or a device may never end, and nothing can be put in its place.
    if (info.exists() && !info.isFile())
        return tr("\"%1\" is not a file.").arg(name);
    QSaveFile file(fileName);
    const QByteArray document = m_manager.toXml(/*markActive=*/false);
    if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size() ||
        !file.commit())
        return tr("\"%1\" cannot be written: %2").arg(name, file.errorString());
    Q_EMIT message(tr("Exported the layouts to \"%1\".").arg(name));
    return QString();
}

QString Transfer::importFrom(const QString& fileName, Mode mode)
{
    const QString name = QFileInfo(fileName).fileName();
    const LayoutFile file = LayoutFile::read(fileName);
    if (file.kind() != LayoutFile::Kind::Document) {
        const QString reason = file.error().isEmpty() ? tr("it holds no layouts") : file.error();
        return tr("\"%1\" was not imported: %2").arg(name, reason);
    }
    return importDocument(LayoutDocument(file.bytes()), name, mode);
}

QString Transfer::importDocument(LayoutDocument document, const QString& name, Mode mode)
{
    QVector<Problem> dropped;
    LayoutDocument::TidyOptions options;
    options.dropsUnsound = true;
    if (const auto error = document.tidy(options, &dropped))
        return tr("\"%1\" was not imported: %2").arg(name, error.text);
    if (!hasViews(document))
        return tr("\"%1\" has no layouts for this program.").arg(name);
    Q_EMIT importing(name);
    if (!m_manager.fromXml(document.bytes(), mode == Mode::Add))
        return tr("\"%1\" cannot be read.").arg(name);
    const QString text = dropped.isEmpty()
                             ? tr("Imported the layouts of \"%1\".")
                             : tr("Imported the layouts of \"%1\"; damaged parts were left out.");
    Q_EMIT message(text.arg(name));
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
