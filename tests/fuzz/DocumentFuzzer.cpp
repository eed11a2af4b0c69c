// SPDX-License-Identifier: MIT

// Loads any bytes as a document, in both modes, into Managers that hold nothing or a few views:
// - what is refused changes nothing and emits nothing;
// - what is accepted emits the signals of its mode;
// - replacing makes the same of a Manager that held views as of one that did not;
// - merging keeps all views in their places, overlays those that the document names, appends the
//   others in the document's order, and moves an active view only where the document marks one;
// - the document that toXml() then gives is accepted, and the one after it is a fixed point.
// There are no windows, because Qt's own reader of window states may crash on what comes
// here. A validation takes milliseconds, so each document is refused in one of the modes only.

#include "Fuzz.h"
#include "Group.h"
#include "ManagerGroups.h"
#include "support/SignalLog.h"

#include <panorel/Manager.h>

#include <QCoreApplication>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

const QString newLine = "\n"_s;

/** A Manager of the groups that the documents of the corpus name. */
struct Fixture
{
    explicit Fixture(bool mergeOnApply)
        : manager({"G"_s, "H"_s}, mergeOnApply)
        , log(manager)
    {}

    /** Gives each group two views with user data, the first of them active. */
    void fill()
    {
        for (Group* group : groupsOf(manager)) {
            for (const QString& name : {"a"_s, "old"_s}) {
                View* view = group->appendView(name);
                view->states.insert("window"_s, "00FF"_hex);
                view->userData = "old data"_s;
            }
            group->activeView = group->findView("a"_s);
            group->currentView->states.insert("window"_s, "FF00"_hex);
        }
    }

    Manager manager;
    SignalLog log;
};

QStringList expectedSignals(Manager& manager, bool merge)
{
    QStringList expected =
        lines({"viewActivated('')", "groupModified()", "viewActivated(null)", "groupModified()"});
    if (merge)
        expected.clear();
    return expected << "groupModified()"_s
                    << QString("viewActivated("_s + quoted(manager.activeView()) + ")"_s);
}

void checkReplacing(Fixture& replaced, Manager& loaded)
{
    const QVector<Group*> actual = groupsOf(replaced.manager);
    const QVector<Group*> expected = groupsOf(loaded);
    for (int i = 0; i < expected.size(); ++i)
        requireSame(describeViews(*actual[i]), describeViews(*expected[i]),
                    "views of before leave no trace when they are replaced");
    requireSame(replaced.log.lines().join(newLine), expectedSignals(loaded, false).join(newLine),
                "replacing emits its signals");
}

/** Lays what a Manager without views made of a document over @p group. */
void overlay(Group& group, const Group& loaded)
{
    for (const auto& view : loaded.views) {
        View* target = group.findView(view->name);
        if (!target)
            target = group.appendView(view->name);
        target->states = view->states;
        if (view->userData.isValid())
            target->userData = view->userData;
        if (loaded.activeView == view.get())
            group.activeView = target;
    }
}

void checkMerging(Fixture& merged, Manager& loaded)
{
    Fixture expected(/*mergeOnApply=*/false);
    expected.fill();
    const QVector<Group*> groups = groupsOf(merged.manager);
    for (int i = 0; i < groups.size(); ++i) {
        Group& group = *groupsOf(expected.manager)[i];
        overlay(group, *groupsOf(loaded)[i]);
        requireSame(describeViews(*groups[i]), describeViews(group),
                    "merging lays the document over the views");
    }
    requireSame(merged.log.lines().join(newLine),
                expectedSignals(expected.manager, true).join(newLine), "merging emits its signals");
}

void checkFixedPoint(Manager& manager)
{
    // Once round, because what XML cannot keep apart is lost on the first way.
    const QByteArray first = manager.toXml(/*markActive=*/true);
    require(manager.fromXml(first, /*merge=*/false), "a written document is accepted");
    const QByteArray second = manager.toXml(/*markActive=*/true);
    const QString before = describe(manager);
    require(manager.fromXml(second, /*merge=*/false), "a document written again is accepted");
    requireSame(describe(manager), before, "the model reaches a fixed point");
    requireSame(QString::fromUtf8(manager.toXml(/*markActive=*/true)), QString::fromUtf8(second),
                "the document reaches a fixed point");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int argumentCount = 1;
    static char* arguments[] = {const_cast<char*>("DocumentFuzzer"), nullptr};
    static auto* application = new QCoreApplication(argumentCount, arguments);
    Q_UNUSED(application)
    forbidMessages();

    // The flags come from the size, so that inputs are plain documents.
    const QByteArray document = bytes(data, size);
    const bool mergeOnApply = size % 2 == 0;
    const bool mergeFirst = size / 2 % 2 == 0;
    Fixture first(mergeOnApply);
    first.fill();
    const QString before = describe(first.manager);
    if (!first.manager.fromXml(document, mergeFirst)) {
        requireSame(describe(first.manager), before, "a refused document changes nothing");
        require(first.log.lines().isEmpty(), "a refused document emits nothing");
        return 0;
    }

    Fixture loaded(mergeOnApply);
    Fixture second(mergeOnApply);
    second.fill();
    require(loaded.manager.fromXml(document, /*merge=*/true), "an accepted document stays so");
    require(second.manager.fromXml(document, !mergeFirst), "both modes accept the same");
    checkReplacing(mergeFirst ? second : first, loaded.manager);
    checkMerging(mergeFirst ? first : second, loaded.manager);
    checkFixedPoint(loaded.manager);
    return 0;
}
