// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "check/findings.h"

#include <smilparser/smilparser_version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <iterator>

static const struct OptionRow {
    const char *names; ///< between blanks, the long one last
    const char *summary;
    const char *value = nullptr;
    const char *byDefault = nullptr;
} options[] = {
    {"json", "Print a line of JSON for each message."},
    {"bare", "Write what a host writes that gives the library no options."},
    {"o output", "Write to the file OUT, not to standard output.", "OUT"},
    {"d directory", "The folder to write into; it is made when missing.", "DIR"},
    {"parts", "The folder with the other parts of a SMIL part; a whole message has its own.", "DIR"},
    {"ignore",
     "Say nothing of findings called NAME; may be repeated. lost stands for all after it. The names: ", "NAME"},
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

static QString helpText()
{
    QString text = QStringLiteral(
        "Reads or makes the slide show of a multimedia message.\n\nCommands, each with a --help of its own:");
    for (const Command *const each : allCommands) {
        text += QStringLiteral("\n  %1 %2").arg(QLatin1String(each->name), -11).arg(QLatin1String(each->summary));
    }
    return text + QLatin1String("\n  help        Prints this, or the help of a command.");
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
        parser.setApplicationDescription(helpText());
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

QString parse(const QStringList &words, CommandLine &line)
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
