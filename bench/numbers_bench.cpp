#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "numbers/base_conversion.h"
#include "numbers/base_display.h"
#include "numbers/builtins.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {
namespace {

class DiscardingSink final : public ErrorSink {
public:
    void ReportError(int) override {}
};

CommaTexts OneElement(double x) {
    return CommaTexts({std::u16string(TrimBlanks(NumberText(x)))});
}

// A one-argument function as the ladder calls it.
void CallOneArgument(benchmark::State& run, std::u16string_view name, double x) {
    const CommaTexts list = OneElement(x);
    DiscardingSink sink;
    for (auto _ : run) {
        double value = x;
        CallBuiltin(name, value, list, -1, sink);
        benchmark::DoNotOptimize(value);
    }
}

// Trigonometric functions go through the snapping tests (a 15-digit text
// round trip each); tan at a pole also folds the angle.
void BM_CallBuiltin_SinSnapped(benchmark::State& run) { CallOneArgument(run, u"sin", PiValue); }
void BM_CallBuiltin_SinOffGrid(benchmark::State& run) { CallOneArgument(run, u"sin", 1); }
void BM_CallBuiltin_TanPole(benchmark::State& run) { CallOneArgument(run, u"tan", PiValue / 2); }
void BM_CallBuiltin_CotOffGrid(benchmark::State& run) { CallOneArgument(run, u"cot", 1); }
BENCHMARK(BM_CallBuiltin_SinSnapped);
BENCHMARK(BM_CallBuiltin_SinOffGrid);
BENCHMARK(BM_CallBuiltin_TanPole);
BENCHMARK(BM_CallBuiltin_CotOffGrid);

void BM_CallBuiltin_Exp(benchmark::State& run) { CallOneArgument(run, u"exp", 1.5); }
void BM_CallBuiltin_Fac170(benchmark::State& run) { CallOneArgument(run, u"fac", 170); }
void BM_CallBuiltin_Arcsec(benchmark::State& run) { CallOneArgument(run, u"arcsec", 2); }
void BM_CallBuiltin_Arsh(benchmark::State& run) { CallOneArgument(run, u"arsh", 2); }
// The last row of the one-argument table.
void BM_CallBuiltin_Radtoang(benchmark::State& run) { CallOneArgument(run, u"radtoang", 1); }
BENCHMARK(BM_CallBuiltin_Exp);
BENCHMARK(BM_CallBuiltin_Fac170);
BENCHMARK(BM_CallBuiltin_Arcsec);
BENCHMARK(BM_CallBuiltin_Arsh);
BENCHMARK(BM_CallBuiltin_Radtoang);

// A list function over n elements of 15-digit text.
void CallList(benchmark::State& run, std::u16string_view name) {
    std::vector<std::u16string> texts;
    for (long i = 0; i < run.range(0); ++i) texts.emplace_back(TrimBlanks(NumberText(1 + i / 7.0)));
    const CommaTexts list(texts);
    DiscardingSink sink;
    for (auto _ : run) {
        double value = 1;
        CallBuiltin(name, value, list, -1, sink);
        benchmark::DoNotOptimize(value);
    }
    run.SetItemsProcessed(run.iterations() * run.range(0));
}

void BM_CallBuiltin_Sum(benchmark::State& run) { CallList(run, u"sum"); }
void BM_CallBuiltin_Max(benchmark::State& run) { CallList(run, u"max"); }
void BM_CallBuiltin_Std(benchmark::State& run) { CallList(run, u"std"); }
BENCHMARK(BM_CallBuiltin_Sum)->Arg(10)->Arg(1000);
BENCHMARK(BM_CallBuiltin_Max)->Arg(10)->Arg(1000);
BENCHMARK(BM_CallBuiltin_Std)->Arg(10)->Arg(1000);

void BM_CallBuiltin_Round(benchmark::State& run) {
    const CommaTexts list({u"3.14159", u"2"});
    DiscardingSink sink;
    for (auto _ : run) {
        double value = 2;
        CallBuiltin(u"round", value, list, -1, sink);
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(BM_CallBuiltin_Round);

// The number texts: reading a token, writing a result.
void BM_TextToNumber_ShortToken(benchmark::State& run) {
    for (auto _ : run) benchmark::DoNotOptimize(TextToNumber(u"12.5"));
}
void BM_TextToNumber_FifteenDigits(benchmark::State& run) {
    for (auto _ : run) benchmark::DoNotOptimize(TextToNumber(u"3.14159265358979"));
}
void BM_TextToNumber_ExponentForm(benchmark::State& run) {
    for (auto _ : run) benchmark::DoNotOptimize(TextToNumber(u"-3.33333333333333E-02"));
}
BENCHMARK(BM_TextToNumber_ShortToken);
BENCHMARK(BM_TextToNumber_FifteenDigits);
BENCHMARK(BM_TextToNumber_ExponentForm);

void WriteNumberText(benchmark::State& run, double x) {
    for (auto _ : run) {
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(NumberText(x));
    }
}
void BM_NumberText_Fraction(benchmark::State& run) { WriteNumberText(run, 8.6); }
void BM_NumberText_LongFraction(benchmark::State& run) { WriteNumberText(run, 1.0 / 7); }
void BM_NumberText_Integer(benchmark::State& run) { WriteNumberText(run, 123456); }
void BM_NumberText_ExponentForm(benchmark::State& run) { WriteNumberText(run, 1.0 / 30); }
BENCHMARK(BM_NumberText_Fraction);
BENCHMARK(BM_NumberText_LongFraction);
BENCHMARK(BM_NumberText_Integer);
BENCHMARK(BM_NumberText_ExponentForm);

void BM_DisplayNumberText_Fraction(benchmark::State& run) {
    double x = 8.6;
    for (auto _ : run) {
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(DisplayNumberText(x));
    }
}
BENCHMARK(BM_DisplayNumberText_Fraction);

// The longest text that the display writes: 256 hexadecimal digits.
void BM_NumberToBaseText_BigValueHex(benchmark::State& run) {
    DiscardingSink sink;
    for (auto _ : run) benchmark::DoNotOptimize(NumberToBaseText(BigValue, 16, 0, sink));
}
BENCHMARK(BM_NumberToBaseText_BigValueHex);

void BM_NumberToBaseText_SmallBinary(benchmark::State& run) {
    DiscardingSink sink;
    for (auto _ : run) benchmark::DoNotOptimize(NumberToBaseText(255, 2, 0, sink));
}
BENCHMARK(BM_NumberToBaseText_SmallBinary);

void BM_ShowResultInBase_ComplementHex(benchmark::State& run) {
    DiscardingSink sink;
    for (auto _ : run) benchmark::DoNotOptimize(ShowResultInBase(-255, u"-255", BaseIndexHexadecimal, true, sink));
}
BENCHMARK(BM_ShowResultInBase_ComplementHex);

}  // namespace
}  // namespace tessarondel
