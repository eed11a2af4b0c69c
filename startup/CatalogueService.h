// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

class QTranslator;

namespace Panorel::StartUp {

/**
 * Installs the catalogues of the modules that are added, see TranslationCenter. It is not a part of
 * that class, because another library may have one of that name, and the loader would mix the two.
 * Nothing here leaves the library.
 */
class CatalogueService
{
public:
    CatalogueService(const CatalogueService&) = delete;
    CatalogueService& operator=(const CatalogueService&) = delete;

    /** The one service of the process. It is never destroyed. */
    static CatalogueService& instance();

    /** Does what TranslationCenter::Register() promises. */
    void add(const QString& name);
    /** Undoes one add(). */
    void remove(const QString& name);

private:
    CatalogueService();
    ~CatalogueService();

    static void onApplicationCreated();
    void updateOnApplicationThread();
    QStringList registeredNames();
    void update();

    /**
     * Guards the names, and nothing is called while it is held: a thread that loads a library waits
     * for it inside the loader, and looking for catalogues needs the loader too.
     */
    QMutex m_mutex;
    /** Added names, one entry for each add(). */
    QStringList m_names;
    /**
     * What is installed, by name; null where no catalogue was found. The translators belong to the
     * application object, and only its thread uses this.
     */
    QHash<QString, QTranslator*> m_translators;

    static const bool s_followsApplication;
};

} // namespace Panorel::StartUp
