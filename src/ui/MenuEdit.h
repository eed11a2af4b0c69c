// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace Panorel {

/** A line edit inside a menu, where Return confirms the text and leaves the field empty. */
class MenuEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit MenuEdit(const QString& text, QWidget* parent = nullptr);
    ~MenuEdit() override = default;

Q_SIGNALS:
    /** Return or Enter was pressed; @p input is the text as typed, also when empty. The receiver
        may delete the field. */
    void inputAccepted(const QString& input);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace Panorel
