// SPDX-License-Identifier: MIT

// The Manager's operations on the view-settings document.

#include "DefaultMessageHandler.h"
#include "DenyingNetworkAccessManager.h"
#include "DocumentGuard.h"
#include "Group.h"
#include "SchemaHints.h"
#include "TagScan.h"
#include "WritableText.h"

#include <panorel/Manager.h>

#include <QFile>
#include <QHash>
#include <QXmlSchema>
#include <QXmlSchemaValidator>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace Panorel {

using Detail::writable;

namespace {

const QLatin1String documentVersion("1.1.0");

QString attribute(const QXmlStreamReader& reader, const char* name)
{
    return reader.attributes().value(QLatin1String(name)).toString();
}

void writeState(QXmlStreamWriter& writer, const QString& element, const QString& descriptorId,
                const QByteArray& state)
{
    writer.writeStartElement(element);
    writer.writeAttribute(QStringLiteral("DescriptorId"), writable(descriptorId));
    // The empty text closes the start tag; the digits need no escaping and go past the writer,
    // which would look at each of them several times. It writes UTF-8 and keeps nothing back, so
    // they come to stand in their place.
    writer.writeCharacters(QString());
    writer.device()->write(state.toHex());
    writer.writeEndElement();
}

void writeStates(QXmlStreamWriter& writer, const QString& element, const StateMap& states)
{
    for (auto it = states.cbegin(); it != states.cend(); ++it)
        writeState(writer, element, it.key(), it.value());
}

// The four bits that a hexadecimal digit stands for; @p others becomes 1 where it is none. All in
// short integers, without branches and tables: so the compiler makes several digits at a time.
ushort hexDigit(ushort code, ushort& others)
{
    const ushort isNumber = static_cast<ushort>(code - u'0') < 10;
    const ushort isLetter = static_cast<ushort>((code | 0x20) - u'a') < 6;
    others = static_cast<ushort>(others | ((isNumber | isLetter) ^ 1));
    return static_cast<ushort>((code & 0xF) + 9 * isLetter);
}

// Puts what pairs of digits and nothing else stand for into @p state; false for other text.
bool decodePairs(const QStringRef& text, QByteArray& state)
{
    const int size = text.size() / 2;
    state = QByteArray(size, Qt::Uninitialized);
    const auto* code = reinterpret_cast<const ushort*>(text.data());
    char* bytes = state.data();
    ushort others = 0;
    for (qptrdiff i = 0; i < size; ++i) {
        const ushort high = hexDigit(code[2 * i], others);
        const ushort low = hexDigit(code[2 * i + 1], others);
        bytes[i] = static_cast<char>(high << 4 | low);
    }
    return text.size() % 2 == 0 && others == 0;
}

// What QByteArray::fromHex() makes of the element's text. Most of a document is such text, as a
// rule in one piece without anything else, which is decoded where the reader has it.
QByteArray readHex(QXmlStreamReader& reader)
{
    QByteArray state;
    QString text;
    if (reader.readNext() == QXmlStreamReader::Characters && decodePairs(reader.text(), state)) {
        if (reader.readNext() == QXmlStreamReader::EndElement)
            return state;
        text = QString::fromLatin1(state.toHex());
    }
    while (!reader.isEndElement() && !reader.isStartElement() && !reader.atEnd()) {
        if (reader.isCharacters())
            text += reader.text();
        reader.readNext();
    }
    return QByteArray::fromHex(text.toUtf8());
}

// Reads an element with a window's state into @p states; an empty state is dropped.
void readState(QXmlStreamReader& reader, StateMap& states)
{
    const QString descriptorId = attribute(reader, "DescriptorId");
    const QByteArray state = readHex(reader);
    if (!state.isEmpty())
        states.insert(descriptorId, state);
}

} // namespace

QXmlSchema Manager::loadSchema() const
{
    QXmlSchema schema;
    QFile file(QStringLiteral(":/ViewSettingsXsdSchema"));
    // Without the resource the schema stays invalid, and so does every document.
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        schema.load(file.readAll(), QUrl());
    return schema;
}

bool Manager::validateDocument(const QByteArray& data, QAbstractMessageHandler* handler) const
{
    // Outlives the schema and the validator, which refer to it.
    Detail::DenyingNetworkAccessManager network;
    Detail::DefaultMessageHandler defaultHandler;
    QXmlSchema schema = loadSchema();
    const Detail::TagScan tags(data);
    if (!schema.isValid() || tags.hasOverfullTag())
        return false;
    if (!tags.isPlain() && !Detail::DocumentGuard::mayBeValidated(data))
        return false;
    schema.setMessageHandler(handler ? handler : &defaultHandler);
    schema.setNetworkAccessManager(&network);
    const QXmlSchemaValidator validator(schema);
    return validator.validate(tags.isPlain() ? data : Detail::SchemaHints::removed(data), QUrl());
}

QByteArray Manager::toXml(bool markActive)
{
    m_activeGroup->captureCurrentView();
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("ViewData"));
    writer.writeAttribute(QStringLiteral("Version"), documentVersion);
    if (m_mergeOnApply)
        writeStates(writer, QStringLiteral("ToolBarState"), captureStates());
    writer.writeStartElement(QStringLiteral("Groups"));
    const QVector<Group*> groups = m_groups;
    for (const Group* group : groups) {
        writer.writeStartElement(QStringLiteral("Group"));
        writeGroup(*group, writer, markActive);
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();
    return document;
}

void Manager::writeGroup(const Group& group, QXmlStreamWriter& writer, bool markActive) const
{
    writer.writeAttribute(QStringLiteral("Name"), writable(group.name));
    writer.writeStartElement(QStringLiteral("Views"));
    for (const auto& view : group.views) {
        writer.writeStartElement(QStringLiteral("View"));
        if (markActive && view.get() == group.activeView)
            writer.writeAttribute(QStringLiteral("Active"), QStringLiteral("true"));
        writeView(*view, writer);
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeStartElement(QStringLiteral("CurrentView"));
    writeView(*group.currentView, writer);
    writer.writeEndElement();
}

void Manager::writeView(const View& view, QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("Name"), writable(view.name));
    writeStates(writer, QStringLiteral("State"), view.states);
    writer.writeTextElement(QStringLiteral("UserData"), writable(view.userData.toString()));
}

bool Manager::fromXml(const QByteArray& data, bool merge)
{
    // A copy, for a receiver of clear()'s signals may change the caller's array.
    const QByteArray document = data;
    if (!validateDocument(document))
        return false;
    if (!merge)
        clear();
    StateMap toolBarStates;
    QXmlStreamReader reader(document);
    while (reader.readNextStartElement()) {
        if (reader.name() != QLatin1String("ViewData"))
            continue;
        // Deliberate: a document of another version is not read, and yet all that follows is done
        // and the result is true.
        if (attribute(reader, "Version") != documentVersion)
            break;
        readDocument(reader, toolBarStates);
    }
    Q_EMIT groupModified();
    if (m_mergeOnApply)
        restoreStates(toolBarStates);
    m_activeGroup->applyCurrentView();
    Q_EMIT viewActivated(activeView());
    return true;
}

void Manager::readDocument(QXmlStreamReader& reader, StateMap& toolBarStates)
{
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Groups"))
            readGroups(reader);
        else if (reader.name() == QLatin1String("ToolBarState") && m_mergeOnApply)
            readState(reader, toolBarStates);
        else
            reader.skipCurrentElement();
    }
}

void Manager::readGroups(QXmlStreamReader& reader)
{
    while (reader.readNextStartElement()) {
        if (Group* group = findGroup(attribute(reader, "Name")))
            readGroup(*group, reader);
        else
            reader.skipCurrentElement();
    }
}

void Manager::readGroup(Group& group, QXmlStreamReader& reader)
{
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Views"))
            readViews(group, reader);
        else
            readView(*group.currentView, reader);
    }
    if (group.currentView->states.isEmpty())
        group.captureCurrentView();
}

void Manager::readViews(Group& group, QXmlStreamReader& reader)
{
    // The first of its name, as findView() gives it; a search for each view would be quadratic.
    QHash<QString, View*> viewsByName;
    for (auto it = group.views.crbegin(); it != group.views.crend(); ++it)
        viewsByName.insert((*it)->name, it->get());
    while (reader.readNextStartElement()) {
        const QString name = attribute(reader, "Name");
        const QString active = attribute(reader, "Active");
        View*& view = viewsByName[name];
        if (!view)
            view = group.appendView(name);
        readView(*view, reader);
        if (active == QLatin1String("true") || active == QLatin1String("1"))
            group.activeView = view;
    }
}

void Manager::readView(View& view, QXmlStreamReader& reader)
{
    view.states.clear();
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("State"))
            readState(reader, view.states);
        else
            view.userData = QVariant(reader.readElementText());
    }
}

bool Manager::viewsValid() const
{
    if (!m_mergeOnApply)
        return true;
    // Capturing asks the window owners, who are not const, and changes nothing here.
    const QStringList ids = const_cast<Manager*>(this)->captureStates().keys();
    for (const Group* group : m_groups) {
        for (const auto& view : group->views) {
            if (view->states.keys() != ids)
                return false;
        }
    }
    return true;
}

bool Manager::setFactoryDefaultView(const QByteArray& data)
{
    if (data.isEmpty() || !validateDocument(data))
        return false;
    m_factoryDefaultView = data;
    Q_EMIT factoryDefaultViewChanged(true);
    return true;
}

bool Manager::setProgramStartView(const QByteArray& data)
{
    if (data.isEmpty() || !validateDocument(data))
        return false;
    m_programStartView = data;
    Q_EMIT programStartViewChanged(true);
    return true;
}

bool Manager::factoryDefaultViewSet() const
{
    return !m_factoryDefaultView.isEmpty();
}

bool Manager::programStartViewSet() const
{
    return !m_programStartView.isEmpty();
}

bool Manager::activateFactoryDefaultView()
{
    return factoryDefaultViewSet() && fromXml(m_factoryDefaultView, /*merge=*/false);
}

bool Manager::activateProgramStartView()
{
    return programStartViewSet() && fromXml(m_programStartView, /*merge=*/false);
}

} // namespace Panorel
