// SPDX-License-Identifier: MIT
#pragma once

#include "Arrangement.h"
#include "Workbench.h"

#include <QDir>

class QDialog;
class QMenu;

/**
 * Uses the workbench by keyboard and mouse as a user does, prints each step, checks what came of it
 * and writes a picture of all that is open.
 */
class Tour
{
public:
    Tour(Workbench& workbench, const QDir& pictures);

    /** False as soon as something is not as it should be. */
    bool run();

private:
    struct Shown
    {
        Arrangement editor;
        Arrangement plot;
    };

    bool saveFromMenu();
    bool refuseEmptyName();
    bool switchByMouse();
    bool cycle();
    bool deleteAndUndo();
    bool undoSwitch();
    bool nextByKeys();
    bool switchGroups();
    bool importBadFiles();
    bool importGoodFile();
    bool useDialog();
    bool chooseImports();
    bool resetAll();
    bool showManyLayouts();
    bool showLongName();

    void place();
    void disturb();
    bool openMenu();
    bool openSubMenu(QMenu& subMenu);
    bool switchGroup(int index);
    bool import(const QString& fileName, const QString& picture);
    QDialog* openDialog();
    QMenu& saveAsMenu() const;
    QMenu& deleteMenu() const;
    Shown shown() const;

    void picture(const QString& name);
    bool step(const QString& name, const QString& text, bool holds);
    bool step(const QString& name, const QString& text, const Shown& expected);
    bool isMarked() const;
    bool hasMessage() const;

    Workbench& m_workbench;
    QDir m_pictures;
    int m_steps = 0;
    bool m_hasAllPictures = true;
};
