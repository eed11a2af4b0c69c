// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "Commands.h"
#include "Console.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTextCodec>

#include <memory>

using namespace Panorel::Tool;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool)
};

// Scripts often run in the "C" locale, whose encoding has ASCII only. Names of layouts and files
// would lose their other characters there.
void readArgumentsAsUtf8InPlainLocale()
{
    if (QTextCodec::codecForLocale()->mibEnum() == 3)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

// What Qt has to say about the machine is nothing about the files.
void dropMessageOfQt(QtMsgType, const QMessageLogContext&, const QString&) {}

std::unique_ptr<QCoreApplication> createApplication(int& argc, char** argv)
{
    const Command* command = argc > 1 ? findCommand(QString::fromLocal8Bit(argv[1])) : nullptr;
    if (!command || !command->isDrawing)
        return std::make_unique<QCoreApplication>(argc, argv);
    // There may be no display, and none is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

int help(const QStringList& arguments)
{
    const QStringList ofItself{QStringLiteral("help"), QStringLiteral("--help"),
                               QStringLiteral("-h")};
    if (arguments.isEmpty() || ofItself.contains(arguments.constFirst())) {
        printHelp(generalHelp());
        return Fine;
    }
    if (const Command* command = findCommand(arguments.constFirst()))
        return command->run(*command, {QStringLiteral("--help")});
    return reportFailure(QString(),
                         Text::tr("there is no command \"%1\"").arg(arguments.constFirst()));
}

int run(const QStringList& arguments)
{
    if (arguments.isEmpty())
        return reportUsage(generalHelp());
    const QString& first = arguments.constFirst();
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        printVersion();
        return Fine;
    }
    if (first == QLatin1String("--help") || first == QLatin1String("-h"))
        return help({});
    if (first == QLatin1String("help"))
        return help(arguments.mid(1));
    if (const Command* command = findCommand(first))
        return command->run(*command, arguments.mid(1));
    return reportFailure(QString(),
                         Text::tr("there is no command \"%1\"; see \"panorel help\"").arg(first));
}

} // namespace

int main(int argc, char* argv[])
{
    readArgumentsAsUtf8InPlainLocale();
    qInstallMessageHandler(dropMessageOfQt);
    Arguments::keep(argc, argv);
    const auto application = createApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("panorel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PANOREL_VERSION));
    return outcome(run(Arguments::all()));
}
