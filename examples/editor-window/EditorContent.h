// SPDX-License-Identifier: MIT
#pragma once

class QPlainTextEdit;
class QWidget;

/** What the editor and its dock widgets show. The caller owns what it gets. */
namespace EditorContent {

QPlainTextEdit* createEditor();
QPlainTextEdit* createConsole();
QWidget* createProject();
QWidget* createOutline();
QWidget* createSearch();
QWidget* createProperties();
QWidget* createVariables();

} // namespace EditorContent
