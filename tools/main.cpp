// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "check/findings.h"
#include "commands/commands.h"
#include "output/outputfile.h"

#include <smilparser/mmslogger.h>
#include <smilparser/smilparser_version.h>

#include <QtCore/QBuffer>
#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <clocale>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <langinfo.h>
#include <unistd.h>

bool MMSLogger::qdebugEnabled = false;

static const struct OptionRow {
    const char *names; ///< between blanks, the long one last
    const char *summary;
    const char *value = nullptr;
    const char *byDefault = nullptr;
} options[] = {
    {"json", "Print a line of JSON for each message."},
    {"bare", "Write what the library writes when it is given no options."},
    {"o output", "Write to the file OUT, not to standard output.", "OUT"},
    {"d directory", "The folder to write into; it is made when missing.", "DIR"},
    {"parts", "The folder with the other parts of a SMIL part; a whole message has its own.", "DIR"},
    {"ignore",
     "Do not report findings called NAME; may be repeated. lost stands for all after it. The names: ", "NAME"},
    {"size", "The size of the screen in pixels, instead of 320x480.", "WxH", "320x480"},
    {"seconds", "How long a slide lasts, instead of 5 seconds.", "N", "5"},
    {"title", "The title of the message.", "TEXT"},
    {"h help", "Print this help."},
    {"v version", "Print the version."},
};

static QCommandLineOption optionOf(const OptionRow &row)
{
    const QStringList names = QString::fromLatin1(row.names).split(QLatin1Char(' '));
    const QString more = names.last() == QLatin1String("ignore") ? findingNames().join(QLatin1String(", ")) : QString();
    return QCommandLineOption(names, QLatin1String(row.summary) + more, QLatin1String(row.value),
                              QLatin1String(row.byDefault));
}

/** Without a command, only what every command has. */
static bool hasOption(const Command *command, const QString &name)
{
    const QString own = QLatin1String(command ? command->options : "") + QLatin1String(" help version");
    return own.split(QLatin1Char(' ')).contains(name);
}

static const Command *findCommand(const QString &name)
{
    const auto found = std::find_if(std::begin(allCommands), std::end(allCommands),
                                    [&name](const Command *command) { return name == QLatin1String(command->name); });
    return found == std::end(allCommands) ? nullptr : *found;
}

static void setUp(QCommandLineParser &parser, const Command *command)
{
    for (const OptionRow &row : options) {
        const QCommandLineOption option = optionOf(row);
        if (hasOption(command, option.names().last())) {
            parser.addOption(option);
        }
    }
    const QString file = QStringLiteral("FILE");
    if (command) {
        parser.setApplicationDescription(QString::fromLatin1("%1\n\nExample: %2")
                                             .arg(QLatin1String(command->summary), QLatin1String(command->example)));
        parser.addPositionalArgument(
            file, QLatin1String(command->takes),
            QStringLiteral("%1 %2").arg(QLatin1String(command->name), QLatin1String(command->files)));
    } else {
        QString text = QStringLiteral(
            "Reads or makes the slide show of a multimedia message.\n\nCommands, each with a --help of its own:");
        for (const Command *const each : allCommands) {
            text += QStringLiteral("\n  %1 %2").arg(QLatin1String(each->name), -11).arg(QLatin1String(each->summary));
        }
        parser.setApplicationDescription(text
                                         + QLatin1String("\n  help        Prints this, or the help of a command."));
        parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."));
        parser.addPositionalArgument(file, QLatin1String(anyMessage), QStringLiteral("FILE..."));
    }
}

/** Up to six digits each, which is what the library writes of a number. */
static QSize sizeOf(const QString &text)
{
    static const QRegularExpression pixels(QStringLiteral("\\A([1-9][0-9]{0,5})x([1-9][0-9]{0,5})\\z"));
    const QRegularExpressionMatch match = pixels.match(text);
    return QSize(match.captured(1).toInt(), match.captured(2).toInt());
}

static Arguments argumentsOf(const QCommandLineParser &parser)
{
    Arguments arguments;
    arguments.files = parser.positionalArguments().mid(1);
    arguments.parts = parser.value(QStringLiteral("parts"));
    const QString output = parser.value(QStringLiteral("output"));
    arguments.output = output == QLatin1String("-") ? QString() : output;
    arguments.folder = parser.value(QStringLiteral("directory"));
    arguments.ignored = parser.values(QStringLiteral("ignore"));
    arguments.size = sizeOf(parser.value(QStringLiteral("size")));
    arguments.seconds = parser.value(QStringLiteral("seconds")).toDouble();
    arguments.title = parser.value(QStringLiteral("title"));
    arguments.bare = parser.isSet(QStringLiteral("bare"));
    arguments.json = parser.isSet(QStringLiteral("json"));
    return arguments;
}

static QString problemWith(const Command &command, const Arguments &arguments)
{
    if (arguments.files.isEmpty()) {
        return QStringLiteral("no file given.");
    }
    const QStringList names = arguments.files + QStringList{arguments.output, arguments.parts, arguments.folder};
    const auto isEmpty = [](const QString &name) { return name.isEmpty() && !name.isNull(); };
    if (std::any_of(names.cbegin(), names.cend(), isEmpty)) {
        return QStringLiteral("the name of a file is empty.");
    }
    if (hasOption(&command, QStringLiteral("directory")) && arguments.folder.isNull()) {
        return QStringLiteral("no folder given; -d DIR says which.");
    }
    if (arguments.files.size() > 1 && qstrcmp(command.files, "FILE") == 0) {
        return QStringLiteral("a %1 is of one file.").arg(QLatin1String(command.name));
    }
    if (arguments.size.isEmpty()) {
        return QStringLiteral("a size is in whole pixels, such as 320x480.");
    }
    // What is less or more, six digits cannot say, which is what the library writes.
    if (!(arguments.seconds >= 0.001 && arguments.seconds <= 999999)) {
        return QStringLiteral("a slide lasts a number of seconds from 0.001 to 999999.");
    }
    for (const QString &name : arguments.ignored) {
        if (!findingNames().contains(name)) {
            return QStringLiteral("no finding is called '%1'.").arg(name);
        }
    }
    return QString();
}

/** What the tool is told to do. */
struct CommandLine {
    const Command *command = nullptr;
    Arguments arguments;
    QString answer; ///< to print instead of running the command: what --help, --version or the command "help" asks for
};

/** Reads the command line. Returns what is wrong with how the tool is called, or else nothing. */
static QString parse(const QStringList &words, CommandLine &line)
{
    // This one knows the options of every command, to find the command among their values.
    QCommandLineParser all;
    for (const OptionRow &row : options) {
        all.addOption(optionOf(row));
    }
    all.parse(words);
    const QStringList given = all.positionalArguments();
    const bool help = given.value(0) == QLatin1String("help");
    const QString name = help && given.value(1) == given.first() ? QString() : given.value(help ? 1 : 0);
    line.command = findCommand(name);
    if (!line.command && !name.isEmpty()) {
        return QStringLiteral("unknown command '%1'.").arg(name);
    }
    QCommandLineParser parser;
    setUp(parser, line.command);
    if (!parser.parse(words)) {
        return parser.errorText();
    }
    const bool version = parser.isSet(QStringLiteral("version"));
    if (help || version || parser.isSet(QStringLiteral("help"))) {
        line.answer = version ? QStringLiteral("smiltool " SMILPARSER_VERSION_STRING "\n")
                              : parser.helpText().trimmed() + QLatin1Char('\n');
        return QString();
    }
    line.arguments = argumentsOf(all);
    return line.command ? problemWith(*line.command, line.arguments) : QStringLiteral("no command given.");
}

enum ExitStatus { Success = 0, Failure = 1, BadUsage = 2 };

/** Writes the file, or to standard output, or else why not to standard error. */
static bool write(const QString &file, const QByteArray &data)
{
    const QString problem = writeFile(file, data);
    if (!problem.isEmpty()) {
        printError((file.isNull() ? QStringLiteral("smiltool: standard output") : file) + QLatin1String(": ")
                   + problem);
    }
    return problem.isEmpty();
}

static int run(const Command &command, const Arguments &arguments)
{
    int status = Success;
    const QStringList turns = command.takesAllFiles ? QStringList(QString()) : arguments.files;
    for (const QString &file : turns) {
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        const Result result = command.run(file, arguments, out);
        const bool isWritten = out.data().isEmpty() || write(arguments.output, out.data());
        for (const QString &problem : result.problems) {
            printError(problem);
        }
        if (!isWritten) {
            return Failure;
        }
        status = result.ok ? status : Failure;
    }
    return status;
}

/** What the library warns of, its outcome says too. */
static void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

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
    std::signal(SIGXFSZ, SIG_IGN); // a limit on the size of files is an error of the one that is written
    QCoreApplication application(argc, argv);

    CommandLine line;
    const QString problem = parse(QCoreApplication::arguments(), line);
    if (!problem.isEmpty()) {
        const QString command = line.command ? QLatin1Char(' ') + QLatin1String(line.command->name) : QString();
        printError(QLatin1String("smiltool: ") + problem);
        printError(QStringLiteral("Try 'smiltool%1 --help'.").arg(command));
        return BadUsage;
    }
    qInstallMessageHandler(ignoreMessage);
    if (!line.answer.isEmpty()) {
        return write(QString(), line.answer.toUtf8()) ? Success : Failure;
    }
    return run(*line.command, line.arguments);
}
