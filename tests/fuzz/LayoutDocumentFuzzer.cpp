// SPDX-License-Identifier: MIT

// Reads any bytes as a document value, edits it, and asks a Manager what became of it:
// - the value reads what a Manager accepts, and it has the views that a Manager makes of it;
// - what is refused is refused by check() too, and only that;
// - after an edit a Manager makes the same of the document, but for what was edited; an edit that
//   is refused changes nothing;
// - tidying a document twice is tidying it once;
// - a document does not differ from itself.
// The size of the input chooses the edit, so that inputs are plain documents.

#include "Fuzz.h"
#include "kit/DocumentMeaning.h"

#include <panorel/kit/LayoutDocument.h>

#include <QCoreApplication>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

namespace {

using Group = DocumentMeaning::Group;

/** The same as a Manager would say it. */
DocumentMeaning::View said(const LayoutDocument::View& view)
{
    return {view.name, view.states, view.userData.isNull() ? QVariant() : QVariant(view.userData)};
}

DocumentMeaning meaningOf(const LayoutDocument& document)
{
    DocumentMeaning meaning;
    for (const QString& name : document.groupNames()) {
        Group group{name, {}, {}, said(document.currentView(name))};
        group.current.name = "__current__"_s;
        for (const QString& view : document.viewNames(name)) {
            group.views.append(said(document.view(name, view)));
            if (document.view(name, view).isActive)
                group.active = view;
        }
        meaning.groups.append(group);
    }
    return meaning;
}

/** Edits the first view of the first group that has one; the meaning too, if that succeeds. */
LayoutDocument::Error edit(LayoutDocument& document, DocumentMeaning& meaning, std::size_t choice)
{
    const auto found = std::find_if(meaning.groups.begin(), meaning.groups.end(),
                                    [](const Group& group) { return !group.views.isEmpty(); });
    if (found == meaning.groups.end())
        return LayoutDocument::Error();
    Group& group = *found;
    const QString view = group.views.first().name;
    const bool isActive = !group.active.isNull() && group.active == view;
    const QString text = "new <&\"'>\t\u20AC"_s;
    LayoutDocument::Error error;
    switch (choice % 7) {
    case 0:
        error = document.renameView(group.name, view, text);
        if (!error) {
            group.views.first().name = text;
            group.active = isActive ? text : group.active;
        }
        break;
    case 1:
        error = document.moveView(group.name, view);
        if (!error)
            group.views.append(group.views.takeFirst());
        break;
    case 2:
        error = document.removeView(group.name, view);
        if (!error) {
            group.views.removeFirst();
            group.active = isActive ? QString() : group.active;
        }
        break;
    case 3:
        error = document.duplicateView(group.name, view, text);
        if (!error) {
            group.views.insert(1, group.views.first());
            group.views[1].name = text;
        }
        break;
    case 4:
        error = document.setUserData(group.name, view, text);
        if (!error) {
            const QVariant userData = text; // g++ 12 warns of the move of a temporary.
            group.views.first().userData = userData;
        }
        break;
    case 5:
        error = document.setActiveView(group.name, view);
        if (!error)
            group.active = view;
        break;
    default:
        error = document.addView(group.name, {text, false, {{"w"_s, "00ff"_hex}}, ""_s});
        if (!error)
            group.views.append({text, {{"w"_s, "00ff"_hex}}, ""_s});
        break;
    }
    return error;
}

void checkEdit(const QByteArray& bytes, const QStringList& groups, std::size_t choice)
{
    DocumentMeaning expected(bytes, groups);
    LayoutDocument edited(bytes);
    if (edit(edited, expected, choice)) {
        requireSame(QString::fromLatin1(edited.bytes().toHex()), QString::fromLatin1(bytes.toHex()),
                    "a refused edit changes nothing");
        return;
    }
    const DocumentMeaning actual(edited.bytes(), groups);
    require(actual.isAccepted, "a Manager takes what was edited");
    requireSame(actual.text(), expected.text(), "an edit changes what it names and nothing else");
}

void checkTidying(const LayoutDocument& document)
{
    LayoutDocument::TidyOptions options;
    options.dropsUnsound = true;
    LayoutDocument tidied(document);
    if (tidied.tidy(options))
        return;
    require(tidied.isSound(), "what is tidied is sound");
    const QByteArray bytes = tidied.bytes();
    require(!tidied.tidy(options), "what is tidied can be tidied");
    require(tidied.bytes() == bytes, "tidying is done at once");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int argumentCount = 1;
    static char* arguments[] = {const_cast<char*>("LayoutDocumentFuzzer"), nullptr};
    static auto* application = new QCoreApplication(argumentCount, arguments);
    Q_UNUSED(application)
    forbidMessages();

    const QByteArray input = bytes(data, size);
    const LayoutDocument document(input);
    require(document.bytes() == input, "the bytes stay");
    const QVector<Problem> problems = document.check();
    const QStringList groups = document.groupNames();
    DocumentMeaning meaning(input, groups);
    require(document.isReadable() == meaning.isAccepted, "the value reads what a Manager accepts");
    if (!document.isReadable()) {
        require(problems.size() == 1, "one reason for which it is refused");
        require(!isSound(problems), "it is refused");
        return 0;
    }
    checkTidying(document);
    if (document.version() != "1.1.0"_s) {
        require(!isSound(problems), "another version is refused");
        return 0;
    }
    requireSame(meaningOf(document).text(), meaning.text(), "the value is what a Manager has");
    require(LayoutDocument::differences(document, document).isEmpty(), "it is equal to itself");
    checkEdit(input, groups, size);
    return 0;
}
