// SPDX-License-Identifier: MIT
#pragma once

#include "ImportModel.h"
#include "PartTitles.h"

#include <QDialog>

class QButtonGroup;
class QLabel;
class QPushButton;

namespace Panorel::Kit::Detail {

class ImportSource;
class LayoutPreview;
class LayoutsView;

/** Lets the user choose among the layouts of a file, which are shown as pictures, and decide what
    becomes of each whose name is taken. Changes nothing by itself. */
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param target the layouts that there are. */
    ImportDialog(const ImportSource& source, const Snapshot& target, const PartTitles& titles,
                 QWidget* parent);
    ~ImportDialog() override;

    /** What the user's choice makes of @p target. */
    ImportModel::Result importInto(const Snapshot& target) const { return m_model->result(target); }

private:
    QWidget* createList(const ImportSource& source);
    QWidget* createDetails();
    QWidget* createChoices();
    QLayout* createButtons();
    void follow();

    void checkAll(bool checked);
    void choose(int choice);
    void toggleSelected();
    void updateDetails();
    void updateChoices();
    void updateButton();

    const PartTitles m_titles;
    ImportModel* m_model;
    LayoutsView* m_view;
    LayoutPreview* m_theirs;
    LayoutPreview* m_own;
    QLabel* m_ownTitle;
    QWidget* m_choiceBox;
    QButtonGroup* m_choices;
    QPushButton* m_import = nullptr;
};

} // namespace Panorel::Kit::Detail
