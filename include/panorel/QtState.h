// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/PanorelExport.h>

#include <QPoint>
#include <QSize>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

class QByteArray;
class QDataStream;

namespace Panorel {

/**
 * One main-window state blob, as QMainWindow::saveState() writes it, in parsed form.
 *
 * A plain value that owns all it holds and touches no widget. read() fills it from bytes, write()
 * turns it into bytes, merge() combines two. Nested blocks may be of any depth: no operation here
 * recurses into them. Bad input makes nothing print, log or, short of memory, throw.
 *
 * Reentrant; one value is used by one thread at a time.
 *
 * One bound is the caller's to set, on the size of blobs: the items that read() repeats (see there)
 * make a value take memory for as many items as one section has, times its records or lines. Where
 * there is no memory for them read() fails; a copy, and with it merge(), throws std::bad_alloc.
 */
class PANOREL_EXPORT QtState
{
public:
    /** First int32 of every valid blob. */
    static const int QMainWindowLayout_VersionMarker = 255;
    /** Opens a tool-bar section whose items carry three values. */
    static const unsigned char QToolBarAreaLayout_ToolBarStateMarker = 0xFE;
    /** Opens a tool-bar section whose items carry four values. */
    static const unsigned char QToolBarAreaLayout_ToolBarStateMarkerEx = 0xFC;
    /** Opens a dock-area section. */
    static const unsigned char QDockAreaLayout_DockWidgetStateMarker = 0xFD;
    /** A block laid out in sequence; also an item that is a nested block. */
    static const unsigned char QDockAreaLayoutInfo_SequenceMarker = 0xFC;
    /** A tabbed block. */
    static const unsigned char QDockAreaLayoutInfo_TabMarker = 0xFA;
    /** An item that is a dock widget. */
    static const unsigned char QDockAreaLayoutInfo_WidgetMarker = 0xFB;
    /** No field of the format depends on it. */
    static const bool VERSION_PRE43 = false;

    /** One dock-area section. Sizes are in device-independent pixels. */
    struct DockAreaLayout
    {
        /** One dock record: what one side of the window holds. */
        struct Dock
        {
            /** Items laid out beside each other or as tabs. */
            struct Block
            {
                /** A dock widget or a nested block. */
                struct PANOREL_EXPORT Item
                {
                    /** A dock widget without a name. */
                    Item();
                    /** Copies the nested block too, to any depth. */
                    Item(const Item& other);
                    /** Leaves @p other without a nested block. */
                    Item(Item&& other) noexcept;
                    /** Copies the nested block too, to any depth. */
                    Item& operator=(const Item& other);
                    /** Leaves @p other without a nested block, unless assigned to itself. */
                    Item& operator=(Item&& other) noexcept;
                    /** Destroys the nested block too, to any depth. */
                    ~Item();

                    /** False for a dock widget, true for a nested block. */
                    bool isSequence = false;
                    /** The dock widget's objectName; null and empty are kept apart. */
                    QString objectName;
                    /** Qt's state flags of the dock widget: bit 0 visible, bit 1 floating. */
                    unsigned char flags = 0;
                    /** Carried, not interpreted. Qt writes x, y, width and height of a floating
                        dock widget, else position, extent and two zeros, in device-independent
                        pixels. */
                    int values[4] = {0, 0, 0, 0};
                    /** The nested block, owned; null for a dock widget. */
                    std::unique_ptr<Block> subBlock;

                private:
                    static std::unique_ptr<Block> clone(const Block& source);
                    static void release(Block* block) noexcept;
                };

                /** An empty sequence. */
                Block() = default;
                /** Copies nested blocks too, to any depth. */
                Block(const Block& other) = default;
                /** Leaves @p other without items. */
                Block(Block&& other) = default;
                /** Copies nested blocks too, to any depth. @p other may be one that is nested in
                    this block. */
                Block& operator=(const Block& other) { return *this = Block(other); }
                /** Leaves @p other without items. */
                Block& operator=(Block&& other) = default;
                /** Destroys nested blocks too, to any depth. */
                ~Block() = default;

                /** True for tabs, false for a sequence. */
                bool tabbed = false;
                /** Index of the tab on top; meaningful for tabs only. */
                int currentIndex = 0;
                /** Qt::Orientation as stored, not validated. */
                unsigned char orientation = 0;
                /** In the order in which they are laid out, or of their tabs. */
                std::vector<Item> items;
            };

            /** 0 left, 1 right, 2 top, 3 bottom; not validated. */
            int area = 0;
            /** Extent of the dock area. */
            QSize size;
            /** All that the area holds. */
            Block block;
        };

        /** The dock records in reading order; see read() for what later ones repeat. */
        std::vector<Dock> docks;
        /** Extent of the central widget's area. */
        QSize centralWidgetSize;
        /** Qt::DockWidgetArea owning each corner: top-left, top-right, bottom-left, bottom-right;
            not validated. */
        int corners[4] = {0, 0, 0, 0};
    };

    /** One tool-bar section. */
    struct ToolBarAreaLayout
    {
        /** A tool bar. */
        struct Item
        {
            /** The tool bar's objectName; null and empty are kept apart. */
            QString objectName;
            /** Qt's flags: bit 0 shown, bit 1 vertical. */
            unsigned char shown = 0;
            /** The carried integers are in the x coordinates, in order; every y stays 0, and so
                does the fourth point of a section that is not extended. */
            QPoint values[4];
        };

        /** Tool bars in one row or column. */
        struct Line
        {
            /** Position of the line: 0 left, 1 right, 2 top, 3 bottom; not validated. */
            int area = 0;
            /** The tool bars in stored order; see read() for those that later lines repeat. */
            std::vector<Item> items;
        };

        /** True when the items carry four values, false for three. */
        bool extended = false;
        /** The lines in reading order. */
        std::vector<Line> lines;
    };

    /** Empty: no sections, marker and version -1. */
    QtState();
    /** A deep copy. */
    QtState(const QtState& other);
    /** Nested blocks of any depth are destroyed without recursion. */
    ~QtState();

    /**
     * Do not assign: only an assignment to itself returns. For two distinct values it exchanges
     * with a copy through std::swap, which assigns in turn, so it never completes and ends in a
     * stack overflow. Copy-construct a new value instead.
     */
    [[deprecated("assigning one QtState to another never returns; "
                 "copy-construct a new value instead: QtState copy(other)")]] QtState&
    operator=(const QtState& other);

    /**
     * Replaces the content by what @p state holds.
     * @return true when all of @p state was understood. After false the value holds the marker and
     * version as read (0 where bytes were missing) and the sections completed before the failure,
     * so isNull() says nothing about success.
     *
     * Each dock record holds the items of all earlier records of its section before its own, and
     * each tool-bar line those of all earlier lines of its section.
     */
    bool read(const QByteArray& state);

    /**
     * The value as bytes: marker, version, all dock-area sections, then all tool-bar sections. An
     * empty value gives eight bytes 0xFF, which neither read() nor Qt accepts. A nested item
     * without its block is written as an empty sequence. Empty only for what no window has: more
     * than 512 MiB, to which repeated long names can grow, or more than memory holds.
     */
    QByteArray write() const;

    /**
     * A new value with the marker, version and dock areas of @p a and the tool bars of @p b. A null
     * @p b gives none; the tool bars of @p a and the dock areas of @p b are never used.
     */
    static QtState merge(const QtState& a, const QtState& b);

    /** Creates the file @p fileName, or empties it if it exists; nothing is written.
        Failures are not reported. */
    void dump(const QString& fileName) const;

    /** True exactly when the version is -1: empty, cleared, or read from a blob that says so. */
    bool isNull() const;

    /** Back to the empty value. */
    void clear();

    /** First int32 of the blob: 255 after a successful read, -1 when empty. */
    int m_versionMarker = -1;
    /** The layout version (the argument of saveState()); -1 when empty. */
    int m_version = -1;
    /** One entry for each dock-area section, in reading order. */
    std::vector<DockAreaLayout> m_dockAreaLayouts;
    /** One entry for each tool-bar section, in reading order. */
    std::vector<ToolBarAreaLayout> m_toolBarAreaLayouts;

private:
    bool readSections(QDataStream& stream);
    bool readDockAreaLayout(QDataStream& stream);
    bool readDockAreaLayoutBlock(QDataStream& stream, DockAreaLayout::Dock::Block& block) const;
    bool readToolBarAreaLayout(QDataStream& stream, int marker);
    void writeDockAreaLayout(QDataStream& stream, const DockAreaLayout& layout) const;
    void writeDockAreaLayoutBlock(QDataStream& stream,
                                  const DockAreaLayout::Dock::Block& block) const;
    void writeToolBarAreaLayout(QDataStream& stream, const ToolBarAreaLayout& layout) const;
};

// Defined here, where Block is complete; only the walks over nested blocks are calls.
inline QtState::DockAreaLayout::Dock::Block::Item::Item() = default;

inline QtState::DockAreaLayout::Dock::Block::Item::Item(const Item& other)
    : isSequence(other.isSequence)
    , objectName(other.objectName)
    , flags(other.flags)
    , values{other.values[0], other.values[1], other.values[2], other.values[3]}
    , subBlock(other.subBlock ? clone(*other.subBlock) : nullptr)
{}

inline QtState::DockAreaLayout::Dock::Block::Item::Item(Item&& other) noexcept = default;

inline QtState::DockAreaLayout::Dock::Block::Item&
QtState::DockAreaLayout::Dock::Block::Item::operator=(const Item& other)
{
    return *this = Item(other);
}

inline QtState::DockAreaLayout::Dock::Block::Item&
QtState::DockAreaLayout::Dock::Block::Item::operator=(Item&& other) noexcept = default;

inline QtState::DockAreaLayout::Dock::Block::Item::~Item()
{
    if (subBlock)
        release(subBlock.release());
}

} // namespace Panorel
