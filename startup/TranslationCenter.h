// SPDX-License-Identifier: MIT
#pragma once

#include <TumoAppStartUpExport.h>

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

class QTranslator;

/**
 * The translation service of the process: it installs the catalogues of the modules that register.
 *
 * As soon as a QCoreApplication exists, before or after the registration, each registered module
 * has the catalogue "<name in lower case>_<language>.qm" installed for the first of the user's UI
 * languages that there is one for; English needs none. A language that comes earlier wins over a
 * folder that comes earlier; a file that is no catalogue is passed over. A module without a
 * catalogue is left alone. The folders are, in order: the program's and "translations" beside it,
 * the module's "<name>/translations" in the data folder that belongs to this library and in the
 * desktop's data folders, and Qt's translations.
 *
 * Register() and Unregister() may be called from any thread and while libraries are loaded and
 * unloaded; catalogues are installed and removed on the application's thread. Without an
 * application object they only take note. Nothing is reported.
 */
class TUMOAPPSTARTUP_EXPORT TranslationCenter
{
public:
    TranslationCenter(const TranslationCenter&) = delete;
    TranslationCenter& operator=(const TranslationCenter&) = delete;

    /** The one service of the process. It is never destroyed. */
    static TranslationCenter& Instance();

    /**
     * The catalogue of module @p name is wanted. Registrations of one name are counted. A name that
     * could not be a part of a file's name, such as one with a slash, has no catalogue.
     */
    void Register(const QString& name);
    /** Undoes one Register(); the catalogue is removed with the last one. */
    void Unregister(const QString& name);

private:
    TranslationCenter();
    ~TranslationCenter();

    static void onApplicationCreated();
    void updateOnApplicationThread();
    QStringList registeredNames();
    void update();

    /**
     * Guards the names, and nothing is called while it is held: a thread that loads a library waits
     * for it inside the loader, and looking for catalogues needs the loader too.
     */
    QMutex m_mutex;
    /** Registered names, one entry for each registration. */
    QStringList m_names;
    /**
     * What is installed, by name; null where no catalogue was found. The translators belong to the
     * application object, and only its thread uses this.
     */
    QHash<QString, QTranslator*> m_translators;

    static const bool s_followsApplication;
};
