// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands/commands.h"

Result failure(const QString &file, const QString &problem)
{
    return {false, {file + QLatin1String(": ") + problem}};
}

Result withMessage(const QString &file, const Arguments &arguments, const std::function<Result(Message &)> &use,
                   SmilParser::ReadOptions options)
{
    Message message = readMessage(file, arguments.parts, options);
    Result result = message.isReadable() ? use(message) : Result();
    QStringList problems = message.parts.problems(file);
    if (!message.problem.isNone()) {
        problems.prepend(message.problem.toString());
    }
    result.ok = result.ok && problems.isEmpty();
    result.problems = problems + result.problems;
    return result;
}
