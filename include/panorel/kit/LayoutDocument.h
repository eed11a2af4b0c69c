// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>
#include <panorel/kit/Difference.h>
#include <panorel/kit/PanorelKitExport.h>
#include <panorel/kit/Problem.h>

#include <QByteArray>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Panorel::Kit {

namespace Detail {
struct DocumentModel;
} // namespace Detail

/**
 * A whole view-settings document, as Manager::toXml() writes it and Manager::fromXml() reads it:
 * its groups, views, states and user data, what is wrong with it, and a way to edit it.
 *
 * A value; copies share their data. It needs no window, and of an application object only
 * QCoreApplication. Whether a document is accepted is decided by Manager itself, so construct and
 * edit on the GUI thread; a value that is not edited can be read by several threads. Nothing throws
 * or logs.
 *
 * Views and groups are named, not numbered, as in Manager. If a document has several groups of one
 * name, or several views of one name in a group, Manager makes one of them, and so do the editing
 * operations: they act on all of them. groups() lists them as they are in the document.
 *
 * An edit changes what it names and leaves every other byte as it is: encoding, byte order mark,
 * white space, comments, order and quotes of attributes. Only a document with a document type, or
 * in an encoding that does not come back the same, is written again as a whole, with the same
 * meaning. After each edit the document is one that a Manager takes; an edit that would make
 * another one is refused. A refused edit changes nothing.
 */
class PANORELKIT_EXPORT LayoutDocument
{
public:
    /** Why an operation was refused. A plain value; true in a condition if there is an error. */
    struct PANORELKIT_EXPORT Error
    {
        /** The reasons. */
        enum class Code {
            /** The operation was done. */
            None,
            /** The document is not one that a Manager accepts, see check(). */
            NotReadable,
            /** A document of another version than "1.1.0", of which a Manager reads nothing. */
            OtherVersion,
            /** There is no group, view or window of this name. The text lists those there are. */
            UnknownGroup,
            UnknownView,
            UnknownWindow,
            /** A view or window has the new name already. */
            NameTaken,
            /** The new name is empty. A Manager cannot activate such a view and manages no such
                window. */
            EmptyName,
            /** The text has characters that XML cannot carry. */
            NotWritable,
            /** A state is not sound, see WindowState::check(). */
            Unsound,
            /** A Manager would refuse the result. */
            NotAccepted
        };
        /** The reason. */
        Code code = Code::None;
        /** One sentence in the user's language; empty without an error. */
        QString text;

        /** Whether there is an error. */
        explicit operator bool() const { return code != Code::None; }
    };

    /** A saved view, or the current view of a group. */
    struct View
    {
        /** Its name; "__current__" as a rule for a current view. */
        QString name;
        /** Whether a Manager makes it the active view of its group. Only one of a group is. */
        bool isActive = false;
        /** DescriptorId to state; without empty states, and the last one of an id, as Manager has
            them. */
        StateMap states;
        /** The text of the user data; null if there is none, which is kept apart from empty. */
        QString userData;
    };

    /** A group, as it is in the document. */
    struct Group
    {
        /** Its name. */
        QString name;
        /** The saved views in the document's order. */
        QVector<View> views;
        /** The working layout. */
        View current;
    };

    /** What to do about a view whose name the target has already. */
    enum class OnConflict {
        /** Refuse the whole operation. */
        Fail,
        /** Put the new states and user data in the place of the old ones. The view keeps its place,
            and stays active if it was. */
        Replace,
        /** Append it under a free name, such as "Wide (2)". */
        KeepBoth
    };

    /** How tidy() treats what is doubtful. */
    struct TidyOptions
    {
        /** Keeps views with an empty name. */
        bool keepsNameless = false;
        /** Leaves out states that are not sound, where it would refuse otherwise. */
        bool dropsUnsound = false;
    };

    /** What differs between two documents, see differences(). */
    struct Differences
    {
        /** A view; null means the current view of a group that the other document lacks. */
        struct Place
        {
            /** The name of the group. */
            QString group;
            /** The name of the view. */
            QString view;
        };
        /** Views that the other document lacks, in document order. */
        QVector<Place> onlyInA;
        /** The same of the second document. */
        QVector<Place> onlyInB;
        /** What differs in the views that both have. A window that one of them lacks counts as one
            without parts. */
        QVector<Difference> changed;

        /** Whether nothing differs. */
        bool isEmpty() const { return onlyInA.isEmpty() && onlyInB.isEmpty() && changed.isEmpty(); }
    };

    /** Without bytes; it is not readable. */
    LayoutDocument();
    /** Reads @p bytes. */
    explicit LayoutDocument(const QByteArray& bytes);
    /** A document of groups without views, whose current views are the live layout of the moment
        in which they are read. Of an unwritable name it is not readable. */
    static LayoutDocument withGroups(const QStringList& names);
    /** Shares the data. */
    LayoutDocument(const LayoutDocument& other);
    /** Leaves @p other for destruction only. */
    LayoutDocument(LayoutDocument&& other) noexcept;
    /** Shares the data. */
    LayoutDocument& operator=(const LayoutDocument& other);
    /** Leaves @p other for destruction only. */
    LayoutDocument& operator=(LayoutDocument&& other) noexcept;
    /** Others that share the data keep it. */
    ~LayoutDocument();

    /** The document; byte by byte what was read as long as nothing is edited. */
    QByteArray bytes() const;
    /** Whether a Manager accepts it. All that follows is empty if not. */
    bool isReadable() const;
    /** Whether an edit writes the document again as a whole, because of its document type or
        encoding, and so loses its comments and white space. */
    bool isWrittenWhole() const;
    /** The version; a Manager reads nothing of another one than "1.1.0". */
    QString version() const;

    /** All groups with their views, in the document's order. */
    QVector<Group> groups() const;
    /** The names of the groups in the document's order, each once. */
    QStringList groupNames() const;
    /** The names of the saved views of @p group in Manager's order, each once. */
    QStringList viewNames(const QString& group) const;
    /** Whether @p group has a saved view @p view. */
    bool hasView(const QString& group, const QString& view) const;
    /** The saved view as a Manager has it after reading; a default value if there is none. */
    View view(const QString& group, const QString& view) const;
    /** The current view of @p group as a Manager has it after reading; a default value if there
        is no such group. */
    View currentView(const QString& group) const;
    /** The live layout at the time of writing, DescriptorId to state; only in the document of a
        Manager that merges. */
    StateMap toolBarStates() const;
    /** All window ids that the document names, sorted, each once. */
    QStringList windowIds() const;

    /**
     * All that is wrong or worth knowing, in the document's order: why it is refused, or else its
     * version, its views' names, and the problems of each state that is not empty.
     */
    QVector<Problem> check() const;
    /** Whether check() finds nothing worse than notes. */
    bool isSound() const;

    /** Gives a saved view another name. Its own name changes nothing. */
    Error renameView(const QString& group, const QString& view, const QString& newName);
    /** Moves a saved view before the view @p before of its group; after all others if that is
        null. */
    Error moveView(const QString& group, const QString& view, const QString& before = QString());
    /** Moves a saved view to the end of another group, where it is not active. */
    Error moveToGroup(const QString& group, const QString& view, const QString& newGroup);
    /** Removes a saved view. */
    Error removeView(const QString& group, const QString& view);
    /** Inserts a copy after a saved view. The copy is not active. */
    Error duplicateView(const QString& group, const QString& view, const QString& newName);
    /** Appends @p view to @p group; marks it active, in place of another, if it says so. */
    Error addView(const QString& group, const View& view, OnConflict onConflict = OnConflict::Fail);
    /**
     * Appends saved views of @p from to the groups of the same name.
     * @param group the group to copy; a null one is every group of @p from that has chosen views.
     * @param views the names of the views to copy; all if it is empty. Each must be there.
     */
    Error copyViews(const LayoutDocument& from, const QString& group = QString(),
                    const QStringList& views = {}, OnConflict onConflict = OnConflict::Fail);
    /** Sets the user data of a saved view; null removes it. */
    Error setUserData(const QString& group, const QString& view, const QString& text);
    /** Marks a saved view as the active one of its group, and no other; null marks none. */
    Error setActiveView(const QString& group, const QString& view);
    /** Removes the state of one window from a saved view. */
    Error removeState(const QString& group, const QString& view, const QString& window);
    /** Gives a window another id, in every view and in the tool-bar states. Refused where the new
        id is beside the old one. */
    Error renameWindow(const QString& id, const QString& newId);
    /**
     * Drops what nobody needs: what merging has repeated in states, see WindowState::tidied(), and
     * views without a name. A document that needs nothing stays byte for byte.
     * @param dropped if not null, the reasons for which states were left out are appended to it.
     */
    Error tidy(const TidyOptions& options, QVector<Problem>* dropped = nullptr);

    /** All that a user would see change: views that one of the documents lacks, and what differs in
        the others, in current views and in tool-bar states. Names as Manager has them. Documents
        that are not readable have no views. */
    static Differences differences(const LayoutDocument& a, const LayoutDocument& b);
    /** What differs between two views; group and view are null. */
    static QVector<Difference> differences(const View& a, const View& b);

private:
    Error editable() const;
    Error checkGroup(const QString& group) const;
    Error checkView(const QString& group, const QString& view) const;
    Error checkNewName(const QString& group, const QString& name) const;
    Error dropSpareMarks(const QString& group);
    Error dropNameless();
    Error accept(const QByteArray& edited);

    QSharedDataPointer<Detail::DocumentModel> m_model;
};

} // namespace Panorel::Kit
