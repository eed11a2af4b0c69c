// SPDX-License-Identifier: MIT

// The Manager's operations on the view-settings document.

#include "DefaultMessageHandler.h"
#include "DocumentGuard.h"
#include "Group.h"
#include "WritableText.h"

#include <panorel/Manager.h>

#include <QFile>
#include <QHash>
#include <QXmlSchema>
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
    // The empty text closes the start tag. The digits need no escaping, so they bypass the writer,
    // which would look at each of them several times. It writes UTF-8 without a buffer of its own,
    // so they end up in the right place.
    writer.writeCharacters(QString());
    writer.device()->write(state.toHex());
    writer.writeEndElement();
}

void writeStates(QXmlStreamWriter& writer, const QString& element, const StateMap& states)
{
    for (auto it = states.cbegin(); it != states.cend(); ++it)
        writeState(writer, element, it.key(), it.value());
}

// Returns the value of a hexadecimal digit; sets @p invalidDigit to 1 if it is none. Uses short
// integers only, and neither branches nor tables, so that the compiler can vectorise the loop.
ushort hexDigit(ushort code, ushort& invalidDigit)
{
    const ushort isNumber = static_cast<ushort>(code - u'0') < 10;
    const ushort isLetter = static_cast<ushort>((code | 0x20) - u'a') < 6;
    invalidDigit = static_cast<ushort>(invalidDigit | ((isNumber | isLetter) ^ 1));
    return static_cast<ushort>((code & 0xF) + 9 * isLetter);
}

// Decodes text that consists of pairs of digits into @p state; false for any other text.
bool decodePairs(const QStringRef& text, QByteArray& state)
{
    const int size = text.size() / 2;
    state = QByteArray(size, Qt::Uninitialized);
    const auto* code = reinterpret_cast<const ushort*>(text.data());
    char* bytes = state.data();
    ushort invalidDigit = 0;
    for (qptrdiff i = 0; i < size; ++i) {
        const ushort high = hexDigit(code[2 * i], invalidDigit);
        const ushort low = hexDigit(code[2 * i + 1], invalidDigit);
        bytes[i] = static_cast<char>(high << 4 | low);
    }
    return text.size() % 2 == 0 && invalidDigit == 0;
}

// Returns what QByteArray::fromHex() makes of the element's text. Most of a document is such text,
// usually in one piece, which is decoded without copying it out of the reader.
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
    // As readElementText() would, which ends the reading of the document.
    if (reader.isStartElement())
        reader.raiseError();
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
    // Outlives the schema, which refers to it.
    Detail::DefaultMessageHandler defaultHandler;
    QXmlSchema schema = loadSchema();
    if (!schema.isValid())
        return false;
    schema.setMessageHandler(handler ? handler : &defaultHandler);
    return Detail::DocumentGuard::isValid(data, schema);
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
    // Copied, because a receiver of clear()'s signals may change the caller's array.
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

// Deliberate: an element that does not belong where it is gets no action and is not skipped either.
// The loop that meets it goes on inside it and ends where it ends. Only a document whose root may
// hold anything has such elements; here and in all that follows.
void Manager::readDocument(QXmlStreamReader& reader, StateMap& toolBarStates)
{
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Groups"))
            readGroups(reader);
        else if (reader.name() != QLatin1String("ToolBarState"))
            continue;
        else if (m_mergeOnApply)
            readState(reader, toolBarStates);
        else
            reader.skipCurrentElement();
    }
}

void Manager::readGroups(QXmlStreamReader& reader)
{
    while (reader.readNextStartElement()) {
        if (reader.name() != QLatin1String("Group"))
            continue;
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
        else if (reader.name() == QLatin1String("CurrentView"))
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
        if (reader.name() != QLatin1String("View"))
            continue;
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
        else if (reader.name() == QLatin1String("UserData"))
            view.userData = QVariant(reader.readElementText());
    }
}

bool Manager::viewsValid() const
{
    if (!m_mergeOnApply)
        return true;
    // Capturing calls the window owners, which is not const, and changes nothing here.
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
