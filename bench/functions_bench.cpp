// Custom functions: loading a folder of documents at start, and expanding deeply nested calls.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>

#include "customfunctions/cfd_document.h"
#include "engine/engine.h"

namespace tessarondel {
namespace {

class DocumentFolder {
public:
    explicit DocumentFolder(int count) {
        std::string pattern = (std::filesystem::temp_directory_path() / "tessarondel-bench-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
        for (int k = 0; k < count; ++k) {
            char name[16];
            std::snprintf(name, sizeof name, "q%04d", k);
            const std::u16string functionName(name, name + 5);
            WriteFunctionDocument(
                path_, {functionName, u"a, b", u"h=a^2+b^2 ' squares\r\nsqrt(h)", u"A function of the benchmark"});
        }
    }
    ~DocumentFolder() { std::filesystem::remove_all(path_); }
    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

void BM_LoadAndDefineDocuments(benchmark::State& bench) {
    const DocumentFolder folder(static_cast<int>(bench.range(0)));
    for (auto _ : bench) {
        EngineState state;
        const FolderReadResult result = LoadFunctionFolder(state, folder.Path());
        const auto defined = std::count(state.CustomFunctionNames.begin(), state.CustomFunctionNames.end(), u'}');
        if (result.documents.size() != static_cast<std::size_t>(bench.range(0)) || defined != bench.range(0)) {
            bench.SkipWithError("not every document was read and defined");
        }
    }
}
BENCHMARK(BM_LoadAndDefineDocuments)->Arg(1000)->Unit(benchmark::kMillisecond);

void BM_NestedCustomCalls(benchmark::State& bench) {
    EngineState state;
    state.ApproximateBits = -1;
    DefineCustomFunction(state, u"j", u"x", u"x+1", u"");
    std::u16string expression;
    for (int k = 0; k < bench.range(0); ++k) expression += u"j(";
    expression += u"0";
    for (int k = 0; k < bench.range(0); ++k) expression += u")";
    for (auto _ : bench) {
        const std::u16string result = EvaluateText(state, expression);
        if (result != u"100" && bench.range(0) == 100) bench.SkipWithError("wrong result");
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(BM_NestedCustomCalls)->Arg(100)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tessarondel
