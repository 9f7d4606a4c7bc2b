// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// loading LIBRARY: loads the library at run time and has it read a measure.

#include <smilparser/mmslogger.h>

#include <QtCore/QDebug>
#include <QtCore/QLibrary>

bool MMSLogger::qdebugEnabled = false;

struct Measure {
    bool valid;
    int unit;
    double value;
};

int main(int argc, char *argv[])
{
    QLibrary library(QString::fromLocal8Bit(argv[argc - 1]));
    using Convert = bool (*)(Measure *, const QString &);
    const auto convert = reinterpret_cast<Convert>(library.resolve("_ZN8SmilUnit7convertERK7QString"));
    if (!convert) {
        qInfo().noquote() << library.errorString();
        return 1;
    }
    Measure measure = {};
    return convert(&measure, QStringLiteral("5s")) && measure.value == 5 ? 0 : 2;
}
