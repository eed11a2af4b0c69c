// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QString>
#include <QStringList>
#include <QWidget>

class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace Panorel::Kit::Detail {

class LayoutPreview;
class PartTitles;

/** A layout's large picture, and what differs in it from the windows. */
class DetailsPane : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsPane(QWidget* parent);
    ~DetailsPane() override;

    void show(const QString& name, const StateMap& states, const PartTitles& titles);
    /** @param texts one sentence each; none if nothing differs. */
    void setDifferences(const QStringList& texts);
    /** Shows the slot of the layout. @param layouts those that have slots, beginning with slot 1;
        empty names for free slots. */
    void setSlot(int slot, const QStringList& layouts);
    /** Shows that no layout is chosen. */
    void clear();

Q_SIGNALS:
    /** The user wants the layout in another slot; 0 is none. */
    void slotChosen(int slot);

private:
    void setUsable(bool usable);

    LayoutPreview* m_preview;
    QLabel* m_title;
    QPlainTextEdit* m_differences;
    QComboBox* m_slot;
    QLabel* m_slotTitle;
};

} // namespace Panorel::Kit::Detail
