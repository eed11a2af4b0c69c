// SPDX-License-Identifier: MIT
#include "DetailsPane.h"

#include "LayoutPreview.h"
#include "PartTitles.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace Panorel::Kit::Detail {

DetailsPane::DetailsPane(QWidget* parent)
    : QWidget(parent)
    , m_preview(new LayoutPreview(this))
    , m_title(new QLabel(tr("&What differs from the windows now:"), this))
    , m_differences(new QPlainTextEdit(this))
    , m_slot(new QComboBox(this))
    , m_slotTitle(new QLabel(tr("Sho&rtcut slot:"), this))
{
    m_differences->setObjectName(QStringLiteral("differences"));
    m_differences->setReadOnly(true);
    m_differences->setTabChangesFocus(true);
    m_differences->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                           Qt::TextSelectableByKeyboard);
    m_differences->setAccessibleName(tr("What differs from the windows now"));
    m_title->setBuddy(m_differences);
    m_slotTitle->setBuddy(m_slot);
    m_slot->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_slot, QOverload<int>::of(&QComboBox::activated), this, &DetailsPane::slotChosen);
    auto* slotRow = new QHBoxLayout;
    slotRow->addWidget(m_slotTitle);
    slotRow->addWidget(m_slot, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_preview, 3);
    layout->addWidget(m_title);
    layout->addWidget(m_differences, 1);
    layout->addLayout(slotRow);
}

DetailsPane::~DetailsPane() = default;

void DetailsPane::show(const QString& name, const StateMap& states, const PartTitles& titles)
{
    m_preview->setStates(states, titles);
    m_preview->setAccessibleName(tr("Picture of \"%1\"").arg(name));
    setUsable(true);
}

void DetailsPane::setDifferences(const QStringList& texts)
{
    const QString text = texts.isEmpty() ? tr("Nothing. The windows look like this layout.")
                                         : texts.join(QLatin1Char('\n'));
    // What the user has scrolled or selected stays.
    if (m_differences->toPlainText() != text)
        m_differences->setPlainText(text);
}

void DetailsPane::setSlot(int slot, const QStringList& layouts)
{
    QStringList texts{tr("None")};
    for (int i = 0; i < layouts.size(); ++i) {
        const QString number = QString::number(i + 1);
        texts.append(layouts[i].isEmpty() ? number : tr("%1: %2").arg(number, layouts[i]));
    }
    m_slot->clear();
    m_slot->addItems(texts);
    m_slot->setCurrentIndex(slot);
}

void DetailsPane::setUsable(bool usable)
{
    for (QWidget* const widget : QWidgetList{m_title, m_differences, m_slotTitle, m_slot})
        widget->setEnabled(usable);
}

void DetailsPane::clear()
{
    m_preview->setStates({}, {});
    m_preview->setAccessibleName(QString());
    m_differences->clear();
    m_slot->setCurrentIndex(0);
    setUsable(false);
}

} // namespace Panorel::Kit::Detail
