// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Times the library beside its floor and beside what a host's author could reach for instead. Each pass begins with the
// bytes or the model and ends when all it made is destroyed again, which is what a host pays. "benchmark check" only
// finds out whether they all come to the same values.

#include "peers/peers.h"
#include "slides.h"
#include "values.h"
#include "work.h"

#include <benchmark/benchmark.h>
#include <libxml/xmlversion.h>
#include <pugixml.hpp>

#include <cstdio>

static void readFloor(benchmark::State &state)
{
    const QByteArray bytes = slidesText(int(state.range(0)));
    for (auto _ : state) {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        QDomDocument dom;
        readDom(dom, buffer);
        benchmark::DoNotOptimize(dom);
    }
}
BENCHMARK(readFloor)->Name("read/floor")->Arg(3)->Arg(1000)->Arg(100000);

static void readLibrary(benchmark::State &state)
{
    const QByteArray bytes = slidesText(int(state.range(0)));
    for (auto _ : state) {
        SmilParser parser(bytes);
        benchmark::DoNotOptimize(parser.parse());
    }
}
BENCHMARK(readLibrary)->Name("read/library")->Arg(3)->Arg(1000)->Arg(100000);

using Reader = SmilDocument (*)(const QByteArray &);

static void readPeer(benchmark::State &state, Reader reader)
{
    const QByteArray bytes = slidesText(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(reader(bytes));
    }
}
BENCHMARK_CAPTURE(readPeer, xmlstream, readWithXmlStream)->Name("read/xmlstream")->Arg(3)->Arg(1000)->Arg(100000);
BENCHMARK_CAPTURE(readPeer, libxml2, readWithLibxml2)->Name("read/libxml2")->Arg(3)->Arg(1000)->Arg(100000);
BENCHMARK_CAPTURE(readPeer, pugixml, readWithPugixml)->Name("read/pugixml")->Arg(3)->Arg(1000)->Arg(100000);

static void writeFloor(benchmark::State &state)
{
    const SmilDocument model = slidesModel(int(state.range(0)));
    for (auto _ : state) {
        QDomDocument dom;
        buildDom(dom, model);
        benchmark::DoNotOptimize(dom);
    }
}
BENCHMARK(writeFloor)->Name("write/floor")->Arg(3)->Arg(1000)->Arg(100000);

static void writeLibrary(benchmark::State &state)
{
    const SmilDocument model = slidesModel(int(state.range(0)));
    for (auto _ : state) {
        SmilParser parser(model);
        benchmark::DoNotOptimize(parser.getContent());
    }
}
BENCHMARK(writeLibrary)->Name("write/library")->Arg(3)->Arg(1000)->Arg(100000);

static void measureFromFloor(benchmark::State &state, const char *number)
{
    const QString text = QString::fromLatin1(number);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.toDouble());
    }
}
BENCHMARK_CAPTURE(measureFromFloor, 5s, "5")->Name("from/floor/5s");
BENCHMARK_CAPTURE(measureFromFloor, 100, "100")->Name("from/floor/100%");
BENCHMARK_CAPTURE(measureFromFloor, 5000ms, "5000m")->Name("from/floor/5000ms");
BENCHMARK_CAPTURE(measureFromFloor, 33, "33.3333")->Name("from/floor/33.3333%");

static void measureFromText(benchmark::State &state, const char *measure)
{
    const QString text = QString::fromLatin1(measure);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SmilUnit(text));
    }
}
BENCHMARK_CAPTURE(measureFromText, 5s, "5s")->Name("from/library/5s");
BENCHMARK_CAPTURE(measureFromText, 100, "100%")->Name("from/library/100%");
BENCHMARK_CAPTURE(measureFromText, 5000ms, "5000ms")->Name("from/library/5000ms");
BENCHMARK_CAPTURE(measureFromText, 33, "33.3333%")->Name("from/library/33.3333%");

static void measureToFloor(benchmark::State &state, double number, const char *suffix)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(QString(QString::number(number, 'g', 6) + QLatin1String(suffix)));
    }
}
BENCHMARK_CAPTURE(measureToFloor, 5s, 5, "s")->Name("to/floor/5s");
BENCHMARK_CAPTURE(measureToFloor, 100, 100, "%")->Name("to/floor/100%");
BENCHMARK_CAPTURE(measureToFloor, 33, 33.3333, "%")->Name("to/floor/33.3333%");

static void measureToText(benchmark::State &state, const char *text)
{
    const SmilUnit measure(QString::fromLatin1(text));
    for (auto _ : state) {
        benchmark::DoNotOptimize(measure.toString());
    }
}
BENCHMARK_CAPTURE(measureToText, 5s, "5s")->Name("to/library/5s");
BENCHMARK_CAPTURE(measureToText, 100, "100%")->Name("to/library/100%");
BENCHMARK_CAPTURE(measureToText, 33, "33.3333%")->Name("to/library/33.3333%");

static bool readsTheSame(Reader reader, const SmilDocument &model, const QByteArray &bytes)
{
    SmilDocument read = reader(bytes);
    SmilLayout &layout = read.header.layout;
    layout.topLayoutWidth = layout.rootLayoutWidth;
    layout.topLayoutHeight = layout.rootLayoutHeight;
    return values(read) == values(model);
}

static bool writesTheSame(const SmilDocument &model)
{
    QDomDocument floor;
    buildDom(floor, model);
    SmilParser parser(model);
    return floor.toString() == parser.getContent().toString();
}

static SmilDocument readWithLibrary(const QByteArray &bytes)
{
    SmilParser parser(bytes);
    return parser.parse();
}

static bool allAgree(int slides)
{
    const SmilDocument model = slidesModel(slides);
    const QByteArray bytes = slidesText(slides);
    for (const Reader reader : {readWithLibrary, readWithXmlStream, readWithLibxml2, readWithPugixml}) {
        if (!readsTheSame(reader, model, bytes)) {
            return false;
        }
    }
    return writesTheSame(model);
}

// What is compared is only comparable when all of them come to the same values. Not asked before each benchmark,
// because it would leave the heap in pieces.
static int check()
{
    for (const int slides : {3, 1000, 100000}) {
        if (!allAgree(slides)) {
            std::fprintf(stderr, "benchmark: not all come to the same values for %d slides\n", slides);
            return 1;
        }
    }
    return 0;
}

int main(int argc, char **argv)
{
    if (argc == 2 && QByteArray(argv[1]) == "check") {
        return check();
    }
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::AddCustomContext("compiler", __VERSION__);
    benchmark::AddCustomContext("libxml2", LIBXML_DOTTED_VERSION);
    benchmark::AddCustomContext("pugixml", QByteArray::number(PUGIXML_VERSION / 1000.0).toStdString());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
