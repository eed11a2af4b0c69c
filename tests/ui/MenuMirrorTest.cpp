// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QLineEdit>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <vector>

using namespace Panorel;
using namespace Panorel::Tests;

/** After any sequence of operations the menu shows what the Manager holds. */
class MenuMirrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data();
    void operations();
};

namespace {

/** One group as the menu ought to show it. An empty name of the active view marks nothing. */
struct ModelGroup
{
    QStringList views;
    QString active;

    void save(const QString& name)
    {
        add(name);
        active = name;
    }
    void add(const QString& name)
    {
        if (!views.contains(name))
            views.append(name);
    }
    void remove(const QString& name)
    {
        views.removeAll(name);
        if (active == name)
            active.clear();
    }
    void activate(const QString& name)
    {
        if (!name.isEmpty() && views.contains(name))
            active = name;
    }
    // To the view after the marked one, around the end; without a mark to the first.
    void toggle()
    {
        const int marked = active.isEmpty() ? -1 : views.indexOf(active);
        if (!views.isEmpty())
            activate(views.at((marked + 1) % views.size()));
    }
    QStringList entries() const
    {
        QStringList lines = views;
        if (!active.isEmpty())
            lines[views.indexOf(active)].prepend("* "_s);
        return lines;
    }
    QStringList sorted() const
    {
        QStringList names = views;
        std::sort(names.begin(), names.end());
        return names;
    }
};

struct DocumentView
{
    QString name;
    bool active;
};

struct DocumentGroup
{
    QString name;
    QList<DocumentView> views;
};

QByteArray written(const QList<DocumentGroup>& groups, const QString& version)
{
    QString text = "<ViewData Version=\"%1\"><Groups>"_s.arg(version);
    for (const DocumentGroup& group : groups) {
        text += "<Group Name=\"%1\"><Views>"_s.arg(group.name);
        for (const DocumentView& view : group.views)
            text += "<View Name=\"%1\"%2/>"_s.arg(view.name.toHtmlEscaped(),
                                                  view.active ? " Active=\"true\""_s : ""_s);
        text += "</Views><CurrentView Name=\"__current__\"/></Group>"_s;
    }
    return QString(text + "</Groups></ViewData>"_s).toUtf8();
}

/** Makes the same random step with the Manager or its menu and with the model. */
class Walk
{
public:
    explicit Walk(quint32 seed)
        : m_random(seed)
    {}

    /** Makes a step and tells which. */
    QString step()
    {
        static const std::vector<QString (Walk::*)()> steps = {
            &Walk::create,      &Walk::create,     &Walk::save,        &Walk::remove,
            &Walk::activate,    &Walk::activate,   &Walk::switchGroup, &Walk::read,
            &Walk::chooseEntry, &Walk::saveOver,   &Walk::removeEntry, &Walk::toggle,
            &Walk::typeName,    &Walk::saveBySlot, &Walk::saveBySlot,  &Walk::clearSometimes,
        };
        return (this->*steps.at(m_random.bounded(quint32(steps.size()))))();
    }

    const ModelGroup& model() const { return m_model[m_active]; }
    const Manager& manager() const { return m_manager; }
    const Menu& extended() const { return m_extended; }
    const Menu& compact() const { return m_compact; }

private:
    QString anyName()
    {
        static const QStringList names =
            lines({"a", "A", "b", "B", "", "R&D", "__current__", "x y"});
        return names.at(m_random.bounded(names.size()));
    }
    // Of the active group; null when it has none.
    QString anyView()
    {
        const QStringList& views = model().views;
        return views.isEmpty() ? QString() : views.at(m_random.bounded(views.size()));
    }
    ModelGroup& group() { return m_model[m_active]; }

    QString create()
    {
        const QString name = anyName();
        (void)m_manager.createView(name);
        group().add(name);
        return "create "_s + name;
    }
    QString save()
    {
        const QString name = anyName();
        m_manager.saveCurrentViewAs(name);
        group().save(name);
        return "save "_s + name;
    }
    QString remove()
    {
        const QString name = anyName();
        m_manager.deleteView(name);
        group().remove(name);
        return "delete "_s + name;
    }
    QString activate()
    {
        const QString name = anyName();
        (void)m_manager.activateView(name);
        group().activate(name);
        return "activate "_s + name;
    }
    QString switchGroup()
    {
        const QStringList names = lines({"G", "H", "unknown"});
        const int index = m_random.bounded(names.size());
        (void)m_manager.activateGroup(names.at(index));
        if (index < 2)
            m_active = index;
        return "group "_s + names.at(index);
    }
    QString clearSometimes()
    {
        if (m_random.bounded(4) > 0)
            return save();
        m_manager.clear();
        clearModel();
        return "clear"_s;
    }
    void clearModel()
    {
        for (ModelGroup& group : m_model)
            group = ModelGroup();
    }

    QString read()
    {
        const bool merge = m_random.bounded(2) == 0;
        const int kind = m_random.bounded(4);
        const QList<DocumentGroup> document = anyDocument();
        QByteArray bytes = written(document, kind == 0 ? "1.1.1"_s : "1.1.0"_s);
        if (kind == 1)
            bytes.chop(1);
        const bool taken = m_manager.fromXml(bytes, merge);
        if (taken != (kind != 1))
            return "read, with a wrong result"_s;
        if (taken)
            readIntoModel(kind == 0 ? QList<DocumentGroup>() : document, merge);
        return (merge ? "merge "_s : "read "_s) + QString::fromUtf8(bytes);
    }
    QList<DocumentGroup> anyDocument()
    {
        QList<DocumentGroup> groups;
        for (const QString& name : lines({"H", "unknown", "G"})) {
            if (m_random.bounded(4) == 0)
                continue;
            DocumentGroup group{name, {}};
            for (int i = m_random.bounded(4); i > 0; --i)
                group.views.append({anyName(), m_random.bounded(3) == 0});
            groups.append(group);
        }
        return groups;
    }
    void readIntoModel(const QList<DocumentGroup>& document, bool merge)
    {
        if (!merge)
            clearModel();
        for (const DocumentGroup& group : document) {
            const int index = lines({"G", "H"}).indexOf(group.name);
            if (index < 0)
                continue;
            for (const DocumentView& view : group.views) {
                m_model[index].add(view.name);
                if (view.active)
                    m_model[index].active = view.name;
            }
        }
    }

    QString chooseEntry()
    {
        const QString name = anyView();
        // The nameless view's entry would keep the mark, though it cannot be activated.
        if (!name.isEmpty())
            entry(&m_extended, name)->trigger();
        group().activate(name);
        return "choose "_s + name;
    }
    QString saveOver()
    {
        const QString name = anyView();
        if (!name.isNull()) {
            entry(saveAsMenu(m_compact), name)->trigger();
            group().save(name);
        }
        return "save over "_s + name;
    }
    QString removeEntry()
    {
        const QString name = anyView();
        if (!name.isNull()) {
            entry(deleteMenu(m_extended), name)->trigger();
            group().remove(name);
        }
        return "delete entry "_s + name;
    }
    QString toggle()
    {
        m_compact.toggleView();
        group().toggle();
        return "toggle"_s;
    }
    QString typeName()
    {
        const QString name = anyName();
        QLineEdit* edit = nameEdit(m_extended);
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
        group().save(name);
        return "type "_s + name;
    }
    QString saveBySlot()
    {
        const QString name = anyName();
        m_extended.saveCurrentLayoutAs(name);
        if (!name.isEmpty())
            group().save(name);
        return "slot "_s + name;
    }

    QRandomGenerator m_random;
    Manager m_manager{lines({"G", "H"}), false};
    Menu m_extended{&m_manager, true, nullptr};
    Menu m_compact{&m_manager, false, nullptr};
    ModelGroup m_model[2];
    int m_active = 0;
};

QStringList shownViews(const Menu& menu)
{
    return entries(menu).mid(0, viewEntries(menu).size());
}

} // namespace

void MenuMirrorTest::operations_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void MenuMirrorTest::operations()
{
    QFETCH(quint32, seed);

    Walk walk(seed);
    for (int i = 0; i < 300; ++i) {
        const QByteArray step = walk.step().toUtf8();
        const ModelGroup& model = walk.model();
        const QByteArray context = QByteArray("step ") + QByteArray::number(i) + ": " + step;
        QVERIFY2(walk.manager().views() == model.views, context.constData());
        QVERIFY2(walk.manager().activeView() == model.active, context.constData());
        for (const Menu* menu : {&walk.extended(), &walk.compact()}) {
            QVERIFY2(shownViews(*menu) == model.entries(), context.constData());
            QVERIFY2(entries(*deleteMenu(*menu)) == model.sorted(), context.constData());
            QVERIFY2(entries(*saveAsMenu(*menu)) == lines({"[edit]"}) + model.sorted(),
                     context.constData());
        }
    }
}

QTEST_MAIN(MenuMirrorTest)
#include "MenuMirrorTest.moc"
