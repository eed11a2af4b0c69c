// SPDX-License-Identifier: MIT
#include <TranslationCenter.h>

#include <QApplication>
#include <QByteArray>
#include <QEvent>
#include <QString>
#include <QThread>
#include <QWidget>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <utility>

// Carries out the steps named by its arguments, each with an operand after a colon where it takes
// one, and prints what can be seen of the translations. TranslationCenterTest writes the steps.

namespace {

void print(const QString& word)
{
    std::puts(word.toUtf8().constData());
    std::fflush(stdout);
}

// What the application unregisters when the language next changes.
QString unregisteredOnChange;

// Both print the language changes that reach them.
class Application : public QApplication
{
public:
    using QApplication::QApplication;
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            print(QStringLiteral("application-changed"));
            if (!unregisteredOnChange.isEmpty())
                TranslationCenter::Instance().Unregister(std::exchange(unregisteredOnChange, {}));
        }
        return QApplication::event(event);
    }
};

class Window : public QWidget
{
protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            print(QStringLiteral("window-changed"));
        QWidget::changeEvent(event);
    }
};

class Probe
{
public:
    Probe(int& argc, char** argv);
    bool run(const QString& step);

private:
    void startWidgets();
    void loadModule();

    int& m_argc;
    char** m_argv;
    std::unique_ptr<QCoreApplication> m_application;
    std::unique_ptr<QWidget> m_window;
    void* m_module = nullptr;
    std::map<QString, std::function<void(const QString&)>> m_steps;
};

void inOtherThread(const std::function<void()>& work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->start();
    thread->wait();
}

void registerName(const QString& name)
{
    TranslationCenter::Instance().Register(name);
}

void unregisterName(const QString& name)
{
    TranslationCenter::Instance().Unregister(name);
}

// One thread holds the loader's lock when it registers, the other needs it to find the catalogue.
void loadAndRegisterAtOnce()
{
    const std::unique_ptr<QThread> thread(QThread::create([] {
        for (int i = 0; i < 200; ++i) {
            void* const handle = dlopen(PANOREL_LIBRARY, RTLD_NOW);
            if (handle)
                dlclose(handle);
        }
    }));
    thread->start();
    while (!thread->isFinished()) {
        registerName(QStringLiteral("Other"));
        unregisterName(QStringLiteral("Other"));
        QCoreApplication::processEvents();
    }
    thread->wait();
}

void processEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

Probe::Probe(int& argc, char** argv)
    : m_argc(argc)
    , m_argv(argv)
{
    m_steps = {
        {QStringLiteral("app"),
         [this](const QString&) {
             m_application = std::make_unique<QCoreApplication>(m_argc, m_argv);
         }},
        {QStringLiteral("widgets"), [this](const QString&) { startWidgets(); }},
        {QStringLiteral("end-app"), [this](const QString&) { m_application.reset(); }},
        {QStringLiteral("register"), registerName},
        {QStringLiteral("unregister"), unregisterName},
        {QStringLiteral("unregister-on-change"),
         [](const QString& name) { unregisteredOnChange = name; }},
        {QStringLiteral("register-in-thread"),
         [](const QString& name) { inOtherThread([name] { registerName(name); }); }},
        {QStringLiteral("unregister-in-thread"),
         [](const QString& name) { inOtherThread([name] { unregisterName(name); }); }},
        {QStringLiteral("load"), [this](const QString&) { loadModule(); }},
        {QStringLiteral("load-in-thread"),
         [this](const QString&) { inOtherThread([this] { loadModule(); }); }},
        {QStringLiteral("unload"), [this](const QString&) { dlclose(m_module); }},
        {QStringLiteral("load-and-register-at-once"),
         [](const QString&) { loadAndRegisterAtOnce(); }},
        {QStringLiteral("events"), [](const QString&) { processEvents(); }},
        {QStringLiteral("text"),
         [](const QString&) { print(QCoreApplication::translate("Panorel::Menu", "Layouts")); }},
        {QStringLiteral("exit"), [](const QString&) { std::exit(0); }},
    };
}

void Probe::startWidgets()
{
    m_application = std::make_unique<Application>(m_argc, m_argv);
    m_window = std::make_unique<Window>();
    m_window->show();
}

void Probe::loadModule()
{
    m_module = dlopen(PANOREL_LIBRARY, RTLD_NOW);
    if (!m_module)
        print(QString::fromLocal8Bit(dlerror()));
}

bool Probe::run(const QString& step)
{
    const auto found = m_steps.find(step.section(QLatin1Char(':'), 0, 0));
    if (found == m_steps.end())
        return false;
    found->second(step.section(QLatin1Char(':'), 1));
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    int applicationArgc = 1;
    Probe probe(applicationArgc, argv);
    for (int i = 1; i < argc; ++i) {
        if (!probe.run(QString::fromLocal8Bit(argv[i])))
            return 2;
    }
    return 0;
}
