#include "cliparser.h"

#include <cstdio>

CliParser::CliParser(const QString &command, const QString &usage, const QString &description)
    : command(command)
    , usage(usage)
{
    parser.setApplicationDescription(description);
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help.")});
}

int CliParser::parse(const QStringList &args)
{
    if (!parser.parse(QStringList{QStringLiteral("kestrove-cli")} + args))
        return usageError(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        // The parser's usage line names the program only; name the command too.
        QString help = parser.helpText();
        const int end = help.indexOf(QLatin1Char('\n'));
        help.replace(0, end, QStringLiteral("Usage: kestrove-cli %1 %2").arg(command, usage));
        printOut(help);
        return ExitSuccess;
    }
    return -1;
}

int CliParser::usageError(const QString &message) const
{
    error(QStringLiteral("%1: %2\nTry 'kestrove-cli %1 --help'.").arg(command, message));
    return ExitWrongArguments;
}

void CliParser::error(const QString &text)
{
    std::fprintf(stderr, "kestrove-cli: %s\n", qUtf8Printable(text));
    std::fflush(stderr);
}

void printOut(const QString &text)
{
    std::fputs(qUtf8Printable(text), stdout);
    std::fflush(stdout);
}
