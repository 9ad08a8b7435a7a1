#include <benchmark/benchmark.h>

#include "platform/text/number_text.h"
#include "pricing/relations.h"

/// The small things that the price table does most.
namespace {

void ValueOfMoney(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(tendo::ValueOfText("$12,345.67"));
}
BENCHMARK(ValueOfMoney);

void FormatMoney(benchmark::State& state) {
    float value = 12345.67F;
    for (auto _ : state)
        benchmark::DoNotOptimize(tendo::FormatNumber(value, tendo::MoneyPicture));
}
BENCHMARK(FormatMoney);

void MarginOfSale(benchmark::State& state) {
    float sale = 1000;
    for (auto _ : state) {
        benchmark::DoNotOptimize(sale);
        benchmark::DoNotOptimize(tendo::GrossMarginFromSale(750, sale));
    }
}
BENCHMARK(MarginOfSale);

}  // namespace

BENCHMARK_MAIN();
