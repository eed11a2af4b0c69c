// SPDX-License-Identifier: MIT
#include "CatalogueService.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QThread>
#include <QTranslator>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <memory>

namespace Panorel::StartUp {

namespace {

// The file this code was loaded from.
QString libraryFile()
{
#ifdef Q_OS_WIN
    HMODULE module = nullptr;
    // Pinned, because Qt keeps the address of onApplicationCreated() for good.
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                            reinterpret_cast<LPCWSTR>(&libraryFile), &module))
        return QString();
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(module, path, MAX_PATH);
    return QString::fromWCharArray(path, static_cast<int>(length));
#else
    Dl_info info;
    if (!dladdr(reinterpret_cast<void*>(&libraryFile), &info))
        return QString();
    return QFile::decodeName(info.dli_fname);
#endif
}

QStringList catalogueFolders(const QString& module)
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString inDataFolder = QLatin1Char('/') + module + QLatin1String("/translations");
    QStringList folders{program, program + QLatin1String("/translations")};
    const QString library = libraryFile();
    if (!library.isEmpty())
        folders += QFileInfo(library).absolutePath() + QLatin1String("/" TUMO_DATA_FROM_LIBRARY) +
                   inDataFolder;
    const QStringList dataFolders =
        QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString& folder : dataFolders)
        folders += folder + inDataFolder;
    folders += QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    return folders;
}

// "zh_Hant_TW" gives "zh_Hant".
QStringList shortenedLanguages(const QString& language)
{
    QStringList shortened;
    for (int end = language.lastIndexOf(QLatin1Char('_')); end > language.indexOf(QLatin1Char('_'));
         end = language.lastIndexOf(QLatin1Char('_'), end - 1))
        shortened += language.left(end);
    return shortened;
}

// The texts in the code are English: nothing that the user likes less is wanted instead. A "C" does
// not ask for them, because Qt adds it to each language that it does not know.
bool isSourceLanguage(const QString& language)
{
    return language == QLatin1String("en");
}

QString bareLanguage(const QString& language)
{
    return language.section(QLatin1Char('_'), 0, 0);
}

// The user's languages in the form that names of catalogues have. Qt lists each in several forms
// ("zh-TW", "zh-Hant-TW"), and all of them go before the bare language, for "zh" alone is written
// in another script.
QStringList catalogueLanguages()
{
    QStringList uiLanguages = QLocale::system().uiLanguages();
    uiLanguages.replaceInStrings(QStringLiteral("-"), QStringLiteral("_"));
    QStringList languages;
    for (int i = 0; i < uiLanguages.size();) {
        const QString bare = bareLanguage(uiLanguages[i]);
        QStringList shortened;
        for (; i < uiLanguages.size() && bareLanguage(uiLanguages[i]) == bare; ++i) {
            languages += uiLanguages[i];
            shortened += shortenedLanguages(uiLanguages[i]);
        }
        languages += shortened;
        languages += bare;
        if (isSourceLanguage(bare))
            break;
    }
    languages.removeDuplicates();
    return languages;
}

// Null where there is none. The application owns it, as it does everything that it shows.
QTranslator* loadCatalogue(const QString& name)
{
    const QString module = name.toLower();
    // The name becomes a part of file names and must not lead elsewhere.
    if (QFileInfo(module).fileName() != module)
        return nullptr;
    // Empty, and not null: QTranslator is neither to add a suffix nor to try shorter names.
    const QString none = QLatin1String("");
    const QStringList folders = catalogueFolders(module);
    const QStringList languages = catalogueLanguages();
    auto translator = std::make_unique<QTranslator>();
    for (const QString& language : languages) {
        const QString file =
            QLatin1Char('/') + module + QLatin1Char('_') + language + QLatin1String(".qm");
        for (const QString& folder : folders) {
            if (translator->load(folder + file, none, none, none)) {
                translator->setParent(QCoreApplication::instance());
                return translator.release();
            }
        }
    }
    return nullptr;
}

// The texts go at once, and the object when the event loop next runs: at the end of a process, when
// there is no next time, no widget is sent a language change.
void removeCatalogue(QTranslator* translator)
{
    if (!translator)
        return;
    (void)translator->load(static_cast<const uchar*>(nullptr), 0);
    translator->deleteLater();
}

} // namespace

// Not left to the constructor: with an application in place Qt calls the routine at once, and that
// needs the service.
const bool CatalogueService::s_followsApplication = [] {
    qAddPreRoutine(onApplicationCreated);
    return true;
}();

CatalogueService::CatalogueService() = default;
CatalogueService::~CatalogueService() = default;

CatalogueService& CatalogueService::instance()
{
    // Deliberate: never deleted, for libraries are unloaded after any static object's end.
    static CatalogueService* const instance = new CatalogueService;
    return *instance;
}

void CatalogueService::add(const QString& name)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_names.append(name);
    }
    updateOnApplicationThread();
}

void CatalogueService::remove(const QString& name)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_names.removeOne(name);
    }
    updateOnApplicationThread();
}

void CatalogueService::onApplicationCreated()
{
    // What was installed has ended with the application object before, which owned it.
    instance().m_translators.clear();
    instance().updateOnApplicationThread();
}

void CatalogueService::updateOnApplicationThread()
{
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        return;
    if (QThread::currentThread() == application->thread())
        update();
    else
        QMetaObject::invokeMethod(
            application, [] { instance().update(); }, Qt::QueuedConnection);
}

QStringList CatalogueService::registeredNames()
{
    const QMutexLocker lock(&m_mutex);
    return m_names;
}

void CatalogueService::update()
{
    const QStringList names = registeredNames();
    for (auto it = m_translators.begin(); it != m_translators.end();) {
        if (names.contains(it.key())) {
            ++it;
        } else {
            removeCatalogue(it.value());
            it = m_translators.erase(it);
        }
    }
    for (const QString& name : names) {
        // Asked again, because the language change reaches code that may load and unload libraries.
        if (m_translators.contains(name) || !registeredNames().contains(name))
            continue;
        QTranslator* translator = *m_translators.insert(name, loadCatalogue(name));
        if (translator)
            QCoreApplication::installTranslator(translator);
    }
}

} // namespace Panorel::StartUp
