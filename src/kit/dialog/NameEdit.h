// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include <functional>

namespace Panorel::Kit::Detail {

/** The field in which a name is changed in place. It says beside itself why a name cannot be. */
class NameEdit : public QLineEdit
{
    Q_OBJECT

public:
    /** Gives the reason why a text cannot be the name, null if it can. */
    using Refusal = std::function<QString(const QString&)>;

    NameEdit(const Refusal& refusal, QWidget* parent);
    ~NameEdit() override;

    /** Whether the text can be the name. If it cannot, the reason is shown. */
    bool check();
    /** Goes on with @p text, which was refused. */
    void resume(const QString& text);

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeReason();

    Refusal m_refusal;
    QPointer<QLabel> m_reason;
};

} // namespace Panorel::Kit::Detail
