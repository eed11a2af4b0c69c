// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutCures.h"
#include "LayoutDocument.h"
#include "LayoutUndo.h"

#include <QObject>
#include <QString>

/** Accompanies the imports of a menu, see LayoutCures::explainImports(). */
class ImportWatch : public QObject
{
    Q_OBJECT

public:
    ImportWatch(Panorel::Menu& menu, Panorel::Manager& manager, LayoutUndo& undo,
                const LayoutCures::Tell& tell);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void begin();
    void end();
    void explain(const QString& name, LayoutDocument::Problem problem);

    Panorel::Manager& m_manager;
    LayoutUndo& m_undo;
    LayoutCures::Tell m_tell;
    QString m_fileName;
    LayoutUndo::Step m_before;
};
