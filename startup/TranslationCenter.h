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
 * languages that there is one for; English needs none. A module without a catalogue is left alone.
 * The folders are, in order: the program's and "translations" beside it, the module's
 * "<name>/translations" in the data folder that belongs to this library and in the desktop's data
 * folders, and Qt's translations.
 *
 * Register() and Unregister() may be called from any thread and while libraries are loaded and
 * unloaded; catalogues are installed and removed on the application's thread. Nothing is reported.
 */
class TUMOAPPSTARTUP_EXPORT TranslationCenter
{
public:
    TranslationCenter(const TranslationCenter&) = delete;
    TranslationCenter& operator=(const TranslationCenter&) = delete;

    /** The one service of the process. It is never destroyed. */
    static TranslationCenter& Instance();

    /** The catalogue of module @p name is wanted. Registrations of one name are counted. */
    void Register(const QString& name);
    /** Undoes one Register(); the catalogue is removed with the last one. */
    void Unregister(const QString& name);

private:
    TranslationCenter();
    ~TranslationCenter();

    static void onApplicationCreated();
    void updateOnApplicationThread();
    void update();

    QMutex m_mutex;
    /** Registered names, one entry for each registration. */
    QStringList m_names;
    /** What is installed, by name; null where no catalogue was found. */
    QHash<QString, QTranslator*> m_translators;
};
