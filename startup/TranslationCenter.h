// SPDX-License-Identifier: MIT
#pragma once

#include <TumoAppStartUpExport.h>

#include <QString>

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
 *
 * An application, or another library, may have a class of this name, and the loader binds each
 * operation to the first definition that it finds. So the class has no data, and its operations do
 * not mind which object they are called on; calls that belong to the caller's own class go there.
 */
class TranslationCenter
{
public:
    TranslationCenter(const TranslationCenter&) = delete;
    TranslationCenter& operator=(const TranslationCenter&) = delete;

    /** Returns the one service of the process. It is never destroyed. */
    TUMOAPPSTARTUP_EXPORT static TranslationCenter& Instance();

    /**
     * Asks for the catalogue of module @p name. Registrations of one name are counted. A name that
     * could not be a part of a file's name, such as one with a slash, has no catalogue.
     */
    TUMOAPPSTARTUP_EXPORT void Register(const QString& name);
    /** Undoes one Register(); the catalogue is removed with the last one. */
    TUMOAPPSTARTUP_EXPORT void Unregister(const QString& name);

private:
    TranslationCenter() = default;
    ~TranslationCenter() = default;

    static TranslationCenter s_instance;
};
