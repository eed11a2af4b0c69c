// SPDX-License-Identifier: MIT
#include "DocumentJudge.h"

using namespace Panorel::Tests;

namespace {

void row(const char* name, const QByteArray& data)
{
    QTest::newRow(name) << data;
}

// A document whose only group is @p content.
QByteArray inGroups(const QByteArray& content)
{
    return document(content);
}

QByteArray inGroup(const QByteArray& content)
{
    return document("<Group Name=\"A\">" + content + "</Group>");
}

QByteArray inViews(const QByteArray& content)
{
    return document(group("A", content));
}

QByteArray inView(const QByteArray& content)
{
    return document(group("A", view("v", content)));
}

QByteArray inCurrentView(const QByteArray& content)
{
    return document(group("A", {}, content));
}

QByteArray withHex(const QByteArray& hex)
{
    return inView(state("w", hex));
}

const char views[] = "<Views/>";
const char currentView[] = "<CurrentView Name=\"__current__\"/>";

} // namespace

/** Documents that break one rule of the schema each. */
class DocumentRejectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void root_data();
    void root() { refuse(); }
    void groups_data();
    void groups() { refuse(); }
    void views_data();
    void views() { refuse(); }
    void states_data();
    void states() { refuse(); }
    void schemaInstanceAttributes_data();
    void schemaInstanceAttributes() { refuse(); }

private:
    void refuse()
    {
        QFETCH(QByteArray, data);
        DocumentJudge().expectRefused(data);
    }
};

// What the broken documents are made from is itself fine.
void DocumentRejectTest::initTestCase()
{
    DocumentJudge().expectAccepted(document({}));
    DocumentJudge().expectAccepted(inGroup(QByteArray(::views) + currentView));
    DocumentJudge().expectAccepted(withHex("aabb"));
    DocumentJudge().expectAccepted(document({}, toolBarState("w", "aabb")));
    DocumentJudge().expectAccepted(inCurrentView(state("w", "aa") + userData("text")));
}

void DocumentRejectTest::root_data()
{
    QTest::addColumn<QByteArray>("data");
    row("null array", QByteArray());
    row("empty array", QByteArray(""));
    row("a single letter", "x");
    row("another element", "<Views/>");
    row("an element declared further in", "<Groups/>");
    row("name in lower case", "<viewdata Version=\"1.1.0\"><Groups/></viewdata>");
    row("in a default namespace",
        "<ViewData xmlns=\"urn:x\" Version=\"1.1.0\"><Groups/></ViewData>");
    row("in a prefixed namespace",
        "<x:ViewData xmlns:x=\"urn:x\" Version=\"1.1.0\"><Groups/></x:ViewData>");
    row("only its child in a namespace",
        "<ViewData Version=\"1.1.0\"><Groups xmlns=\"urn:x\"/></ViewData>");
    row("no version", "<ViewData><Groups/></ViewData>");
    row("version in lower case", "<ViewData version=\"1.1.0\"><Groups/></ViewData>");
    row("version in a namespace",
        "<ViewData xmlns:x=\"urn:x\" x:Version=\"1.1.0\"><Groups/></ViewData>");
    row("a further attribute", "<ViewData Version=\"1.1.0\" Name=\"n\"><Groups/></ViewData>");
    row("a further attribute of XML itself",
        "<ViewData Version=\"1.1.0\" xml:lang=\"en\"><Groups/></ViewData>");
    row("no groups", "<ViewData Version=\"1.1.0\"/>");
    row("tool bars but no groups",
        "<ViewData Version=\"1.1.0\">" + toolBarState("w", "aa") + "</ViewData>");
    row("groups twice", "<ViewData Version=\"1.1.0\"><Groups/><Groups/></ViewData>");
    row("tool bars after the groups",
        "<ViewData Version=\"1.1.0\"><Groups/>" + toolBarState("w", "aa") + "</ViewData>");
    row("an unknown child", "<ViewData Version=\"1.1.0\"><Groups/><Other/></ViewData>");
    row("a state as child", document({}, state("w", "aa")));
    row("text before the groups", document({}, "text"));
    row("text after the groups", "<ViewData Version=\"1.1.0\"><Groups/>text</ViewData>");
    row("text in a CDATA section", document({}, "<![CDATA[text]]>"));
    row("broken although of another version",
        document({}, {}, "9.9").replace("<Groups></Groups>", ""));
}

void DocumentRejectTest::groups_data()
{
    QTest::addColumn<QByteArray>("data");
    row("an attribute", document({}).replace("<Groups>", "<Groups Name=\"A\">"));
    row("a view directly", inGroups(view("v")));
    row("text", inGroups("text"));
    row("group without a name", inGroups("<Group><Views/>" + QByteArray(currentView) + "</Group>"));
    row("group with a further attribute", inGroup(QByteArray(::views) + currentView)
                                              .replace("Name=\"A\"", "Name=\"A\" Active=\"1\""));
    row("empty group", inGroup({}));
    row("no views", inGroup(currentView));
    row("no current view", inGroup(::views));
    row("current view first", inGroup(QByteArray(currentView) + ::views));
    row("views twice", inGroup(QByteArray(::views) + ::views + currentView));
    row("current view twice", inGroup(QByteArray(::views) + currentView + currentView));
    row("a name as an element", inGroup("<Name>A</Name>" + QByteArray(::views) + currentView));
    row("unknown child", inGroup(QByteArray(::views) + currentView + "<Other/>"));
    row("text in a group", inGroup(QByteArray(::views) + "text" + currentView));
    row("a group in a group", inGroup(QByteArray(::views) + currentView + group("B", {})));
    row("second group broken", inGroups(group("A", {}) + "<Group Name=\"B\"/>"));
    row("broken although no group of this name is known", inGroups("<Group Name=\"unknown\"/>"));
}

void DocumentRejectTest::views_data()
{
    QTest::addColumn<QByteArray>("data");
    row("an attribute of views", inViews({}).replace("<Views>", "<Views Name=\"v\">"));
    row("text in views", inViews("text"));
    row("a state in views", inViews(state("w", "aa")));
    row("the current view among the views", inViews(currentView));
    row("view without a name", inViews("<View/>"));
    row("view with a further attribute", inViews("<View Name=\"v\" Id=\"1\"/>"));
    row("view with a lower-case name", inViews("<View name=\"v\"/>"));
    for (const char* active : {"", "TRUE", "True", "yes", "on", "2", "01", "truefalse", "tr ue"}) {
        const QByteArray quotedActive = "active is \"" + QByteArray(active) + '"';
        row(quotedActive.constData(), inViews(view("v", {}, active)));
    }
    row("unknown child", inView("<Other/>"));
    row("text in a view", inView("text"));
    row("user data first", inView(userData("u") + state("w", "aa")));
    row("user data twice", inView(userData("u") + userData("u")));
    row("user data with an attribute", inView("<UserData Type=\"text\"/>"));
    row("user data with a child", inView(userData("<b/>")));
    row("a view in a view", inView(view("v")));
    row("current view without a name", inGroup("<Views/><CurrentView/>"));
    row("active current view with a wrong value",
        inGroup("<Views/><CurrentView Name=\"\" Active=\"yes\"/>"));
    row("current view with a further attribute",
        inGroup("<Views/><CurrentView Name=\"\" Id=\"\"/>"));
    row("text in the current view", inCurrentView("text"));
    row("a view in the current view", inCurrentView(view("v")));
    row("current view with user data first", inCurrentView(userData("u") + state("w", "aa")));
    row("current view with user data twice", inCurrentView(userData("u") + userData("u")));
    row("current view with an odd state", inCurrentView(state("w", "a")));
}

void DocumentRejectTest::states_data()
{
    QTest::addColumn<QByteArray>("data");
    row("no id", inView("<State>aa</State>"));
    row("id in lower case", inView("<State descriptorId=\"w\">aa</State>"));
    row("a further attribute", inView("<State DescriptorId=\"w\" Size=\"1\">aa</State>"));
    row("one digit", withHex("a"));
    row("three digits", withHex("aab"));
    row("999,999 digits", withHex(QByteArray(999999, 'a')));
    row("a letter that is no digit", withHex("ag"));
    row("wrong only in the last of a million digits", withHex(QByteArray(999999, 'a') + 'g'));
    row("prefix", withHex("0xaa"));
    row("sign", withHex("-aa"));
    row("blank inside", withHex("aa bb"));
    row("line end inside", withHex("aa\nbb"));
    row("colon", withHex("aa:bb"));
    row("no-break space inside", withHex("aa\xC2\xA0"
                                         "bb"));
    row("full-width digits", withHex("\xEF\xBC\x91\xEF\xBC\x92"));
    row("Arabic digits", withHex("\xD9\xA1\xD9\xA2"));
    row("a child", withHex("aa<b/>bb"));
    row("tool bars without an id", document({}, "<ToolBarState>aa</ToolBarState>"));
    row("tool bars with a further attribute",
        document({}, "<ToolBarState DescriptorId=\"w\" Name=\"n\">aa</ToolBarState>"));
    row("tool bars with one digit", document({}, toolBarState("w", "a")));
    row("tool bars with a letter that is no digit", document({}, toolBarState("w", "zz")));
    row("tool bars with a child", document({}, toolBarState("w", "<b/>")));
}

void DocumentRejectTest::schemaInstanceAttributes_data()
{
    QTest::addColumn<QByteArray>("data");
    const auto withAttribute = [](const QByteArray& attribute) {
        return withHex("aa").replace(
            "<State ", "<State xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                       "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" " +
                           attribute + " ");
    };
    row("a type that is not declared", withAttribute("xsi:type=\"other\""));
    row("a type that is not derived", withAttribute("xsi:type=\"xs:string\""));
    row("a type without a name", withAttribute("xsi:type=\"\""));
    row("nil", withAttribute("xsi:nil=\"true\""));
    row("not nil", withAttribute("xsi:nil=\"false\""));
    row("an attribute unknown there", withAttribute("xsi:other=\"1\""));
}

QTEST_MAIN(DocumentRejectTest)
#include "DocumentRejectTest.moc"
