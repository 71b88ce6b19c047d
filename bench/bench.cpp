#include "bench.hpp"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_OPENCV
#include <opencv2/core.hpp>
#endif

namespace tessaro::bench {

// ---- Images

struct Picture::Block {
  int width, height;
  size_t head;  // bytes before the first pixel; the record lies in the last 64 of them
  uint8_t* memory;
  ~Block() { std::free(memory); }
};

Picture::Picture(int width, int height, uint32_t seed) {
  // Images of equal place within a page would make loads wait for unrelated stores; hosts' images seldom
  // agree.
  static int made = 0;
  const size_t head = 64 + 64 * static_cast<size_t>(made++ * 7 % 61);
  const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
  auto* memory = static_cast<uint8_t*>(std::aligned_alloc(4096, (head + 4 * count + 4095) / 4096 * 4096));
  if (!memory) std::abort();
  block_ = std::shared_ptr<Block>(new Block{width, height, head, memory});
  const auto word = [](int v) { return static_cast<int16_t>(v); };
  *record() = {sizeof(ImageRecord), 64};
  *reinterpret_cast<ImageDims*>(record() + 1) = {word(width), word(height), word(4 * width)};
  auto* pixel = reinterpret_cast<uint32_t*>(pixels());
  uint32_t state = seed * 2654435761u | 1;
  for (size_t i = 0; i < count; ++i) {
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    pixel[i] = state;
  }
}
ImageRecord* Picture::record() const {
  return reinterpret_cast<ImageRecord*>(block_->memory + block_->head - 64);
}
uint8_t* Picture::pixels() const { return block_->memory + block_->head; }
int Picture::width() const { return block_->width; }
int Picture::height() const { return block_->height; }
size_t Picture::bytes() const { return 4 * static_cast<size_t>(width()) * static_cast<size_t>(height()); }

namespace {

// ---- The comparisons

// In order of their names, sizes at the end by value.
struct BySize {
  static std::pair<std::string, int> key(const std::string& name) {
    const size_t size = name.find_last_not_of("0123456789") + 1;
    return {name.substr(0, size), std::atoi(name.c_str() + size)};
  }
  bool operator()(const std::string& a, const std::string& b) const { return key(a) < key(b); }
};
auto& comparisons() {
  static std::map<std::string, Comparison, BySize> all;
  return all;
}

struct Rate {
  std::string name;
  double seconds;  // of one call, median of the repetitions
};

class Collector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration && !run.error_occurred)
        seconds[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                      static_cast<double>(run.iterations));
  }
  std::map<std::string, std::vector<double>> seconds;
};

double median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const size_t half = values.size() / 2;
  return values.size() % 2 ? values[half] : (values[half - 1] + values[half]) / 2;
}

// Processor time of this thread is measured, so that what other programs take does not count, and peers run
// in this thread alone. The library interleaves the repetitions of everything that is registered together:
// one comparison at a time.
std::vector<Rate> measure(const std::vector<Contender>& contenders, int repetitions, double seconds) {
  benchmark::ClearRegisteredBenchmarks();
  for (const Contender& contender : contenders) {
    contender.run();  // the first touch of memory is nobody's
    benchmark::RegisterBenchmark(contender.name.c_str(),
                                 [&contender](benchmark::State& state) {
                                   for ([[maybe_unused]] auto _ : state) {
                                     contender.run();
                                     benchmark::ClobberMemory();
                                   }
                                 })
        ->MinTime(seconds)
        ->Repetitions(repetitions);
  }
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector, ".");
  std::vector<Rate> rates;
  for (const Contender& contender : contenders)
    rates.push_back({contender.name, median(collector.seconds[contender.name])});
  return rates;
}

std::string processor() {
  std::ifstream info("/proc/cpuinfo");
  for (std::string line; std::getline(info, line);)
    if (line.rfind("model name", 0) == 0) return line.substr(line.find(':') + 2);
  return "unknown processor";
}

const char* widest() {
  return __builtin_cpu_supports("avx512bw") ? "AVX-512" : __builtin_cpu_supports("avx2") ? "AVX2" : "SSE2";
}

std::string head() {
  char day[32];
  const std::time_t now = std::time(nullptr);
  std::strftime(day, sizeof day, "%Y-%m-%d", std::gmtime(&now));
  return processor() + ", limits with " + widest() + ", " + day;
}

std::string format(const char* pattern, double value) {
  char text[64];
  std::snprintf(text, sizeof text, pattern, value);
  return text;
}

// Millions of units a second, with as many digits as mean something.
std::string rate_of(double work, const Rate& rate) {
  const double millions = work / rate.seconds / 1e6;
  return format(millions < 10 ? "%.2f" : millions < 100 ? "%.1f" : "%.0f", millions);
}

// One row: tessaro, the limit and the ratio to it, then the peers, fastest first.
struct Row {
  std::string name, unit, own, limit, peers;
};
Row row_of(const Comparison& comparison, const Prepared& prepared, std::vector<Rate> rates) {
  Row row{comparison.name + prepared.note, "M" + comparison.unit + "/s", "", "", ""};
  double own = 0;
  for (const Rate& rate : rates)
    if (rate.name == "tessaro") own = rate.seconds;
  std::stable_sort(rates.begin(), rates.end(),
                   [](const Rate& a, const Rate& b) { return a.seconds < b.seconds; });
  for (const Rate& rate : rates) {
    const std::string value = rate_of(prepared.work > 0 ? prepared.work : comparison.work, rate);
    const std::string ratio = own > 0 ? " (" + format("%.2f", rate.seconds / own) + ")" : "";
    if (rate.name == "tessaro")
      row.own = value;
    else if (rate.name == "limit")
      row.limit = value + ratio;
    else
      row.peers += (row.peers.empty() ? "" : ", ") + rate.name + " " + value + ratio;
  }
  return row;
}

int usage(const char* program) {
  std::printf(
      "usage: %s [--list] [--table FILE] [--repetitions N] [--seconds S] [name ...]\n"
      "Each name is a regular expression; a comparison runs when one is found in its name. In brackets:\n"
      "tessaro's speed divided by the other's, above 1 where tessaro is faster.\n",
      program);
  return 2;
}

int run(int argc, char** argv) {
  std::vector<std::regex> filters;
  std::string table;
  int repetitions = 9;
  double seconds = 0.02;
  bool list = false;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const bool more = i + 1 < argc;
    if (argument == "--list")
      list = true;
    else if (argument == "--table" && more)
      table = argv[++i];
    else if (argument == "--repetitions" && more)
      repetitions = std::max(1, std::atoi(argv[++i]));
    else if (argument == "--seconds" && more)
      seconds = std::atof(argv[++i]);
    else if (argument.rfind("-", 0) == 0)
      return usage(argv[0]);
    else
      filters.emplace_back(argument);
  }

  std::vector<const Comparison*> chosen;
  for (const auto& [name, comparison] : comparisons())
    if (filters.empty() || std::any_of(filters.begin(), filters.end(),
                                       [&name = name](const auto& f) { return std::regex_search(name, f); }))
      chosen.push_back(&comparison);
  if (list) {
    for (const Comparison* comparison : chosen) std::puts(comparison->name.c_str());
    return 0;
  }

  std::string program = argv[0], interleave = "--benchmark_enable_random_interleaving=true";
#if TESSARO_BENCH_HAS_OPENCV
  cv::setNumThreads(1);
#endif
  char* arguments[] = {program.data(), interleave.data(), nullptr};
  int count = 2;
  benchmark::Initialize(&count, arguments);

  std::printf("%s\n%-28s %10s %-8s %16s  %s\n", head().c_str(), "", "tessaro", "", "limit", "peers");
  const bool watched = isatty(2);
  std::vector<Row> rows;
  for (const Comparison* comparison : chosen) {
    if (watched) std::fprintf(stderr, "%s ...\r", comparison->name.c_str());
    const Prepared prepared = comparison->setup();
    if (prepared.contenders.empty()) continue;
    rows.push_back(row_of(*comparison, prepared, measure(prepared.contenders, repetitions, seconds)));
    const Row& row = rows.back();
    std::printf("%-28s %10s %-8s %16s  %s\n", row.name.c_str(), row.own.c_str(), row.unit.c_str(),
                row.limit.c_str(), row.peers.c_str());
    std::fflush(stdout);
  }
  if (!table.empty()) {
    std::ofstream out(table);
    out << "# Results\n\n"
        << head() << ". Medians of " << repetitions
        << " interleaved repetitions of processor time; in brackets tessaro's speed"
        << " divided by the other's.\n\n"
        << "| comparison | unit | tessaro | limit | peers |\n|---|---|---|---|---|\n";
    for (const Row& row : rows)
      out << "| " << row.name << " | " << row.unit << " | " << row.own << " | " << row.limit << " | "
          << row.peers << " |\n";
    if (!out.flush()) {
      std::fprintf(stderr, "cannot write %s\n", table.c_str());
      return 1;
    }
  }
  return 0;
}

}  // namespace

bool compare(Comparison comparison) {
  std::string name = comparison.name;
  return comparisons().emplace(std::move(name), std::move(comparison)).second;
}

}  // namespace tessaro::bench

int main(int argc, char** argv) { return tessaro::bench::run(argc, argv); }
