// SPDX-License-Identifier: MIT

// The Manager's operations on the view-settings document.

#include "DefaultMessageHandler.h"
#include "DenyingNetworkAccessManager.h"
#include "DocumentGuard.h"
#include "Group.h"
#include "SchemaHints.h"
#include "TagScan.h"

#include <panorel/Manager.h>

#include <QFile>
#include <QHash>
#include <QXmlSchema>
#include <QXmlSchemaValidator>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <array>
#include <cstddef>

namespace Panorel {

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
    writer.writeAttribute(QStringLiteral("DescriptorId"), descriptorId);
    // The empty text closes the start tag; the digits need no escaping and go past the writer,
    // which would look at each of them several times.
    writer.writeCharacters(QString());
    writer.device()->write(state.toHex());
    writer.writeEndElement();
}

void writeStates(QXmlStreamWriter& writer, const QString& element, const StateMap& states)
{
    for (auto it = states.cbegin(); it != states.cend(); ++it)
        writeState(writer, element, it.key(), it.value());
}

constexpr unsigned char noDigit = 0x80;

constexpr std::array<unsigned char, 256> hexDigits()
{
    std::array<unsigned char, 256> digits{};
    for (unsigned char& digit : digits)
        digit = noDigit;
    for (unsigned char value = 0; value < 10; ++value)
        digits[static_cast<std::size_t>('0' + value)] = value;
    for (unsigned char value = 10; value < 16; ++value) {
        digits[static_cast<std::size_t>('a' + value - 10)] = value;
        digits[static_cast<std::size_t>('A' + value - 10)] = value;
    }
    return digits;
}

// What QByteArray::fromHex() makes of the text. Pairs of digits and nothing else, which is what
// toXml() writes, are decoded here in one pass: most of a document is such text.
QByteArray stateFromHex(const QString& text)
{
    static constexpr std::array<unsigned char, 256> digits = hexDigits();
    QByteArray state(text.size() / 2, Qt::Uninitialized);
    const ushort* code = text.utf16();
    unsigned codes = 0;
    unsigned values = 0;
    for (char& byte : state) {
        const unsigned high = digits[code[0] & 0xFFU];
        const unsigned low = digits[code[1] & 0xFFU];
        codes |= code[0] | code[1];
        values |= high | low;
        byte = static_cast<char>(high << 4 | low);
        code += 2;
    }
    const bool onlyPairs = text.size() % 2 == 0 && codes <= 0xFF && (values & noDigit) == 0;
    return onlyPairs ? state : QByteArray::fromHex(text.toUtf8());
}

// Reads an element with a window's state into @p states; an empty state is dropped.
void readState(QXmlStreamReader& reader, StateMap& states)
{
    const QString descriptorId = attribute(reader, "DescriptorId");
    const QByteArray state = stateFromHex(reader.readElementText());
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
    writer.writeAttribute(QStringLiteral("Name"), group.name);
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
    writer.writeAttribute(QStringLiteral("Name"), view.name);
    writeStates(writer, QStringLiteral("State"), view.states);
    writer.writeTextElement(QStringLiteral("UserData"), view.userData.toString());
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
