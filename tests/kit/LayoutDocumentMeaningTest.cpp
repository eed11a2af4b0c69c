// SPDX-License-Identifier: MIT
#include "DocumentMeaning.h"
#include "document/DocumentFixture.h"
#include "support/MessageWatch.h"

#include <panorel/kit/LayoutDocument.h>

#include <QRandomGenerator>
#include <QTest>
#include <QTextCodec>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

/**
 * An edited document means the same to a Manager, but for the edit: over generated documents, in
 * several encodings, with names that occur again, marks of all kinds and other white space.
 */
class LayoutDocumentMeaningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void edits_data();
    void edits();

private:
    MessageWatch m_watch;
};

namespace {

using View = DocumentMeaning::View;
using Group = DocumentMeaning::Group;

const QStringList groupNames{"G"_s, "H <&>"_s, "\u00E4"_s};

/** Makes documents and edits, each seed always the same ones. */
class Generator
{
public:
    explicit Generator(quint32 seed)
        : m_random(seed)
    {}

    QByteArray document()
    {
        m_quote = pick({"\""_s, "'"_s});
        m_space = pick({""_s, "\n"_s, "\r\n\t"_s, " <!-- <View Name='a'/> --> "_s});
        static const char* const codecs[] = {"UTF-8",    "UTF-8",      "UTF-16LE",
                                             "UTF-16BE", "ISO-8859-1", "windows-1252"};
        const QByteArray codec = codecs[below(6)];
        QString declaration = "<?xml version='1.0'?>\n"_s;
        if (!codec.startsWith("UTF-16"))
            declaration.insert(19, " encoding='"_s + QString::fromLatin1(codec) + "'"_s);
        if (below(8) == 0)
            declaration += "<!DOCTYPE ViewData [<!ENTITY e 'ent&#38;lt;ity'>]>"_s;
        m_hasEntity = declaration.contains("ENTITY"_s);
        QString groups;
        for (int i = 1 + below(4); i > 0; --i)
            groups += group();
        const QString root = element("ViewData"_s, attribute("Version"_s, "1.1.0"_s),
                                     toolBarStates() + element("Groups"_s, {}, groups));
        const QString mark =
            codec.startsWith("UTF") && below(2) == 0 ? QString(QChar(0xFEFF)) : QString();
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QString text = mark + declaration + root + m_space;
        return QTextCodec::codecForName(codec)->fromUnicode(text.constData(), text.size(), &state);
    }

    int below(int bound) { return m_random.bounded(bound); }
    QString pick(const QStringList& list) { return list.at(below(list.size())); }
    QString groupName() { return pick(groupNames); }
    QString name()
    {
        return pick(
            {"a"_s, "b"_s, "a (2)"_s, "\u00E9\u20AC"_s, ""_s, "x\ny\t<&\"'>"_s, "\U0001F600"_s});
    }
    QString windowId() { return pick({"w"_s, "v"_s, "\u00FC&"_s}); }

private:
    QString element(const QString& name, const QString& attributes, const QString& content)
    {
        const QString start = "<"_s + name + attributes + (below(4) == 0 ? " "_s : ""_s);
        if (content.isEmpty() && below(2) == 0)
            return m_space + start + "/>"_s;
        return m_space + start + ">"_s + content + "</"_s + name + ">"_s;
    }

    // What the encoding may lack is always written as a reference.
    QString attribute(const QString& name, const QString& value)
    {
        QString escaped;
        for (const uint code : value.toUcs4()) {
            const bool isPlain = code < 0x7F && code >= 0x20 && !QString("<&\"'"_s).contains(code);
            escaped += isPlain ? QString(QChar(code)) : "&#"_s + QString::number(code) + ";"_s;
        }
        return pick({" "_s, "\n "_s}) + name + pick({"="_s, " = "_s}) + m_quote + escaped + m_quote;
    }

    QString digits()
    {
        return pick({""_s, "00ff"_s, "AbCd"_s, "\n 00 "_s, "0<!-- 1 -->1"_s, "<![CDATA[12]]>"_s});
    }

    QString states()
    {
        QString text;
        for (int i = below(4); i > 0; --i)
            text += element("State"_s, attribute("DescriptorId"_s, windowId()), digits());
        return text;
    }

    QString toolBarStates()
    {
        QString text;
        for (int i = below(3); i > 0; --i)
            text += element("ToolBarState"_s, attribute("DescriptorId"_s, windowId()), digits());
        return text;
    }

    QString userData()
    {
        const QString entity = m_hasEntity ? "&e;"_s : "x"_s;
        return below(3) == 0 ? QString()
                             : element("UserData"_s, {},
                                       pick({""_s, "text"_s, "&lt;a&#13;"_s, "<![CDATA[<View>]]>"_s,
                                             entity}));
    }

    QString view(const QString& element)
    {
        QString attributes = attribute("Name"_s, name());
        const QString active =
            below(3) == 0 ? attribute("Active"_s, pick({"true"_s, "1"_s, "false"_s, "0"_s, " 1"_s}))
                          : QString();
        attributes = below(2) == 0 ? attributes + active : active + attributes;
        return this->element(element, attributes, states() + userData() + m_space);
    }

    QString group()
    {
        QString views;
        for (int i = below(5); i > 0; --i)
            views += view("View"_s);
        return element("Group"_s, attribute("Name"_s, groupName()),
                       element("Views"_s, {}, views) + view("CurrentView"_s) + m_space);
    }

    QRandomGenerator m_random;
    QString m_quote;
    QString m_space;
    bool m_hasEntity = false;
};

// Each edit changes the document, and the meaning if it succeeds.

LayoutDocument::Error rename(LayoutDocument& document, DocumentMeaning& meaning, Generator& random)
{
    const QString group = random.groupName();
    const QString view = random.name();
    const QString newName = random.name();
    const LayoutDocument::Error error = document.renameView(group, view, newName);
    if (!error) {
        Group& target = meaning.group(group);
        target.views[target.indexOf(view)].name = newName;
        if (target.active == view && !target.active.isNull())
            target.active = newName;
    }
    return error;
}

LayoutDocument::Error move(LayoutDocument& document, DocumentMeaning& meaning, Generator& random)
{
    const QString group = random.groupName();
    const QString view = random.name();
    const QString before = random.below(3) == 0 ? QString() : random.name();
    const LayoutDocument::Error error = document.moveView(group, view, before);
    if (!error && (before.isNull() || before != view)) {
        QVector<View>& views = meaning.group(group).views;
        const View moved = views.takeAt(meaning.group(group).indexOf(view));
        views.insert(before.isNull() ? views.size() : meaning.group(group).indexOf(before), moved);
    }
    return error;
}

LayoutDocument::Error moveToGroup(LayoutDocument& document, DocumentMeaning& meaning,
                                  Generator& random)
{
    const QString group = random.groupName();
    const QString view = random.name();
    const QString newGroup = random.groupName();
    const LayoutDocument::Error error = document.moveToGroup(group, view, newGroup);
    if (!error) {
        Group& source = meaning.group(group);
        meaning.group(newGroup).views.append(source.views.takeAt(source.indexOf(view)));
        if (group != newGroup && source.active == view)
            source.active = QString();
    }
    return error;
}

LayoutDocument::Error remove(LayoutDocument& document, DocumentMeaning& meaning, Generator& random)
{
    const QString group = random.groupName();
    const QString view = random.name();
    const LayoutDocument::Error error = document.removeView(group, view);
    if (!error) {
        Group& target = meaning.group(group);
        target.views.removeAt(target.indexOf(view));
        if (target.active == view)
            target.active = QString();
    }
    return error;
}

LayoutDocument::Error duplicate(LayoutDocument& document, DocumentMeaning& meaning,
                                Generator& random)
{
    const QString group = random.groupName();
    const QString view = random.name();
    const QString newName = random.name();
    const LayoutDocument::Error error = document.duplicateView(group, view, newName);
    if (!error) {
        Group& target = meaning.group(group);
        View copy = target.views.at(target.indexOf(view));
        copy.name = newName;
        target.views.insert(target.indexOf(view) + 1, copy);
    }
    return error;
}

void put(Group& group, const View& view, LayoutDocument::OnConflict onConflict)
{
    const int place = group.indexOf(view.name);
    if (place >= 0 && onConflict == LayoutDocument::OnConflict::Replace) {
        group.views[place].states = view.states;
        group.views[place].userData = view.userData;
        return;
    }
    View added = view;
    for (int i = 2; group.indexOf(added.name) >= 0; ++i)
        added.name = view.name + " ("_s + QString::number(i) + ")"_s;
    group.views.append(added);
}

LayoutDocument::Error add(LayoutDocument& document, DocumentMeaning& meaning, Generator& random)
{
    const auto onConflict = static_cast<LayoutDocument::OnConflict>(random.below(3));
    const QString group = random.groupName();
    const StateMap states{{random.windowId(), "0a0b"_hex}, {random.windowId(), "0c"_hex}};
    const QString userData = random.pick({""_s, "\r\n<\u20AC\U0001F600"_s});
    const LayoutDocument::View view{random.name(), random.below(2) == 0, states, userData};
    const LayoutDocument::Error error = document.addView(group, view, onConflict);
    if (!error) {
        Group& target = meaning.group(group);
        const int before = target.views.size();
        put(target, {view.name, states, userData}, onConflict);
        if (view.isActive)
            target.active = target.views.size() > before ? target.views.last().name : view.name;
    }
    return error;
}

LayoutDocument::Error copy(LayoutDocument& document, DocumentMeaning& meaning, Generator& random)
{
    const auto onConflict = static_cast<LayoutDocument::OnConflict>(random.below(3));
    const QByteArray source = random.document();
    const LayoutDocument from(source);
    const QString only = random.below(2) == 0 ? QString() : random.groupName();
    const QStringList views = random.below(2) == 0 ? QStringList() : QStringList(random.name());
    const LayoutDocument::Error error = document.copyViews(from, only, views, onConflict);
    if (!error) {
        DocumentMeaning read(source, from.groupNames());
        for (const Group& group : qAsConst(read.groups)) {
            for (const View& view : group.views) {
                if ((only.isNull() || group.name == only) &&
                    (views.isEmpty() || views.contains(view.name)))
                    put(meaning.group(group.name), view, onConflict);
            }
        }
    }
    return error;
}

LayoutDocument::Error setUserData(LayoutDocument& document, DocumentMeaning& meaning,
                                  Generator& random)
{
    const QString group = random.groupName();
    const QString view = random.name();
    const QString text = random.pick({QString(), ""_s, "a\r\n <&\"'>]]>\u20AC"_s});
    const LayoutDocument::Error error = document.setUserData(group, view, text);
    if (!error) {
        Group& target = meaning.group(group);
        // Copied, because g++ 12 warns of the move of a temporary.
        const QVariant userData = text.isNull() ? QVariant() : QVariant(text);
        target.views[target.indexOf(view)].userData = userData;
    }
    return error;
}

LayoutDocument::Error activate(LayoutDocument& document, DocumentMeaning& meaning,
                               Generator& random)
{
    const QString group = random.groupName();
    const QString view = random.below(4) == 0 ? QString() : random.name();
    const LayoutDocument::Error error = document.setActiveView(group, view);
    if (!error)
        meaning.group(group).active = view;
    return error;
}

LayoutDocument::Error removeState(LayoutDocument& document, DocumentMeaning& meaning,
                                  Generator& random)
{
    const QString window = random.windowId();
    for (Group& group : meaning.groups) {
        for (View& view : group.views) {
            if (!view.states.contains(window))
                continue;
            const LayoutDocument::Error error = document.removeState(group.name, view.name, window);
            view.states.remove(window);
            return error;
        }
    }
    return document.removeState(random.groupName(), random.name(), window);
}

LayoutDocument::Error renameWindow(LayoutDocument& document, DocumentMeaning& meaning,
                                   Generator& random)
{
    const QString id = random.windowId();
    const QString newId = random.pick({"new"_s, "\u20AC'\""_s, random.windowId()});
    const LayoutDocument::Error error = document.renameWindow(id, newId);
    if (error || id == newId)
        return error;
    const auto renameIn = [&](View& view) {
        if (view.states.contains(id))
            view.states.insert(newId, view.states.take(id));
    };
    for (Group& group : meaning.groups) {
        for (View& view : group.views)
            renameIn(view);
        renameIn(group.current);
    }
    return error;
}

} // namespace

void LayoutDocumentMeaningTest::edits_data()
{
    using Function = LayoutDocument::Error (*)(LayoutDocument&, DocumentMeaning&, Generator&);
    QTest::addColumn<void*>("edit");
    const auto row = [](const char* name, Function edit) {
        QTest::newRow(name) << reinterpret_cast<void*>(edit);
    };
    row("rename", rename);
    row("move", move);
    row("move to a group", moveToGroup);
    row("remove", remove);
    row("duplicate", duplicate);
    row("add", add);
    row("copy", copy);
    row("user data", setUserData);
    row("activate", activate);
    row("remove a state", removeState);
    row("rename a window", renameWindow);
}

void LayoutDocumentMeaningTest::edits()
{
    using Function = LayoutDocument::Error (*)(LayoutDocument&, DocumentMeaning&, Generator&);
    QFETCH(void*, edit);
    int done = 0;
    for (quint32 seed = 0; seed < 80; ++seed) {
        Generator random(seed);
        const QByteArray bytes = random.document();
        DocumentMeaning expected(bytes, groupNames);
        QVERIFY2(expected.isAccepted, bytes.constData());
        LayoutDocument document(bytes);
        const auto error = reinterpret_cast<Function>(edit)(document, expected, random);
        const DocumentMeaning actual(document.bytes(), groupNames);
        QVERIFY(actual.isAccepted);
        if (actual.text() != expected.text())
            qInfo("Seed %u:\n%s\n%s", seed, bytes.constData(), document.bytes().constData());
        QCOMPARE(actual.text(), expected.text());
        if (error)
            QCOMPARE(document.bytes(), bytes);
        done += error ? 0 : 1;
    }
    QVERIFY2(done >= 5, qPrintable(QString::number(done)));
}

QTEST_GUILESS_MAIN(LayoutDocumentMeaningTest)
#include "LayoutDocumentMeaningTest.moc"
