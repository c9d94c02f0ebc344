// One main window session: the cost of an evaluation once the expression
// list, the Result List and the history already hold N entries. It must not
// grow with N.
#include <benchmark/benchmark.h>

#include "shell/main_window_model.h"

namespace tessarondel {
namespace {

class SilentBox final : public MessageBox {
public:
    MessageAnswer Show(std::u16string_view, std::u16string_view, MessageButtons, MessageIcon) override {
        return MessageAnswer::Ok;
    }
};

class NullClipboard final : public Clipboard {
public:
    std::u16string GetText() override { return {}; }
    void SetText(std::u16string_view) override {}
};

class NullSaveDialog final : public SaveFileDialog {
public:
    std::u16string AskSaveFileName(std::u16string_view) override { return {}; }
};

class NullOpener final : public ShellOpener {
public:
    bool ShellOpen(std::u16string_view) override { return true; }
};

struct Session {
    Session() { main.Load(FormInfoTexts{}, ScreenSize{19200, 14400}); }

    void Evaluate(std::u16string_view text) {
        main.EditInput(std::u16string(text), text.size(), 0);
        main.PressEnter();
    }

    EngineState engine;
    SilentBox box;
    NullClipboard clipboard;
    NullSaveDialog saveDialog;
    NullOpener opener;
    MainWindowModel main{engine, ShellPlatform{box, clipboard, saveDialog, opener}, ShellEnvironment{}};
};

// Evaluations timed after `state.range(0)` earlier ones in the same session.
void BM_EvaluateAfterEarlierEvaluations(benchmark::State& state) {
    Session session;
    for (std::int64_t i = 0; i < state.range(0); ++i) session.Evaluate(u"x=x+1");
    for (auto _ : state) session.Evaluate(u"x=x+1");
    benchmark::DoNotOptimize(session.main.Expressions().Rows().size());
    state.counters["rows"] = static_cast<double>(session.main.Expressions().Rows().size());
}
BENCHMARK(BM_EvaluateAfterEarlierEvaluations)->Arg(0)->Arg(10000)->Arg(100000)->Iterations(20000);

// The same with the hexadecimal display, which rewrites every result.
void BM_EvaluateInHexAfterEarlierEvaluations(benchmark::State& state) {
    Session session;
    session.main.FocusBaseOption(3);
    for (std::int64_t i = 0; i < state.range(0); ++i) session.Evaluate(u"255*2");
    for (auto _ : state) session.Evaluate(u"255*2");
    benchmark::DoNotOptimize(session.main.Results().ResultListCount());
}
BENCHMARK(BM_EvaluateInHexAfterEarlierEvaluations)->Arg(0)->Arg(100000)->Iterations(20000);

// The start-up cost of a kept session: reading the file's text of 1,000 rows,
// Result List items and inputs and putting it back into a freshly loaded window.
void BM_RestoreKeptSession(benchmark::State& state) {
    Session earlier;
    for (int i = 0; i < 1000; ++i) earlier.Evaluate(u"x=x+sqrt(2)*sin(x)");
    const std::string text = FormatSessionHistory(earlier.main.SaveHistory());
    for (auto _ : state) {
        Session next;
        next.main.RestoreHistory(*ParseSessionHistory(text));
        benchmark::DoNotOptimize(next.main.Expressions().Rows().size());
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}
BENCHMARK(BM_RestoreKeptSession)->Unit(benchmark::kMillisecond);

// The same fresh window without a kept session, for comparison.
void BM_LoadWithoutKeptSession(benchmark::State& state) {
    for (auto _ : state) {
        Session next;
        benchmark::DoNotOptimize(next.main.Expressions().Rows().size());
    }
}
BENCHMARK(BM_LoadWithoutKeptSession)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarondel
