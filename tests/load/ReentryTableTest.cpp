// SPDX-License-Identifier: MIT
#include "support/ManagerModel.h"
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <functional>
#include <optional>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

/** A window whose layout is a number. */
struct NumberWindow
{
    using Layout = std::optional<int>;

    Layout capture() const { return number; }
    void restore(const Layout& layout, bool) { number = *layout; }
    static bool isCaptured(const Layout& layout) { return layout.has_value(); }

    int number = 1;
};

using NumberModel = ManagerModel<NumberWindow>;

/** A Manager and its model, side by side: what is done to one is done to the other. */
struct Pair
{
    explicit Pair(bool merge)
        : manager(lines({"G", "H"}), merge)
        , model(lines({"G", "H"}), merge)
    {
        manager.registerManagable(owner);
    }
    Q_DISABLE_COPY_MOVE(Pair)

    /** As SignalLog does it for the Manager. */
    void log(const QString& signal)
    {
        modelLog.append(signal + " ["_s + model.activeGroup() + ": "_s +
                        model.views().join(", "_s) + "; active "_s + quoted(model.activeView()) +
                        "]"_s);
    }

    void place(int area)
    {
        window.moveDock(Qt::DockWidgetArea(area));
        model.live.number = area;
    }

    SmallWindow window;
    Owner owner{{{"window"_s, &window}}};
    Manager manager;
    NumberModel model;
    QStringList modelLog;
    QByteArray document;
    NumberModel::Document modelDocument;
};

struct Operation
{
    const char* name;
    /** What is done to the Manager, and the same done to the model. */
    std::function<void(Pair&)> toManager;
    std::function<void(Pair&)> toModel;
};

template<typename Call>
Operation operation(const char* name, Call call)
{
    return {name, [call](Pair& pair) { call(pair.manager, pair.document); },
            [call](Pair& pair) { call(pair.model, pair.modelDocument); }};
}

const std::vector<Operation>& operations()
{
    static const std::vector<Operation> all{
        operation("activateGroup other", [](auto& m, auto&) { m.activateGroup("H"_s); }),
        operation("activateGroup same", [](auto& m, auto&) { m.activateGroup("G"_s); }),
        operation("activateView active", [](auto& m, auto&) { m.activateView("a"_s); }),
        operation("activateView other", [](auto& m, auto&) { m.activateView("b"_s); }),
        operation("createView", [](auto& m, auto&) { m.createView("new"_s); }),
        operation("saveCurrentViewAs existing", [](auto& m, auto&) { m.saveCurrentViewAs("b"_s); }),
        operation("saveCurrentViewAs new", [](auto& m, auto&) { m.saveCurrentViewAs("new"_s); }),
        operation("deleteView active", [](auto& m, auto&) { m.deleteView("a"_s); }),
        operation("deleteView other", [](auto& m, auto&) { m.deleteView("b"_s); }),
        operation("deleteView new", [](auto& m, auto&) { m.deleteView("new"_s); }),
        operation("clear", [](auto& m, auto&) { m.clear(); }),
        operation("toXml", [](auto& m, auto&) { (void)m.toXml(true); }),
        operation("fromXml", [](auto& m, auto& d) { m.fromXml(d, false); }),
        operation("fromXml merge", [](auto& m, auto& d) { m.fromXml(d, true); }),
        operation("setFactoryDefaultView", [](auto& m, auto& d) { m.setFactoryDefaultView(d); }),
        operation("setProgramStartView", [](auto& m, auto& d) { m.setProgramStartView(d); }),
        operation("activateFactoryDefaultView",
                  [](auto& m, auto&) { m.activateFactoryDefaultView(); }),
        operation("activateProgramStartView", [](auto& m, auto&) { m.activateProgramStartView(); }),
        operation("viewsValid", [](auto& m, auto&) { (void)m.viewsValid(); })};
    return all;
}

/** Group G with the views a, which is active, and b, and H with h; each has a layout of its own. */
void fill(Pair& pair, bool withSpecialViews)
{
    const auto both = [&](auto call) {
        call(pair.manager, pair.document);
        call(pair.model, pair.modelDocument);
    };
    pair.place(Qt::BottomDockWidgetArea);
    both([](auto& m, auto&) { m.activateGroup("H"_s); });
    both([](auto& m, auto&) { m.saveCurrentViewAs("h"_s); });
    both([](auto& m, auto&) { m.activateGroup("G"_s); });
    pair.place(Qt::LeftDockWidgetArea);
    both([](auto& m, auto&) { m.createView("b"_s); });
    both([](auto& m, auto& d) { d = m.toXml(true); });
    pair.place(Qt::RightDockWidgetArea);
    both([](auto& m, auto&) { m.saveCurrentViewAs("a"_s); });
    if (withSpecialViews) {
        both([](auto& m, auto& d) { m.setFactoryDefaultView(d); });
        both([](auto& m, auto& d) { m.setProgramStartView(d); });
    }
    pair.place(Qt::TopDockWidgetArea);
}

/** Counts the places where other code is called, and acts at one of them. */
class Turn
{
public:
    Turn(int at, std::function<void()> act)
        : m_at(at)
        , m_act(std::move(act))
    {}
    void operator()()
    {
        if (++count == m_at)
            m_act();
    }
    int count = 0;

private:
    int m_at;
    std::function<void()> m_act;
};

/** Takes a turn at every signal and whenever the owner is asked. */
class Hooks
{
public:
    Hooks(Pair& pair, Turn& turn, Turn& modelTurn)
        : m_pair(pair)
    {
        const auto act = [&turn] { turn(); };
        const auto on = [&](auto signal) {
            QObject::connect(&pair.manager, signal, &m_receiver, act);
        };
        on(&Manager::groupModified);
        on(&Manager::groupActivated);
        on(&Manager::viewActivated);
        on(&Manager::viewUserDataChanged);
        on(&Manager::factoryDefaultViewChanged);
        on(&Manager::programStartViewChanged);
        pair.owner.onAsked = act;
        pair.modelLog.clear();
        pair.model.onAsked = [&modelTurn] { modelTurn(); };
        pair.model.onSignal = [&pair, &modelTurn](const QString& signal) {
            pair.log(signal);
            modelTurn();
        };
    }
    ~Hooks()
    {
        m_pair.owner.onAsked = nullptr;
        m_pair.model.onAsked = [] {};
        m_pair.model.onSignal = [](const QString&) {};
    }
    Q_DISABLE_COPY_MOVE(Hooks)

private:
    Pair& m_pair;
    QObject m_receiver;
};

/** What a Manager or its model reports of each group and each of its views. */
template<typename AnyManager>
QStringList reported(AnyManager& manager, const std::function<int()>& live)
{
    QStringList result{"starts in "_s + manager.activeGroup() + " with "_s +
                       QString::number(live())};
    for (const QString& group : {"G"_s, "H"_s}) {
        manager.activateGroup(group);
        result.append(group + ": "_s + manager.views().join(", "_s) + "; active "_s +
                      quoted(manager.activeView()) + ", current "_s + QString::number(live()));
        for (const QString& view : manager.views()) {
            manager.activateView(view);
            result.append(view + " has "_s + QString::number(live()));
        }
    }
    return result;
}

} // namespace

/**
 * Every operation, called from every signal of every operation and whenever an owner is asked for
 * its windows: the outcome is the one that the rules give, and no memory is touched that is gone.
 */
class ReentryTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callFromWithin_data();
    void callFromWithin();
};

void ReentryTableTest::callFromWithin_data()
{
    QTest::addColumn<int>("outer");
    QTest::addColumn<int>("inner");
    QTest::addColumn<bool>("merge");
    const int count = static_cast<int>(operations().size());
    for (int outer = 0; outer < count; ++outer) {
        for (int inner = 0; inner < count; ++inner) {
            for (const bool merge : {false, true})
                QTest::addRow("%s in %s%s", operations()[std::size_t(inner)].name,
                              operations()[std::size_t(outer)].name, merge ? ", merging" : "")
                    << outer << inner << merge;
        }
    }
}

void ReentryTableTest::callFromWithin()
{
    QFETCH(int, outer);
    QFETCH(int, inner);
    QFETCH(bool, merge);
    const Operation& first = operations()[std::size_t(outer)];
    const Operation& second = operations()[std::size_t(inner)];
    const bool special = QByteArray(first.name).startsWith("activateF") ||
                         QByteArray(first.name).startsWith("activateP") ||
                         QByteArray(second.name).startsWith("activateF") ||
                         QByteArray(second.name).startsWith("activateP");
    // At each turn that there is during the operation, until there are no more.
    bool acted = true;
    for (int at = 1; acted; ++at) {
        Pair pair(merge);
        fill(pair, special);
        Turn turn(at, [&] { second.toManager(pair); });
        Turn modelTurn(at, [&] { second.toModel(pair); });
        {
            const SignalLog log(pair.manager, SignalLog::SignalsAndModel);
            const Hooks hooks(pair, turn, modelTurn);
            first.toManager(pair);
            first.toModel(pair);
            QCOMPARE(log.lines(), pair.modelLog);
        }
        QCOMPARE(turn.count, modelTurn.count);
        acted = turn.count >= at;
        const auto live = [&] { return int(pair.window.dockArea()); };
        const auto modelLive = [&] { return pair.model.live.number; };
        QCOMPARE(reported(pair.manager, live), reported(pair.model, modelLive));
    }
}

QTEST_MAIN(ReentryTableTest)
#include "ReentryTableTest.moc"
