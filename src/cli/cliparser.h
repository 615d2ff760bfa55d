#pragma once

#include <QCommandLineParser>
#include <QStringList>

// What every command ends with.
enum CliExit { ExitSuccess = 0, ExitSomeFailed = 1, ExitWrongArguments = 2 };

// The options of one command: --help, usage errors that end in exit status 2
// with a message naming the command, and messages on standard error.
class CliParser
{
public:
    // usage: what follows "kestrove-cli COMMAND" in the usage line.
    CliParser(const QString &command, const QString &usage, const QString &description);

    QCommandLineParser &options() { return parser; }

    // Parses args (without the program and the command). -1 to go on; else
    // the exit status: 0 after --help, 2 after a usage error.
    int parse(const QStringList &args);
    // Says what is wrong and how to get help; gives ExitWrongArguments.
    int usageError(const QString &message) const;

    bool isSet(const QString &name) const { return parser.isSet(name); }
    QString value(const QString &name) const { return parser.value(name); }
    QStringList values(const QString &name) const { return parser.values(name); }
    QStringList positional() const { return parser.positionalArguments(); }

    // "kestrove-cli: " and the text on standard error, one line.
    static void error(const QString &text);

private:
    QString command;
    QString usage;
    QCommandLineParser parser;
};

// Writes text to standard output as it stands.
void printOut(const QString &text);
