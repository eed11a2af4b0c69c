// SPDX-License-Identifier: MIT
#include "TranslationCenter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QThread>
#include <QTranslator>
#include <QVector>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <memory>

namespace {

// The file this code was loaded from.
QString libraryFile()
{
#ifdef Q_OS_WIN
    HMODULE module = nullptr;
    // Pinned, for Qt keeps the address of onApplicationCreated() for good.
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
    return QString::fromLocal8Bit(info.dli_fname);
#endif
}

QStringList catalogueFolders(const QString& module)
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString inDataFolder = QLatin1Char('/') + module + QLatin1String("/translations");
    QStringList folders{program, program + QLatin1String("/translations")};
    folders += QFileInfo(libraryFile()).absolutePath() + QLatin1String("/" TUMO_DATA_FROM_LIBRARY) +
               inDataFolder;
    const QStringList dataFolders =
        QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString& folder : dataFolders)
        folders += folder + inDataFolder;
    folders += QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    return folders;
}

// "de-AT" gives "de_AT" and "de".
QStringList catalogueLanguages(const QString& uiLanguage)
{
    QString language = uiLanguage;
    language.replace(QLatin1Char('-'), QLatin1Char('_'));
    QStringList languages{language};
    for (int end = language.lastIndexOf(QLatin1Char('_')); end > 0;
         end = language.lastIndexOf(QLatin1Char('_'), end - 1))
        languages += language.left(end);
    return languages;
}

bool isSourceLanguage(const QString& uiLanguage)
{
    return uiLanguage == QLatin1String("C") || uiLanguage == QLatin1String("en") ||
           uiLanguage.startsWith(QLatin1String("en-"));
}

QTranslator* loadCatalogue(const QString& name)
{
    const QString module = name.toLower();
    const QStringList folders = catalogueFolders(module);
    const QStringList uiLanguages = QLocale::system().uiLanguages();
    auto translator = std::make_unique<QTranslator>();
    for (const QString& uiLanguage : uiLanguages) {
        const QStringList languages = catalogueLanguages(uiLanguage);
        for (const QString& language : languages) {
            for (const QString& folder : folders) {
                const QString file = folder + QLatin1Char('/') + module + QLatin1Char('_') +
                                     language + QLatin1String(".qm");
                // Asked first, for QTranslator would go on to look for shorter names.
                if (QFileInfo(file).isFile() && translator->load(file))
                    return translator.release();
            }
        }
        // The texts in the code are English: whoever prefers it over what follows has it already.
        if (isSourceLanguage(uiLanguage))
            break;
    }
    return nullptr;
}

// Without an application nothing is installed any more. With one, the texts go at once, and the
// object when the event loop next runs: at the end of a process, when there is no next time, no
// widget is sent a language change.
void removeCatalogue(QTranslator* translator)
{
    if (!translator)
        return;
    if (!QCoreApplication::instance()) {
        delete translator;
        return;
    }
    (void)translator->load(static_cast<const uchar*>(nullptr), 0);
    translator->deleteLater();
}

} // namespace

TranslationCenter::TranslationCenter()
{
    qAddPreRoutine(onApplicationCreated);
}

TranslationCenter::~TranslationCenter() = default;

TranslationCenter& TranslationCenter::Instance()
{
    // Deliberate: never deleted, for libraries are unloaded after any static object's end.
    static TranslationCenter* const instance = new TranslationCenter;
    return *instance;
}

void TranslationCenter::Register(const QString& name)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_names.append(name);
    }
    updateOnApplicationThread();
}

void TranslationCenter::Unregister(const QString& name)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_names.removeOne(name);
    }
    updateOnApplicationThread();
}

void TranslationCenter::onApplicationCreated()
{
    TranslationCenter& center = Instance();
    QHash<QString, QTranslator*> stale;
    {
        // What was installed has ended with the application object before.
        const QMutexLocker lock(&center.m_mutex);
        center.m_translators.swap(stale);
    }
    qDeleteAll(stale);
    center.update();
}

void TranslationCenter::updateOnApplicationThread()
{
    QCoreApplication* application = QCoreApplication::instance();
    if (!application || QThread::currentThread() == application->thread())
        update();
    else
        QMetaObject::invokeMethod(
            application, [] { Instance().update(); }, Qt::QueuedConnection);
}

void TranslationCenter::update()
{
    QVector<QTranslator*> removed;
    QVector<QTranslator*> added;
    {
        const QMutexLocker lock(&m_mutex);
        for (auto it = m_translators.begin(); it != m_translators.end();) {
            if (m_names.contains(it.key())) {
                ++it;
            } else {
                removed.append(it.value());
                it = m_translators.erase(it);
            }
        }
        if (QCoreApplication::instance()) {
            for (const QString& name : qAsConst(m_names)) {
                if (!m_translators.contains(name))
                    added.append(*m_translators.insert(name, loadCatalogue(name)));
            }
        }
    }
    // Outside the lock, for a language change reaches code that may load further libraries.
    for (QTranslator* translator : qAsConst(removed))
        removeCatalogue(translator);
    for (QTranslator* translator : qAsConst(added)) {
        if (translator)
            QCoreApplication::installTranslator(translator);
    }
}
