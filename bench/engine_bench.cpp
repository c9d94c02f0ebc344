#include <benchmark/benchmark.h>

#include <string>

#include "engine/engine.h"
#include "engine/name_lists.h"
#include "engine/text_codec.h"
#include "engine/token_stream.h"
#include "long_expressions.h"

namespace tessarondel {
namespace {

EngineState FreshEngine() {
    EngineState state;
    state.ApproximateBits = -1;
    return state;
}

void EvaluateRepeatedly(benchmark::State& run, std::u16string_view expression) {
    EngineState state = FreshEngine();
    for (auto _ : run) {
        benchmark::DoNotOptimize(EvaluateText(state, expression));
    }
}

// The worked example of the main window.
void BM_EvaluateText_WorkedExample(benchmark::State& run) { EvaluateRepeatedly(run, u"x=2*(3+sin(pi/2))%"); }
BENCHMARK(BM_EvaluateText_WorkedExample);

// The same shape without a built-in call.
void BM_EvaluateText_WithoutBuiltin(benchmark::State& run) { EvaluateRepeatedly(run, u"x=2*(3+4/2)%"); }
BENCHMARK(BM_EvaluateText_WithoutBuiltin);

void BM_EvaluateText_Long(benchmark::State& run) {
    const bool fitting = run.range(1) != 0;
    const std::u16string expression = ToUtf16(bench::LongExpression(static_cast<std::size_t>(run.range(0)), fitting));
    EngineState state = FreshEngine();
    std::u16string result;
    for (auto _ : run) {
        result = EvaluateText(state, expression);
        benchmark::DoNotOptimize(result);
    }
    run.SetLabel(ToUtf8(result) + " error " + std::to_string(state.ErrorFlag ? state.ErrorNumber : -1));
}
// Arguments: length, and whether the rewritten text stays within the bracket count's limit.
BENCHMARK(BM_EvaluateText_Long)
    ->Args({1000, 1})
    ->Args({10000, 1})
    ->Args({30000, 1})
    ->Args({1000, 0})
    ->Args({10000, 0})
    ->Args({30000, 0})
    ->Unit(benchmark::kMicrosecond);

// The token pass alone, on the worked example as the earlier passes leave it.
void BM_RunTokenPass_WorkedExample(benchmark::State& run) {
    EngineState state = FreshEngine();
    std::u16string text;
    for (auto _ : run) {
        text = u"x=2*(3+sin(pi/2))*(0.01)";
        benchmark::DoNotOptimize(RunTokenPass(state, text));
    }
}
BENCHMARK(BM_RunTokenPass_WorkedExample);

// The token pass on a text of the given length dense with constants, each of
// which the pass replaces by a longer text.
void BM_RunTokenPass_DenseConstants(benchmark::State& run) {
    std::u16string dense;
    while (dense.size() < static_cast<std::size_t>(run.range(0))) dense += u"pi*e+eps*(0.01)-";
    EngineState state = FreshEngine();
    std::u16string text;
    for (auto _ : run) {
        text = dense;
        benchmark::DoNotOptimize(RunTokenPass(state, text));
    }
    run.SetLabel(std::to_string(text.size()) + " characters after the pass");
}
BENCHMARK(BM_RunTokenPass_DenseConstants)->Arg(1000)->Arg(30000)->Unit(benchmark::kMicrosecond);

// Typical names of the reader and the token pass: functions, a constant, a
// variable and a number.
void BM_IsFunctionName(benchmark::State& run) {
    const EngineState state = FreshEngine();
    const std::u16string_view names[] = {u"sin", u"x", u"pi", u"arctan", u"2"};
    for (auto _ : run) {
        for (const std::u16string_view name : names) benchmark::DoNotOptimize(IsFunctionName(state, name));
    }
}
BENCHMARK(BM_IsFunctionName);

}  // namespace
}  // namespace tessarondel
