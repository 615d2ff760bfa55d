#include "cliparser.h"
#include "convertcommand.h"
#include "profilescommand.h"
#include "scancommand.h"
#include "utils.h"
#include "version.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdio>

namespace {

const char usage[] = "Usage: kestrove-cli COMMAND [options]\n"
                     "\n"
                     "The conversion engine of Tessarine Kestrove, without a window.\n"
                     "\n"
                     "Commands:\n"
                     "  scan PATH... [--json]              titles of discs, probes of media files\n"
                     "  profiles [--search TEXT] [--json]  the profile catalogue and its keys\n"
                     "  convert INPUT... --profile KEY     convert a batch with parallel encoders\n"
                     "\n"
                     "'kestrove-cli COMMAND --help' tells more about each.\n";

} // namespace

int main(int argc, char *argv[])
{
    // The edit values of an input carry fonts (subtitles, watermark), which
    // want a GUI application; the offscreen platform needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kestrove-cli"));
    QCoreApplication::setApplicationVersion(productVersion());
    // The libraries' diagnostics would drown the output; QT_LOGGING_RULES
    // brings them back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    // From the bytes themselves: a file name that is not valid UTF-8 would
    // not survive the arguments' conversion.
    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << Utils::reachablePath(QByteArray(argv[i]));
    const QString command = args.isEmpty() ? QString() : args.takeFirst();
    if (command == QLatin1String("scan"))
        return ScanCommand::run(args);
    if (command == QLatin1String("profiles"))
        return ProfilesCommand::run(args);
    if (command == QLatin1String("convert")) {
        ConvertCommand convert;
        return convert.run(args);
    }
    if (command == QLatin1String("--help") || command == QLatin1String("-h")
        || command == QLatin1String("help")) {
        printOut(QString::fromLatin1(usage));
        return ExitSuccess;
    }
    if (command == QLatin1String("--version")) {
        printOut(QStringLiteral("kestrove-cli %1\n").arg(productVersion()));
        return ExitSuccess;
    }
    CliParser::error(command.isEmpty() ? QStringLiteral("no command given")
                                       : QStringLiteral("unknown command '%1'").arg(command));
    std::fputs(usage, stderr);
    return ExitWrongArguments;
}
