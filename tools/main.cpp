// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "complain.h"
#include "output.h"

#include <smilparser/mmslogger.h>
#include <smilparser/smilparser_version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <clocale>
#include <cstdio>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

bool MMSLogger::qdebugEnabled = false;

namespace
{
enum ExitStatus { Success = 0, Failure = 1, BadUsage = 2 };
enum Kind { Show = 1, Render = 2, Storyboard = 4, Check = 8 };
const int every = Show | Render | Storyboard | Check;

struct Command {
    QLatin1String name;
    Kind kind;
    const char *arguments;
    const char *summary;
    const char *example;
};

const Command commands[] = {
    {QLatin1String("show"),       Show,       "FILE...", "Prints an outline of each message.",                     "smiltool show message.smil"},
    {QLatin1String("render"),     Render,     "FILE...", "Prints each message as read and written back.",
     "smiltool render message.smil > written.smil"                                                                                             },
    {QLatin1String("storyboard"), Storyboard, "FILE",    "Draws a message as a picture, in SVG.",
     "smiltool storyboard message.smil -o board.svg"                                                                                           },
    {QLatin1String("check"),      Check,      "FILE...", "Tells what is odd in each message, or lost on writing.",
     "smiltool check --ignore lost message.smil"                                                                                               },
};

struct Option {
    int kinds; ///< of the commands that it belongs to
    const char *names; ///< between blanks
    const char *value;
    const char *summary;
};

const Option allOptions[] = {
    {Show | Storyboard,  "plain",     "",        "Show durations as a host reads them without options."            },
    {Render,             "keep",      "",        "Keep the size of the root-layout, and all durations, in seconds."},
    {Storyboard,         "o output",  "OUT.svg", "Write to OUT.svg, not to standard output."                       },
    {Storyboard | Check, "parts",     "DIR",
     "The folder with the other parts of a SMIL part; a whole message has its own."                                },
    {Check,              "ignore",    "NAME",
     "Say nothing of findings called NAME; may be repeated. lost stands for all behind it. The names: "            },
    {every,              "debug",     "",        "Print the library's debug messages."                             },
    {every,              "h help",    "",        "Print this help."                                                },
    {every,              "v version", "",        "Print the version."                                              },
};
}

static const Command *findCommand(const QString &name)
{
    for (const Command &command : commands) {
        if (name == command.name) {
            return &command;
        }
    }
    return nullptr;
}

static int badUsage(const QString &problem)
{
    complain(QLatin1String("smiltool: ") + problem);
    complain(QStringLiteral("Try 'smiltool --help'."));
    return BadUsage;
}

static QString helpText(const Command *command)
{
    if (command) {
        return QString::fromLatin1("%1\n\nExample: %2")
            .arg(QLatin1String(command->summary), QLatin1String(command->example));
    }
    QString text =
        QStringLiteral("Reads the slide show of a multimedia message.\n\nCommands, each with a --help of its own:");
    for (const Command &each : commands) {
        text += QStringLiteral("\n  %1 %2").arg(each.name, -11).arg(QLatin1String(each.summary));
    }
    text += QStringLiteral("\n  %1 %2")
                .arg(QLatin1String("help"), -11)
                .arg(QLatin1String("Prints this, or the help of a command."));
    return text;
}

static void addOption(QCommandLineParser &parser, const Option &option)
{
    const QString values = option.kinds == Check ? findingNames().join(QLatin1String(", ")) : QString();
    parser.addOption({QString::fromLatin1(option.names).split(QLatin1Char(' ')), QLatin1String(option.summary) + values,
                      QLatin1String(option.value)});
}

static void setUp(QCommandLineParser &parser, const Command *command)
{
    parser.setApplicationDescription(helpText(command));
    for (const Option &option : allOptions) {
        if (command ? option.kinds & command->kind : option.kinds == every) {
            addOption(parser, option);
        }
    }
    if (!command) {
        parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."));
    }
    parser.addPositionalArgument(
        QStringLiteral("FILE"), QStringLiteral("A SMIL part, or a message as it is sent; - is standard input."),
        command ? command->name + QLatin1Char(' ') + QLatin1String(command->arguments) : QStringLiteral("FILE..."));
}

/** The arguments that are neither options nor their values, whatever the command. */
static QStringList words(const QStringList &arguments)
{
    QCommandLineParser parser;
    for (const Option &option : allOptions) {
        addOption(parser, option);
    }
    parser.parse(arguments);
    return parser.positionalArguments();
}

/** Null where the option is not given, or the command has none of this name. */
static QString valueOf(const Command &command, const QCommandLineParser &options, const QString &name)
{
    for (const Option &option : allOptions) {
        const bool isIt = QString::fromLatin1(option.names).split(QLatin1Char(' ')).contains(name);
        if (isIt && (option.kinds & command.kind) && options.isSet(name)) {
            return options.value(name);
        }
    }
    return QString();
}

static SmilParser::ReadOptions readOptions(const Command &command, const QCommandLineParser &options)
{
    const bool shows = command.kind == Show || command.kind == Storyboard;
    if (shows && !options.isSet(QStringLiteral("plain"))) {
        return SmilParser::ClockDurations;
    }
    if (command.kind == Render && options.isSet(QStringLiteral("keep"))) {
        return SmilParser::ClockDurations | SmilParser::KeepRootSize;
    }
    return SmilParser::AsWritten;
}

/** Returns whether all went well and, for a check, nothing was found. */
static bool run(const Command &command, const QCommandLineParser &options, Message &message, QIODevice &out)
{
    switch (command.kind) {
    case Show:
        show(message, out);
        return true;
    case Render:
        render(message, out);
        return true;
    case Check:
        return !check(message, options.values(QStringLiteral("ignore")), out);
    case Storyboard:
        break;
    }
    const QString output = valueOf(command, options, QStringLiteral("output"));
    if (!output.isEmpty() && output != QLatin1String("-")) {
        return drawTo(output, valueOf(command, options, QStringLiteral("parts")), message);
    }
    return storyboard(message, out);
}

static int run(const Command &command, const QCommandLineParser &options)
{
    int status = Success;
    QFile out;
    bool written = out.open(stdout, QIODevice::WriteOnly);
    const QStringList files = options.positionalArguments().mid(1);
    const QString folder = valueOf(command, options, QStringLiteral("parts"));
    for (const QString &file : files) {
        Message message;
        const QString problem = readMessage(file, folder, readOptions(command, options), message);
        if (!problem.isEmpty()) {
            complain(problem);
        }
        const bool well = problem.isEmpty() && run(command, options, message, out);
        if (!complainOfParts(message, folder) || !well) {
            status = Failure;
        }
        written = out.flush() && written; // before the next file's problems
    }
    if (!written || out.error() != QFileDevice::NoError) {
        complain(QLatin1String("smiltool: standard output: ") + out.errorString());
        status = Failure;
    }
    return status;
}

/** What is wrong with how the command is called; empty when nothing is. */
static QString problemWith(const Command &command, const QCommandLineParser &options)
{
    const QStringList files = options.positionalArguments().mid(1);
    if (files.isEmpty()) {
        return QStringLiteral("no file given.");
    }
    const QStringList names = files
        + QStringList{valueOf(command, options, QStringLiteral("output")),
                      valueOf(command, options, QStringLiteral("parts"))};
    for (const QString &name : names) {
        if (name.isEmpty() && !name.isNull()) {
            return QStringLiteral("the name of a file is empty.");
        }
    }
    if (command.kind == Storyboard && files.size() > 1) {
        return QStringLiteral("a storyboard is of one file.");
    }
    if (command.kind == Check) {
        const QStringList ignored = options.values(QStringLiteral("ignore"));
        for (const QString &name : ignored) {
            if (!findingNames().contains(name)) {
                return QStringLiteral("no finding is called '%1'.").arg(name);
            }
        }
    }
    return QString();
}

/** What the library warns of is told by its outcome. */
static void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg) {
        complain(text.trimmed());
    }
}

/** All names and all output are UTF-8. Where the locale is of another encoding, Qt 6 says so in four lines at every
 * start. */
static void useUtf8()
{
    std::setlocale(LC_ALL, "");
    if (qstrcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

/**
 * Whatever is opened first would take the place of a standard descriptor that is closed, and be read or written as
 * that. In its place stands what cannot be, so that the error says so.
 */
static void keepStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

int main(int argc, char *argv[])
{
    keepStandardDescriptors();
    useUtf8();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("smiltool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SMILPARSER_VERSION_STRING));

    const QStringList arguments = QCoreApplication::arguments();
    const QStringList given = words(arguments);
    const bool help = given.value(0) == QLatin1String("help");
    const QString name = help && given.value(1) == given.first() ? QString() : given.value(help ? 1 : 0);
    const Command *const command = findCommand(name);
    if (!command && !name.isEmpty()) {
        return badUsage(QStringLiteral("unknown command '%1'.").arg(name));
    }
    QCommandLineParser parser;
    setUp(parser, command);
    if (!parser.parse(arguments)) {
        return badUsage(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("version"))) {
        parser.showVersion();
    }
    if (help || parser.isSet(QStringLiteral("help"))) {
        parser.showHelp(Success);
    }
    const QString problem = command ? problemWith(*command, parser) : QStringLiteral("no command given.");
    if (!problem.isEmpty()) {
        return badUsage(problem);
    }
    qInstallMessageHandler(handleMessage);
    MMSLogger::qdebugEnabled = parser.isSet(QStringLiteral("debug"));
    return run(*command, parser);
}
