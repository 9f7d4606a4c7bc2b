// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// bench check: whether the contenders agree, without which it says nothing how they compare.
// bench once CONTENDER SLIDES: prints the nanoseconds that one pass takes, and the bytes of the heap that it leaves in
// use. Callgrind counts the instructions of that pass alone.
// bench [OPTION...]: times with Google Benchmark the conversion of measures, and passes of every contender until all
// that they made is destroyed, which is what a host pays.
//
// A large message that is dropped leaves the heap in pieces, and what malloc does with those is not what is asked
// about. So a process measures only one.

#include "contenders.h"

#include <QtCore/QElapsedTimer>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>

#include <malloc.h>
#include <valgrind/callgrind.h>

static size_t bytesInUse()
{
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

static void measureOnce(const Contender &contender, int slides)
{
    // In the first pass the dynamic linker finds the functions, and Qt builds the tables that it builds once.
    contender.pass(contender.message(3), *std::make_unique<Made>());

    const Message message = contender.message(slides);
    Made made;
    const size_t before = bytesInUse();
    QElapsedTimer timer;
    timer.start();
    CALLGRIND_START_INSTRUMENTATION;
    contender.pass(message, made);
    CALLGRIND_STOP_INSTRUMENTATION;
    const qint64 nanoseconds = timer.nsecsElapsed();
    std::printf("%lld %zu\n", static_cast<long long>(nanoseconds), bytesInUse() - before);
}

template<typename Function>
static void add(const std::string &name, Function function)
{
    benchmark::RegisterBenchmark(name.c_str(), [function](benchmark::State &state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(function());
        }
    });
}

static void addContender(const Contender &contender)
{
    const auto run = [&contender](benchmark::State &state) {
        const Message message = contender.message(int(state.range(0)));
        for (auto _ : state) {
            Made made;
            contender.pass(message, made);
        }
    };
    benchmark::RegisterBenchmark(contender.name, run)->Arg(3)->Arg(1000)->Arg(100000);
}

/** The suffix counts as one letter here, and what is before it as the number, which Qt converts for the floor. */
static void addMeasure(const char *measureText)
{
    const std::string name = measureText;
    const QString text = QString::fromStdString(name);
    const QString number = text.chopped(1);
    const QLatin1String suffix(measureText + number.size());
    const SmilUnit measure(text);
    add("from/floor/" + name, [number] { return number.toDouble(); });
    add("from/library/" + name, [text] { return SmilUnit(text); });
    if (measure.valid) {
        add("to/floor/" + name, [=] { return QString(QString::number(measure.value, 'g', 6) + suffix); });
        add("to/library/" + name, [measure] { return measure.toString(); });
    }
}

static int runBenchmarks(int argc, char **argv)
{
    for (const Contender &contender : contenders) {
        addContender(contender);
    }
    for (const char *measure : {"5s", "100%", "5000ms", "33.3333%"}) {
        addMeasure(measure);
    }
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::AddCustomContext("compiler", __VERSION__);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

int main(int argc, char **argv)
{
    const QByteArray command = argc > 1 ? argv[1] : "";
    if (command == "check") {
        return contendersAgree(3) && contendersAgree(1000) && contendersAgree(100000) ? 0 : 1;
    }
    if (command == "once" && argc == 4) {
        for (const Contender &contender : contenders) {
            if (qstrcmp(contender.name, argv[2]) == 0) {
                measureOnce(contender, QByteArray(argv[3]).toInt());
                return 0;
            }
        }
    }
    return runBenchmarks(argc, argv);
}
