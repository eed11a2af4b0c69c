// SPDX-License-Identifier: MIT
#include "Snapshot.h"

#include "../value/DocumentModel.h"

#include <QXmlStreamWriter>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

StateMap statesOf(const QVector<DocumentState>& elements)
{
    DocumentView view;
    view.states = elements;
    return readView({&view}).states;
}

Snapshot::View viewOf(const DocumentView& element)
{
    const LayoutDocument::View view = readView({&element});
    return {view.name, element.isMarked, view.states, view.userData};
}

void writeStates(QXmlStreamWriter& writer, const char* element, const StateMap& states)
{
    for (auto state = states.cbegin(); state != states.cend(); ++state) {
        writer.writeStartElement(QLatin1String(element));
        writer.writeAttribute(QLatin1String("DescriptorId"), state.key());
        writer.writeCharacters(QString::fromLatin1(state->toHex()));
        writer.writeEndElement();
    }
}

void writeView(QXmlStreamWriter& writer, const char* element, const Snapshot::View& view)
{
    writer.writeStartElement(QLatin1String(element));
    if (view.isActive)
        writer.writeAttribute(QLatin1String("Active"), QLatin1String("true"));
    writer.writeAttribute(QLatin1String("Name"), view.name);
    writeStates(writer, "State", view.states);
    writer.writeTextElement(QLatin1String("UserData"), view.userData);
    writer.writeEndElement();
}

template<typename Group>
Group* findGroup(Group* begin, Group* end, const QString& name)
{
    Group* found = std::find_if(begin, end, [&](const auto& group) { return group.name == name; });
    return found == end ? nullptr : found;
}

bool same(const Snapshot::View* a, const Snapshot::View* b)
{
    return a && b ? *a == *b : a == b;
}

void remove(Snapshot::Group& group, const QString& name)
{
    group.views.erase(std::remove_if(group.views.begin(), group.views.end(),
                                     [&](const auto& view) { return view.name == name; }),
                      group.views.end());
}

// What others have made of one view; ours has not changed it, or they have.
void takeOver(Snapshot::Group& result, const Snapshot::View* ours, Snapshot::View theirs,
              bool oursChanged)
{
    theirs.isActive = ours && ours->isActive && !oursChanged;
    if (oursChanged)
        theirs.name = result.freeName(theirs.name);
    for (Snapshot::View& view : result.views) {
        if (view.name == theirs.name) {
            view = theirs;
            return;
        }
    }
    result.views.append(theirs);
}

void mergeGroup(Snapshot::Group& result, const Snapshot::Group& base, const Snapshot::Group& theirs)
{
    const Snapshot::Group ours = result;
    for (const Snapshot::View& view : theirs.views) {
        const Snapshot::View* before = base.find(view.name);
        const Snapshot::View* own = ours.find(view.name);
        if (same(before, &view) || same(own, &view))
            continue;
        takeOver(result, own, view, own && !same(before, own));
    }
    for (const Snapshot::View& before : base.views) {
        if (!theirs.find(before.name) && same(&before, ours.find(before.name)))
            remove(result, before.name);
    }
}

} // namespace

const Snapshot::View* Snapshot::Group::find(const QString& view) const
{
    for (const View& known : views) {
        if (known.name == view)
            return &known;
    }
    return nullptr;
}

QString Snapshot::Group::freeName(const QString& wanted) const
{
    QString result = wanted;
    for (int number = 2; find(result); ++number)
        result = QStringLiteral("%1 (%2)").arg(wanted, QString::number(number));
    return result;
}

Snapshot Snapshot::fromXml(const QByteArray& document)
{
    const DocumentModel model = DocumentModel::ofAccepted(document);
    Snapshot snapshot;
    snapshot.version = model.version;
    snapshot.toolBarStates = statesOf(model.toolBarStates);
    for (const DocumentGroup& element : model.groups) {
        Group group{element.name, {}, viewOf(element.current)};
        for (const DocumentView& view : element.views)
            group.views.append(viewOf(view));
        snapshot.groups.append(group);
    }
    return snapshot;
}

QByteArray Snapshot::toXml() const
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("ViewData"));
    writer.writeAttribute(QLatin1String("Version"), version);
    writeStates(writer, "ToolBarState", toolBarStates);
    writer.writeStartElement(QLatin1String("Groups"));
    for (const Group& group : groups) {
        writer.writeStartElement(QLatin1String("Group"));
        writer.writeAttribute(QLatin1String("Name"), group.name);
        writer.writeStartElement(QLatin1String("Views"));
        for (const View& view : group.views)
            writeView(writer, "View", view);
        writer.writeEndElement();
        writeView(writer, "CurrentView", group.current);
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    return document;
}

Snapshot::Group* Snapshot::find(const QString& group)
{
    return findGroup(groups.begin(), groups.end(), group);
}

const Snapshot::Group* Snapshot::find(const QString& group) const
{
    return findGroup(groups.cbegin(), groups.cend(), group);
}

Snapshot Snapshot::merged(const Snapshot& base, const Snapshot& ours, const Snapshot& theirs)
{
    Snapshot result = ours;
    for (Group& group : result.groups) {
        const Group* before = base.find(group.name);
        const Group* other = theirs.find(group.name);
        if (other)
            mergeGroup(group, before ? *before : Group(), *other);
    }
    return result;
}

bool operator==(const Snapshot::View& a, const Snapshot::View& b)
{
    return a.name == b.name && a.states == b.states && a.userData == b.userData;
}

bool haveSameViews(const Snapshot& a, const Snapshot& b)
{
    return std::equal(a.groups.cbegin(), a.groups.cend(), b.groups.cbegin(), b.groups.cend(),
                      [](const Snapshot::Group& one, const Snapshot::Group& other) {
                          return one.views == other.views;
                      });
}

} // namespace Panorel::Kit::Detail
