// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutTree.h"

#include <QHash>

namespace Panorel::Kit::Detail {

/** The layouts of a file, with what is to become of each. */
class ImportModel : public LayoutTree
{
    Q_OBJECT

public:
    /** What becomes of a layout. One whose name is free is added by Add only. */
    enum class Choice { Skip, Add, Replace };

    /** @param source the layouts to choose from. @param target those that there are. */
    ImportModel(const Snapshot& source, const Snapshot& target, QObject* parent);
    ~ImportModel() override;

    Choice choiceOf(const QModelIndex& index) const;
    void setChoice(const QModelIndexList& indexes, Choice choice);
    /** The layout of the same name that there is; null if there is none. */
    const Snapshot::View* counterpart(const QModelIndex& index) const;
    /** How many layouts are to be imported. */
    int count() const;

    /** What the choice makes of some layouts. */
    struct Result
    {
        Snapshot snapshot;
        /** The imported layouts under their names there. */
        LayoutIds layouts;
    };
    Result result(const Snapshot& target) const;

    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /** Something else is to be imported. */
    void choiceChanged();

protected:
    QString noteOf(const QModelIndex& index) const override;

private:
    void chooseFirst();
    void updateNames();
    void store(const QModelIndex& index, Choice choice);

    Snapshot m_target;
    QVector<QVector<Choice>> m_choices;
    /** The names that the layouts get, as result() finds them. */
    QVector<QVector<QString>> m_names;
};

} // namespace Panorel::Kit::Detail
