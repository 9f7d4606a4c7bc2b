// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "commands.h"
#include "findings.h"

#include <smilparser/smilparser_version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <iterator>
#include <variant>

namespace
{
const int everyCommand = 0;

/** An option, and where what is said of it goes. */
struct OptionRow {
    int option; ///< or everyCommand
    const char *names; ///< between blanks
    const char *value;
    const char *summary;
    std::variant<bool Arguments::*, QString Arguments::*, QStringList Arguments::*, QSize Arguments::*,
                 double Arguments::*>
        argument;
};

const OptionRow options[] = {
    {Plain,        "plain",       "",     "Read as a host that gives the library no options: \"5000ms\" is no duration.",
     &Arguments::plain                                                                                                                       },
    {Json,         "json",        "",     "Print a line of JSON for each message.",                                       &Arguments::json   },
    {Keep,         "keep",        "",     "Keep the size of the root-layout, and all durations, in seconds.",             &Arguments::keep   },
    {Output,       "o output",    "OUT",  "Write to the file OUT, not to standard output.",                               &Arguments::output },
    {IntoFolder,   "d directory", "DIR",  "The folder to write into; it is made when missing.",                           &Arguments::folder },
    {PartsFolder,  "parts",       "DIR",  "The folder with the other parts of a SMIL part; a whole message has its own.",
     &Arguments::parts                                                                                                                       },
    {Ignore,       "ignore",      "NAME",
     "Say nothing of findings called NAME; may be repeated. lost stands for all behind it. The names: ",                  &Arguments::ignored},
    {Size,         "size",        "WxH",  "The size of the screen in pixels, instead of 320x480.",                        &Arguments::size   },
    {Seconds,      "seconds",     "N",    "How long a slide lasts, instead of 5 seconds.",                                &Arguments::seconds},
    {Title,        "title",       "TEXT", "The title of the message.",                                                    &Arguments::title  },
    {everyCommand, "debug",       "",     "Print the library's debug messages.",                                          &Arguments::debug  },
    {everyCommand, "h help",      "",     "Print this help.",                                                             &Arguments::help   },
    {everyCommand, "v version",   "",     "Print the version.",                                                           &Arguments::version},
};
}

static const Command *findCommand(const QString &name)
{
    const auto found = std::find_if(std::begin(allCommands), std::end(allCommands),
                                    [&name](const Command *command) { return name == QLatin1String(command->name); });
    return found == std::end(allCommands) ? nullptr : *found;
}

static QStringList namesOf(const OptionRow &option)
{
    return QString::fromLatin1(option.names).split(QLatin1Char(' '));
}

/** Without a command, only what every command has. */
static bool belongsTo(const OptionRow &option, const Command *command)
{
    return option.option == everyCommand || (command && (command->options & option.option));
}

static void addOption(QCommandLineParser &parser, const OptionRow &option)
{
    const QString values = option.option == Ignore ? findingNames().join(QLatin1String(", ")) : QString();
    parser.addOption({namesOf(option), QLatin1String(option.summary) + values, QLatin1String(option.value)});
}

static QString helpText(const Command *command)
{
    if (command) {
        return QString::fromLatin1("%1\n\nExample: %2")
            .arg(QLatin1String(command->summary), QLatin1String(command->example));
    }
    QString text = QStringLiteral(
        "Reads or makes the slide show of a multimedia message.\n\nCommands, each with a --help of its own:");
    const auto add = [&text](const char *name, const char *summary) {
        text += QStringLiteral("\n  %1 %2").arg(QLatin1String(name), -11).arg(QLatin1String(summary));
    };
    for (const Command *const each : allCommands) {
        add(each->name, each->summary);
    }
    add("help", "Prints this, or the help of a command.");
    return text;
}

static void setUp(QCommandLineParser &parser, const Command *command)
{
    parser.setApplicationDescription(helpText(command));
    for (const OptionRow &option : options) {
        if (belongsTo(option, command)) {
            addOption(parser, option);
        }
    }
    if (!command) {
        parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."));
    }
    const bool ofWhole = command && (command->options & IntoFolder);
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        command && command->together ? QStringLiteral("A picture, a text, a sound or a film.")
            : ofWhole                ? QStringLiteral("A message as it is sent; - is standard input.")
                                     : QStringLiteral("A SMIL part, or a message as it is sent; - is standard input."),
        command ? QStringLiteral("%1 %2").arg(QLatin1String(command->name), QLatin1String(command->files))
                : QStringLiteral("FILE..."));
}

/** The words that are neither options nor their values, whatever the command. */
static QStringList withoutOptions(const QStringList &words)
{
    QCommandLineParser parser;
    for (const OptionRow &option : options) {
        addOption(parser, option);
    }
    parser.parse(words);
    return parser.positionalArguments();
}

static void assign(const QCommandLineParser &, const QString &, bool &argument)
{
    argument = true;
}

static void assign(const QCommandLineParser &parser, const QString &name, QString &argument)
{
    argument = parser.value(name);
}

static void assign(const QCommandLineParser &parser, const QString &name, QStringList &argument)
{
    argument = parser.values(name);
}

/** Up to six digits each, which is what the library writes of a number. */
static void assign(const QCommandLineParser &parser, const QString &name, QSize &argument)
{
    static const QRegularExpression pixels(QStringLiteral("\\A([1-9][0-9]{0,5})x([1-9][0-9]{0,5})\\z"));
    const QRegularExpressionMatch match = pixels.match(parser.value(name));
    argument = QSize(match.captured(1).toInt(), match.captured(2).toInt());
}

static void assign(const QCommandLineParser &parser, const QString &name, double &argument)
{
    argument = parser.value(name).toDouble();
}

static Arguments argumentsOf(const QCommandLineParser &parser, const Command *command)
{
    Arguments arguments;
    arguments.files = parser.positionalArguments().mid(1);
    for (const OptionRow &option : options) {
        const QString name = namesOf(option).last();
        if (belongsTo(option, command) && parser.isSet(name)) {
            std::visit([&](auto argument) { assign(parser, name, arguments.*argument); }, option.argument);
        }
    }
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
    if ((command.options & IntoFolder) && arguments.folder.isNull()) {
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

QString parse(const QStringList &words, CommandLine &line)
{
    const QStringList given = withoutOptions(words);
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
    line.arguments = argumentsOf(parser, line.command);
    if (help || line.arguments.help || line.arguments.version) {
        line.answer = line.arguments.version ? QStringLiteral("smiltool " SMILPARSER_VERSION_STRING "\n")
                                             : parser.helpText().trimmed() + QLatin1Char('\n');
        return QString();
    }
    return line.command ? problemWith(*line.command, line.arguments) : QStringLiteral("no command given.");
}
