// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_MESSAGES_H
#define SMILPARSER_MESSAGES_H

#include <smilparser/mmslogger.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QString>

#include <utility>

/** Takes everything off Qt's message channel while it lives, one at a time, whatever the user has it filtered by. */
class Messages
{
public:
    /** Switches the library's debug lines on, and off again as soon as @p lines of them came. */
    explicit Messages(int lines = 99)
    {
        taken.clear();
        left = lines;
        MMSLogger::qdebugEnabled = lines > 0;
        filter = QLoggingCategory::installFilter([](QLoggingCategory *category) {
            category->setEnabled(QtDebugMsg, true);
            category->setEnabled(QtWarningMsg, true);
        });
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            static const char *const types[] = {"debug: ", "warning: ", "critical: ", "fatal: ", "info: "};
            taken += QLatin1String(types[type]) + text + QLatin1Char('\n');
            MMSLogger::qdebugEnabled = (type == QtDebugMsg ? --left : left) > 0;
        });
    }
    ~Messages()
    {
        qInstallMessageHandler(nullptr);
        QLoggingCategory::installFilter(filter);
        MMSLogger::qdebugEnabled = false;
    }

    /** What came since the last call, a line for each. */
    QString take() { return std::exchange(taken, QString()); }

private:
    Q_DISABLE_COPY(Messages)
    QLoggingCategory::CategoryFilter filter = nullptr;
    static inline QString taken;
    static inline int left = 0;
};

#endif
