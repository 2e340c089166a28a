// Putting a rich text against putting the same content as HTML.

#include "LongDocument.h"
#include "platform/richtext/Rtf.h"

#include <QGuiApplication>
#include <QTextDocument>
#include <benchmark/benchmark.h>

namespace
{
void readRichText(benchmark::State &state)
{
    const QString text = bench::longRtf(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        QTextDocument document;
        orvane::readRtf(text, document);
        benchmark::DoNotOptimize(document.characterCount());
    }
    state.SetBytesProcessed(state.iterations() * text.size());
}

void setHtml(benchmark::State &state)
{
    const QString text = bench::longHtml(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        QTextDocument document;
        document.setHtml(text);
        benchmark::DoNotOptimize(document.characterCount());
    }
    state.SetBytesProcessed(state.iterations() * text.size());
}

void writeRichText(benchmark::State &state)
{
    QTextDocument document;
    orvane::readRtf(bench::longRtf(static_cast<int>(state.range(0))), document);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(orvane::writeRtf(document));
}

// 15 paragraphs are about 9 kB, 1500 about 900 kB.
// The registrations are the library's own objects: clazy:excludeall=non-pod-global-static
BENCHMARK(readRichText)->Arg(15)->Arg(150)->Arg(1500)->Unit(benchmark::kMillisecond);
BENCHMARK(setHtml)->Arg(15)->Arg(150)->Arg(1500)->Unit(benchmark::kMillisecond);
BENCHMARK(writeRichText)->Arg(1500)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
