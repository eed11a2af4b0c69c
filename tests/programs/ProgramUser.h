// SPDX-License-Identifier: MIT
#pragma once

#include "PartPlaces.h"

#include <QJsonObject>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <vector>

namespace Panorel {
class Menu;
} // namespace Panorel

namespace Panorel::Tests {

/**
 * Uses a program step by step, always from its event loop, because a program may show dialogs
 * before its main window. Phases:
 *
 * - "first": saves "A", rearranges, saves "B", switches 20 times, exports, closes the window.
 * - "second": switches again, imports, undoes that, closes the window.
 *
 * Layouts are saved and switched with the plugin's menu, or with plain saveState() and
 * restoreState() if the phase ends with "-plain". Results go to the file TRY_REPORT; files that a
 * phase leaves for the next one are in the folder TRY_FOLDER.
 */
class ProgramUser : public QObject
{
    Q_OBJECT

public:
    explicit ProgramUser(const QString& phase);
    ~ProgramUser() override;

private:
    /** Done if it returns true; else it is called again. */
    using Step = std::function<bool()>;

    void look();
    void useDialog(QWidget& dialog) const;
    void runStep();

    void addFirst();
    void addSecond();
    void addSwitch(const QString& name, const QString& what);
    void addComparison(const QString& expected, const QString& what);
    void addSettling();
    void addEnd();

    bool findWindow();
    bool hasSettled();
    void save(const QString& name);
    void switchTo(const QString& name);
    void rearrange(int step);
    void transferFile(const QString& entry);
    void useFileDialog(QAction& action);
    void undo();
    QStringList differences(const QString& expected) const;
    void compare(const QString& expected, const QString& what);
    bool close();
    void report();

    Menu* menu() const;
    QString file(const QString& name) const;
    void fail(const QString& problem);

    const bool m_isPlain;
    QTimer m_timer;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    bool m_isInStep = false;
    int m_looks = 0;
    int m_looksAtStep = 0;
    int m_comparisons = 0;

    QPointer<QMainWindow> m_window;
    QString m_fileToChoose;
    /** What the window showed when a layout was saved. */
    QJsonObject m_saved;
    /** What it showed last, and how often in a row. */
    QJsonObject m_shown;
    int m_sameShown = 0;
    QJsonObject m_report;
};

} // namespace Panorel::Tests
