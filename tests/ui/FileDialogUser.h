// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QTimer>

#include <functional>

class QFileDialog;

namespace Panorel::Tests {

/**
 * Uses the next file dialog while the code that opened it waits for its end: hands the dialog over
 * once, answers the question whether to overwrite a file, and ends a dialog that stays open.
 */
class FileDialogUser
{
public:
    using Use = std::function<void(QFileDialog&)>;

    explicit FileDialogUser(Use use, QMessageBox::StandardButton answer = QMessageBox::NoButton);

    /** To be called before the application object is made: only Qt's own dialogs can be used like
        this, and they remember folders in settings, which are not to be the user's. */
    static void prepareProcess();

    /** True when there was one dialog, it closed by what was done, and each question was awaited.
     */
    bool wasUsed() const { return m_used && !m_stuck; }

    /** Enters a file name and confirms it. */
    static void choose(QFileDialog& dialog, const QString& fileName);
    static void cancel(QFileDialog& dialog);

private:
    void look();
    void answer(QMessageBox& question);

    Use m_use;
    QMessageBox::StandardButton m_answer;
    bool m_used = false;
    bool m_stuck = false;
    int m_looks = 0;
    QTimer m_timer;
};

} // namespace Panorel::Tests
