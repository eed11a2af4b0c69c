// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutPicture.h"

#include <QWidget>

namespace Panorel::Kit::Detail {

/** A large picture of one layout. */
class LayoutPreview : public QWidget
{
    Q_OBJECT

public:
    explicit LayoutPreview(QWidget* parent);
    ~LayoutPreview() override;

    /** Shows @p states, nothing if they are empty, with the titles of the parts. */
    void setStates(const StateMap& states, const PartTitles& titles);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    StateMap m_states;
    LayoutPicture m_picture;
};

} // namespace Panorel::Kit::Detail
